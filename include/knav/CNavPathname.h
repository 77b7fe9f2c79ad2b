#pragma once

#include <memory>

#include <knav/export.h>
#include <zoui/CZoUiPathname.h>

class CNavNode;

/// A location as the user typed it or as the dialog stores it: a path in the file system, a URL, or a place inside a
/// navigation extension, an internet site or a Web Folders site.
///
/// A path in the file system lives in the base class. Anything else is held as text, with one of the flags IsExtension
/// and IsURL set; both for a URL that was taken as text alone. Parsing sets flags and never clears them, except where
/// it says so: parse into a fresh object. The kind of the path is GetType(); for a location held as text that is
/// ExistingFile, Directory, or what it was before when the text of a URL was all there was to go by.
///
/// Nothing here throws. Calls into folders are guarded. Used on the user-interface thread.
class KNAV_API CNavPathname : public CZoUiPathname {
public:
    CNavPathname();
    /// Copies all there is. The item list and the attached object are only referred to, not copied: the copy must not
    /// use them when the original is gone. Without the memory for it the copy has no path and no location text.
    CNavPathname(const CNavPathname& other);
    ~CNavPathname() override;
    /// Copies the path, IsExtension, IsURL and the location text. The shortcut flag, the item list and the attached
    /// object of the target stay as they are. A null pointer, or too little memory, changes nothing.
    CNavPathname& operator=(const CNavPathname& other);
    CNavPathname& operator=(const CNavPathname* other);

    /// A text that begins with "ftp://", "http://" or "https://", in lower case, is a URL: it is stored and the result
    /// is PathErr::NotFileSystem, which is 4. Anything else is parsed by the base class.
    PathErr Parse(const wchar_t* text, bool allowWildcards) override;

    /// Takes a URL with the scheme ftp, http, https, file, mailto or gopher, in upper or lower case. It is stored
    /// trimmed and with its scheme in lower case, so that Parse knows it again. Nonzero on success; 0, and nothing
    /// changed, for any other text.
    int SetURL(const wchar_t* url);

    /// Parses an item that a view or a tree shows. `item` is relative to `folder`, or starts with `parent`, the item
    /// list of that folder; each may be null. `displayName` is the item's parsing name. Items of extensions and
    /// internet sites are taken as they are; all others are parsed as text, and recognised as shortcuts where `folder`
    /// says so.
    virtual PathErr Parse(ITEMIDLIST* item, IShellFolder* folder, ITEMIDLIST* parent, CString& displayName);

    /// Parses what was typed while `node` was the current folder (null: none). The flags are set anew, by the
    /// kind of the node: IsExtension in an extension, IsURL in an internet or Web Folders site.
    ///
    /// - In an ordinary folder only an absolute path is taken; any other text gives PathErr::NotFileSystem. So join
    ///   folder and name first. `base` supplies the drive for "\name".
    /// - Inside a site, an absolute path (drive or share) leaves the site. A text that begins with the site's scheme
    ///   and host is a location of the site, and so is one that begins with a single separator: the site's root is put
    ///   before it. A URL of another site is refused with PathErr::NotFileSystem. Any other text is joined to the
    ///   site's own location with "/". "." and ".." are resolved, ".." stops at the root. The type is Directory when
    ///   the site's folder says so, else ExistingFile; GetID() is the item when the folder knows it.
    /// - At the root of an extension, of the internet or of Web Folders the text is the name of a site: the type is
    ///   Directory and GetID() the item. What the folder does not know is taken when it is an absolute path.
    ///
    /// A text, or a location made from it, of 260 characters or more gives PathErr::TooLong. With a nonzero
    /// `allowWildcards` the last name of a path may be a pattern.
    PathErr ParseRelative(const wchar_t* text, const CNavPathname* base, CNavNode* node, int allowWildcards);

    /// The path, with the base class's answer; or the location text and 1.
    int GetFullPath(CString& path) const;
    /// The last name of the path; of a location text what follows the last "/" (or, without one, the last "\").
    void GetBasename(CString& name) const;
    /// Nonzero when the path is there now. Of a location text: nonzero when parsing found out that it is there.
    int Exists() const;

    /// Scheme, "://" and host of the location, as "ftp://host", and 1; 0, and `prefix` untouched, when it has none.
    int GetSitePrefix(CString& prefix) const;
    /// The host; empty when there is none.
    void GetServerName(CString& name) const;

    /// Parses `in` into this object and writes it to `out` (260 characters) with "." and ".." resolved. In a location
    /// text every "\" becomes "/". 0 on failure, also for a text that does not fit; `out` is then undefined.
    int NavPathCanonicalize(wchar_t* out, const wchar_t* in);

    /// True when the path string does NOT end in a separator (an empty one does not); false without a path string or
    /// with an invalid path. Callers rely on the opposite of what the name says.
    bool hasTrailingSlash() const;

    /// The location is held as text: a place inside an extension, or a URL that was taken as text alone.
    bool GetIsExtension() const { return m_isExtension; }
    void SetIsExtension(bool isExtension) { m_isExtension = isExtension; }
    /// The location is held as text: a URL, or a place inside an internet or Web Folders site.
    bool GetIsURL() const { return m_isUrl; }
    void SetIsURL(bool isUrl) { m_isUrl = isUrl; }
    /// The parsed item is a shortcut.
    bool isShortCut() const { return m_isShortCut; }

    /// The item list set last, or found by ParseRelative, which is relative to the desktop. SetID does not take
    /// ownership: the list must live as long as it is used here. The one that ParseRelative finds belongs to this
    /// object.
    ITEMIDLIST* GetID() const { return m_id; }
    void SetID(ITEMIDLIST* id) { m_id = id; }

    /// An object that stands for the connection to a site; null when there is none. Setting it takes a reference,
    /// which is released when the path name is destroyed or another object is set.
    IUnknown* GetAttachedObject() const { return m_attached; }
    void SetAttachedObject(IUnknown* object);
    /// What the attached object reports as its URL (IUniformResourceLocatorW) and 1; 0 and an empty text without one.
    int GetAttachedPrefix(CString& prefix) const;

protected:
    /// Assigns the first `count` characters of `text` to `out`. Nothing happens for a null text, for 0, and for 260
    /// characters or more, which no location has.
    void ExtractString(const wchar_t* text, unsigned long count, CString& out);

private:
    struct FreeItemList {
        void operator()(ITEMIDLIST* list) const noexcept;
    };
    struct ReleaseObject {
        void operator()(IUnknown* object) const noexcept;
    };

    bool isText() const { return m_isExtension || m_isUrl; }
    void ownID(ITEMIDLIST* id);
    void dropOwnedID();
    PathErr takeItem(const ITEMIDLIST* item, IShellFolder* folder, const CString& displayName);
    PathErr parseAbsolute(const wchar_t* text, const CNavPathname* base, bool allowWildcards);
    PathErr parseInSite(const wchar_t* text, const CNavPathname* base, CNavNode& site, bool allowWildcards);
    void findInSite(CNavNode& site, ITEMIDLIST* siteList, const wchar_t* name);
    bool parseAtRoot(const wchar_t* text, CNavNode& root);

    bool m_isExtension = false;
    bool m_isUrl = false;
    bool m_isShortCut = false;
    CString m_location;  // empty for a path in the file system
    ITEMIDLIST* m_id = nullptr;
    IUnknown* m_attached = nullptr;

    // What this object owns of the two above; a copy owns nothing.
    std::unique_ptr<ITEMIDLIST, FreeItemList> m_ownedId;
    std::unique_ptr<IUnknown, ReleaseObject> m_ownedAttached;
};
