#include <zoui/CZoUiRm.h>

#include <platform/Resources.h>

zoui::UniqueIcon CZoUiRm::Icon(const CZoUiRmId& id, int size) {
    const wchar_t* const name = id.GetResourceName();
    const HINSTANCE module = AfxFindResourceHandle(name, RT_GROUP_ICON);
    const int width = size != 0 ? size : GetSystemMetrics(SM_CXSMICON);
    const int height = size != 0 ? size : GetSystemMetrics(SM_CYSMICON);
    return zoui::UniqueIcon(static_cast<HICON>(LoadImageW(module, name, IMAGE_ICON, width, height, LR_DEFAULTCOLOR)));
}
