// How messages and commands find their handlers: message maps, routing, reflection to the child.
#include <platform/CEdit.h>
#include <platform/GdiOwners.h>
#include <platform/RegisteredMessage.h>

#include <gmock/gmock.h>

#include <stdexcept>
#include <string>
#include <vector>

namespace {

using testing::ElementsAre;
using Log = std::vector<std::string>;

constexpr RECT kPlace{0, 0, 100, 50};
const UINT kNamedMessage = zoui::registeredMessage(L"zoui.test.message");

class BaseTarget : public CCmdTarget {
public:
    Log log;
    void onBoth() { log.push_back("base"); }
    void onBaseOnly() { log.push_back("base only"); }
    void onRange(UINT id) { log.push_back("range " + std::to_string(id)); }
    DECLARE_MESSAGE_MAP()
};
BEGIN_MESSAGE_MAP(BaseTarget, CCmdTarget)
ON_COMMAND(1, &BaseTarget::onBoth)
ON_COMMAND(2, &BaseTarget::onBaseOnly)
ON_COMMAND_RANGE(10, 12, &BaseTarget::onRange)
END_MESSAGE_MAP()

class DerivedTarget : public BaseTarget {
public:
    void onBothDerived(UINT id) { log.push_back("derived " + std::to_string(id)); }
    void onSelection() { log.push_back("selection"); }
    DECLARE_MESSAGE_MAP()
};
BEGIN_MESSAGE_MAP(DerivedTarget, BaseTarget)
ON_COMMAND(1, &DerivedTarget::onBothDerived)
ON_CONTROL(LBN_SELCHANGE, 2, &DerivedTarget::onSelection)
END_MESSAGE_MAP()

TEST(CommandRouting, GoesFromTheDerivedClassToTheBase) {
    DerivedTarget target;
    EXPECT_TRUE(target.OnCmdMsg(1, CN_COMMAND, nullptr, nullptr));
    EXPECT_TRUE(target.OnCmdMsg(2, CN_COMMAND, nullptr, nullptr));
    EXPECT_TRUE(target.OnCmdMsg(2, LBN_SELCHANGE, nullptr, nullptr));
    EXPECT_TRUE(target.OnCmdMsg(12, CN_COMMAND, nullptr, nullptr));
    EXPECT_FALSE(target.OnCmdMsg(13, CN_COMMAND, nullptr, nullptr));
    EXPECT_FALSE(target.OnCmdMsg(2, LBN_DBLCLK, nullptr, nullptr));
    EXPECT_THAT(target.log, ElementsAre("derived 1", "base only", "selection", "range 12"));
}

// A parent that logs what reaches it.
class Parent : public CWnd {
public:
    Log log;
    POINT m_moved{};
    short m_wheel = 0;

    Parent() { CreateEx(0, nullptr, L"parent", WS_POPUP, kPlace, nullptr, 0); }

    void onApply() { log.push_back("apply"); }
    void onChange() { log.push_back("change"); }
    void onNotify(NMHDR*, LRESULT* result) {
        log.push_back("notify");
        *result = 7;
    }
    LRESULT onNamed(WPARAM wParam, LPARAM lParam) { return static_cast<LRESULT>(wParam) + lParam; }
    LRESULT onThrow(WPARAM, LPARAM) { throw std::runtime_error("handler"); }
    // Another message in between: the default handling is still that of its own message.
    LRESULT onSetText(WPARAM, LPARAM) {
        SendMessage(kNamedMessage, 1, 2);
        return Default();
    }
    HBRUSH OnCtlColor(HDC dc, CWnd* child, UINT type) {
        log.push_back("colour " + std::to_string(type));
        return CWnd::OnCtlColor(dc, child, type);
    }
    void OnMove(int x, int y) { m_moved = {x, y}; }
    BOOL OnMouseWheel(UINT, short delta, POINT) {
        m_wheel = delta;
        return TRUE;
    }
    DECLARE_MESSAGE_MAP()
};
BEGIN_MESSAGE_MAP(Parent, CWnd)
ON_COMMAND(100, &Parent::onApply)
ON_CONTROL(EN_CHANGE, 5, &Parent::onChange)
ON_NOTIFY(NM_CLICK, 5, &Parent::onNotify)
ON_REGISTERED_MESSAGE(kNamedMessage, &Parent::onNamed)
ON_MESSAGE(WM_APP, &Parent::onThrow)
ON_MESSAGE(WM_SETTEXT, &Parent::onSetText)
ON_WM_CTLCOLOR()
ON_WM_MOVE()
ON_WM_MOUSEWHEEL()
END_MESSAGE_MAP()

// An edit field that handles what it tells its parent.
class ReflectingEdit : public CEdit {
public:
    ReflectingEdit(Parent& parent, BOOL take) : m_log(parent.log), m_take(take) {
        Create(WS_CHILD, kPlace, &parent, 5);
        m_log.clear();
    }
    BOOL onChange() {
        m_log.push_back("own change");
        return m_take;
    }
    DECLARE_MESSAGE_MAP()

private:
    Log& m_log;
    BOOL m_take;
};
BEGIN_MESSAGE_MAP(ReflectingEdit, CEdit)
ON_CONTROL_REFLECT_EX(EN_CHANGE, &ReflectingEdit::onChange)
END_MESSAGE_MAP()

TEST(MessageMap, UnpacksWhatMessagesCarry) {
    Parent parent;
    parent.SendMessage(WM_COMMAND, MAKEWPARAM(100, 0));
    parent.SendMessage(WM_COMMAND, MAKEWPARAM(100, 1));
    parent.SetWindowPos(nullptr, -30, -40, 0, 0, SWP_NOSIZE | SWP_NOZORDER | SWP_NOACTIVATE);
    EXPECT_EQ(parent.m_moved.x, -30);
    EXPECT_EQ(parent.m_moved.y, -40);
    EXPECT_EQ(parent.SendMessage(WM_MOUSEWHEEL, MAKEWPARAM(0, -120), 0), TRUE);
    EXPECT_EQ(parent.m_wheel, -120);
    const zoui::WindowDC dc(parent);
    const HDC handle = dc;
    EXPECT_NE(parent.SendMessage(WM_CTLCOLOREDIT, reinterpret_cast<WPARAM>(handle)), 0) << "the system's brush";
    EXPECT_NE(parent.SendMessage(WM_CTLCOLORSTATIC, reinterpret_cast<WPARAM>(handle)), 0);
    EXPECT_THAT(parent.log, ElementsAre("apply", "apply", "colour 1", "colour 6")) << "one handler for all kinds";
}

TEST(MessageMap, HandlerThatThrowsLeavesTheWindowUsable) {
    Parent parent;
    EXPECT_EQ(parent.SendMessage(WM_APP), 0);
    EXPECT_EQ(parent.SendMessage(kNamedMessage, 30, 12), 42);
    parent.SetWindowText(L"kept");
    CString text;
    parent.GetWindowText(text);
    EXPECT_STREQ(text, L"kept");
    EXPECT_EQ(parent.GetCurrentMessage().message, UINT{WM_NULL});
}

TEST(Reflection, ChildTakesTheNotificationBeforeItsParentOrDeclinesIt) {
    for (const BOOL take : {TRUE, FALSE}) {
        Parent parent;
        ReflectingEdit edit(parent, take);
        edit.SetWindowText(L"typed");
        NMHDR header{edit.m_hWnd, 5, static_cast<UINT>(NM_CLICK)};
        EXPECT_EQ(parent.SendMessage(WM_NOTIFY, 5, reinterpret_cast<LPARAM>(&header)), 7);
        EXPECT_EQ(parent.log, take ? (Log{"own change", "notify"}) : (Log{"own change", "change", "notify"}));
    }
}

}  // namespace
