// A text, picture or frame.
#pragma once

#include <platform/CWnd.h>

// The pictures are not owned.
class ZOUI_API CStatic : public CWnd {
    DECLARE_DYNAMIC(CStatic)
public:
    BOOL Create(const wchar_t* text, DWORD style, const RECT& place, CWnd* parent, UINT id = 0xFFFF) {
        return CWnd::Create(WC_STATICW, text, style, place, parent, id);
    }
    HICON SetIcon(HICON icon) {
        return reinterpret_cast<HICON>(SendMessage(STM_SETICON, reinterpret_cast<WPARAM>(icon)));
    }
    HBITMAP SetBitmap(HBITMAP bitmap) {
        return reinterpret_cast<HBITMAP>(SendMessage(STM_SETIMAGE, IMAGE_BITMAP, reinterpret_cast<LPARAM>(bitmap)));
    }
};
