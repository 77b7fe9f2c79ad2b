#pragma once

#include <knav/CNavComboBox.h>

class CNavFilterArray;

/// The file type combo. Made by the template or with Create; nothing throws. User-interface thread only.
class KNAV_API CNavFilterComboBox : public CNavComboBox {
public:
    /// A combo without a window.
    CNavFilterComboBox() = default;

    /// Replaces the items by the full descriptions of the filters, in their order. A filter whose description is empty
    /// gets no item, so that later item indices are smaller than filter indices. The selected index stays selected as
    /// far as it exists. With one item too few for it the first is selected, with fewer the last; without a selection
    /// the first. The filters are only read.
    void FillWithFilterArray(CNavFilterArray& filters);
};
