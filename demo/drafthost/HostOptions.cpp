#include "HostOptions.h"

#include <algorithm>
#include <array>

namespace {

struct TextOption {
    const wchar_t* name;
    CString HostOptions::*value;
};
struct FlagOption {
    const wchar_t* name;
    bool HostOptions::*value;
};

constexpr std::array kTexts{
    TextOption{L"--folder", &HostOptions::folder},     TextOption{L"--start", &HostOptions::start},
    TextOption{L"--settings", &HostOptions::settings}, TextOption{L"--language", &HostOptions::language},
    TextOption{L"--name", &HostOptions::name},         TextOption{L"--filter", &HostOptions::filter},
};
constexpr std::array kFlags{
    FlagOption{L"--save", &HostOptions::save},   FlagOption{L"--folders-only", &HostOptions::foldersOnly},
    FlagOption{L"--multi", &HostOptions::multi}, FlagOption{L"--window", &HostOptions::window},
    FlagOption{L"--help", &HostOptions::help},
};

template <class Options>
auto lookUp(const Options& options, const CString& name) {
    return std::find_if(options.begin(), options.end(), [&](const auto& option) { return name == option.name; });
}

}  // namespace

bool HostOptions::parse(std::span<const wchar_t* const> arguments, HostOptions& options, CString& error) {
    for (std::size_t i = 0; i < arguments.size(); ++i) {
        const CString argument = arguments[i];
        if (const auto flag = lookUp(kFlags, argument); flag != kFlags.end()) {
            options.*flag->value = true;
            continue;
        }
        const auto text = lookUp(kTexts, argument);
        if (text == kTexts.end()) {
            error = L"there is no option " + argument;
            return false;
        }
        if (++i == arguments.size()) {
            error = argument + L" needs a value";
            return false;
        }
        options.*text->value = arguments[i];
    }
    return true;
}

const char* HostOptions::usage() noexcept {
    return "drafthost [--window [--start DIR]] [--folder DIR] [--settings KEY]\n"
           "          [--language NAME]\n"
           "          [--name TEXT] [--filter \"Drawings (*.dwg)|*.dwg|All files|*.*|\"]\n"
           "          [--save] [--folders-only] [--multi]\n"
           "\n"
           "Without options, or with --window, shows a window with the commands of a drafting program. Otherwise shows "
           "one\n"
           "file navigation dialog, prints a line \"picked KIND TEXT\" for each chosen item and exits with 0; prints\n"
           "\"cancelled\" and exits with 1 when the dialog was cancelled.\n";
}
