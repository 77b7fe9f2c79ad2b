// A Places list in a window, with a dialog that only remembers.
#pragma once

#include <gtest/gtest.h>

#include <knav/CNavListBox.h>
#include <platform/Resources.h>

#include <map>

#include "places/PlacesHost.h"
#include "places/PlacesOrder.h"
#include "shell/ItemList.h"
#include "support/Printers.h"
#include "support/RegistryRedirect.h"
#include "support/ScopedTempFolder.h"

namespace knav::test {

class PlacesWindow : public CWnd, public PlacesHost {
public:
    static constexpr UINT kListId = 13000;

    PlacesWindow() {
        CreateEx(0, nullptr, L"host", WS_OVERLAPPEDWINDOW | WS_VISIBLE, 0, 0, 240, 500, nullptr, nullptr);
        constexpr DWORD style = WS_CHILD | WS_VISIBLE | WS_VSCROLL | LBS_NOTIFY | LBS_OWNERDRAWFIXED | LBS_HASSTRINGS |
                                LBS_NOINTEGRALHEIGHT;
        list.SubclassWindow(CreateWindowExW(0, L"LISTBOX", nullptr, style, 0, 0, 120, 460, m_hWnd,
                                            reinterpret_cast<HMENU>(static_cast<UINT_PTR>(kListId)), nullptr, nullptr));
        list.SetHost(this);
    }
    ~PlacesWindow() override { CWnd::DestroyWindow(); }

    bool readSharedText(const CString& name, CString& value) override {
        const auto found = stored.find(std::wstring(name));
        if (found == stored.end())
            return false;
        value = found->second;
        return true;
    }
    void savePlaces() override {
        ++saved;
        writePlacesOrder(list, [this](const CString& name, const CString& value) {
            stored[std::wstring(name)] = std::wstring(value);
        });
    }
    void placesChanged() override { ++changed; }
    bool leavesOutDisabledExtensions() const override { return false; }
    bool isExtensionDeleted(const wchar_t* name) override { return deleted == name; }
    ITEMIDLIST* shownFolder() const override { return nullptr; }

    /// The names of the rows.
    std::vector<std::wstring> names() const {
        std::vector<std::wstring> result;
        for (int i = 0; i < list.GetCount(); ++i)
            result.emplace_back(list.GetItemName(i));
        return result;
    }

    CNavListBox list;
    std::map<std::wstring, std::wstring> stored;
    std::wstring deleted;
    int saved = 0;
    int changed = 0;
    int chosen = 0;

protected:
    BOOL OnCommand(WPARAM wParam, LPARAM lParam) override {
        chosen += wParam == MAKEWPARAM(kListId, LBN_SELCHANGE);
        return CWnd::OnCommand(wParam, lParam);
    }
};

class PlacesTest : public testing::Test {
protected:
    PlacesTest() : m_resources(LoadLibraryW(L"KnavRes.dll")), m_link(m_resources) {}
    ~PlacesTest() override { FreeLibrary(m_resources); }

private:
    HMODULE m_resources;
    CDynLinkLibrary m_link;

protected:
    RegistryRedirect m_registry;
    PlacesWindow m_window;
    CNavListBox& m_list = m_window.list;
    ScopedTempFolder m_folder;
};

}  // namespace knav::test
