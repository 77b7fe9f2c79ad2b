#include <platform/CWnd.h>

#include <memory>
#include <unordered_map>

#include <platform/DataExchange.h>
#include <platform/Prompt.h>
#include <platform/Resources.h>

#include "platform/CommonControls.h"
#include "platform/WindowBinding.h"

IMPLEMENT_DYNAMIC(CWnd, CCmdTarget)

namespace {

// Objects for windows that have none, one per window. Those of ended windows go when the number has doubled.
class TemporaryObjects {
public:
    CWnd* of(HWND window) {
        if (m_objects.size() >= m_limit) {
            std::erase_if(m_objects, [](const auto& entry) { return !IsWindow(entry.first); });
            m_limit = 2 * m_objects.size() + kLeast;
        }
        std::unique_ptr<CWnd>& object = m_objects[window];
        if (object == nullptr) {
            object = std::make_unique<CWnd>();
            object->m_hWnd = window;
        }
        return object.get();
    }

private:
    static constexpr std::size_t kLeast = 64;

    std::unordered_map<HWND, std::unique_ptr<CWnd>> m_objects;
    std::size_t m_limit = kLeast;
};

thread_local TemporaryObjects t_temporaryObjects;

constexpr wchar_t kPlainClass[] = L"ZouiWindow";

const wchar_t* registerPlainClass() noexcept {
    WNDCLASSEXW description{};
    description.cbSize = sizeof description;
    description.style = CS_DBLCLKS | CS_GLOBALCLASS;
    description.lpfnWndProc = ::DefWindowProcW;
    description.hInstance = AfxGetInstanceHandle();
    description.hCursor = LoadCursorW(nullptr, IDC_ARROW);
    description.hbrBackground = reinterpret_cast<HBRUSH>(COLOR_WINDOW + 1);
    description.lpszClassName = kPlainClass;
    RegisterClassExW(&description);
    return kPlainClass;
}

}  // namespace

CWnd* zoui::windowOf(LPARAM handle) {
    return CWnd::FromHandle(reinterpret_cast<HWND>(handle));
}

CWnd::~CWnd() {
    const HWND owned = m_binding != nullptr && m_binding->created ? m_hWnd : nullptr;
    zoui::WindowBinding::letGo(*this);
    if (owned != nullptr) {
        ::DestroyWindow(owned);
    }
}

CWnd* CWnd::FromHandlePermanent(HWND window) noexcept {
    const zoui::WindowBinding* const binding = zoui::WindowBinding::of(window);
    return binding != nullptr ? binding->object : nullptr;
}

CWnd* CWnd::FromHandle(HWND window) {
    if (window == nullptr) {
        return nullptr;
    }
    CWnd* const permanent = FromHandlePermanent(window);
    return permanent != nullptr ? permanent : t_temporaryObjects.of(window);
}

BOOL CWnd::bind(HWND window, bool subclass, bool created) {
    Detach();
    m_binding = zoui::WindowBinding::make(*this, window, subclass, created);
    if (m_binding == nullptr) {
        return FALSE;
    }
    m_hWnd = window;
    PreSubclassWindow();
    return TRUE;
}

BOOL CWnd::Attach(HWND window) {
    return bind(window, false, false);
}

HWND CWnd::Detach() noexcept {
    const HWND window = m_hWnd;
    zoui::WindowBinding::letGo(*this);
    return window;
}

BOOL CWnd::SubclassWindow(HWND window) {
    return bind(window, true, false);
}

BOOL CWnd::SubclassDlgItem(UINT id, CWnd* parent) {
    return SubclassWindow(::GetDlgItem(SafeHwnd(parent), static_cast<int>(id)));
}

BOOL CWnd::Create(const wchar_t* className, const wchar_t* text, DWORD style, const RECT& place, CWnd* parent,
                  UINT id) {
    return CreateEx(0, className, text, style | WS_CHILD, place, parent, id);
}

BOOL CWnd::CreateEx(DWORD exStyle, const wchar_t* className, const wchar_t* text, DWORD style, const RECT& place,
                    CWnd* parent, UINT id, void* parameter) {
    return CreateEx(exStyle, className, text, style, place.left, place.top, place.right - place.left,
                    place.bottom - place.top, SafeHwnd(parent), reinterpret_cast<HMENU>(static_cast<UINT_PTR>(id)),
                    parameter);
}

BOOL CWnd::CreateEx(DWORD exStyle, const wchar_t* className, const wchar_t* text, DWORD style, int x, int y, int width,
                    int height, HWND parent, HMENU menuOrId, void* parameter) {
    CREATESTRUCTW creation{parameter, AfxGetInstanceHandle(),   menuOrId, parent,    height, width, y,
                           x,         static_cast<LONG>(style), text,     className, exStyle};
    if (!PreCreateWindow(creation)) {
        PostNcDestroy();
        return FALSE;
    }
    if (creation.lpszClass == nullptr) {
        creation.lpszClass = registerPlainClass();
    }
    zoui::registerCommonControls();
    // When the window refuses its creation, the object may have deleted itself by the time this returns.
    const zoui::CreationHook binding(*this);
    return CreateWindowExW(creation.dwExStyle, creation.lpszClass, creation.lpszName,
                           static_cast<DWORD>(creation.style), creation.x, creation.y, creation.cx, creation.cy,
                           creation.hwndParent, creation.hMenu, creation.hInstance, creation.lpCreateParams) != nullptr;
}

BOOL CWnd::DestroyWindow() {
    return m_hWnd != nullptr && ::DestroyWindow(m_hWnd);
}

CWnd* CWnd::GetNextDlgTabItem(CWnd* from, BOOL previous) const {
    return FromHandle(::GetNextDlgTabItem(m_hWnd, SafeHwnd(from), previous));
}

int CWnd::MessageBox(const wchar_t* text, const wchar_t* caption, UINT flags) const {
    return ZoMessageBox(m_hWnd, text, caption, flags);
}

BOOL CWnd::UpdateData(BOOL saveAndValidate) try {
    CDataExchange exchange(this, saveAndValidate);
    DoDataExchange(&exchange);
    return TRUE;
} catch (const CDataExchange::Refused&) {
    return FALSE;
}

BOOL CWnd::WalkPreTranslateTree(HWND stop, MSG* message) try {
    for (HWND window = message->hwnd; window != nullptr; window = ::GetParent(window)) {
        CWnd* const object = FromHandlePermanent(window);
        if (object != nullptr && object->PreTranslateMessage(message)) {
            return TRUE;
        }
        if (window == stop) {
            break;
        }
    }
    return FALSE;
} catch (...) {
    OutputDebugStringW(L"zoui: PreTranslateMessage threw; the message counts as consumed\n");
    return TRUE;
}

BOOL CWnd::PreTranslateMessage(MSG*) {
    return FALSE;
}

const MSG& CWnd::GetCurrentMessage() const noexcept {
    static const MSG none{};
    return m_binding != nullptr ? m_binding->current : none;
}

void CWnd::PreSubclassWindow() {
}

BOOL CWnd::PreCreateWindow(CREATESTRUCTW&) {
    return TRUE;
}

void CWnd::DoDataExchange(CDataExchange*) {
}

void CWnd::PostNcDestroy() {
}
