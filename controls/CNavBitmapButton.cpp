#include <knav/CNavBitmapButton.h>

#include "controls/BackBuffer.h"
#include "controls/ButtonPainter.h"
#include "controls/ButtonTip.h"
#include "controls/PaintMessages.h"
#include "controls/Picture.h"

namespace knav {

/// What a toolbar button shows beside what its window knows.
struct ToolButtonFace {
    GdiPlusSession session;
    Picture picture;
    int loadedSize = 0;  // pixels that `picture` was loaded for; 0: not yet
    UINT pictureId = 0;
    HINSTANCE pictureModule = nullptr;
    CString tipText;
    ButtonTip tip;
    ButtonTheme theme;
    int checked = 0;
    int directional = 0;
    bool hot = false;
};

}  // namespace knav

using namespace knav;

namespace {

constexpr int kPictureSize = 16;  // at 96 dots per inch

bool changesLook(UINT message) {
    switch (message) {
        case BM_SETSTATE:
        case WM_ENABLE:
        case WM_SETTEXT:
        case WM_SETFONT:
        case WM_SETFOCUS:
        case WM_KILLFOCUS:
        case WM_UPDATEUISTATE:
        case WM_THEMECHANGED:
        case WM_SYSCOLORCHANGE:
        case WM_DPICHANGED_AFTERPARENT:
            return true;
        default:
            return false;
    }
}

bool isHeldDown(LPARAM keyData) {
    return (HIWORD(keyData) & KF_REPEAT) != 0;
}

}  // namespace

CNavBitmapButton::CNavBitmapButton() : m_face(std::make_unique<ToolButtonFace>()) {
}

CNavBitmapButton::~CNavBitmapButton() = default;

UINT CNavBitmapButton::GetPictureId() const {
    return m_face->pictureId;
}

void CNavBitmapButton::SetPictureId(UINT id, HINSTANCE module) {
    m_face->pictureId = id;
    m_face->pictureModule = module;
    m_face->picture.reset();
    m_face->loadedSize = 0;
    Invalidate(FALSE);
}

int CNavBitmapButton::GetPictureDirectional() const {
    return m_face->directional;
}

void CNavBitmapButton::SetPictureDirectional(int directional) {
    m_face->directional = directional;
    m_face->loadedSize = 0;
    Invalidate(FALSE);
}

const wchar_t* CNavBitmapButton::GetTipText() const {
    return m_face->tipText;
}

void CNavBitmapButton::SetTipText(const wchar_t* text) {
    m_face->tipText = text;
    m_face->tip.setText(std::wstring(m_face->tipText.view()));
}

int CNavBitmapButton::GetChecked() const {
    return m_face->checked;
}

void CNavBitmapButton::SetChecked(int checked) {
    m_face->checked = checked;
    Invalidate(FALSE);
}

void CNavBitmapButton::HideTip() {
    m_face->tip.close();
}

int CNavBitmapButton::WantsKey(WPARAM key, int alt) const {
    return key == VK_RETURN && !alt;
}

int CNavBitmapButton::OnAutoLoad() {
    return m_face->pictureId != 0;
}

LRESULT CNavBitmapButton::WindowProc(UINT message, WPARAM wParam, LPARAM lParam) {
    if (const auto painted = answerPaintMessage(m_hWnd, message, wParam, [this](HDC dc) { Paint(dc); }))
        return *painted;
    switch (message) {
        case WM_LBUTTONDBLCLK:  // every click of a quick series counts
            message = WM_LBUTTONDOWN;
            break;
        case WM_MOUSEMOVE:
            PointerOver();
            break;
        case WM_MOUSELEAVE:
            PointerLeft();
            break;
        case WM_GETDLGCODE: {
            const auto* key = reinterpret_cast<const MSG*>(lParam);
            const bool wanted = key && key->message == WM_KEYDOWN && WantsKey(key->wParam, 0);
            return DLGC_BUTTON | (wanted ? DLGC_WANTMESSAGE : 0);
        }
        case WM_KEYDOWN:
            if (wParam == VK_RETURN) {
                if (!isHeldDown(lParam))
                    SendMessage(BM_CLICK);
                return 0;
            }
            break;
        case WM_THEMECHANGED:
            m_face->theme.close();
            break;
        case WM_DESTROY:
            m_face->tip.close();
            m_face->theme.close();
            break;
        default:
            break;
    }
    const LRESULT result = CZoUiBitmapButton::WindowProc(message, wParam, lParam);
    if (changesLook(message))
        Invalidate(FALSE);
    return result;
}

void CNavBitmapButton::DrawItem(DRAWITEMSTRUCT* item) {
    Paint(item->hDC);
}

void CNavBitmapButton::PointerOver() {
    if (!m_face->hot) {
        TRACKMOUSEEVENT track{sizeof track, TME_LEAVE, m_hWnd, 0};
        TrackMouseEvent(&track);
        m_face->hot = true;
        Invalidate(FALSE);
    }
    m_face->tip.pointerOver(m_hWnd);
}

void CNavBitmapButton::PointerLeft() {
    m_face->hot = false;
    Invalidate(FALSE);
}

ButtonState CNavBitmapButton::CurrentState() const {
    ButtonState state;
    state.disabled = !IsWindowEnabled();
    state.hot = m_face->hot && !state.disabled;
    state.pressed = (SendMessage(BM_GETSTATE) & BST_PUSHED) != 0;
    state.checked = m_face->checked != 0;
    state.dropped = IsDropped() != 0;
    state.focusCue = ::GetFocus() == m_hWnd && !(SendMessage(WM_QUERYUISTATE) & UISF_HIDEFOCUS);
    return state;
}

void CNavBitmapButton::Paint(HDC target) {
    RECT area{};
    GetClientRect(&area);
    if (IsRectEmpty(&area))
        return;
    const ButtonState state = CurrentState();
    const BackBuffer buffer(target, area);
    paintBackgroundOf(m_hWnd, buffer.dc(), area);
    paintToolButtonFrame(m_face->theme.open(m_hWnd, L"TOOLBAR"), buffer.dc(), area, state);
    PaintContent(buffer.dc(), area, state);
}

void CNavBitmapButton::PaintContent(HDC dc, const RECT& area, const ButtonState& state) {
    const UINT dpi = GetDpi();
    const int size = scaled(kPictureSize, dpi);
    if (m_face->pictureId != 0 && m_face->loadedSize != size) {
        m_face->picture = loadPicture(MAKEINTRESOURCEW(m_face->pictureId), size, m_face->pictureModule);
        m_face->loadedSize = size;
        if (m_face->picture && m_face->directional && (GetExStyle() & WS_EX_LAYOUTRTL))
            m_face->picture->RotateFlip(Gdiplus::RotateNoneFlipX);
    }
    const ButtonCaption caption = m_face->picture ? ButtonCaption{} : captionOf(m_hWnd);
    const SIZE content = m_face->picture ? SIZE{size, size} : sizeOfCaption(dc, caption);
    const ToolButtonParts parts = layOutToolButton(area, content, dpi, HasDropArrow() != 0);
    if (m_face->picture)
        drawPicture(dc, *m_face->picture, parts.picture,
                    toneOn(GetSysColor(COLOR_BTNFACE), state.disabled ? PictureTone::Faded : PictureTone::Plain));
    else
        paintToolButtonText(dc, parts.picture, caption, state);
    if (HasDropArrow())
        paintDropArrow(dc, parts.arrow, dpi, GetSysColor(state.disabled ? COLOR_GRAYTEXT : COLOR_BTNTEXT));
}
