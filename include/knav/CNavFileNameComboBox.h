#pragma once

#include <knav/CNavComboBox.h>
#include <platform/Arrays.h>

class CNavDataArray;

namespace knav {
class FileNameContext;
}

/// The file name field with its history list. Owns its text; result items are exchanged by value with the arrays passed
/// in. User-interface thread only.
class KNAV_API CNavFileNameComboBox : public CNavComboBox {
public:
    CNavFileNameComboBox();

    /// Nonzero since the user edited the text or chose from the list, until cleared.
    int IsFileNameComboBoxDirty() const { return m_dirty; }
    void SetFileNameComboBoxDirty(int dirty) { m_dirty = dirty; }

    /// The dialog around the field; not owned. Without one, quoted names are not split.
    void SetContext(const knav::FileNameContext* context) { m_context = context; }

    /// Splits the text into names; returns their number. Several names stand in double quotes.
    int GetEditBoxStrings(CStringArray& names);
    /// Replaces the contents of `data` by one item for each name. Zero when an item could not be made; those made
    /// before stay.
    int SendFileNameToData(CNavDataArray& data);
    /// Writes the names of the items that are files into the text; with nothing to write the text stays. Always 1.
    int SyncToData(CNavDataArray& data);

    BOOL PreTranslateMessage(MSG* message) override;

protected:
    BOOL OnEditChange();
    BOOL OnSelChange();
    /// A plain string list: there is nothing to draw, measure, compare or delete.
    int CompareItem(COMPAREITEMSTRUCT* item) override;
    void DeleteItem(DELETEITEMSTRUCT* item) override;
    void DrawItem(DRAWITEMSTRUCT* item) override;
    void MeasureItem(MEASUREITEMSTRUCT* item) override;
    DECLARE_MESSAGE_MAP()

private:
    const knav::FileNameContext* m_context = nullptr;
    int m_dirty = 0;
};
