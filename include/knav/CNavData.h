#pragma once

#include <memory>

#include <knav/NAV_DATA_TYPE.h>
#include <knav/export.h>
#include <platform/CString.h>
#include <platform/Windows.h>

class CNavPathname;

/// One item that the user chose: a file, a folder, a URL, a network path, or an item of an extension or FTP site.
///
/// The dialog makes and fills the items; the host reads them after the dialog. Null texts are taken as empty. Texts
/// returned by the getters belong to the item and are valid until the next change of that text. Nothing here throws:
/// a setter that runs out of memory leaves the old value. Used on the dialog's thread.
class KNAV_API CNavData {
public:
    /// An item without type, list and texts, and with an empty path name.
    CNavData();
    CNavData(const CNavData&) = delete;
    CNavData& operator=(const CNavData&) = delete;
    virtual ~CNavData();

    /// What the item is; it decides what else of it is set.
    NAV_DATA_TYPE GetDataType() const { return m_type; }
    void SetDataType(NAV_DATA_TYPE type) { m_type = type; }

    /// The shell's identity of the item, relative to the desktop; null when it has none. The item keeps the ownership.
    ITEMIDLIST* GetID() const { return m_id.get(); }
    /// Takes over `id`, which comes from the shell's task allocator, or null, and frees the list held before.
    void SetID(ITEMIDLIST* id);

    /// The item as the user sees or typed it. Setting it cuts leading white space; white space at the end stays.
    const wchar_t* GetText() const { return m_text; }
    void SetText(const wchar_t* text);

    /// The item's name in its folder. Setting it cuts white space at both ends.
    const wchar_t* GetTextInFolder() const { return m_textInFolder; }
    void SetTextInFolder(const wchar_t* text);

    /// The parsed location, empty at first; owned by the item. May be changed in place. Null only when there was no
    /// memory for it.
    CNavPathname* GetPathname() const { return m_pathname.get(); }
    /// Assigns the given path name to the item's own one. The pointer is not kept; null is ignored.
    void SetPathname(CNavPathname* pathname);

    /// The user name and password for an item of an FTP or Web Folders site.
    const wchar_t* GetUserName() const { return m_userName; }
    void SetUserName(const wchar_t* name);
    const wchar_t* GetPassword() const { return m_password; }
    void SetPassword(const wchar_t* password);

    /// The navigation extension that an item of type NAV_DATA_EXTENSION belongs to.
    const wchar_t* GetExtensionName() const { return m_extensionName; }
    void SetExtensionName(const wchar_t* name);

    /// A pointer of the host's; the library never uses it. Setting it returns the new value.
    void* GetUserData() const { return m_userData; }
    void* SetUserData(void* data) { return m_userData = data; }

    /// 1 for an item that has to be fetched before it can be opened: a URL, an item of an extension or of an FTP site.
    /// A network path is not remote.
    int IsRemote() const;
    /// 1 for an item of a navigation extension.
    int IsExtension() const;
    /// For a remote item its full location in `url`, and 1; otherwise an empty text and 0.
    int GetURL(CString& url) const;

private:
    struct FreeItemList {
        void operator()(ITEMIDLIST* list) const noexcept;
    };

    NAV_DATA_TYPE m_type = NAV_DATA_UNKNOWN;
    std::unique_ptr<ITEMIDLIST, FreeItemList> m_id;
    CString m_text;
    CString m_textInFolder;
    std::unique_ptr<CNavPathname> m_pathname;  // null only when there was no memory for it
    CString m_userName;
    CString m_password;
    CString m_extensionName;
    void* m_userData = nullptr;
};
