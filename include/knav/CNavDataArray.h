#pragma once

#include <knav/CNavArray.h>
#include <knav/CNavData.h>
#include <knav/export.h>

/// The result of a dialog: one item for each thing chosen.
///
/// The host makes an empty one, passes it to the dialog and reads it after DoModal() has returned IDOK. The dialog
/// empties it before it fills it. Items belong to the array and live until it is emptied or destroyed.
class KNAV_API CNavDataArray : public CNavArray<CNavData> {
public:
    /// No items.
    CNavDataArray();
    ~CNavDataArray() override;
};
