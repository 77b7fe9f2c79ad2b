// A window whose messages arrive at an object.
#pragma once

#include <platform/CCmdTarget.h>
#include <platform/WindowHandle.h>
#include <platform/WindowMessages.h>

class CDataExchange;

namespace zoui {
class CreationHook;
struct WindowBinding;
}  // namespace zoui

// Asks a window whether it has something to do while no message waits. wParam is MSGF_DIALOGBOX, lParam counts the
// calls since the last message; a result of 0 stops the calls until then. Handle it with ON_MESSAGE.
inline constexpr UINT WM_KICKIDLE = 0x036A;

// An object and its window may end in either order, also inside one of the window's own handlers. When the object ends
// first, a window that it created is destroyed and any other is left as it was before. Exceptions of handlers end at
// the window procedure. All members are called on the window's own thread.
class ZOUI_API CWnd : public CCmdTarget, public zoui::WindowHandle {
    DECLARE_DYNAMIC(CWnd)
public:
    CWnd() = default;
    ~CWnd() override;

    // The object bound to a window of this process, or null.
    static CWnd* FromHandlePermanent(HWND window) noexcept;
    // The same, or else a temporary object without message handling, owned by the framework and valid on this thread
    // as long as the window. Null for null.
    static CWnd* FromHandle(HWND window);

    // Bind the handle without taking its messages, and the reverse (both give up an earlier binding of this object).
    // Attaching fails for a dead window or one that has an object already.
    BOOL Attach(HWND window);
    HWND Detach() noexcept;

    // Route the window's messages through this object first. Fails like Attach and for a window of another thread.
    // UnsubclassWindow gives the handle back; other subclassings stay as they are, in whatever way they were made.
    BOOL SubclassWindow(HWND window);
    BOOL SubclassDlgItem(UINT id, CWnd* parent);
    HWND UnsubclassWindow() noexcept { return Detach(); }

    // Create a window of a class (null: a plain class of the framework) and bind it before its first message.
    BOOL Create(const wchar_t* className, const wchar_t* text, DWORD style, const RECT& place, CWnd* parent, UINT id);
    BOOL CreateEx(DWORD exStyle, const wchar_t* className, const wchar_t* text, DWORD style, const RECT& place,
                  CWnd* parent, UINT id, void* parameter = nullptr);
    BOOL CreateEx(DWORD exStyle, const wchar_t* className, const wchar_t* text, DWORD style, int x, int y, int width,
                  int height, HWND parent, HMENU menuOrId, void* parameter = nullptr);
    virtual BOOL DestroyWindow();

    // Related windows, as FromHandle gives them.
    CWnd* GetParent() const { return FromHandle(::GetParent(m_hWnd)); }
    CWnd* GetOwner() const { return FromHandle(::GetWindow(m_hWnd, GW_OWNER)); }
    CWnd* GetDlgItem(int id) const { return FromHandle(::GetDlgItem(m_hWnd, id)); }
    CWnd* GetWindow(UINT relation) const { return FromHandle(::GetWindow(m_hWnd, relation)); }
    CWnd* GetNextDlgTabItem(CWnd* from, BOOL previous = FALSE) const;
    CWnd* SetFocus() { return FromHandle(::SetFocus(m_hWnd)); }
    CWnd* SetCapture() { return FromHandle(::SetCapture(m_hWnd)); }
    static CWnd* GetFocus() { return FromHandle(::GetFocus()); }
    using WindowHandle::IsChild;
    BOOL IsChild(const CWnd* child) const { return child != nullptr && ::IsChild(m_hWnd, child->m_hWnd); }

    // A message box owned by this window, through the prompt seam (Prompt.h). Null caption: the program's name.
    int MessageBox(const wchar_t* text, const wchar_t* caption = nullptr, UINT flags = MB_OK) const;

    // Lets DoDataExchange move values between controls and members; FALSE writes controls, TRUE reads them. 0 when a
    // value was refused.
    BOOL UpdateData(BOOL saveAndValidate = TRUE);

    // Offers a message to PreTranslateMessage of the window it is for, of its parent and so on up to `stop`. Nonzero
    // when one of them consumed it. For message loops.
    static BOOL WalkPreTranslateTree(HWND stop, MSG* message);
    virtual BOOL PreTranslateMessage(MSG* message);

    // Offers a message about a child window to the child's object, as ON_CONTROL_REFLECT_EX and OnChildNotify
    // overrides see it. Nonzero when the child took it.
    static BOOL ReflectMessage(HWND child, UINT message, WPARAM wParam, LPARAM lParam, LRESULT* result);
    virtual BOOL OnChildNotify(UINT message, WPARAM wParam, LPARAM lParam, LRESULT* result);

    // The message being handled now; all zero outside of one.
    const MSG& GetCurrentMessage() const noexcept;

protected:
    virtual void PreSubclassWindow();                       // the handle is set, no message has come yet
    virtual BOOL PreCreateWindow(CREATESTRUCTW& creation);  // may change it; FALSE refuses
    virtual LRESULT WindowProc(UINT message, WPARAM wParam, LPARAM lParam);
    virtual LRESULT DefWindowProc(UINT message, WPARAM wParam, LPARAM lParam);  // what the window did before
    virtual BOOL OnWndMsg(UINT message, WPARAM wParam, LPARAM lParam, LRESULT* result);
    virtual BOOL OnCommand(WPARAM wParam, LPARAM lParam);
    virtual BOOL OnNotify(WPARAM wParam, LPARAM lParam, LRESULT* result);
    virtual void DoDataExchange(CDataExchange* exchange);
    virtual void PostNcDestroy();  // the last call for a window; the object may delete itself here

    // Default handling of the current message, with the parameters it came with.
    LRESULT Default();

    // What the ON_WM_ entries call unless a derived class has a member of that name: the default handling. Those about
    // a child window offer it the message first.
    void OnActivate(UINT /*state*/, CWnd* /*other*/, BOOL /*minimized*/) { Default(); }
    void OnCancelMode() { Default(); }
    void OnCaptureChanged(CWnd* /*gaining*/) { Default(); }
    void OnChar(UINT /*character*/, UINT /*repeat*/, UINT /*flags*/) { Default(); }
    void OnClose() { Default(); }
    void OnContextMenu(CWnd* /*clicked*/, POINT /*screen, -1 -1 from the keyboard*/) { Default(); }
    int OnCreate(CREATESTRUCTW* /*creation*/) { return static_cast<int>(Default()); }
    HBRUSH OnCtlColor(HDC dc, CWnd* child, UINT type);
    void OnDeleteItem(int id, DELETEITEMSTRUCT* item);
    void OnDestroy() { Default(); }
    void OnDrawItem(int id, DRAWITEMSTRUCT* item);
    void OnEnable(BOOL /*enabled*/) { Default(); }
    BOOL OnEraseBkgnd(HDC /*dc*/) { return static_cast<BOOL>(Default()); }
    UINT OnGetDlgCode() { return static_cast<UINT>(Default()); }
    void OnGetMinMaxInfo(MINMAXINFO* /*limits*/) { Default(); }
    BOOL OnHelpInfo(HELPINFO* /*help*/) { return static_cast<BOOL>(Default()); }
    void OnHScroll(UINT code, UINT position, CWnd* bar);
    void OnInitMenuPopup(HMENU /*menu*/, UINT /*index*/, BOOL /*system*/) { Default(); }
    void OnKeyDown(UINT /*key*/, UINT /*repeat*/, UINT /*flags*/) { Default(); }
    void OnKeyUp(UINT /*key*/, UINT /*repeat*/, UINT /*flags*/) { Default(); }
    void OnKillFocus(CWnd* /*gaining*/) { Default(); }
    void OnLButtonDblClk(UINT /*keys*/, POINT /*client*/) { Default(); }
    void OnLButtonDown(UINT /*keys*/, POINT /*client*/) { Default(); }
    void OnLButtonUp(UINT /*keys*/, POINT /*client*/) { Default(); }
    void OnMeasureItem(int id, MEASUREITEMSTRUCT* item);
    void OnMouseLeave() { Default(); }
    void OnMouseMove(UINT /*keys*/, POINT /*client*/) { Default(); }
    BOOL OnMouseWheel(UINT /*keys*/, short /*delta*/, POINT /*screen*/) { return static_cast<BOOL>(Default()); }
    void OnMove(int /*x*/, int /*y*/) { Default(); }
    void OnNcDestroy() { Default(); }
    void OnPaint() { Default(); }
    void OnRButtonDown(UINT /*keys*/, POINT /*client*/) { Default(); }
    void OnRButtonUp(UINT /*keys*/, POINT /*client*/) { Default(); }
    BOOL OnSetCursor(CWnd* /*under*/, UINT /*hit*/, UINT /*message*/) { return static_cast<BOOL>(Default()); }
    void OnSetFocus(CWnd* /*losing*/) { Default(); }
    void OnSettingChange(UINT /*flags*/, const wchar_t* /*section*/) { Default(); }
    void OnShowWindow(BOOL /*shown*/, UINT /*status*/) { Default(); }
    void OnSize(UINT /*type*/, int /*width*/, int /*height*/) { Default(); }
    void OnSysColorChange() { Default(); }
    void OnSysCommand(UINT /*command*/, LPARAM /*point*/) { Default(); }
    void OnThemeChanged() { Default(); }
    void OnTimer(UINT_PTR /*id*/) { Default(); }
    void OnVScroll(UINT code, UINT position, CWnd* bar);
    void OnWindowPosChanged(WINDOWPOS* /*place*/) { Default(); }
    void OnWindowPosChanging(WINDOWPOS* /*place*/) { Default(); }

    DECLARE_MESSAGE_MAP()

private:
    friend class zoui::CreationHook;
    friend struct zoui::WindowBinding;
    LRESULT defaultOrReflect(HWND child);
    BOOL bind(HWND window, bool subclass, bool created);
    void bindCreated(HWND window) { bind(window, true, true); }
    bool callHandler(UINT message, UINT id, WPARAM wParam, LPARAM lParam, LRESULT* result);

    zoui::WindowBinding* m_binding = nullptr;
};

// The handle of a window object that may be null.
inline HWND SafeHwnd(const CWnd* window) noexcept {
    return window != nullptr ? window->m_hWnd : nullptr;
}
