// Operates the navigation dialog of another process as a person would.
//
//   demodriver [--multi] [--folders-only] [--pick NAME]... [--type TEXT]... [--screenshot FILE]
//   demodriver --dismiss     prints the text of the next message box and closes it
//
// Picks and texts are carried out in their order, each in the dialog as the one before it left it. With --multi, picks
// in a row are selected together. Without any the dialog is cancelled. Exits with 0 when the dialog has closed.
#include <cstdio>
#include <stdexcept>
#include <string>
#include <vector>

#include "demo/driver/Input.h"
#include "demo/driver/NavDialogWindow.h"
#include "demo/driver/Screenshot.h"

namespace {

using knav::input::NavDialogWindow;

struct Action {
    bool types;
    std::vector<std::wstring> texts;
};

struct Plan {
    std::vector<Action> actions;
    std::wstring screenshot;
    bool multi = false;
    bool foldersOnly = false;
    bool dismiss = false;

    void addPick(const std::wstring& name) {
        if (multi && !actions.empty() && !actions.back().types) {
            actions.back().texts.push_back(name);
        } else {
            actions.push_back({false, {name}});
        }
    }
};

Plan parse(int count, wchar_t** arguments) {
    Plan plan;
    for (int i = 1; i < count; ++i) {
        const std::wstring option = arguments[i];
        const auto value = [&]() -> std::wstring {
            if (i + 1 == count) {
                throw std::runtime_error("the last option needs a value");
            }
            return arguments[++i];
        };
        if (option == L"--type") {
            plan.actions.push_back({true, {value()}});
        } else if (option == L"--pick") {
            plan.addPick(value());
        } else if (option == L"--screenshot") {
            plan.screenshot = value();
        } else if (option == L"--multi") {
            plan.multi = true;
        } else if (option == L"--folders-only") {
            plan.foldersOnly = true;
        } else if (option == L"--dismiss") {
            plan.dismiss = true;
        } else {
            throw std::runtime_error("there is no such option");
        }
    }
    return plan;
}

void takePicture(const NavDialogWindow& dialog, const Plan& plan) {
    if (!plan.screenshot.empty()) {
        knav::input::saveScreenshot({dialog.window()}, plan.screenshot);
    }
}

void carryOut(const NavDialogWindow& dialog, const Action& action, const Plan& plan, bool last) {
    const bool pressesOk = last && (plan.foldersOnly || action.texts.size() > 1);
    if (action.types) {
        dialog.typeName(action.texts.front());
    } else if (pressesOk || (last && !plan.screenshot.empty())) {
        dialog.select(action.texts);
    }
    if (last) {
        takePicture(dialog, plan);
    }
    if (action.types) {
        dialog.pressEnter();
    } else if (pressesOk) {
        dialog.pressOk();
    } else {
        dialog.open(action.texts.front());
    }
}

void print(const char* before, const std::wstring& text) {
    std::string bytes(text.size() * 3 + 1, '\0');
    WideCharToMultiByte(CP_UTF8, 0, text.c_str(), -1, bytes.data(), static_cast<int>(bytes.size()), nullptr, nullptr);
    std::fprintf(stderr, "%s%s\n", before, bytes.c_str());
}

// The dialog did not close: says why and cancels it.
void giveUp(const NavDialogWindow& dialog) {
    if (const std::wstring text = dialog.boxText(); !text.empty()) {
        print("the dialog says: ", text);
        dialog.dismissBox();
    } else {
        std::fputs("the dialog stays open\n", stderr);
    }
    dialog.pressEscape();
}

int drive(const Plan& plan) {
    const NavDialogWindow dialog = NavDialogWindow::waitFor();
    for (std::size_t i = 0; i < plan.actions.size(); ++i) {
        carryOut(dialog, plan.actions[i], plan, i + 1 == plan.actions.size());
    }
    if (plan.actions.empty()) {
        takePicture(dialog, plan);
        dialog.pressEscape();
    }
    if (!dialog.waitUntilClosed()) {
        giveUp(dialog);
    }
    return dialog.waitUntilClosed() ? 0 : 1;
}

int dismiss() {
    HWND box = nullptr;
    const auto appeared = [&] {
        box = FindWindowW(L"#32770", nullptr);
        return box != nullptr && IsWindowVisible(box) && GetForegroundWindow() == box;
    };
    if (!knav::input::waitUntil(appeared, 30'000)) {
        throw std::runtime_error("no message box appeared");
    }
    print("", knav::input::textOfBox(box));
    knav::input::pressKey(VK_RETURN);
    return knav::input::waitUntil([&] { return !IsWindow(box); }) ? 0 : 1;
}

}  // namespace

int wmain(int count, wchar_t** arguments) {
    try {
        const Plan plan = parse(count, arguments);
        return plan.dismiss ? dismiss() : drive(plan);
    } catch (const std::exception& error) {
        std::fprintf(stderr, "demodriver: %s\n", error.what());
        return 1;
    }
}
