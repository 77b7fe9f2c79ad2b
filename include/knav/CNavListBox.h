#pragma once

#include <knav/CNavBitmapListBox.h>
#include <knav/PlacesItemType.h>

class CNavExtension;

namespace knav {
class PlacesDropScope;
class PlacesHost;
struct PlaceRecord;
}  // namespace knav

/// The Places list: shortcuts to History, the user's documents, Favorites, the desktop, the roots of navigation
/// extensions and folders of the user's own, in an order that the user arranges. Flags are ints used as booleans. An
/// index that is no row yields 0, null or an empty text, and setting does nothing. User-interface thread only.
class KNAV_API CNavListBox : public CNavBitmapListBox {
public:
    /// Bits of a row's flags.
    enum : unsigned { NotDeletable = 1, NotEditable = 2, InExtension = 4 };

    CNavListBox();
    ~CNavListBox() override;

    /// The dialog around the list; not owned. Null: a list without a dialog, which loads the standard places only.
    knav::PlacesHost* GetHost() const { return m_host; }
    void SetHost(knav::PlacesHost* host) { m_host = host; }

    // --- which rows to load; set before loading, default 0 -----------------------------------------------------
    int GetNoHistory() const { return m_noHistory; }
    void SetNoHistory(int no) { m_noHistory = no; }
    int GetNoPersonal() const { return m_noPersonal; }
    void SetNoPersonal(int no) { m_noPersonal = no; }
    int GetNoFavorites() const { return m_noFavorites; }
    void SetNoFavorites(int no) { m_noFavorites = no; }
    int GetNoDesktop() const { return m_noDesktop; }
    void SetNoDesktop(int no) { m_noDesktop = no; }
    int GetNoFTPInPlaces() const { return m_noFtp; }
    void SetNoFTPInPlaces(int no) { m_noFtp = no; }
    int GetNoExtraExtensionsInPlaces() const { return m_noExtraExtensions; }
    void SetNoExtraExtensionsInPlaces(int no) { m_noExtraExtensions = no; }

    // --- loading -------------------------------------------------------------------------------------------------
    /// Fills the list anew in the order that was stored. Entries that cannot be resolved are left out.
    void LoadFromOrder();
    /// Fills the rows in the default order. 1, or 0 when a standard place could not be added.
    int OnAutoLoad() override;
    /// Adds the places that host programs asked for, and lets the dialog save the order when any was new.
    void LoadAddedPlaces();
    /// Adds each registered extension that is not there yet. Returns 1.
    int AddExtensions();

    /// Lets folders be dropped on the list as long as its window lives. Nonzero on success.
    int RegisterDropTarget();

    // --- rows ----------------------------------------------------------------------------------------------------
    /// A row at the end, unless there is one of that name, whose index is then returned. The picture comes from
    /// `bitmap`, which is taken over and deleted, else from the resource `bitmapId` or `bitmapName` in `module` (null:
    /// the resource modules); without a picture -1. The tip is the text resource `tipId`.
    int AddItem(const wchar_t* name, UINT bitmapId, const wchar_t* bitmapName, HBITMAP bitmap,
                const wchar_t* displayText, UINT tipId, PlacesItemType type, unsigned flags,
                const wchar_t* extensionName = nullptr, HINSTANCE module = nullptr);
    /// A row before `index` (-1: at the end). 1 when it was added; AddExtensionRoot also when the row was there before.
    int AddExtensionRoot(CNavExtension* extension, const wchar_t* displayText = nullptr, int index = -1);
    int AddExtensionFolder(CNavExtension* extension, const wchar_t* folderName, const wchar_t* displayText = nullptr,
                           int index = -1);
    int AddWebFoldersFolder(const wchar_t* folderName, const wchar_t* displayText = nullptr, int index = -1);
    /// A folder of the user's own before `index` (-1: at the end); its index, or -1 when the path is not absolute.
    int InsertUserItem(int index, const wchar_t* path, const wchar_t* displayText);
    /// A dropped folder before the row under the point (client coordinates; at the end where there is none): its index,
    /// or -1. The list is copied.
    int AddDroppedItem(const ITEMIDLIST* list, POINT point);
    int AddDroppedItem(const wchar_t* path, POINT point);
    /// Adds the folder that the dialog shows, in the same way: the index of its row, also when it had one; or -1.
    int AddCurrentFolder(POINT point);
    /// Moves a row: its new index, or -1 when `from` is no row.
    int MoveItemFromIndex(int from, int to) override;

    /// The kind of place that a name stands for; PlacesItemNone when there is none.
    PlacesItemType TypeFromName(const wchar_t* name) const;
    /// The item list of the folder row of that name, owned by the row; null when there is none.
    ITEMIDLIST* GetUserItemIdFromName(const wchar_t* name) const;
    /// The row of that name, ignoring case, or -1.
    int FindItem(const wchar_t* name) const;

    PlacesItemType GetItemType(int index) const;
    void SetItemType(int index, PlacesItemType type);
    unsigned GetItemFlags(int index) const;
    void SetItemFlags(int index, unsigned flags);
    CString GetItemName(int index) const;
    void SetItemName(int index, const wchar_t* name);
    CString GetItemExtensionName(int index) const;
    void SetItemExtensionName(int index, const wchar_t* name);
    /// Owned by the row; null for a place that is resolved by its name. Setting takes the list over.
    ITEMIDLIST* GetItemIdList(int index) const;
    void SetItemIdList(int index, ITEMIDLIST* list);
    /// The registered extension whose name is the row's; null when there is none.
    CNavExtension* GetItemExtension(int index) const;

    /// Whether the user may delete or edit a row; 1 where there is none.
    int CanDelete(int index) const;
    int CanEdit(int index) const;

    void DeleteItem(DELETEITEMSTRUCT* item) override;

protected:
    LRESULT WindowProc(UINT message, WPARAM wParam, LPARAM lParam) override;
    int DragLoop(POINT point) override;

private:
    knav::PlaceRecord* record(int index) const;
    int attach(int row, std::unique_ptr<knav::PlaceRecord> record);
    int insertFolderRow(int index, const wchar_t* displayText, std::unique_ptr<knav::PlaceRecord> record);
    int insertPathRow(int index, const wchar_t* path, const wchar_t* displayText);
    int insertInExtension(int index, const wchar_t* extensionName, const wchar_t* folderName,
                          const wchar_t* displayText);
    bool addStandard(PlacesItemType type);
    bool leavesOut(PlacesItemType type) const;
    bool leavesOut(const CNavExtension& extension) const;
    bool isSwitchedOff(const CNavExtension& extension) const;
    void loadEntry(int position, const CString& name);
    void loadFolder(int position, const CString& name, const CString& displayText);
    CString storedText(int position, const wchar_t* suffix) const;
    void changed();

    knav::PlacesHost* m_host = nullptr;
    int m_noHistory = 0;
    int m_noPersonal = 0;
    int m_noFavorites = 0;
    int m_noDesktop = 0;
    int m_noFtp = 0;
    int m_noExtraExtensions = 0;
    std::vector<std::unique_ptr<knav::PlaceRecord>> m_records;  // in no order; each row refers to its own
    std::unique_ptr<knav::PlacesDropScope> m_drop;
};
