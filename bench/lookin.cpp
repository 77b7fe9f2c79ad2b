// Dropping the Look-in list with many folders on the desktop, next to what listing the same folders takes by itself.
#include <knav/CNavFolderComboBox.h>
#include <knav/NavFolders.h>
#include <knav/NavItemList.h>
#include <knav/NavNames.h>
#include <platform/CWnd.h>
#include <platform/OleScope.h>

#include <string>

#include "bench/Measure.h"
#include "shell/ComPtr.h"
#include "shell/ItemList.h"

namespace {

constexpr int kFolders = 200;
constexpr int kRounds = 15;

/// The desktop with its folders, as it was afterwards.
class FoldersOnDesktop {
public:
    FoldersOnDesktop() {
        wchar_t desktop[MAX_PATH];
        SHGetFolderPathW(nullptr, CSIDL_DESKTOPDIRECTORY, nullptr, 0, desktop);
        for (int i = 0; i < kFolders; ++i) {
            m_paths.push_back(std::wstring(desktop) + L"\\knav bench " + std::to_wstring(i));
            CreateDirectoryW(m_paths.back().c_str(), nullptr);
        }
    }
    ~FoldersOnDesktop() {
        for (const std::wstring& path : m_paths) {
            RemoveDirectoryW(path.c_str());
        }
    }
    FoldersOnDesktop(const FoldersOnDesktop&) = delete;
    FoldersOnDesktop& operator=(const FoldersOnDesktop&) = delete;

private:
    std::vector<std::wstring> m_paths;
};

/// Lists a folder's folders: name, attributes, and the folder itself, which choosing one takes.
int listFolders(IShellFolder* folder, SHCONTF what) {
    constexpr ULONG kAttributes = 0xF2038177;
    knav::ComPtr<IEnumIDList> items;
    if (folder->EnumObjects(nullptr, what, items.put()) != S_OK) {
        return 0;
    }
    int count = 0;
    ITEMIDLIST* raw = nullptr;
    while (items->Next(1, &raw, nullptr) == S_OK) {
        const auto item = knav::ItemList::adopt(raw);
        PCUITEMID_CHILD child = item.get();
        ULONG attributes = kAttributes;
        folder->GetAttributesOf(1, &child, &attributes);
        CString name;
        NavGetItemNameInFolder(folder, item.get(), name);
        knav::ComPtr<IShellFolder> bound;
        folder->BindToObject(child, nullptr, IID_IShellFolder, reinterpret_cast<void**>(bound.put()));
        ++count;
    }
    return count;
}

int bareEnumeration() {
    const auto desktop = knav::ComPtr<IShellFolder>::adopt(NavGetDesktopFolder());
    const auto drives = knav::ComPtr<IShellFolder>::adopt(NavGetDrivesFolder());
    return listFolders(desktop.get(), SHCONTF_FOLDERS) + listFolders(drives.get(), SHCONTF_STORAGE) +
           listFolders(drives.get(), SHCONTF_FOLDERS);
}

}  // namespace

int main() {
    const zoui::OleScope ole;
    const FoldersOnDesktop folders;
    CWnd host;
    host.CreateEx(0, nullptr, L"host", WS_OVERLAPPEDWINDOW | WS_VISIBLE, 0, 0, 500, 500, nullptr, nullptr);
    CNavFolderComboBox combo;
    combo.Create(CBS_DROPDOWNLIST | CBS_OWNERDRAWFIXED | CBS_HASSTRINGS | WS_VSCROLL | WS_CHILD | WS_VISIBLE,
                 RECT{10, 10, 300, 400}, &host, 1);
    combo.OnAutoLoad();
    const auto current = knav::ItemList::adopt(NavGetQualifiedItemListFromFolderFullPath(L"C:\\windows\\system32"));
    std::vector<double> ours;
    std::vector<double> bare;
    std::vector<double> ratios;
    for (int round = 0; round <= kRounds; ++round) {
        combo.SetCurSel(combo.FillToFolder(current.get()));  // as after each browse: only the chain
        auto drop = [&] {
            combo.ShowDropDown(TRUE);
            host.UpdateWindow();
        };
        auto enumerate = [] { bareEnumeration(); };
        const double dropped = bench::nanoseconds(drop, 1);
        const double listed = bench::nanoseconds(enumerate, 1);
        if (combo.GetCount() < kFolders) {
            std::fputs("the list has not all folders\n", stderr);
            return 1;
        }
        combo.ShowDropDown(FALSE);
        if (round > 0) {  // the first is a warm-up
            ours.push_back(dropped);
            bare.push_back(listed);
            ratios.push_back(dropped / listed);
        }
    }
    bench::figure("drop_look_in", bench::median(ours) / 1e6, "ms");
    bench::figure("bare_enumeration", bench::median(bare) / 1e6, "ms");
    bench::ratio("drop_look_in", bench::median(ratios), 1.5);
    return 0;
}
