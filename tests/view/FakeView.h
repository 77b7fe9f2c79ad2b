// A view made by a test; each of its methods, and of those of the data object with its selection, can fail, fault or
// throw.
#pragma once

#include "support/FakeFolder.h"

#include <string>
#include <vector>

namespace knav::test {

/// What a fake view does and how it was made; outlives the view.
struct ViewScript {
    bool offersView2 = true;
    bool offersFolderView = true;
    bool makesWindow = true;
    bool hidesWindow = false;       ///< makes its window between two others and does not tell which it is
    bool standardWindow = false;    ///< its window is of the class of the shell's own views, with a list in it
    bool breaksAfterwards = false;  ///< making the window misbehaves when the window is there
    int focusedItem = 0;
    std::vector<std::wstring> selection;  ///< names of the selected items

    DWORD paramsSize = 0;
    IShellView* previous = nullptr;
    FOLDERSETTINGS settings{};
    GUID viewId{};
    RECT place{};
};

/// A view with one reference, whose methods, and those of its data object, do as the folder that makes it is told.
IShellView* makeFakeView(Conducts& conducts, ViewScript& script);

}  // namespace knav::test
