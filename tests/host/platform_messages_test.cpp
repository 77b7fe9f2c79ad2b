// How messages and commands find their handlers: message maps, routing, reflection to the child.
#include <platform/CButton.h>
#include <platform/CComboBox.h>
#include <platform/CEdit.h>
#include <platform/CListBox.h>
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
    void onNotify(NMHDR* header, LRESULT* result) {
        log.push_back("notify " + std::to_string(header->idFrom));
        *result = 42;
    }
    DECLARE_MESSAGE_MAP()
};
BEGIN_MESSAGE_MAP(BaseTarget, CCmdTarget)
ON_COMMAND(1, &BaseTarget::onBoth)
ON_COMMAND(2, &BaseTarget::onBaseOnly)
ON_COMMAND_RANGE(10, 12, &BaseTarget::onRange)
ON_NOTIFY(NM_DBLCLK, 5, &BaseTarget::onNotify)
END_MESSAGE_MAP()

class DerivedTarget : public BaseTarget {
public:
    BOOL m_take = TRUE;
    BOOL onBothDerived(UINT id) {
        log.push_back("derived " + std::to_string(id));
        return m_take;
    }
    void onSelection() { log.push_back("selection"); }
    DECLARE_MESSAGE_MAP()
};
BEGIN_MESSAGE_MAP(DerivedTarget, BaseTarget)
ON_COMMAND_EX(1, &DerivedTarget::onBothDerived)
ON_CONTROL(LBN_SELCHANGE, 2, &DerivedTarget::onSelection)
END_MESSAGE_MAP()

TEST(CommandRouting, GoesFromTheDerivedClassToTheBase) {
    DerivedTarget target;
    EXPECT_TRUE(target.OnCmdMsg(1, CN_COMMAND, nullptr, nullptr));
    target.m_take = FALSE;
    EXPECT_TRUE(target.OnCmdMsg(1, CN_COMMAND, nullptr, nullptr));
    EXPECT_TRUE(target.OnCmdMsg(2, CN_COMMAND, nullptr, nullptr));
    EXPECT_TRUE(target.OnCmdMsg(2, LBN_SELCHANGE, nullptr, nullptr));
    EXPECT_TRUE(target.OnCmdMsg(12, CN_COMMAND, nullptr, nullptr));
    EXPECT_FALSE(target.OnCmdMsg(13, CN_COMMAND, nullptr, nullptr));
    EXPECT_FALSE(target.OnCmdMsg(2, LBN_DBLCLK, nullptr, nullptr));
    EXPECT_THAT(target.log, ElementsAre("derived 1", "derived 1", "base", "base only", "selection", "range 12"));
}

TEST(CommandRouting, AskingForAHandlerDoesNotRunIt) {
    DerivedTarget target;
    AFX_CMDHANDLERINFO info;
    EXPECT_TRUE(target.OnCmdMsg(2, CN_COMMAND, nullptr, &info));
    EXPECT_EQ(info.pTarget, &target);
    info.pTarget = nullptr;
    EXPECT_FALSE(target.OnCmdMsg(99, CN_COMMAND, nullptr, &info));
    EXPECT_EQ(info.pTarget, nullptr);
    EXPECT_TRUE(target.log.empty());
}

// A parent that logs what reaches it.
class Parent : public CWnd {
public:
    Log log;
    BOOL m_refuse = FALSE;
    RECT m_size{};
    POINT m_moved{};
    short m_wheel = 0;
    zoui::UniqueBrush m_brush{CreateSolidBrush(RGB(1, 2, 3))};

    Parent() { CreateEx(0, nullptr, L"parent", WS_POPUP, kPlace, nullptr, 0); }

    void onApply() { log.push_back("apply"); }
    void onChange() { log.push_back("change"); }
    void onNotify(NMHDR*, LRESULT* result) {
        log.push_back("notify");
        *result = 7;
    }
    LRESULT onNamed(WPARAM wParam, LPARAM lParam) { return static_cast<LRESULT>(wParam) + lParam; }
    LRESULT onThrow(WPARAM, LPARAM) { throw std::runtime_error("handler"); }
    HBRUSH OnCtlColor(HDC dc, CWnd* child, UINT type) {
        const HBRUSH fromChild = CWnd::OnCtlColor(dc, child, type);
        log.push_back("colour " + std::to_string(type));
        return fromChild != nullptr && type == CTLCOLOR_EDIT ? fromChild : m_brush.get();
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
ON_EN_CHANGE(5, &Parent::onChange)
ON_NOTIFY(NM_CLICK, 5, &Parent::onNotify)
ON_REGISTERED_MESSAGE(kNamedMessage, &Parent::onNamed)
ON_MESSAGE(WM_APP, &Parent::onThrow)
ON_WM_CTLCOLOR()
ON_WM_MOVE()
ON_WM_MOUSEWHEEL()
END_MESSAGE_MAP()

// An edit field that handles what it tells its parent.
class ReflectingEdit : public CEdit {
public:
    explicit ReflectingEdit(Parent& parent) : m_log(parent.log) {
        Create(WS_CHILD, kPlace, &parent, 5);
        m_log.clear();
    }
    BOOL m_take = TRUE;
    HBRUSH m_brush = nullptr;

    BOOL onChange() {
        m_log.push_back("own change");
        return m_take;
    }
    BOOL onClick(NMHDR*, LRESULT* result) {
        m_log.push_back("own click");
        *result = 9;
        return m_take;
    }
    HBRUSH CtlColor(HDC, UINT type) {
        m_log.push_back("own colour " + std::to_string(type));
        return m_brush;
    }
    DECLARE_MESSAGE_MAP()

private:
    Log& m_log;
};
BEGIN_MESSAGE_MAP(ReflectingEdit, CEdit)
ON_CONTROL_REFLECT_EX(EN_CHANGE, &ReflectingEdit::onChange)
ON_NOTIFY_REFLECT_EX(NM_CLICK, &ReflectingEdit::onClick)
ON_WM_CTLCOLOR_REFLECT()
END_MESSAGE_MAP()

LRESULT sendClick(const CWnd& parent, const CWnd& child) {
    NMHDR header{child.m_hWnd, 5, static_cast<UINT>(NM_CLICK)};
    return parent.SendMessage(WM_NOTIFY, 5, reinterpret_cast<LPARAM>(&header));
}

TEST(MessageMap, MenuAndAcceleratorCommandsAreTheSame) {
    Parent parent;
    parent.SendMessage(WM_COMMAND, MAKEWPARAM(100, 0));
    parent.SendMessage(WM_COMMAND, MAKEWPARAM(100, 1));
    parent.SendMessage(WM_COMMAND, MAKEWPARAM(101, 0));
    EXPECT_THAT(parent.log, ElementsAre("apply", "apply"));
}

TEST(MessageMap, UnpacksSignedParameters) {
    Parent parent;
    parent.SetWindowPos(nullptr, -30, -40, 0, 0, SWP_NOSIZE | SWP_NOZORDER | SWP_NOACTIVATE);
    EXPECT_EQ(parent.m_moved.x, -30);
    EXPECT_EQ(parent.m_moved.y, -40);
    EXPECT_EQ(parent.SendMessage(WM_MOUSEWHEEL, MAKEWPARAM(0, -120), 0), TRUE);
    EXPECT_EQ(parent.m_wheel, -120);
}

TEST(MessageMap, RegisteredMessageReachesItsHandler) {
    Parent parent;
    EXPECT_EQ(parent.SendMessage(kNamedMessage, 30, 12), 42);
}

TEST(MessageMap, HandlerThatThrowsLeavesTheWindowUsable) {
    Parent parent;
    EXPECT_EQ(parent.SendMessage(WM_APP), 0);
    EXPECT_EQ(parent.SendMessage(kNamedMessage, 1, 1), 2);
}

TEST(Reflection, ChildTakesTheNotificationBeforeItsParent) {
    Parent parent;
    ReflectingEdit edit(parent);
    edit.SetWindowText(L"typed");
    EXPECT_EQ(sendClick(parent, edit), 9);
    EXPECT_THAT(parent.log, ElementsAre("own change", "own click"));
}

TEST(Reflection, DeclinedNotificationGoesOnToTheParent) {
    Parent parent;
    ReflectingEdit edit(parent);
    edit.m_take = FALSE;
    edit.SetWindowText(L"typed");
    EXPECT_EQ(sendClick(parent, edit), 7);
    EXPECT_THAT(parent.log, ElementsAre("own change", "change", "own click", "notify"));
}

TEST(Reflection, ColourIsTheChildsUnlessItGivesNone) {
    Parent parent;
    ReflectingEdit edit(parent);
    const zoui::WindowDC dc(edit);
    const zoui::UniqueBrush own(CreateSolidBrush(RGB(9, 9, 9)));
    const auto ask = [&](UINT message) {
        return reinterpret_cast<HBRUSH>(parent.SendMessage(message, reinterpret_cast<WPARAM>(static_cast<HDC>(dc)),
                                                           reinterpret_cast<LPARAM>(edit.m_hWnd)));
    };
    edit.m_brush = own.get();
    EXPECT_EQ(ask(WM_CTLCOLOREDIT), own.get());
    edit.m_brush = nullptr;
    EXPECT_EQ(ask(WM_CTLCOLORSTATIC), parent.m_brush.get());
    EXPECT_THAT(parent.log, ElementsAre("own colour 1", "colour 1", "own colour 6", "colour 6"));
}

class DrawnList : public CListBox {
public:
    Log log;
    void DrawItem(DRAWITEMSTRUCT* item) override { log.push_back("draw " + std::to_string(item->itemID)); }
    int CompareItem(COMPAREITEMSTRUCT* items) override {
        log.push_back("compare");
        return items->itemData1 < items->itemData2 ? -1 : 1;
    }
    void DeleteItem(DELETEITEMSTRUCT* item) override { log.push_back("delete " + std::to_string(item->itemData)); }
};

TEST(Reflection, OwnerDrawReachesTheListsOwnFunctions) {
    Parent parent;
    DrawnList list;
    list.Create(LBS_OWNERDRAWFIXED | LBS_SORT | WS_VISIBLE, kPlace, &parent, 6);
    list.AddString(reinterpret_cast<const wchar_t*>(20));
    list.AddString(reinterpret_cast<const wchar_t*>(10));
    EXPECT_EQ(list.GetItemData(0), 10u);
    EXPECT_THAT(list.log, testing::Contains("compare"));
    list.log.clear();
    list.DeleteString(0);
    DRAWITEMSTRUCT item{ODT_LISTBOX, 6, 3, ODA_DRAWENTIRE, 0, list.m_hWnd, nullptr, kPlace, 0};
    EXPECT_EQ(parent.SendMessage(WM_DRAWITEM, 6, reinterpret_cast<LPARAM>(&item)), TRUE);
    EXPECT_THAT(list.log, ElementsAre("delete 10", "draw 3"));
}

class DrawnButton : public CButton {
public:
    UINT m_state = 0;
    void DrawItem(DRAWITEMSTRUCT* item) override { m_state = item->itemState; }
};

class DrawnCombo : public CComboBox {
public:
    UINT m_drawn = 0;
    void DrawItem(DRAWITEMSTRUCT* item) override { m_drawn = item->itemID; }
    void MeasureItem(MEASUREITEMSTRUCT* item) override { item->itemHeight = 31; }
};

TEST(Reflection, OwnerDrawReachesButtonsAndComboBoxesToo) {
    Parent parent;
    DrawnButton button;
    DrawnCombo combo;
    button.Create(L"draw", BS_OWNERDRAW, kPlace, &parent, 7);
    combo.Create(CBS_DROPDOWNLIST | CBS_OWNERDRAWVARIABLE, kPlace, &parent, 8);
    DRAWITEMSTRUCT item{ODT_BUTTON, 7, 0, ODA_DRAWENTIRE, ODS_SELECTED, button.m_hWnd, nullptr, kPlace, 0};
    EXPECT_EQ(parent.SendMessage(WM_DRAWITEM, 7, reinterpret_cast<LPARAM>(&item)), TRUE);
    EXPECT_EQ(button.m_state, UINT{ODS_SELECTED});
    item = {ODT_COMBOBOX, 8, 4, ODA_DRAWENTIRE, 0, combo.m_hWnd, nullptr, kPlace, 0};
    EXPECT_EQ(parent.SendMessage(WM_DRAWITEM, 8, reinterpret_cast<LPARAM>(&item)), TRUE);
    EXPECT_EQ(combo.m_drawn, 4u);
    combo.AddString(L"tall");
    EXPECT_EQ(combo.GetItemHeight(0), 31);
}

TEST(Reflection, MenuItemsAreNotTakenForControls) {
    Parent parent;
    DrawnCombo combo;
    combo.Create(CBS_DROPDOWNLIST | CBS_OWNERDRAWFIXED, kPlace, &parent, 8);
    MEASUREITEMSTRUCT item{ODT_MENU, 8, 8, 1, 2, 0};
    parent.SendMessage(WM_MEASUREITEM, 0, reinterpret_cast<LPARAM>(&item));
    EXPECT_EQ(item.itemHeight, 2u);
}

TEST(Descendants, AllHearABroadcastAndNobodyElse) {
    Parent parent;
    Parent other;
    CWnd child;
    child.Create(nullptr, L"", 0, kPlace, &parent, 1);
    CEdit grandchild;
    grandchild.Create(0, kPlace, &child, 1);
    CEdit stranger;
    stranger.Create(0, kPlace, &other, 1);
    parent.SendMessageToDescendants(WM_SETTEXT, 0, reinterpret_cast<LPARAM>(L"heard"));
    CString text;
    grandchild.GetWindowText(text);
    EXPECT_STREQ(text, L"heard");
    stranger.GetWindowText(text);
    EXPECT_STREQ(text, L"");
    parent.GetWindowText(text);
    EXPECT_STREQ(text, L"parent");
}

class Nested : public CWnd {
public:
    Nested() { CreateEx(0, nullptr, L"", WS_POPUP, kPlace, nullptr, 0); }
    LRESULT onSetText(WPARAM, LPARAM) {
        SendMessage(WM_APP, 1, 2);  // another message in between
        return Default();
    }
    LRESULT onOther(WPARAM, LPARAM) { return 0; }
    DECLARE_MESSAGE_MAP()
};
BEGIN_MESSAGE_MAP(Nested, CWnd)
ON_MESSAGE(WM_SETTEXT, &Nested::onSetText)
ON_MESSAGE(WM_APP, &Nested::onOther)
END_MESSAGE_MAP()

TEST(DefaultHandling, UsesTheParametersOfItsOwnMessage) {
    Nested window;
    window.SetWindowText(L"kept");
    CString text;
    window.GetWindowText(text);
    EXPECT_STREQ(text, L"kept");
    EXPECT_EQ(window.GetCurrentMessage().message, UINT{WM_NULL});
}

}  // namespace
