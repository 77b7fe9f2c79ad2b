// Moving the view to another folder.
#include <knav/CNavCommDlgBrowser.h>

#include "data/ApiEdge.h"
#include "view/BrowseOwner.h"
#include "view/BrowseTarget.h"
#include "view/BrowserState.h"
#include "view/NewChildren.h"
#include "view/ViewTakeover.h"

#include <knav/CNavCommDlgBuddy.h>

#include <platform/CWaitCursor.h>
#include <utility>

namespace knav {
namespace {

// One browse at a time: calls into the shell run message loops, in which the user or a view may ask for the next one.
class BrowseGuard {
public:
    explicit BrowseGuard(BrowserState& state)
        : m_state(state),
          m_owner(state.browseOwner),
          m_entered(m_owner != nullptr ? m_owner->enterBrowse() : !std::exchange(state.browsing, true)) {}
    BrowseGuard(const BrowseGuard&) = delete;
    BrowseGuard& operator=(const BrowseGuard&) = delete;
    ~BrowseGuard() {
        if (m_entered && m_owner != nullptr) {
            m_owner->leaveBrowse();
        } else if (m_entered) {
            m_state.browsing = false;
        }
    }
    bool entered() const { return m_entered; }

private:
    BrowserState& m_state;
    BrowseOwner* m_owner;
    bool m_entered;
};

// The current object id is the new folder's while its view is made, because the view asks what it may show. Unless the
// browse succeeds, the old one comes back.
class ProvisionalId {
public:
    ProvisionalId(BrowserState& state, BrowseTarget& target)
        : m_state(state), m_oldId(std::move(state.objectId)), m_oldAdmission(std::move(state.admission)) {
        state.setObjectId(std::move(target.id), target.boundFromDesktop ? target.folder : nullptr);
    }
    ProvisionalId(const ProvisionalId&) = delete;
    ProvisionalId& operator=(const ProvisionalId&) = delete;
    ~ProvisionalId() {
        if (!m_kept) {
            m_state.objectId = std::move(m_oldId);
            m_state.admission = std::move(m_oldAdmission);
        }
    }
    void keep() { m_kept = true; }

private:
    BrowserState& m_state;
    ItemList m_oldId;
    Admission m_oldAdmission;
    bool m_kept = false;
};

struct NewView {
    ComPtr<IShellView> view;
    FOLDERSETTINGS settings{};
    RECT place{};
    HWND window = nullptr;
};

FOLDERSETTINGS currentFolderSettings(const BrowserState& state) {
    FOLDERSETTINGS settings{};
    if (!state.view || SUCCEEDED(guarded([&] { return state.view->GetCurrentInfo(&settings); }))) {
        return settings;
    }
    return state.folderSettings;
}

FOLDERSETTINGS nextFolderSettings(CNavCommDlgBrowser& browser) {
    const auto& state = browser.state();
    FOLDERSETTINGS settings = currentFolderSettings(state);
    settings.ViewMode = browser.GetViewMode();
    settings.fFlags = state.multiSelectAllowed != 0 ? settings.fFlags & ~static_cast<UINT>(FWF_SINGLESEL)
                                                    : settings.fFlags | FWF_SINGLESEL;
    return settings;
}

RECT placeForView(const BrowserState& state) {
    RECT place{};
    state.buddy->GetWindowRect(&place);
    MapWindowPoints(nullptr, state.ownerHandle(), reinterpret_cast<POINT*>(&place), 2);
    return place;
}

HRESULT createWindow(BrowserState& state, NewView& next) {
    IShellView* const previous = state.view.get();
    IShellBrowser* const site = state.site.get();
    if (const auto view2 = next.view.as<IShellView2>()) {
        SV2CVW2_PARAMS params{
            sizeof(params), previous, &next.settings, site, &next.place, &viewIdOf(next.settings.ViewMode), nullptr};
        const HRESULT result = guarded([&] { return view2->CreateViewWindow2(&params); });
        next.window = params.hwndView;
        return result;
    }
    return guarded(
        [&] { return next.view->CreateViewWindow(previous, &next.settings, site, &next.place, &next.window); });
}

// A view that breaks down while it is made, most likely while it reads its folder, has its window already; without one
// there would be nothing to see. Either way the previous view stays, and nothing may lie on top of it.
bool showNextView(BrowserState& state, NewView& next) {
    const NewChildren windows(state.ownerHandle());
    if (SUCCEEDED(createWindow(state, next))) {
        next.window = IsWindow(next.window) ? next.window : windows.view();
        if (next.window != nullptr) {
            return true;
        }
    }
    guarded([&next] { return next.view->DestroyViewWindow(); });
    windows.destroy();
    return false;
}

bool replaceView(CNavCommDlgBrowser& browser, BrowseTarget target, UINT flags) {
    auto& state = browser.state();
    const HWND owner = state.ownerHandle();
    NewView next{ComPtr<IShellView>::from([&](IShellView** view) {
        return target.folder->CreateViewObject(owner, IID_IShellView, reinterpret_cast<void**>(view));
    })};
    if (!next.view) {
        return false;
    }
    next.settings = nextFolderSettings(browser);
    next.place = placeForView(state);
    ProvisionalId id(state, target);
    if (!showNextView(state, next)) {
        return false;
    }
    id.keep();
    {
        const FocusInView focus(state);
        releaseViewWindows(state);
        state.retired.retire(std::exchange(state.view, std::move(next.view)),
                             std::exchange(state.viewHandle, next.window));
        state.folder = std::move(target.folder);
        state.browseFlags = flags;
        state.folderSettings = next.settings;
        state.viewRect = next.place;
        takeOverView(browser);
    }
    if (state.browseOwner != nullptr) {
        state.browseOwner->browsed(state.objectId.get(), flags);
    }
    return true;
}

bool browse(CNavCommDlgBrowser& browser, ITEMIDLIST* list, UINT flags) {
    auto& state = browser.state();
    if (state.owner == nullptr) {
        return false;
    }
    const BrowseGuard guard(state);
    if (!guard.entered()) {
        return true;
    }
    const CWaitCursor wait;
    if (SafeHwnd(state.buddy) == nullptr || state.ownerHandle() == nullptr) {
        return false;
    }
    auto target = findBrowseTarget(list, flags, state.objectId.get(), state.folder.get());
    if (!target.folder) {
        return false;
    }
    saveView(browser);
    return replaceView(browser, std::move(target), flags);
}

}  // namespace
}  // namespace knav

int CNavCommDlgBrowser::BrowseObject(ITEMIDLIST* list, UINT flags) {
    return knav::atApiEdge(0, [&] { return knav::browse(*this, list, flags) ? 1 : 0; });
}

int CNavCommDlgBrowser::BrowseCurrentObject() {
    return knav::atApiEdge(0, [this] {
        const auto current = knav::ItemList::copyOf(m_state->objectId.get());
        // The id is qualified, whichever way the last browse found it.
        const UINT flags = m_state->browseFlags & ~static_cast<UINT>(SBSP_RELATIVE | SBSP_PARENT);
        return current ? BrowseObject(current.get(), flags) : 0;
    });
}

int CNavCommDlgBrowser::RefreshView() {
    return knav::atApiEdge(0, [this] {
        const auto view = m_state->view;
        const bool done = view && SUCCEEDED(knav::guarded([&view] { return view->Refresh(); }));
        m_state->arrivals.restart();  // all rows are new, and have been asked about
        return done ? 1 : 0;
    });
}

void CNavCommDlgBrowser::DestroyViewWindow(int saveState) {
    knav::atApiEdge([this, saveState] {
        if (saveState != 0) {
            knav::saveView(*this);
        }
        knav::releaseViewWindows(*m_state);
        m_state->retired.retire(std::exchange(m_state->view, nullptr), std::exchange(m_state->viewHandle, nullptr));
    });
}
