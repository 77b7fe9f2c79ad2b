// What the library's own part of listing, naming and showing folders costs, next to the platform calls below it.
#include <knav/CNavFilter.h>
#include <knav/CNavShell.h>
#include <knav/CNavTree.h>
#include <knav/NavFolders.h>
#include <knav/NavItemList.h>
#include <knav/NavNames.h>
#include <platform/GdiOwners.h>
#include <platform/OleScope.h>

#include <array>
#include <string>

#include "bench/Measure.h"
#include "shell/ComPtr.h"
#include "shell/ItemList.h"

namespace {

volatile int g_sink;

// --- file types ------------------------------------------------------------------------------------------------------

std::vector<std::wstring> fileNames() {
    constexpr std::array<const wchar_t*, 5> kExtensions{L".dwg", L".txt", L".PDF", L".e19", L""};
    std::vector<std::wstring> names;
    for (int i = 0; i < 200; ++i) {
        names.push_back(L"Grundri\u00df " + std::to_wstring(i * 7919) + kExtensions[i % kExtensions.size()]);
    }
    return names;
}

/// Patterns of which only the last one matches some of the names, so that most names try them all.
void benchFilter(int count, const std::vector<std::wstring>& names) {
    CNavFilter filter;
    std::vector<std::wstring> patterns;
    for (int i = 0; i < count; ++i) {
        patterns.push_back(i + 1 == count ? L"*.dwg" : L"*.q" + std::to_wstring(i));
        filter.Add(patterns.back().c_str());
    }
    int tried = 0;
    for (const std::wstring& name : names) {
        for (const std::wstring& pattern : patterns) {
            ++tried;
            if (PathMatchSpecW(name.c_str(), pattern.c_str())) {
                break;
            }
        }
    }
    const auto ours = [&] {
        for (const std::wstring& name : names) {
            g_sink = filter.IsAllowed(name.c_str());
        }
    };
    const auto bare = [&] {
        for (const std::wstring& name : names) {
            for (const std::wstring& pattern : patterns) {
                const int matches = PathMatchSpecW(name.c_str(), pattern.c_str());
                g_sink = matches;
                if (matches != 0) {
                    break;
                }
            }
        }
    };
    const bench::Comparison result = bench::compare(ours, bare, 40);
    const std::string suffix = std::to_string(count) + "_patterns";
    bench::figure(("is_allowed_" + suffix).c_str(), result.ours / names.size(), "ns/name");
    bench::figure(("path_match_spec_" + suffix).c_str(), result.bare / names.size(), "ns/name");
    bench::figure(("patterns_tried_" + suffix).c_str(), static_cast<double>(tried) / names.size(), "patterns/name");
    bench::ratio(("is_allowed_" + suffix).c_str(), result.ratio, 1.2);
}

// --- the hierarchy ---------------------------------------------------------------------------------------------------

constexpr ULONG kAttributes = 0xF2038177;

/// What no tree of folders with icons can do without for one item: attributes, icon, folder.
knav::ComPtr<IShellFolder> touch(IShellFolder* parent, ITEMIDLIST* child, ITEMIDLIST* qualified) {
    ULONG attributes = kAttributes;
    PCUITEMID_CHILD item = child;
    parent->GetAttributesOf(1, &item, &attributes);
    SHFILEINFOW info{};
    const auto images =
        reinterpret_cast<HIMAGELIST>(SHGetFileInfoW(reinterpret_cast<const wchar_t*>(qualified), 0, &info, sizeof info,
                                                    SHGFI_PIDL | SHGFI_SYSICONINDEX | SHGFI_SMALLICON));
    const zoui::UniqueIcon icon(ImageList_GetIcon(images, info.iIcon, 0));
    knav::ComPtr<IShellFolder> folder;
    if (attributes & SFGAO_FOLDER) {
        parent->BindToObject(child, nullptr, IID_IShellFolder, reinterpret_cast<void**>(folder.put()));
    }
    return folder;
}

void touchChildren(IShellFolder* folder, ITEMIDLIST* id, SHCONTF what) {
    knav::ComPtr<IEnumIDList> items;
    if (folder->EnumObjects(nullptr, what, items.put()) != S_OK) {
        return;
    }
    ITEMIDLIST* raw = nullptr;
    while (items->Next(1, &raw, nullptr) == S_OK) {
        const auto item = knav::ItemList::adopt(raw);
        touch(folder, item.get(), knav::ItemList::join(id, item.get()).get());
    }
}

void touchChain(ITEMIDLIST* target) {
    auto folder = knav::ComPtr<IShellFolder>::adopt(NavGetDesktopFolder());
    knav::ItemList parent;
    for (ITEMIDLIST* at = target; at && folder; at = NavGetNextItemElement(at)) {
        const auto element = knav::ItemList::firstOf(at);
        auto qualified = knav::ItemList::join(parent.get(), element.get());
        folder = touch(folder.get(), element.get(), qualified.get());
        parent = std::move(qualified);
    }
}

void bareHierarchy(ITEMIDLIST* target) {
    const auto desktop = knav::ComPtr<IShellFolder>::adopt(NavGetDesktopFolder());
    touchChildren(desktop.get(), nullptr, SHCONTF_FOLDERS);
    const auto drives = knav::ItemList::adopt(NavGetDrivesFolderItem(nullptr));
    const auto drivesFolder = knav::ComPtr<IShellFolder>::adopt(NavGetDrivesFolder());
    touchChildren(drivesFolder.get(), drives.get(), 0x800);
    touchChain(target);
}

std::wstring makeDeepFolder() {
    wchar_t temporary[MAX_PATH];
    GetTempPathW(MAX_PATH, temporary);
    std::wstring path = temporary;
    for (const wchar_t* part : {L"knav-bench", L"two", L"three", L"four", L"five", L"six"}) {
        path += path.ends_with(L'\\') ? L"" : L"\\";
        path += part;
        CreateDirectoryW(path.c_str(), nullptr);
    }
    return path;
}

void benchHierarchy(ITEMIDLIST* target) {
    const auto ours = [&] {
        CNavTree tree;
        g_sink = tree.BuildStandardHierarchy(nullptr, nullptr, 0, 0, target);
    };
    const auto bare = [&] { bareHierarchy(target); };
    const bench::Comparison result = bench::compare(ours, bare, 5);
    bench::figure("build_standard_hierarchy", result.ours / 1000, "us");
    bench::figure("bare_shell_calls", result.bare / 1000, "us");
    bench::ratio("build_standard_hierarchy", result.ratio, 1.3);
}

// --- item lists ------------------------------------------------------------------------------------------------------

void benchLists(ITEMIDLIST* list) {
    CNavShell shell;
    const auto walk = [&] {
        int elements = 0;
        for (ITEMIDLIST* at = list; at; at = NavGetNextItemElement(at)) {
            ++elements;
        }
        g_sink = elements;
    };
    const auto copy = [&] {
        ITEMIDLIST* made = NavCopyItemList(shell, list);
        NavFreeItemList(made);
    };
    const auto build = [&] {
        ITEMIDLIST* parts[] = {list, list, list};
        ITEMIDLIST* made = NavBuildItemList(shell, parts, 3);
        NavFreeItemList(made);
    };
    bench::figure("list_walk", bench::measure(walk, 20000), "ns");
    bench::figure("list_copy", bench::measure(copy, 5000), "ns");
    bench::figure("list_build_3", bench::measure(build, 5000), "ns");
}

}  // namespace

int main() {
    const zoui::OleScope ole;
    const auto names = fileNames();
    for (const int count : {1, 5, 20}) {
        benchFilter(count, names);
    }
    const auto target = knav::ItemList::adopt(NavGetQualifiedItemListFromFolderFullPath(makeDeepFolder().c_str()));
    if (!target) {
        std::fputs("the folder for the measurements cannot be made\n", stderr);
        return 1;
    }
    benchHierarchy(target.get());
    benchLists(target.get());
    return 0;
}
