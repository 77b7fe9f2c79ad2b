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

enum class Icons { LeftOut, Taken };

void takeIcon(ITEMIDLIST* qualified) {
    SHFILEINFOW info{};
    const auto images =
        reinterpret_cast<HIMAGELIST>(SHGetFileInfoW(reinterpret_cast<const wchar_t*>(qualified), 0, &info, sizeof info,
                                                    SHGFI_PIDL | SHGFI_SYSICONINDEX | SHGFI_SMALLICON));
    zoui::UniqueIcon(ImageList_GetIcon(images, info.iIcon, 0)).reset();
}

/// What no tree of folders can do without for one item: attributes, and the folder and icon of one that it shows.
knav::ComPtr<IShellFolder> touch(IShellFolder* parent, ITEMIDLIST* id, ITEMIDLIST* child, Icons icons) {
    ULONG attributes = kAttributes;
    PCUITEMID_CHILD item = child;
    parent->GetAttributesOf(1, &item, &attributes);
    knav::ComPtr<IShellFolder> folder;
    if ((attributes & SFGAO_FOLDER) == 0 || (attributes & (SFGAO_FILESYSTEM | SFGAO_FILESYSANCESTOR)) == 0) {
        return folder;
    }
    if (icons == Icons::Taken) {
        takeIcon(knav::ItemList::join(id, child).get());
    }
    parent->BindToObject(child, nullptr, IID_IShellFolder, reinterpret_cast<void**>(folder.put()));
    return folder;
}

int touchChildren(IShellFolder* folder, ITEMIDLIST* id, SHCONTF what, Icons icons) {
    knav::ComPtr<IEnumIDList> items;
    int count = 0;
    if (folder->EnumObjects(nullptr, what, items.put()) != S_OK) {
        return count;
    }
    ITEMIDLIST* raw = nullptr;
    while (items->Next(1, &raw, nullptr) == S_OK) {
        const auto item = knav::ItemList::adopt(raw);
        touch(folder, id, item.get(), icons);
        ++count;
    }
    return count;
}

/// A place below a drive, which the tree knows when it comes to the rest.
struct Target {
    explicit Target(ITEMIDLIST* whole)
        : list(whole),
          below(NavGetNextItemElement(NavGetNextItemElement(whole))),
          drive(knav::ItemList::join(knav::ItemList::firstOf(whole).get(),
                                     knav::ItemList::firstOf(NavGetNextItemElement(whole)).get())),
          driveFolder(knav::ComPtr<IShellFolder>::adopt(NavGetFolderFromDesktop(drive.get()))) {}

    ITEMIDLIST* list;
    ITEMIDLIST* below;
    knav::ItemList drive;
    knav::ComPtr<IShellFolder> driveFolder;
};

void touchChain(const Target& target, Icons icons) {
    auto folder = target.driveFolder;
    auto id = icons == Icons::Taken ? knav::ItemList::copyOf(target.drive.get()) : knav::ItemList();
    for (ITEMIDLIST* at = target.below; at && folder; at = NavGetNextItemElement(at)) {
        const auto element = knav::ItemList::firstOf(at);
        folder = touch(folder.get(), id.get(), element.get(), icons);
        if (icons == Icons::Taken) {
            id = knav::ItemList::join(id.get(), element.get());
        }
    }
}

void bareHierarchy(const Target& target, Icons icons) {
    const auto desktop = knav::ComPtr<IShellFolder>::adopt(NavGetDesktopFolder());
    touchChildren(desktop.get(), nullptr, SHCONTF_FOLDERS, icons);
    const auto drives = knav::ItemList::adopt(NavGetDrivesFolderItem(nullptr));
    const auto drivesFolder = knav::ComPtr<IShellFolder>::adopt(NavGetDrivesFolder());
    if (touchChildren(drivesFolder.get(), drives.get(), SHCONTF_STORAGE, icons) == 0) {
        touchChildren(drivesFolder.get(), drives.get(), SHCONTF_FOLDERS, icons);
    }
    std::array<wchar_t, MAX_PATH> path{};  // a location may be a shortcut, which only its file tells
    if (SHGetPathFromIDListW(target.list, path.data())) {
        g_sink = static_cast<int>(GetFileAttributesW(path.data()));
    }
    touchChain(target, icons);
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

// A tree takes the icon of a node when it is first shown, so both sides are measured with and without icons.
void benchHierarchy(const std::string& name, const Target& target, Icons icons) {
    const auto ours = [&] {
        CNavTree tree;
        g_sink = tree.BuildStandardHierarchy(nullptr, nullptr, 0, 0, target.list);
        for (CNavNode* node = tree.GetRootNode(); icons == Icons::Taken && node != nullptr;
             node = CNavNode::EnumerateNextNode(node)) {
            g_sink = node->GetIcon() != nullptr;
        }
    };
    const auto bare = [&] { bareHierarchy(target, icons); };
    const bench::Comparison result = bench::compare(ours, bare, 5);
    bench::figure(name.c_str(), result.ours / 1000, "us");
    bench::figure((name + "_bare_shell_calls").c_str(), result.bare / 1000, "us");
    bench::ratio(name.c_str(), result.ratio, 1.3);
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
    const Target place(target.get());
    benchHierarchy("build_standard_hierarchy", place, Icons::LeftOut);
    benchHierarchy("build_standard_hierarchy_with_icons", place, Icons::Taken);
    benchLists(target.get());
    return 0;
}
