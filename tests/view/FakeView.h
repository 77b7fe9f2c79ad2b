// A folder whose view is made by a test; each method of the view can fail, fault or throw.
#pragma once

#include "shell/ComPtr.h"
#include "support/FakeFolder.h"

#include <map>
#include <string>
#include <vector>

namespace knav::test {

enum class ViewCall {
    CreateViewObject,
    QueryInterface,
    GetWindow,
    GetCurrentInfo,
    CreateViewWindow,
    CreateViewWindow2,
    DestroyViewWindow,
    SaveViewState,
    SelectItem,
    GetItemObject,
    GetFocusedItem,
    GetData,
};

/// What a fake view does and what it was asked to do; outlives the view.
struct ViewScript {
    Conduct of(ViewCall call) const { return conduct.contains(call) ? conduct.at(call) : Conduct::Works; }
    /// Notes the call and behaves as told.
    HRESULT enter(ViewCall call);

    std::map<ViewCall, Conduct> conduct;
    std::map<ViewCall, int> calls;
    bool offersView2 = true;
    bool offersFolderView = true;
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
