#pragma once

#include <knav/CNavBitmapButton.h>
#include <knav/CNavButtonMenuSource.h>

/// A toolbar button that drops a menu when it is made a tool button; a plain toolbar button otherwise. The menu drops
/// when the button is pressed down, by Space, Enter, Up, Down and F4, and closes when the button is pressed again.
/// User-interface thread only.
class KNAV_API CNavToolsButton : public CNavBitmapButton {
public:
    CNavToolsButton() = default;

    /// Whether it drops a menu. Default 0.
    int GetToolButton() const { return m_toolButton; }
    void SetToolButton(int toolButton);

    /// Who supplies the menu; not owned. Null: nothing drops. Default null.
    CNavButtonMenuSource* GetMenuSource() const { return m_menuSource; }
    void SetMenuSource(CNavButtonMenuSource* source) { m_menuSource = source; }

    /// Drops the menu and returns when it has closed. `byKeyboard` highlights the first entry. Nonzero when there was
    /// a menu.
    int DropMenu(int byKeyboard);

protected:
    LRESULT WindowProc(UINT message, WPARAM wParam, LPARAM lParam) override;
    int HasDropArrow() const override { return m_toolButton; }
    int IsDropped() const override { return m_dropped; }
    int WantsKey(WPARAM key, int alt) const override;

private:
    int m_toolButton = 0;
    int m_dropped = 0;
    CNavButtonMenuSource* m_menuSource = nullptr;
};
