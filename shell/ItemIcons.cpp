#include "shell/ItemIcons.h"

#include <ry/RyUtResource.h>
#include <zoui/CZoUiRm.h>

#include <string>

#include "shell/FolderCalls.h"

namespace {

struct IconLocation {
    wchar_t module[MAX_PATH] = {};
    int index = 0;
};

// The system image list and the index in it that the shell gives a path or a list.
zoui::UniqueIcon iconOf(const wchar_t* pathOrList, DWORD attributes, UINT flags) {
    SHFILEINFOW info{};
    const auto images = reinterpret_cast<HIMAGELIST>(knav::guardedOr<DWORD_PTR>(
        0, [&] { return SHGetFileInfoW(pathOrList, attributes, &info, sizeof info, flags); }));
    return zoui::UniqueIcon(images != nullptr ? ImageList_GetIcon(images, info.iIcon, ILD_NORMAL) : nullptr);
}

zoui::UniqueIcon extractSmall(const knav::ComPtr<IExtractIconW>& extractor, UINT index) {
    HICON large = nullptr;
    HICON small = nullptr;
    const HRESULT result = knav::guarded([&] { return extractor->Extract(nullptr, index, &large, &small, 0); });
    if (result != S_OK) {  // S_FALSE leaves the work to the caller
        return nullptr;
    }
    zoui::UniqueIcon(large).reset();
    return zoui::UniqueIcon(small);
}

// The extractor only named the module: a number is the icon's id there, or else the text of its name.
zoui::UniqueIcon loadFrom(const IconLocation& location) {
    const HINSTANCE module = RyUtResource::loadDll(location.module);
    if (module == nullptr) {
        return nullptr;
    }
    const auto load = [module](const wchar_t* name) {
        return zoui::UniqueIcon(static_cast<HICON>(LoadImageW(module, name, IMAGE_ICON, 0, 0, LR_DEFAULTSIZE)));
    };
    zoui::UniqueIcon icon = load(MAKEINTRESOURCEW(location.index));
    if (!icon) {
        icon = load(std::to_wstring(location.index).c_str());
    }
    RyUtResource::freeDll(module);
    return icon;
}

}  // namespace

namespace knav {

zoui::UniqueIcon systemIcon(const ITEMIDLIST* list) {
    constexpr UINT flags = SHGFI_PIDL | SHGFI_SYSICONINDEX | SHGFI_SMALLICON;
    return list != nullptr ? iconOf(reinterpret_cast<const wchar_t*>(list), 0, flags) : nullptr;
}

zoui::UniqueIcon closedFolderIcon() {
    wchar_t path[MAX_PATH] = {};
    GetSystemDirectoryW(path, MAX_PATH - 1);
    return iconOf(path, FILE_ATTRIBUTE_DIRECTORY, SHGFI_SYSICONINDEX | SHGFI_USEFILEATTRIBUTES);
}

zoui::UniqueIcon ftpSitesIcon() {
    return CZoUiRm::Icon(CZoUiRmId(L"IDB_KNAV_NEW_FTP_16"));
}

zoui::UniqueIcon extractedIcon(IShellFolder* folder, const ITEMIDLIST* id) {
    if (folder == nullptr) {
        return nullptr;
    }
    const auto extractor = uiObjectOf<IExtractIconW>(folder, id);
    IconLocation location;
    UINT flags = 0;
    const bool located =
        extractor && SUCCEEDED(guarded([&] {
            return extractor->GetIconLocation(GIL_FORSHELL, location.module, MAX_PATH, &location.index, &flags);
        }));
    if (!located) {
        return nullptr;
    }
    location.module[MAX_PATH - 1] = 0;
    zoui::UniqueIcon icon = extractSmall(extractor, static_cast<UINT>(location.index));
    return icon ? std::move(icon) : loadFrom(location);
}

}  // namespace knav
