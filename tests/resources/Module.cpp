#include "resources/Module.h"

#include <filesystem>

#include <gtest/gtest.h>

#include "resources/ids.h"
#include "support/Printers.h"

namespace knav::test {
namespace {

std::filesystem::path programFolder() {
    wchar_t path[MAX_PATH] = L"";
    GetModuleFileNameW(nullptr, path, MAX_PATH);
    return std::filesystem::path(path).parent_path();
}

void addPopup(HMENU popup, std::vector<std::vector<Entry>>& popups) {
    std::vector<Entry> entries;
    for (int at = 0; at < GetMenuItemCount(popup); ++at) {
        wchar_t text[300] = L"";
        if (GetMenuStringW(popup, static_cast<UINT>(at), text, 300, MF_BYPOSITION) > 0) {
            const HMENU inner = GetSubMenu(popup, at);
            entries.push_back({text, inner ? 0 : GetMenuItemID(popup, at)});
            if (inner)
                addPopup(inner, popups);
        }
    }
    popups.push_back(entries);
}

// Where an extended template keeps its width and height, and where its header ends.
constexpr size_t kSizeAt = 22;
constexpr size_t kHeader = 26;

// Behind the header of an extended template stand its menu, its class and its caption, then the size of the type.
void setPoints(std::vector<BYTE>& dialog, int points) {
    auto* word = reinterpret_cast<WORD*>(dialog.data() + kHeader);
    for (int part = 0; part < 3; ++part) {
        if (*word == 0xFFFF) {
            word += 2;
        } else {
            while (*word)
                ++word;
            ++word;
        }
    }
    *word = static_cast<WORD>(points);
}

}  // namespace

const std::vector<IdRow>& allIds() {
    static const std::vector<IdRow> rows{
#include "resource_ids.inc"
    };
    return rows;
}

Module::Module(const std::wstring& language)
    : m_handle(LoadLibraryExW((programFolder() / language / L"KnavRes.dll").c_str(), nullptr,
                              LOAD_LIBRARY_AS_DATAFILE | LOAD_LIBRARY_AS_IMAGE_RESOURCE)) {
    EXPECT_NE(m_handle, nullptr) << utf8(language);
}

Module::~Module() {
    FreeLibrary(m_handle);
}

bool Module::has(UINT id, const wchar_t* type) const {
    return FindResourceW(m_handle, MAKEINTRESOURCEW(id), type) != nullptr;
}

std::wstring Module::text(UINT id) const {
    const wchar_t* text = nullptr;
    const int length = LoadStringW(m_handle, id, reinterpret_cast<wchar_t*>(&text), 0);
    return length > 0 ? std::wstring(text, static_cast<size_t>(length)) : std::wstring();
}

std::vector<ACCEL> Module::keys() const {
    const HACCEL table = LoadAcceleratorsW(m_handle, MAKEINTRESOURCEW(IDR_KNAV_KEYS));
    std::vector<ACCEL> keys(static_cast<size_t>(CopyAcceleratorTableW(table, nullptr, 0)));
    CopyAcceleratorTableW(table, keys.data(), static_cast<int>(keys.size()));
    DestroyAcceleratorTable(table);
    return keys;
}

std::vector<BYTE> Module::bytes(UINT id, const wchar_t* type) const {
    const HRSRC found = FindResourceW(m_handle, MAKEINTRESOURCEW(id), type);
    if (!found)
        return {};
    const auto* data = static_cast<const BYTE*>(LockResource(LoadResource(m_handle, found)));
    return {data, data + SizeofResource(m_handle, found)};
}

std::vector<std::wstring> builtLanguages() {
    std::vector<std::wstring> languages(1);
    for (const auto& entry : std::filesystem::directory_iterator(programFolder())) {
        if (entry.is_directory() && exists(entry.path() / L"KnavRes.dll"))
            languages.push_back(entry.path().filename().wstring());
    }
    return languages;
}

std::vector<std::vector<Entry>> popupsOf(const Module& module, UINT id) {
    std::vector<std::vector<Entry>> popups;
    const HMENU menu = LoadMenuW(module.handle(), MAKEINTRESOURCEW(id));
    addPopup(GetSubMenu(menu, 0), popups);
    DestroyMenu(menu);
    return popups;
}

Dialog::Dialog(const Module& module, UINT id, int points) {
    INITCOMMONCONTROLSEX classes{sizeof classes, ICC_WIN95_CLASSES | ICC_DATE_CLASSES};
    InitCommonControlsEx(&classes);
    std::vector<BYTE> bytes = module.bytes(id, RT_DIALOG);
    if (!bytes.empty()) {
        setPoints(bytes, points);
        const HWND parent = GetDesktopWindow();
        m_window = CreateDialogIndirectParamW(
            module.handle(), reinterpret_cast<const DLGTEMPLATE*>(bytes.data()), parent,
            [](HWND, UINT, WPARAM, LPARAM) -> INT_PTR { return FALSE; }, 0);
    }
    if (m_window) {
        const auto* size = reinterpret_cast<const WORD*>(bytes.data() + kSizeAt);
        RECT units{0, 0, size[0], size[1]};
        MapDialogRect(m_window, &units);
        m_area = {units.right, units.bottom};
    }
    EXPECT_NE(m_window, nullptr) << "dialog " << id;
}

std::vector<HWND> Dialog::controls() const {
    std::vector<HWND> all;
    for (HWND child = GetWindow(m_window, GW_CHILD); child; child = GetWindow(child, GW_HWNDNEXT))
        all.push_back(child);
    return all;
}

wchar_t mnemonicOf(const std::wstring& text) {
    for (size_t i = 0; i + 1 < text.size(); ++i) {
        if (text[i] != L'&')
            continue;
        if (text[++i] != L'&')
            return static_cast<wchar_t>(
                reinterpret_cast<UINT_PTR>(CharUpperW(reinterpret_cast<LPWSTR>(UINT_PTR(text[i])))));
    }
    return 0;
}

}  // namespace knav::test
