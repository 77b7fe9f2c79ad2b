// What opening a folder and closing it again costs: this dialog, the system's two, and the bare view they are built on.
//
// bench_open [--pairs N] [--files N]
//
// One round shows each of them once, in turn; figures are medians over the rounds, ratios medians of the ratios within
// a round. Memory is measured in processes of their own, one for each showing.
#include <platform/OleScope.h>

#include <array>
#include <cwchar>
#include <string>

#include "bench/Measure.h"
#include "bench/open/Dialogs.h"
#include "bench/open/FirstPaint.h"
#include "bench/open/PeakMemory.h"
#include "support/ScopedTempFolder.h"

namespace {

constexpr std::array kSizes{100, 1'000, 10'000};
constexpr int kLarge = 10'000;

struct Contender {
    const char* name;
    void (*show)(const wchar_t* folder);
    int largest = kLarge;
};
constexpr std::array kContenders{
    Contender{"this", &bench::showThisDialog},
    Contender{"older", &bench::showOlderDialog},
    // Wine's filters so slowly that a folder of 10,000 files takes it minutes.
    Contender{"newer", &bench::showNewerDialog, 1'000},
    Contender{"bare", &bench::showBareView},
    Contender{"frame", &bench::showFramedView},
};
enum Index { kThis, kOlder, kNewer, kBare };

constexpr int kMemoryRuns = 3;

struct Options {
    int pairs = 12;
    int files = 0;  // 0: all sizes
    int memoryOf = -1;
    std::wstring folder;
};

/// The file type admits every other one, and the numbers jump, so that the list has to be sorted.
CString nameOfFile(int number) {
    CString name;
    name.Format(number % 2 == 0 ? L"Sheet %lld.dwg" : L"Sheet %lld.txt", number * 7919LL % 100'003);
    return name;
}

// --- one showing -----------------------------------------------------------------------------------------------------

struct Times {
    double opened;  // milliseconds from the call to the list filled and painted
    double whole;   // to the end of the call, which is cancelled as soon as the list is painted
};

/// Empty when the list was never filled.
std::optional<Times> show(const Contender& contender, const std::wstring& folder, int admitted) {
    bench::FirstPaint paint(admitted, [](HWND top) { PostMessageW(top, WM_COMMAND, IDCANCEL, 0); });
    const auto start = bench::Clock::now();
    contender.show(folder.c_str());
    const auto end = bench::Clock::now();
    if (!paint.when()) {
        return std::nullopt;
    }
    const auto since = [start](bench::Clock::time_point when) {
        return std::chrono::duration<double, std::milli>(when - start).count();
    };
    return Times{since(*paint.when()), since(end)};
}

// --- time ------------------------------------------------------------------------------------------------------------

struct Series {
    std::vector<double> opened;
    std::vector<double> whole;
};
using AllSeries = std::array<Series, kContenders.size()>;

double medianRatio(const std::vector<double>& ours, const std::vector<double>& theirs) {
    std::vector<double> ratios;
    for (std::size_t i = 0; i < ours.size(); ++i) {
        ratios.push_back(ours[i] / theirs[i]);
    }
    return bench::median(ratios);
}

/// One round; `first` goes first. False when one of them failed.
bool runRound(const std::wstring& folder, int files, std::size_t first, AllSeries* series) {
    for (std::size_t i = 0; i < kContenders.size(); ++i) {
        const std::size_t index = (first + i) % kContenders.size();
        if (files > kContenders[index].largest) {
            continue;
        }
        const auto times = show(kContenders[index], folder, files / 2);
        if (!times) {
            std::fprintf(stderr, "%s: the list was not filled\n", kContenders[index].name);
            return false;
        }
        if (series != nullptr) {
            (*series)[index].opened.push_back(times->opened);
            (*series)[index].whole.push_back(times->whole);
        }
    }
    return true;
}

void reportTimes(const AllSeries& series, const std::string& size, bool large) {
    for (std::size_t i = 0; i < kContenders.size(); ++i) {
        if (series[i].opened.empty()) {
            continue;
        }
        const std::string name = kContenders[i].name;
        bench::figure(("open_" + name + "_" + size).c_str(), bench::median(series[i].opened), "ms");
        bench::figure(("call_" + name + "_" + size).c_str(), bench::median(series[i].whole), "ms");
    }
    const Series& ours = series[kThis];
    bench::ratio(("open_this_older_" + size).c_str(), medianRatio(ours.opened, series[kOlder].opened), large ? 0.6 : 1);
    if (large) {
        bench::ratio(("open_this_bare_" + size).c_str(), medianRatio(ours.opened, series[kBare].opened), 1.15);
        bench::ratio(("call_this_older_" + size).c_str(), medianRatio(ours.whole, series[kOlder].whole), 0.6);
    }
}

bool benchTimes(const std::wstring& folder, int files, int pairs) {
    AllSeries series;
    if (!runRound(folder, files, 0, nullptr)) {
        return false;
    }
    for (int i = 0; i < pairs; ++i) {
        if (!runRound(folder, files, static_cast<std::size_t>(i), &series)) {
            return false;
        }
    }
    reportTimes(series, std::to_string(files), files == kLarge);
    return true;
}

// --- memory ----------------------------------------------------------------------------------------------------------

/// In a process of its own: the KiB of private memory that one showing adds at most, as the exit code; 0 for failure.
int measureMemory(const Options& options) {
    bench::PeakMemory memory;
    const std::size_t before = memory.peak();
    const auto& contender = kContenders.at(static_cast<std::size_t>(options.memoryOf));
    return show(contender, options.folder, options.files / 2) ? static_cast<int>((memory.peak() - before) / 1024) : 0;
}

/// KiB; 0 when the process could not be run.
double memoryOf(std::size_t contender, const std::wstring& folder, int files) {
    wchar_t program[MAX_PATH];
    GetModuleFileNameW(nullptr, program, MAX_PATH);
    std::wstring command = L"\"" + std::wstring(program) + L"\" --memory " + std::to_wstring(contender) + L" --files " +
                           std::to_wstring(files) + L" --folder \"" + folder + L"\"";
    STARTUPINFOW startup{};
    startup.cb = sizeof startup;
    PROCESS_INFORMATION process{};
    if (!CreateProcessW(program, command.data(), nullptr, nullptr, FALSE, 0, nullptr, nullptr, &startup, &process)) {
        return 0;
    }
    DWORD kib = 0;
    WaitForSingleObject(process.hProcess, INFINITE);
    GetExitCodeProcess(process.hProcess, &kib);
    CloseHandle(process.hThread);
    CloseHandle(process.hProcess);
    constexpr DWORD kCrash = 0x40000000;
    return kib < kCrash ? kib : 0;
}

bool benchMemory(const std::wstring& folder, int files, int runs) {
    std::array<double, kContenders.size()> medians{};
    for (std::size_t i = 0; i < kContenders.size(); ++i) {
        if (files > kContenders[i].largest) {
            continue;
        }
        std::vector<double> kib;
        for (int run = 0; run < runs; ++run) {
            kib.push_back(memoryOf(i, folder, files));
        }
        medians[i] = bench::median(kib);
        if (medians[i] == 0) {
            std::fprintf(stderr, "%s: memory could not be measured\n", kContenders[i].name);
            return false;
        }
        const std::string name = std::string("memory_") + kContenders[i].name + "_" + std::to_string(files);
        bench::figure(name.c_str(), medians[i], "KiB");
    }
    bench::ratio(("memory_this_older_" + std::to_string(files)).c_str(), medians[kThis] / medians[kOlder], 1.1);
    return true;
}

bool parse(int count, wchar_t** arguments, Options& options) {
    for (int i = 1; i < count; i += 2) {
        const std::wstring_view name = arguments[i];
        if (i + 1 == count) {
            return false;
        }
        const wchar_t* const value = arguments[i + 1];
        const int number = static_cast<int>(std::wcstol(value, nullptr, 10));
        if (name == L"--pairs") {
            options.pairs = std::max(number, 1);
        } else if (name == L"--files") {
            options.files = number;
        } else if (name == L"--memory") {
            options.memoryOf = number;
        } else if (name == L"--folder") {
            options.folder = value;
        } else {
            return false;
        }
    }
    return true;
}

}  // namespace

int wmain(int count, wchar_t** arguments) {
    Options options;
    if (!parse(count, arguments, options)) {
        std::fputs("bench_open [--pairs N] [--files N]\n", stderr);
        return 2;
    }
    const zoui::OleScope ole;
    if (options.memoryOf >= 0) {
        return measureMemory(options);
    }
    for (const int files : kSizes) {
        if (options.files != 0 && options.files != files) {
            continue;
        }
        const knav::test::ScopedTempFolder folder;
        folder.addFiles(files, &nameOfFile);
        const std::wstring path = folder.path().GetString();
        if (!benchTimes(path, files, options.pairs) ||
            !benchMemory(path, files, std::min(kMemoryRuns, options.pairs))) {
            return 1;
        }
        std::fflush(stdout);
    }
    return 0;
}
