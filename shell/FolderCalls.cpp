#include "shell/FolderCalls.h"

#include <cwchar>
#include <string>

namespace {

// The system's own folders take a wildcard in a path for the first name that matches; nobody means that by a name.
bool isWildcardPath(const wchar_t* text) {
    const bool onDrive = text[0] != 0 && text[1] == L':';
    return onDrive && std::wcspbrk(text, L"*?") != nullptr;
}

}  // namespace

namespace knav {

ComPtr<IShellFolder> desktopFolder() noexcept {
    return ComPtr<IShellFolder>::from([](IShellFolder** folder) { return SHGetDesktopFolder(folder); });
}

ComPtr<IShellFolder> bindFolder(IShellFolder* parent, const ITEMIDLIST* list) noexcept {
    if (!isWhole(list)) {
        return nullptr;
    }
    return ComPtr<IShellFolder>::from([=](IShellFolder** folder) {
        return parent->BindToObject(list, nullptr, IID_IShellFolder, reinterpret_cast<void**>(folder));
    });
}

ItemList parseName(IShellFolder* folder, const wchar_t* text, DWORD attributes, DWORD* found) noexcept {
    if (folder == nullptr || text == nullptr || text[0] == 0) {
        return {};
    }
    const std::size_t length = std::wcslen(text);
    if (length >= kParseLimit || isWildcardPath(text)) {
        return {};
    }
    wchar_t buffer[kParseLimit];  // folders may write to what they parse
    std::wmemcpy(buffer, text, length + 1);
    ITEMIDLIST* list = nullptr;
    const HRESULT result = guarded([&] {
        return folder->ParseDisplayName(nullptr, nullptr, buffer, nullptr, &list,
                                        attributes != 0 ? &attributes : nullptr);
    });
    if (FAILED(result)) {
        return {};
    }
    if (found != nullptr) {
        *found = attributes;
    }
    return ItemList::adopt(list);
}

std::optional<STRRET> displayNameOf(IShellFolder* folder, const ITEMIDLIST* list, DWORD shgdn) noexcept {
    STRRET name{};
    const bool named =
        isWhole(list) && SUCCEEDED(guarded([&] { return folder->GetDisplayNameOf(list, shgdn, &name); }));
    return named ? std::optional(name) : std::nullopt;
}

std::optional<DWORD> attributesOf(IShellFolder* folder, const ITEMIDLIST* list, DWORD mask) noexcept {
    DWORD attributes = mask;
    const bool answered =
        isWhole(list) && SUCCEEDED(guarded([&] { return folder->GetAttributesOf(1, &list, &attributes); }));
    return answered ? std::optional(attributes & mask) : std::nullopt;
}

bool enumerateItems(IShellFolder* folder, HWND owner, DWORD shcontf, ComPtr<IEnumIDList>& items) noexcept {
    IEnumIDList* enumerator = nullptr;
    const HRESULT result = guarded([&] { return folder->EnumObjects(owner, shcontf, &enumerator); });
    items = ComPtr<IEnumIDList>::adopt(SUCCEEDED(result) ? enumerator : nullptr);
    return SUCCEEDED(result);
}

ItemList nextItem(const ComPtr<IEnumIDList>& items) noexcept {
    if (!items) {
        return {};
    }
    ITEMIDLIST* item = nullptr;
    const HRESULT result = guarded([&] { return items->Next(1, &item, nullptr); });
    return result == S_OK ? ItemList::adopt(item) : ItemList();
}

int compareIds(IShellFolder* folder, const ITEMIDLIST* a, const ITEMIDLIST* b) noexcept {
    if (!isWhole(a) || !isWhole(b)) {
        return -1;
    }
    const HRESULT order = guarded([=] { return folder->CompareIDs(0, a, b); });
    return static_cast<short>(HRESULT_CODE(order));
}

const ITEMIDLIST* emptyList() noexcept {
    static constexpr ITEMIDLIST empty{};
    return &empty;
}

}  // namespace knav
