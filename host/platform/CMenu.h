// A menu handle and its everyday operations.
#pragma once

#include <memory>
#include <vector>

#include <platform/CObject.h>
#include <platform/CString.h>

class CWnd;

// Owns its menu: destroys it in the end, unless it is detached or is part of another menu. Positions are zero-based;
// flags are those of the system (MF_BYCOMMAND 0, MF_BYPOSITION). Every operation on an empty object answers failure.
class ZOUI_API CMenu : public CObject {
    DECLARE_DYNAMIC(CMenu)
public:
    CMenu() = default;
    ~CMenu() override;

    HMENU m_hMenu = nullptr;
    HMENU GetSafeHmenu() const noexcept { return m_hMenu; }
    operator HMENU() const noexcept { return m_hMenu; }

    // Take over a menu (destroying the one held so far), and give it up.
    BOOL Attach(HMENU menu);
    HMENU Detach() noexcept;
    BOOL CreateMenu() { return Attach(::CreateMenu()); }
    BOOL CreatePopupMenu() { return Attach(::CreatePopupMenu()); }
    // From `module`, or where AfxFindResourceHandle finds it.
    BOOL LoadMenu(UINT id, HINSTANCE module = nullptr);
    BOOL DestroyMenu();

    // A part of this menu: valid as long as this object holds it; null when there is none at the position.
    CMenu* GetSubMenu(int position);

    BOOL AppendMenu(UINT flags, UINT_PTR idOrMenu = 0, const wchar_t* text = nullptr) {
        return ::AppendMenuW(m_hMenu, flags, idOrMenu, text);
    }
    BOOL InsertMenu(UINT position, UINT flags, UINT_PTR idOrMenu = 0, const wchar_t* text = nullptr) {
        return ::InsertMenuW(m_hMenu, position, flags, idOrMenu, text);
    }
    BOOL ModifyMenu(UINT position, UINT flags, UINT_PTR idOrMenu = 0, const wchar_t* text = nullptr) {
        return ::ModifyMenuW(m_hMenu, position, flags, idOrMenu, text);
    }
    // DeleteMenu destroys a submenu with its entry, RemoveMenu keeps it.
    BOOL DeleteMenu(UINT position, UINT flags);
    BOOL RemoveMenu(UINT position, UINT flags) { return ::RemoveMenu(m_hMenu, position, flags); }

    // The previous state, or -1 (as UINT) when there is no such entry.
    UINT EnableMenuItem(UINT item, UINT flags) { return static_cast<UINT>(::EnableMenuItem(m_hMenu, item, flags)); }
    UINT CheckMenuItem(UINT item, UINT flags) { return ::CheckMenuItem(m_hMenu, item, flags); }

    int GetMenuItemCount() const { return ::GetMenuItemCount(m_hMenu); }                   // -1 on failure
    UINT GetMenuItemID(int position) const { return ::GetMenuItemID(m_hMenu, position); }  // -1 (as UINT): a submenu
    UINT GetMenuState(UINT item, UINT flags) const { return ::GetMenuState(m_hMenu, item, flags); }
    int GetMenuString(UINT item, CString& text, UINT flags) const;  // the length

    // Shows the menu as a popup at a screen position. With TPM_RETURNCMD the chosen command or 0, else success.
    // `exclude` is a rectangle that the menu should not cover.
    BOOL TrackPopupMenu(UINT flags, int x, int y, CWnd* owner, const RECT* exclude = nullptr);

private:
    explicit CMenu(HMENU part) noexcept : m_hMenu(part), m_owns(false) {}

    bool m_owns = true;
    std::vector<std::unique_ptr<CMenu>> m_parts;
};
