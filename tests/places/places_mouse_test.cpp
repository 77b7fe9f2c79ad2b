#include <gmock/gmock.h>

#include "PlacesFixture.h"
#include "shell/ComPtr.h"

namespace knav::test {
namespace {

using testing::ElementsAre;

class PlacesMouse : public PlacesTest {
protected:
    PlacesMouse() { m_list.OnAutoLoad(); }

    LPARAM inRow(int index, int fromTop = 10) {
        RECT row{};
        m_list.GetItemRect(index, &row);
        return MAKELPARAM(row.left + 20, row.top + fromTop);
    }
    int rowHeight() { return m_list.GetItemHeight(0); }

    /// Presses at the first place, moves over the others, and lets go at the last.
    void drag(std::initializer_list<LPARAM> way) {
        for (const LPARAM at : way)
            m_list.PostMessage(WM_MOUSEMOVE, MK_LBUTTON, at);
        m_list.PostMessage(WM_LBUTTONUP, 0, std::data(way)[way.size() - 1]);
        m_list.SendMessage(WM_LBUTTONDOWN, MK_LBUTTON, *way.begin());
    }
};

TEST_F(PlacesMouse, click_choosesTheRowEvenTwiceAndWithATremblingHand) {
    m_list.SendMessage(WM_LBUTTONDOWN, MK_LBUTTON, MAKELPARAM(20, 455));
    EXPECT_EQ(-1, m_list.GetCurSel()) << "beside the rows";
    drag({inRow(2)});
    EXPECT_EQ(2, m_list.GetCurSel());
    drag({inRow(2)});
    drag({inRow(0, 10), inRow(0, 13)});
    EXPECT_EQ(3, m_window.chosen);
    m_list.SendMessage(WM_KEYDOWN, VK_DOWN);
    EXPECT_EQ(1, m_list.GetCurSel());
    EXPECT_EQ(4, m_window.chosen) << "an arrow key chooses the next row";
}

TEST_F(PlacesMouse, drag_movesTheRowToTheIndicator) {
    drag({inRow(0), inRow(1), inRow(2, rowHeight() - 4)});
    EXPECT_THAT(m_window.names(), ElementsAre(L"Personal", L"Favorites", L"History", L"Desktop"));
    EXPECT_EQ(1, m_window.changed);
    EXPECT_EQ(0, m_window.chosen) << "a drag does not browse";
    drag({inRow(3), inRow(1, 4)});
    EXPECT_THAT(m_window.names(), ElementsAre(L"Personal", L"Desktop", L"Favorites", L"History"));
}

TEST_F(PlacesMouse, dragGivenUp_changesNothing) {
    m_list.PostMessage(WM_MOUSEMOVE, MK_LBUTTON, inRow(2));
    m_list.PostMessage(WM_KEYDOWN, VK_ESCAPE, 0);
    m_list.SendMessage(WM_LBUTTONDOWN, MK_LBUTTON, inRow(0));
    EXPECT_THAT(m_window.names(), ElementsAre(L"History", L"Personal", L"Favorites", L"Desktop"));
    EXPECT_EQ(0, m_window.changed);
    EXPECT_EQ(0, m_window.chosen);
    EXPECT_EQ(nullptr, GetCapture());
    m_list.PostMessage(WM_CANCELMODE);
    m_list.SendMessage(WM_LBUTTONDOWN, MK_LBUTTON, inRow(0));
    EXPECT_EQ(0, m_window.chosen) << "the capture was lost";
}

/// A source that lets go as soon as it is over a target.
class LetsGo final : public IDropSource {
public:
    STDMETHODIMP QueryInterface(REFIID, void** object) override {
        *object = nullptr;
        return E_NOINTERFACE;
    }
    STDMETHODIMP_(ULONG) AddRef() override { return 2; }
    STDMETHODIMP_(ULONG) Release() override { return 1; }
    STDMETHODIMP QueryContinueDrag(BOOL, DWORD) override { return m_over ? DRAGDROP_S_DROP : S_OK; }
    STDMETHODIMP GiveFeedback(DWORD) override {
        m_over = true;
        return DRAGDROP_S_USEDEFAULTCURSORS;
    }

private:
    bool m_over = false;
};

TEST_F(PlacesMouse, foldersDroppedFromTheShell_becomeRows) {
    ASSERT_TRUE(m_list.RegisterDropTarget());
    const ItemList lists[] = {ItemList::adopt(ILCreateFromPathW(m_folder.addFolder(L"one"))),
                              ItemList::adopt(ILCreateFromPathW(m_folder.addFile(L"plan.dwg"))),
                              ItemList::adopt(ILCreateFromPathW(m_folder.addFolder(L"two")))};
    const ItemList folder = ItemList::parentOf(lists[0].get());
    const ITEMIDLIST* items[] = {ILFindLastID(lists[0].get()), ILFindLastID(lists[1].get()),
                                 ILFindLastID(lists[2].get())};
    ComPtr<IDataObject> object;
    ASSERT_EQ(S_OK, CIDLData_CreateFromIDArray(folder.get(), 3, items, object.put()));
    POINT at{20, 455};
    m_list.ClientToScreen(&at);
    SetCursorPos(at.x, at.y);
    LetsGo source;
    DWORD effect = 0;
    EXPECT_EQ(DRAGDROP_S_DROP, DoDragDrop(object.get(), &source, DROPEFFECT_COPY | DROPEFFECT_LINK, &effect));
    EXPECT_EQ(DWORD{DROPEFFECT_LINK}, effect);
    ASSERT_EQ(6, m_list.GetCount()) << "the file is no place";
    EXPECT_EQ(CString(L"one"), m_list.GetItemDisplayText(4));
    EXPECT_EQ(CString(L"two"), m_list.GetItemDisplayText(5));
}

TEST_F(PlacesMouse, pointer_marksTheRowUnderIt) {
    m_list.SendMessage(WM_MOUSEMOVE, 0, inRow(1));
    EXPECT_EQ(1, m_list.GetItemPointedAt());
    m_list.SendMessage(WM_MOUSEMOVE, 0, MAKELPARAM(20, 455));
    EXPECT_EQ(-1, m_list.GetItemPointedAt());
    m_list.SendMessage(WM_MOUSEMOVE, 0, inRow(2));
    m_list.SendMessage(WM_MOUSELEAVE);
    EXPECT_EQ(-1, m_list.GetItemPointedAt());
}

}  // namespace
}  // namespace knav::test
