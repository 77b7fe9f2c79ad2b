#include <platform/CMenu.h>

#include <utility>

#include <platform/CWnd.h>
#include <platform/Resources.h>

IMPLEMENT_DYNAMIC(CMenu, CObject)

CMenu::~CMenu() {
    DestroyMenu();
}

BOOL CMenu::Attach(HMENU menu) {
    DestroyMenu();
    m_hMenu = menu;
    m_owns = true;
    return menu != nullptr;
}

HMENU CMenu::Detach() noexcept {
    m_parts.clear();
    return std::exchange(m_hMenu, nullptr);
}

BOOL CMenu::DestroyMenu() {
    const bool owned = m_owns;
    const HMENU menu = Detach();
    return menu != nullptr && owned && ::DestroyMenu(menu);
}

BOOL CMenu::LoadMenu(UINT id, HINSTANCE module) {
    const wchar_t* const name = MAKEINTRESOURCEW(id);
    return Attach(::LoadMenuW(module != nullptr ? module : AfxFindResourceHandle(name, RT_MENU), name));
}

CMenu* CMenu::GetSubMenu(int position) {
    const HMENU part = ::GetSubMenu(m_hMenu, position);
    if (part == nullptr) {
        return nullptr;
    }
    for (const auto& known : m_parts) {
        if (known->m_hMenu == part) {
            return known.get();
        }
    }
    return m_parts.emplace_back(new CMenu(part)).get();
}

BOOL CMenu::DeleteMenu(UINT position, UINT flags) {
    return ::DeleteMenu(m_hMenu, position, flags);
}

int CMenu::GetMenuString(UINT item, CString& text, UINT flags) const {
    const int length = ::GetMenuStringW(m_hMenu, item, nullptr, 0, flags);
    wchar_t* const buffer = text.GetBufferSetLength(length);
    text.ReleaseBuffer(::GetMenuStringW(m_hMenu, item, buffer, length + 1, flags));
    return text.GetLength();
}

BOOL CMenu::TrackPopupMenu(UINT flags, int x, int y, CWnd* owner, const RECT* exclude) {
    TPMPARAMS parameters{sizeof parameters, exclude != nullptr ? *exclude : RECT{}};
    return ::TrackPopupMenuEx(m_hMenu, flags, x, y, SafeHwnd(owner), exclude != nullptr ? &parameters : nullptr);
}
