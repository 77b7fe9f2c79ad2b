#include "view/ViewHost.h"

#include "shell/ItemList.h"

#include <knav/NavFolders.h>
#include <knav/NavNames.h>

#include <algorithm>
#include <array>

namespace knav::test {

bool RecordingOwner::enterBrowse() {
    log.push_back(browsing ? "refuse" : "enter");
    return !std::exchange(browsing, true);
}

void RecordingOwner::leaveBrowse() {
    log.push_back("leave");
    browsing = false;
}

void RecordingOwner::browsed(ITEMIDLIST*, UINT) {
    log.push_back("browsed");
    if (onBrowsed) {
        onBrowsed();
    }
}

void RecordingOwner::saveListState(IShellView*) {
    log.push_back("save");
}

void RecordingOwner::restoreListState(IShellView*) {
    log.push_back("restore");
}

bool RecordingOwner::findLogin(const CString& siteName, CString& user, CString& password) {
    askedSite = siteName.view();
    user = L"anna";
    password = L"secret";
    return true;
}

LRESULT ViewHost::Owner::WindowProc(UINT message, WPARAM wParam, LPARAM lParam) {
    if (message == WM_NEXTDLGCTL && lParam != FALSE) {
        nextControl = reinterpret_cast<HWND>(wParam);
    }
    return CWnd::WindowProc(message, wParam, lParam);
}

ViewHost::ViewHost() {
    owner.CreateEx(0, nullptr, L"owner", WS_OVERLAPPEDWINDOW, {0, 0, 640, 480}, nullptr, 0);
    buddy.Create(WC_STATICW, L"", WS_CHILD, {10, 20, 410, 320}, &owner, 13001);
    lendWindowsTo(browser);
    browser.SetBrowseOwner(&browseOwner);
}

void ViewHost::lendWindowsTo(CNavCommDlgBrowser& other) {
    other.SetViewWindow(&viewWindow);
    other.SetListCtrl(&listCtrl);
    other.SetBuddyWindow(&buddy);
    other.SetViewOwnerWindow(&owner, nullptr);
}

ViewHost::~ViewHost() {
    browser.DestroyViewWindow(0);
    browser.SetViewOwnerWindow(nullptr, nullptr);
    owner.DestroyWindow();
}

int ViewHost::browse(const wchar_t* path) {
    const auto list = ItemList::adopt(*path == L'\0' ? NavGetDesktopFolderItem(nullptr)
                                                     : NavGetQualifiedItemListFromFolderFullPath(path));
    return browser.BrowseObject(list.get(), SBSP_ABSOLUTE);
}

std::vector<std::wstring> ViewHost::rows() const {
    std::vector<std::wstring> names;
    for (int row = 0; row < ListView_GetItemCount(list()); ++row) {
        std::array<wchar_t, MAX_PATH> text{};
        ListView_GetItemText(list(), row, 0, text.data(), MAX_PATH);
        names.emplace_back(text.data());
    }
    std::ranges::sort(names);
    return names;
}

int ViewHost::rowOf(const wchar_t* name) const {
    LVFINDINFOW find{};
    find.flags = LVFI_STRING;
    find.psz = name;
    return ListView_FindItem(list(), -1, &find);
}

void ViewHost::select(std::initializer_list<const wchar_t*> names) {
    constexpr UINT mask = LVIS_SELECTED | LVIS_FOCUSED;
    ListView_SetItemState(list(), -1, 0, mask);
    for (const wchar_t* name : names) {
        ListView_SetItemState(list(), rowOf(name), mask, mask);
    }
}

RECT ViewHost::viewPlace() const {
    RECT place{};
    GetWindowRect(viewHandle(), &place);
    MapWindowPoints(nullptr, owner, reinterpret_cast<POINT*>(&place), 2);
    return place;
}

int ViewHost::children() const {
    int count = 0;
    for (HWND child = GetWindow(owner, GW_CHILD); child != nullptr; child = GetWindow(child, GW_HWNDNEXT)) {
        ++count;
    }
    return count;
}

CString ViewHost::shownPath() const {
    CString path;
    NavGetItemDisplayNameInDesktop(SHGDN_FORPARSING, browser.GetCurrentObjectID(), path);
    return path;
}

bool pumpUntil(const std::function<bool()>& done) {
    const ULONGLONG end = GetTickCount64() + 2000;
    while (!done() && GetTickCount64() < end) {
        MSG message;
        while (PeekMessageW(&message, nullptr, 0, 0, PM_REMOVE)) {
            TranslateMessage(&message);
            DispatchMessageW(&message);
        }
        Sleep(1);
    }
    return done();
}

}  // namespace knav::test
