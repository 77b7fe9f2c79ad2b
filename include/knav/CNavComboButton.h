#pragma once

#include <memory>

#include <knav/CNavButtonMenuSource.h>
#include <knav/export.h>
#include <platform/CButton.h>
#include <zoui/CZoUiControl.h>

namespace knav {
class ButtonTheme;
struct PushButtonLook;
}  // namespace knav

/// A push button with a drop-down menu at its right end. A click on its main part, Space and its mnemonic are
/// BN_CLICKED as from any push button, and it can be the default button of its dialog; a click on the menu part, Up or
/// Down with Alt, and F4 drop the menu. Subclass a push button of a dialog with it. User-interface thread only.
class KNAV_API CNavComboButton : public CButton, public CZoUiControl {
public:
    /// The part held down (GetPressedPart).
    enum Part : WORD { NoPart = 0, MainPart = 1, MenuPart = 2 };

    CNavComboButton();
    ~CNavComboButton() override;

    /// Whether there is a menu part. Default 1.
    int GetMenuExists() const { return m_menuExists; }
    void SetMenuExists(int exists);

    /// Who supplies the menu; not owned. Null: nothing drops. Default null.
    CNavButtonMenuSource* GetMenuSource() const { return m_menuSource; }
    void SetMenuSource(CNavButtonMenuSource* source) { m_menuSource = source; }

    /// The button's two state words: the part held down, and whether the menu is open.
    WORD GetPressedPart() const { return m_pressedPart; }
    WORD GetMenuOpen() const { return m_menuOpen; }
    /// Sets both to 0; an open menu closes.
    void ClearState();

    /// Drops the menu and returns when it has closed. `byKeyboard` highlights the first entry. Nonzero when there was
    /// a menu.
    int DropMenu(int byKeyboard);

protected:
    LRESULT WindowProc(UINT message, WPARAM wParam, LPARAM lParam) override;

private:
    WORD PartAt(LPARAM position) const;
    bool DropsOn(UINT message, WPARAM wParam, LPARAM lParam) const;
    void SetHotPart(WORD part);
    void Track(UINT message, LPARAM lParam);
    LRESULT WithoutPainting(UINT message, WPARAM wParam, LPARAM lParam);
    knav::PushButtonLook Look() const;
    void Paint(HDC target);

    int m_menuExists = 1;
    WORD m_pressedPart = NoPart;
    WORD m_menuOpen = 0;
    WORD m_hotPart = NoPart;
    CNavButtonMenuSource* m_menuSource = nullptr;
    std::unique_ptr<knav::ButtonTheme> m_theme;
};
