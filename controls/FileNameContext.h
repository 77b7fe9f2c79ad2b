// What the file name combo needs to know about the dialog around it.
#pragma once

class CNavNode;

namespace knav {

/// Called on the user-interface thread only; outlives its registration (CNavFileNameComboBox::SetContext).
class FileNameContext {
public:
    /// There is a shell browser and it allows several items to be selected: quoted names are then split.
    virtual bool multiSelectAllowed() const = 0;

    /// The node of the Look-in combo's selected item; null without a combo window or a selection. Not owned.
    virtual CNavNode* lookInNode() const = 0;

protected:
    ~FileNameContext() = default;
};

}  // namespace knav
