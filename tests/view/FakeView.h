// A folder whose view is made by a test; each method of the folder, of the view and of the data object with its
// selection can fail, fault or throw.
#pragma once

#include "shell/ComPtr.h"
#include "support/FakeFolder.h"

#include <map>
#include <string>
#include <vector>

namespace knav::test {

/// The methods, in the order of the interfaces. Those of the view have no prefix.
enum class ViewCall {
    FolderQueryInterface,
    FolderAddRef,
    FolderRelease,
    FolderParseDisplayName,
    FolderEnumObjects,
    FolderBindToObject,
    FolderBindToStorage,
    FolderCompareIDs,
    CreateViewObject,
    FolderGetAttributesOf,
    FolderGetUIObjectOf,
    FolderGetDisplayNameOf,
    FolderSetNameOf,
    QueryInterface,
    AddRef,
    Release,
    GetWindow,
    ContextSensitiveHelp,
    TranslateAccelerator,
    EnableModeless,
    UIActivate,
    Refresh,
    CreateViewWindow,
    DestroyViewWindow,
    GetCurrentInfo,
    AddPropertySheetPages,
    SaveViewState,
    SelectItem,
    GetItemObject,
    GetView,
    CreateViewWindow2,
    HandleRename,
    SelectAndPositionItem,
    GetCurrentViewMode,
    SetCurrentViewMode,
    GetFolder,
    Item,
    ItemCount,
    Items,
    GetSelectionMarkedItem,
    GetFocusedItem,
    GetItemPosition,
    GetSpacing,
    GetDefaultSpacing,
    GetAutoArrange,
    SelectIndex,
    SelectAndPositionItems,
    DataQueryInterface,
    DataAddRef,
    DataRelease,
    GetData,
    GetDataHere,
    QueryGetData,
    GetCanonicalFormatEtc,
    SetData,
    EnumFormatEtc,
    DAdvise,
    DUnadvise,
    EnumDAdvise,
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
