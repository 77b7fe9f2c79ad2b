// What the shell's views see of the browser host.
#include "support/ScopedTempFolder.h"
#include "view/ViewHost.h"

#include "shell/ComPtr.h"
#include "support/ItemLists.h"

#include <gmock/gmock.h>

#include <knav/CNavDataArray.h>
#include <knav/IKNavUI.h>

namespace {

using namespace knav;
using namespace knav::test;

class CountingBrowser : public CNavCommDlgBrowser {
public:
    int IsAllowed(ITEMIDLIST* item) override { return item != nullptr; }
    int OnDefaultCommand() override { return handled; }
    void OnItemNameChange(IShellView*) override { ++names; }
    void OnItemSelectionChange(IShellView*) override { ++selections; }
    int handled = 0;
    int names = 0;
    int selections = 0;
};

TEST(BrowserSite, ViewNotifications_ReachTheVirtualOperations) {
    CountingBrowser browser;
    ICommDlgBrowser* const site = browser.GetICommDlgBrowser();
    EXPECT_EQ(site->OnDefaultCommand(nullptr), S_FALSE);
    browser.handled = 1;
    EXPECT_EQ(site->OnDefaultCommand(nullptr), S_OK);
    for (ULONG change = 0; change < 6; ++change) {
        EXPECT_EQ(site->OnStateChange(nullptr, change), S_OK);
    }
    EXPECT_EQ(browser.selections, 1);
    EXPECT_EQ(browser.names, 1);
    const auto item = makeList({"a"});
    EXPECT_EQ(site->IncludeObject(nullptr, item.get()), S_OK);
    EXPECT_EQ(site->IncludeObject(nullptr, nullptr), S_FALSE);
}

TEST(BrowserSite, WindowsOfTheHost_AreGivenOrNull) {
    ViewHost host;
    IShellBrowser* const site = host.browser.GetIShellBrowser();
    HWND window = nullptr;
    EXPECT_EQ(site->GetWindow(&window), S_OK);
    EXPECT_EQ(window, host.owner.m_hWnd);
    EXPECT_EQ(site->GetControlWindow(FCW_TREE, &window), S_OK);
    EXPECT_EQ(window, nullptr);
    LRESULT result = 7;
    EXPECT_EQ(site->SendControlMsg(FCW_TREE, WM_NULL, 0, 0, &result), E_NOTIMPL);
    EXPECT_EQ(result, 0);
    EXPECT_TRUE(FAILED(site->BrowseObject(nullptr, SBSP_ABSOLUTE)));
    host.browser.SetViewOwnerWindow(nullptr, nullptr);
    EXPECT_EQ(site->GetWindow(&window), E_FAIL);
}

TEST(BrowserSite, ViewStateStreams_ShareOneBlockOf128Bytes) {
    CNavCommDlgBrowser first;
    CNavCommDlgBrowser second;
    ComPtr<IStream> written;
    ComPtr<IStream> read;
    ASSERT_EQ(first.GetIShellBrowser()->GetViewStateStream(STGM_READWRITE, written.put()), S_OK);
    ASSERT_EQ(second.GetIShellBrowser()->GetViewStateStream(STGM_READ, read.put()), S_OK);
    STATSTG state{};
    read->Stat(&state, STATFLAG_NONAME);
    EXPECT_EQ(state.cbSize.QuadPart, 128u);
    const char text[] = "state";
    written->Write(text, sizeof(text), nullptr);
    char found[sizeof(text)]{};
    read->Read(found, sizeof(found), nullptr);
    EXPECT_STREQ(found, text);
}

TEST(BrowserSite, Interfaces_AreOneObjectsAndReachableFromTheCommandTarget) {
    CNavCommDlgBrowser browser;
    const auto shellBrowser = ComPtr<IShellBrowser>::retain(browser.GetIShellBrowser());
    const auto commDlg = shellBrowser.as<ICommDlgBrowser>();
    EXPECT_EQ(commDlg.get(), browser.GetICommDlgBrowser());
    EXPECT_EQ(commDlg.as<IUnknown>().get(), shellBrowser.as<IUnknown>().get());
    EXPECT_EQ(commDlg.as<IOleWindow>().get(), static_cast<IOleWindow*>(shellBrowser.get()));
    EXPECT_FALSE(shellBrowser.as<IStream>());
    IShellBrowser* fromTarget = nullptr;
    ASSERT_EQ(browser.ExternalQueryInterface(IID_IShellBrowser, reinterpret_cast<void**>(&fromTarget)), S_OK);
    EXPECT_EQ(fromTarget, shellBrowser.get());
    fromTarget->Release();
}

TEST(BrowserSite, BrowserGone_LateCallsFail) {
    ComPtr<IShellBrowser> site;
    {
        CNavCommDlgBrowser browser;
        site = ComPtr<IShellBrowser>::retain(browser.GetIShellBrowser());
    }
    const auto commDlg = site.as<ICommDlgBrowser>();
    ASSERT_TRUE(commDlg);
    HWND window = nullptr;
    IShellView* view = nullptr;
    IStream* stream = nullptr;
    EXPECT_TRUE(FAILED(site->GetWindow(&window)));
    EXPECT_TRUE(FAILED(site->BrowseObject(nullptr, SBSP_PARENT)));
    EXPECT_TRUE(FAILED(site->QueryActiveShellView(&view)));
    EXPECT_TRUE(FAILED(site->GetViewStateStream(STGM_READ, &stream)));
    EXPECT_TRUE(FAILED(commDlg->OnDefaultCommand(nullptr)));
    EXPECT_TRUE(FAILED(commDlg->OnStateChange(nullptr, CDBOSC_SELCHANGE)));
    EXPECT_NE(commDlg->IncludeObject(nullptr, nullptr), S_OK);
    EXPECT_FALSE(site.as<IDispatch>());
}

struct Callback final : IKNavUI {
    HRESULT STDMETHODCALLTYPE QueryInterface(REFIID, void**) override { return E_NOINTERFACE; }
    ULONG STDMETHODCALLTYPE AddRef() override { return ++references; }
    ULONG STDMETHODCALLTYPE Release() override { return --references; }
    HRESULT STDMETHODCALLTYPE OnDefaultCommand() override { return answer; }
    HRESULT answer = S_OK;
    ULONG references = 0;
};

TEST(DefaultCommand, Callback_DecidesWhetherItWasHandled) {
    Callback callback;
    CNavCommDlgBrowser browser;
    EXPECT_FALSE(browser.OnDefaultCommand());
    browser.SetKNavUI(&callback);
    EXPECT_TRUE(browser.OnDefaultCommand());
    callback.answer = E_NOTIMPL;
    EXPECT_FALSE(browser.OnDefaultCommand());
    browser.SetViewOwnerWindow(nullptr, nullptr);
    EXPECT_EQ(browser.GetKNavUI(), nullptr);
    EXPECT_EQ(callback.references, 0u);
}

}  // namespace
