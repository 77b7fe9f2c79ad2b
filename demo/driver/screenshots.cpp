// Takes pictures of the sample host and its dialogs.
//
//   demoshots FOLDER PREFIX [HOST OPTION]...
//
// Starts the host with these options, shows one dialog and menu after the other, and saves a picture of each as
// FOLDER\PREFIX-what.png. Exits with 0 when all have been taken.
#include <cstdio>
#include <stdexcept>
#include <string>

#include "demo/drafthost/ids.h"
#include "demo/driver/DropDown.h"
#include "demo/driver/HostWindow.h"
#include "demo/driver/Input.h"
#include "demo/driver/NavDialogWindow.h"
#include "demo/driver/Screenshot.h"
#include "demo/driver/WindowSearch.h"
#include "resources/ids.h"

namespace {

using knav::input::click;
using knav::input::HostWindow;
using knav::input::middleOf;
using knav::input::NavDialogWindow;
using knav::input::pressKey;
using knav::input::waitUntil;

constexpr wchar_t kMenuClass[] = L"#32768";
// What the dialogs remember must not come from another run.
constexpr wchar_t kSettings[] = L"Software\\Kelvara\\Screenshots";

class Photographer {
public:
    Photographer(const std::wstring& folder, const std::wstring& prefix, const std::wstring& hostOptions)
        : m_start(folder + L"\\" + prefix + L"-"),
          m_host(L"--window --settings " + std::wstring(kSettings) + L" " + hostOptions) {}

    void takeAll() {
        SetWindowPos(m_host.window(), nullptr, 20, 40, 0, 0, SWP_NOSIZE | SWP_NOZORDER);
        takeOpen();
        takeMenus();
        takeOthers();
        takeSeveral();
        takeOptions();
        take(m_host.window(), L"host");
        m_host.choose(L'F', 0);
        take(m_host.window(), L"host-menu");
        pressKey(VK_ESCAPE);
        pressKey(VK_ESCAPE);
        m_host.close();
    }

private:
    void takeOpen() {
        const NavDialogWindow dialog = show(L'O');
        takeView(dialog, L'2', L"open-details");
        takeView(dialog, L'3', L"open-thumbnails");
        takeView(dialog, L'1', L"open-list");
        dialog.typeName(L"Q:\\plan.dwg");  // there is no such drive
        take(dialog.window(), L"open-typed");
        dialog.pressEnter();
        waitUntil([&] { return !dialog.boxText().empty(); });
        take(dialog.window(), L"open-message");
        dialog.dismissBox();
        close(dialog);
    }

    void takeMenus() {
        const NavDialogWindow dialog = show(L'O');
        takeMenu(dialog, middleOf(control(dialog, IDC_KNAV_TOOLS)), L"menu-tools");
        takeMenu(dialog, middleOf(control(dialog, IDC_KNAV_VIEWS)), L"menu-views");
        takeMenu(dialog, menuPartOf(control(dialog, IDOK)), L"menu-ok");
        takeList(dialog, IDC_KNAV_LOOK_IN, L"list-look-in");
        takeList(dialog, IDC_KNAV_FILE_TYPE, L"list-file-type");
        dialog.select({L"plan.dwg"});
        takeFavorites(dialog);
        close(dialog);
    }

    void takeSeveral() {
        const NavDialogWindow dialog = show(L'V');
        dialog.select({L"plan.dwg", L"site plan.dwg", L"elevation north.dwg"});
        take(dialog.window(), L"several");
        dialog.pressOk();
        if (!dialog.waitUntilClosed()) {
            throw std::runtime_error("the dialog stays open");
        }
    }

    void takeOthers() {
        const NavDialogWindow save = show(L'A');
        take(save.window(), L"save");
        close(save);
        const NavDialogWindow folders = show(L'B');
        take(folders.window(), L"folders");
        close(folders);
    }

    void takeOptions() {
        m_host.choose(L'E', L'O');
        const HWND options = m_host.waitForWindow(L"Options of the File Dialogs");
        moveAside(options);
        for (const wchar_t* page : {L"general", L"names", L"folders", L"places"}) {
            take(options, std::wstring(L"options-") + page);
            pressKey(VK_NEXT, VK_CONTROL);
        }
        pressKey(VK_ESCAPE);
        waitUntil([&] { return !IsWindow(options); });
    }

    // Away from the host's window, which would show at its edges, and from the pointer, which would light up a button.
    void moveAside(HWND window) const {
        knav::input::parkPointer();
        RECT host{};
        GetWindowRect(m_host.window(), &host);
        SetWindowPos(window, nullptr, host.right + 20, 40, 0, 0, SWP_NOSIZE | SWP_NOZORDER | SWP_NOACTIVATE);
        knav::input::waitUntilSettled(window);
    }

    NavDialogWindow show(wchar_t entry) const {
        m_host.choose(L'F', entry);
        const NavDialogWindow dialog = NavDialogWindow::waitFor(m_host.process());
        moveAside(dialog.window());
        return dialog;
    }

    static void close(const NavDialogWindow& dialog) {
        dialog.pressEscape();
        if (!dialog.waitUntilClosed()) {
            throw std::runtime_error("the dialog stays open");
        }
    }

    static HWND control(const NavDialogWindow& dialog, int id) { return GetDlgItem(dialog.window(), id); }

    // The end of a button where its menu drops down: the left one in a mirrored window.
    static POINT menuPartOf(HWND button) {
        RECT area{};
        GetWindowRect(button, &area);
        const int inset = MulDiv(7, static_cast<int>(GetDpiForWindow(button)), USER_DEFAULT_SCREEN_DPI);
        const bool mirrored = (GetWindowLongPtrW(button, GWL_EXSTYLE) & WS_EX_LAYOUTRTL) != 0;
        return {mirrored ? area.left + inset : area.right - inset, (area.top + area.bottom) / 2};
    }

    void takeView(const NavDialogWindow& dialog, wchar_t key, const wchar_t* what) const {
        pressKey(static_cast<WORD>(key), VK_CONTROL);
        dialog.waitUntilHandled();
        take(dialog.window(), what);
    }

    void takeMenu(const NavDialogWindow& dialog, POINT at, const wchar_t* what) const {
        takeDropped(dialog, kMenuClass, at, what);
    }

    void takeList(const NavDialogWindow& dialog, int combo, const wchar_t* what) const {
        takeDropped(dialog, L"ComboLBox", middleOf(control(dialog, combo)), what);
    }

    // The dialog with the menu or list that a click drops down, which may reach beyond it.
    void takeDropped(const NavDialogWindow& dialog, const wchar_t* className, POINT at, const wchar_t* what) const {
        const HWND popup = knav::input::dropDown(m_host.process(), className, [at] { click(at); });
        knav::input::saveScreenshot({dialog.window(), popup}, fileOf(what));
        giveUp(popup);
    }

    // The last entry of the Tools menu has a menu of its own.
    void takeFavorites(const NavDialogWindow& dialog) const {
        const POINT at = middleOf(control(dialog, IDC_KNAV_TOOLS));
        const HWND tools = knav::input::dropDown(m_host.process(), kMenuClass, [at] { click(at); });
        pressKey(VK_UP);
        pressKey(VK_RETURN);
        HWND favorites = nullptr;
        const auto dropped = [&] {
            favorites = knav::input::findTopLevel([&](HWND window) {
                return window != tools && knav::input::isShownBy(window, m_host.process()) &&
                       knav::input::isClass(window, kMenuClass);
            });
            return favorites != nullptr;
        };
        if (!waitUntil(dropped)) {
            throw std::runtime_error("the Favorites menu does not drop down");
        }
        knav::input::saveScreenshot({dialog.window(), tools, favorites}, fileOf(L"menu-favorites"));
        giveUp(favorites);
        giveUp(tools);
    }

    static void giveUp(HWND popup) {
        pressKey(VK_ESCAPE);
        waitUntil([&] { return !IsWindow(popup) || !IsWindowVisible(popup); });
    }

    void take(HWND window, const std::wstring& what) const { knav::input::saveScreenshot({window}, fileOf(what)); }
    std::wstring fileOf(const std::wstring& what) const { return m_start + what + L".png"; }

    std::wstring m_start;
    HostWindow m_host;
};

std::wstring quoted(const std::wstring& argument) {
    return L"\"" + argument + L"\"";
}

}  // namespace

int wmain(int count, wchar_t** arguments) {
    if (count < 3) {
        std::fputs("demoshots FOLDER PREFIX [HOST OPTION]...\n", stderr);
        return 2;
    }
    std::wstring hostOptions;
    for (int i = 3; i < count; ++i) {
        hostOptions += quoted(arguments[i]) + L" ";
    }
    RegDeleteTreeW(HKEY_CURRENT_USER, kSettings);
    try {
        Photographer(arguments[1], arguments[2], hostOptions).takeAll();
        return 0;
    } catch (const std::exception& error) {
        std::fprintf(stderr, "demoshots: %s\n", error.what());
        return 1;
    }
}
