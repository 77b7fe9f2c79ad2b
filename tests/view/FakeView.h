// A folder whose view is made by a test; each method of the folder, of the view and of the data object with its
// selection can fail, fault or throw.
#pragma once

#include "shell/ComPtr.h"
#include "support/FakeFolder.h"

#include <map>
#include <string>
#include <vector>

namespace knav::test {

/// The methods that the library calls, in the order of the interfaces; a call of another one fails the test. Those of
/// the view have no prefix.
enum class ViewCall {
    FolderQueryInterface,
    FolderAddRef,
    FolderRelease,
    FolderParseDisplayName,
    FolderEnumObjects,
    FolderBindToObject,
    FolderCompareIDs,
    CreateViewObject,
    FolderGetAttributesOf,
    FolderGetUIObjectOf,
    FolderGetDisplayNameOf,
    QueryInterface,
    AddRef,
    Release,
    GetWindow,
    TranslateAccelerator,
    Refresh,
    CreateViewWindow,
    DestroyViewWindow,
    GetCurrentInfo,
    SaveViewState,
    SelectItem,
    GetItemObject,
    CreateViewWindow2,
    Item,
    GetFocusedItem,
    DataQueryInterface,
    DataAddRef,
    DataRelease,
    GetData,
    Count,
};

/// What a fake view does and what it was asked to do; outlives the view.
struct ViewScript {
    Conduct of(ViewCall call) const { return conduct.contains(call) ? conduct.at(call) : Conduct::Works; }
    /// Notes the call and behaves as told; `worked` is what a call returns that works.
    HRESULT enter(ViewCall call, HRESULT worked = S_OK);

    std::map<ViewCall, Conduct> conduct;
    std::map<ViewCall, int> calls;
    bool offersView2 = true;
    bool offersFolderView = true;
    bool makesWindow = true;
    bool hidesWindow = false;       ///< makes its window between two others and does not tell which it is
    bool standardWindow = false;    ///< its window is of the class of the shell's own views, with a list in it
    bool breaksAfterwards = false;  ///< making the window misbehaves when the window is there
    int focusedItem = 0;
    SFGAOF attributes = 0;                ///< of every item of the folder
    std::vector<std::wstring> selection;  ///< names of the selected items

    DWORD paramsSize = 0;
    IShellView* previous = nullptr;
    FOLDERSETTINGS settings{};
    GUID viewId{};
    RECT place{};
    std::vector<std::pair<const ITEMIDLIST*, UINT>> selected;
    int liveObjects = 0;
};

/// A folder that makes such views, stands for the root of an extension, and binds to itself for every item.
ComPtr<IShellFolder> makeViewFolder(ViewScript& script);

}  // namespace knav::test
