#include <zoui/CZoUiRm.h>

#include <platform/Resources.h>

namespace {

bool hasAlpha(const BITMAP& bitmap) noexcept {
    return bitmap.bmBitsPixel == 32 && bitmap.bmBits != nullptr;
}

// Black where the picture shows, white where it does not, as an icon's mask.
zoui::UniqueBitmap maskOf(HBITMAP picture, const BITMAP& size) {
    zoui::UniqueBitmap mask(CreateBitmap(size.bmWidth, size.bmHeight, 1, 1, nullptr));
    const zoui::UniqueMemoryDC source(CreateCompatibleDC(nullptr));
    const zoui::UniqueMemoryDC target(CreateCompatibleDC(nullptr));
    if (!mask || !source || !target) {
        return nullptr;
    }
    const zoui::SelectedObject picked(source.get(), picture);
    const zoui::SelectedObject written(target.get(), mask.get());
    if (hasAlpha(size)) {
        PatBlt(target.get(), 0, 0, size.bmWidth, size.bmHeight, BLACKNESS);
        return mask;
    }
    // Copying colours to one bit per pixel makes the background colour white and all others black.
    const COLORREF transparent = GetPixel(source.get(), 0, 0);
    SetBkColor(source.get(), transparent);
    BitBlt(target.get(), 0, 0, size.bmWidth, size.bmHeight, source.get(), 0, 0, SRCCOPY);
    // What is transparent has to be black in the picture itself, too.
    SetBkColor(source.get(), RGB(0, 0, 0));
    SetTextColor(source.get(), RGB(255, 255, 255));
    BitBlt(source.get(), 0, 0, size.bmWidth, size.bmHeight, target.get(), 0, 0, SRCAND);
    return mask;
}

zoui::UniqueIcon iconFromBitmap(HBITMAP picture, int size) {
    BITMAP description{};
    GetObjectW(picture, sizeof(description), &description);
    const zoui::UniqueBitmap mask = maskOf(picture, description);
    if (!mask) {
        return nullptr;
    }
    ICONINFO parts{};
    parts.fIcon = TRUE;
    parts.hbmMask = mask.get();
    parts.hbmColor = picture;
    zoui::UniqueIcon icon(CreateIconIndirect(&parts));
    if (!icon || size == 0 || (size == description.bmWidth && size == description.bmHeight)) {
        return icon;
    }
    return zoui::UniqueIcon(static_cast<HICON>(CopyImage(icon.get(), IMAGE_ICON, size, size, 0)));
}

}  // namespace

zoui::UniqueIcon CZoUiRm::Icon(const CZoUiRmId& id, int size) {
    const wchar_t* const name = id.GetResourceName();
    const HINSTANCE module = AfxFindResourceHandle(name, RT_GROUP_ICON);
    const int width = size != 0 ? size : GetSystemMetrics(SM_CXSMICON);
    const int height = size != 0 ? size : GetSystemMetrics(SM_CYSMICON);
    zoui::UniqueIcon icon(static_cast<HICON>(LoadImageW(module, name, IMAGE_ICON, width, height, LR_DEFAULTCOLOR)));
    if (icon) {
        return icon;
    }
    const zoui::UniqueBitmap bitmap = Bitmap(id);
    return bitmap ? iconFromBitmap(bitmap.get(), size) : nullptr;
}

zoui::UniqueBitmap CZoUiRm::Bitmap(const CZoUiRmId& id) {
    const wchar_t* const name = id.GetResourceName();
    const HINSTANCE module = AfxFindResourceHandle(name, RT_BITMAP);
    return zoui::UniqueBitmap(static_cast<HBITMAP>(LoadImageW(module, name, IMAGE_BITMAP, 0, 0, LR_CREATEDIBSECTION)));
}
