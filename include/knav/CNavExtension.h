#pragma once

#include <knav/export.h>
#include <platform/CString.h>

/// A navigation extension: an extra root of the namespace that a component registers, shown in the Places list and at
/// the top of the folder hierarchy.
///
/// Objects belong to the process-wide list of registered extensions. Setters keep a copy of a text.
/// User-interface thread only. Nothing throws.
class KNAV_API CNavExtension {
public:
    CNavExtension();
    CNavExtension(const CNavExtension&) = delete;
    CNavExtension& operator=(const CNavExtension&) = delete;
    virtual ~CNavExtension();

    /// The name under which the extension is registered; it identifies the extension, ignoring case.
    const wchar_t* GetName() const;
    void SetName(const wchar_t* name);

    /// Text and tip of its Places row.
    const wchar_t* GetPlacesLabel() const;
    void SetPlacesLabel(const wchar_t* label);
    const wchar_t* GetPlacesTip() const;
    void SetPlacesTip(const wchar_t* tip);

    /// What to tell a user whose machine lacks a component that the extension needs, and where to get it.
    const wchar_t* GetInstallMessage() const;
    void SetInstallMessage(const wchar_t* message);
    const wchar_t* GetInstallMessageCaption() const;
    void SetInstallMessageCaption(const wchar_t* caption);
    const wchar_t* GetInstallationURL() const;
    void SetInstallationURL(const wchar_t* url);

    /// The class that supplies the root folder.
    const GUID& GetRootFolderCLSID() const;
    void SetRootFolderCLSID(const GUID& clsid);

    /// Nonzero: the component is created only when the extension is first clicked. Until then the folder hierarchy
    /// shows an icon only with 1.
    int GetDelayInit() const;
    void SetDelayInit(int delay);

    /// The root folder, without a reference for the caller; null while it is not loaded.
    IShellFolder* GetRootFolder() const;
    /// Takes a reference to `folder` and releases the folder held before. Null is fine.
    void SetRootFolder(IShellFolder* folder);
    /// The root folder with a reference for the caller; loads it when needed. Null when that fails.
    IShellFolder* FetchRootFolder();

    /// The item that stands for the root in item lists; owned by the extension. Null until it is made or set.
    ITEMIDLIST* GetID() const;
    /// Takes ownership of `list` and frees the one held before.
    void SetID(ITEMIDLIST* list);
    /// Makes the root item from the name: one element with the text "Extension-" and the name. 1 on success.
    int CreateID();

    /// Bit 0: names inside the extension can be parsed (GetItemListFromName).
    DWORD GetAttributes() const;
    void SetAttributes(DWORD attributes);

    /// The name shown for the root in the folder hierarchy.
    const wchar_t* GetRootFolderDisplayName() const;
    void SetRootFolderDisplayName(const wchar_t* name);

    /// A new copy of the picture, which the caller deletes; null when there is none.
    HBITMAP GetBitmapCopy() const;
    /// Takes ownership of a 32-bit picture and deletes the one held before.
    void SetBitmap(HBITMAP picture);

    /// 1 when the extension, or every extension but the FTP sites, is switched off on this machine.
    int IsDisabled() const;
    /// 1 when every extension but the FTP sites is switched off on this machine.
    static int AllDisabled();
    /// 1 for the FTP sites.
    int IsFTP() const;

    /// The qualified list of a name inside the extension, which may start with a scheme and "://"; the caller frees it.
    /// Null without a loaded root folder, or when names cannot be parsed.
    ITEMIDLIST* GetItemListFromName(const wchar_t* name);

private:
    CString m_name;
    CString m_placesLabel;
    CString m_placesTip;
    CString m_installMessage;
    CString m_installMessageCaption;
    CString m_installationURL;
    GUID m_rootFolderCLSID{};
    int m_delayInit = 0;
    IShellFolder* m_rootFolder = nullptr;
    IUnknown* m_object = nullptr;
    ITEMIDLIST* m_id = nullptr;
    DWORD m_attributes = 0;
    CString m_rootFolderDisplayName;
    HBITMAP m_picture = nullptr;
};
