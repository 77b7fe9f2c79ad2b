#include "view/ViewTakeover.h"

#include "data/ApiEdge.h"
#include "view/BrowseOwner.h"
#include "view/BrowserState.h"

#include <knav/CNavCommDlgBrowser.h>
#include <knav/CNavCommDlgBuddy.h>
#include <knav/CNavCommDlgView.h>
#include <knav/CNavListCtrl.h>

#include <array>
#include <string_view>

namespace knav {
namespace {

constexpr std::wstring_view kViewClass = L"SHELLDLL_DefView";
constexpr const wchar_t* kListClass = L"SysListView32";
constexpr UINT kPlaceholderId = 13001;
constexpr DWORD kListHelpId = 0x808332D2;

// The dialog manager walks the windows from the top of the stack down: behind the placeholder, the view has the
// placeholder's turn.
void takePlaceOf(CNavCommDlgBuddy& placeholder, HWND window) {
    SetWindowPos(window, placeholder, 0, 0, 0, 0, SWP_NOMOVE | SWP_NOSIZE | SWP_NOACTIVATE);
    placeholder.SetBuddy(CWnd::FromHandle(window));
}

// Where the list cannot show thumbnails it is marked, so that the mode is still what the user chose.
void markThumbnails(HWND list, unsigned mode) {
    if (mode == NavViewThumbnails && readModeOfList(list) != NavViewThumbnails) {
        SetWindowLongPtrW(list, GWLP_USERDATA, static_cast<LONG_PTR>(listViewOf(NavViewThumbnails)));
    }
}

}  // namespace

bool isStandardView(HWND window) {
    std::array<wchar_t, 80> name{};
    const int length = GetClassNameW(window, name.data(), static_cast<int>(name.size()));
    return std::wstring_view(name.data(), static_cast<std::size_t>(length)) == kViewClass;
}

void saveView(CNavCommDlgBrowser& browser) {
    if (const auto view = browser.state().view) {
        guarded([&view] { return view->SaveViewState(); });
        browser.SaveListCtrlState();
    }
}

void releaseViewWindows(BrowserState& state) {
    if (state.viewHandle == nullptr) {
        return;  // nothing is taken over, and the host may have ended its list control
    }
    if (state.buddy != nullptr) {
        state.buddy->SetBuddy(nullptr);
    }
    if (state.listCtrl != nullptr) {
        state.listCtrl->UnsubclassWindow();
    }
    if (state.viewWindow != nullptr) {
        state.viewWindow->UnsubclassWindow();
    }
}

void viewWindowDestroyed(BrowserState& state, HWND window) {
    if (state.buddy != nullptr && SafeHwnd(state.buddy->GetBuddy()) == window) {
        state.buddy->SetBuddy(nullptr);
    }
    if (state.viewHandle == window) {
        state.viewHandle = nullptr;
    }
}

void takeOverView(CNavCommDlgBrowser& browser) {
    auto& state = browser.state();
    if (const HWND window = state.viewHandle) {
        browser.SubclassView(window);
        if (state.buddy != nullptr) {
            takePlaceOf(*state.buddy, window);
        }
    }
    state.arrivals.restart();
    if (const HWND list = SafeHwnd(state.listCtrl)) {
        markThumbnails(list, state.folderSettings.ViewMode);
    }
    browser.RestoreListCtrlState();
}

FocusInView::FocusInView(const BrowserState& state) : m_state(state) {
    const HWND window = state.viewHandle;
    const HWND focus = GetFocus();
    m_hadFocus = window != nullptr && focus != nullptr && (focus == window || IsChild(window, focus));
}

FocusInView::~FocusInView() {
    if (m_hadFocus) {
        SetFocus(m_state.viewHandle);
    }
}

}  // namespace knav

void CNavCommDlgBrowser::SubclassView(HWND window) {
    knav::atApiEdge([this, window] {
        CNavCommDlgView* const view = m_state->viewWindow;
        if (view != nullptr && knav::isStandardView(window)) {
            view->SubclassWindow(window);
            view->SetBrowser(this);
            view->SetZoUiParent(m_state->owner);
            view->SetTabNext(knav::kPlaceholderId);
            SubclassListCtrl(window);
        }
    });
}

void CNavCommDlgBrowser::SubclassListCtrl(HWND viewWindow) {
    knav::atApiEdge([this, viewWindow] {
        CNavListCtrl* const list = m_state->listCtrl;
        if (list == nullptr) {
            return;
        }
        list->UnsubclassWindow();
        // No window stands for the whole desktop there.
        const HWND window =
            viewWindow != nullptr ? FindWindowExW(viewWindow, nullptr, knav::kListClass, nullptr) : nullptr;
        if (window == nullptr || !list->SubclassWindow(window)) {
            return;
        }
        list->SetBrowser(this);
        list->SetZoUiParent(m_state->owner);
        list->SetWindowContextHelpId(knav::kListHelpId);
        list->ModifyStyle(0, LVS_SHOWSELALWAYS);
        ListView_SetExtendedListViewStyleEx(window, LVS_EX_FULLROWSELECT, LVS_EX_FULLROWSELECT);
    });
}

void CNavCommDlgBrowser::SaveListCtrlState() {
    if (m_state->browseOwner != nullptr && m_state->view) {
        knav::atApiEdge([this] { m_state->browseOwner->saveListState(m_state->view.get()); });
    }
}

void CNavCommDlgBrowser::RestoreListCtrlState() {
    if (m_state->browseOwner != nullptr && m_state->view) {
        knav::atApiEdge([this] { m_state->browseOwner->restoreListState(m_state->view.get()); });
    }
}
