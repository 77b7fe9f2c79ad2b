#pragma once

#include <memory>

#include <knav/export.h>
#include <platform/CString.h>
#include <zoui/CZoUiBitmapButton.h>

namespace knav {
struct ButtonState;
struct ToolButtonFace;
}  // namespace knav

/// A flat toolbar button that shows a picture, or its text where it has no picture. Its window text is its name for
/// assistive tools in either case; it stands in the tab order, and Space, Enter and its mnemonic press it.
/// Subclass a push button of a dialog with it. User-interface thread only.
class KNAV_API CNavBitmapButton : public CZoUiBitmapButton {
public:
    CNavBitmapButton();
    ~CNavBitmapButton() override;

    /// The picture: id of an icon in `module` (null: in the resource modules), loaded in the size right for the monitor
    /// when it is first painted. 0: none, the text shows. Default 0.
    UINT GetPictureId() const;
    void SetPictureId(UINT id, HINSTANCE module = nullptr);

    /// Whether the picture points in the direction of reading, and so the other way in a mirrored dialog. Default 0.
    int GetPictureDirectional() const;
    void SetPictureDirectional(int directional);

    /// The tip that the pointer brings up; name the shortcut in it. Empty: none. Default empty.
    const wchar_t* GetTipText() const;
    void SetTipText(const wchar_t* text);

    /// Whether the button stays down. Default 0.
    int GetChecked() const;
    void SetChecked(int checked);

    /// Nonzero when there is a picture to show.
    int OnAutoLoad() override;
    void DrawItem(DRAWITEMSTRUCT* item) override;

protected:
    LRESULT WindowProc(UINT message, WPARAM wParam, LPARAM lParam) override;

    /// Whether the button shows the arrow of a menu button, and whether its menu is open. The defaults say no.
    virtual int HasDropArrow() const { return 0; }
    virtual int IsDropped() const { return 0; }
    /// Whether the button itself wants a key that would otherwise move the focus or press the default button. The
    /// default wants Enter.
    virtual int WantsKey(WPARAM key, int alt) const;
    /// Takes the tip down, as before a menu drops.
    void HideTip();

private:
    knav::ButtonState CurrentState() const;
    void Paint(HDC target);
    void PaintContent(HDC dc, const RECT& area, const knav::ButtonState& state);
    void PointerOver();
    void PointerLeft();

    std::unique_ptr<knav::ToolButtonFace> m_face;
};
