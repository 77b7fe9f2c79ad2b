#include "shell/ExtensionItems.h"

#include <knav/CNavExtension.h>
#include <knav/NavItemList.h>

#include <algorithm>
#include <cstring>
#include <cwchar>
#include <limits>
#include <string>

#include "data/ApiEdge.h"
#include "shell/FolderCalls.h"
#include "shell/Guard.h"
#include "shell/ListWalk.h"
#include "shell/RegisteredExtensions.h"
#include "shell/TextRules.h"

namespace {

constexpr std::size_t kCountBytes = sizeof(USHORT);
constexpr std::size_t kPrefixBytes = sizeof(knav::kExtensionPrefix) - sizeof(wchar_t);
constexpr std::size_t kPrefixLength = kPrefixBytes / sizeof(wchar_t);

USHORT sizeAt(const BYTE* element) {
    USHORT size;
    std::memcpy(&size, element, sizeof size);
    return size;
}

// The text of the first element, which must be an extension root element, cut at its terminator.
std::wstring extensionText(const ITEMIDLIST* list) {
    const int payload = knav::elementSize(list) - static_cast<int>(kCountBytes);
    std::wstring text(static_cast<std::size_t>(std::max(payload, 0)) / sizeof(wchar_t), L'\0');
    if (!knav::copyListBytes(text.data(), list->mkid.abID, text.size() * sizeof(wchar_t))) {
        return {};
    }
    text.resize(std::wcslen(text.c_str()));
    return text;
}

// Name of the extension whose root element `list` starts with; empty when it starts with none.
std::wstring extensionName(const ITEMIDLIST* list) {
    if (knav::extensionItemKind(list) == knav::ExtensionItem::None) {
        return {};
    }
    const std::wstring text = extensionText(list);
    return text.size() > kPrefixLength ? text.substr(kPrefixLength) : std::wstring();
}

CNavExtension* findExtension(const wchar_t* name) {
    const CNavExtensionArray& extensions = knav::registeredExtensions();
    for (INT_PTR index = 0; index < extensions.GetSize(); ++index) {
        CNavExtension* const extension = extensions.GetAt(index);
        if (extension != nullptr && knav::compareNoCase(extension->GetName(), name) == 0) {
            return extension;
        }
    }
    return nullptr;
}

}  // namespace

namespace knav {

ExtensionItem extensionItemKind(const ITEMIDLIST* list) noexcept {
    if (list == nullptr) {
        return ExtensionItem::None;
    }
    return guardedOr(ExtensionItem::None, [list] {
        const auto* const bytes = reinterpret_cast<const BYTE*>(list);
        const USHORT size = sizeAt(bytes);
        if (size < kCountBytes + kPrefixBytes || std::memcmp(list->mkid.abID, kExtensionPrefix, kPrefixBytes) != 0) {
            return ExtensionItem::None;
        }
        return elementSize(reinterpret_cast<const ITEMIDLIST*>(bytes + size)) == 0 ? ExtensionItem::Root
                                                                                   : ExtensionItem::Child;
    });
}

const wchar_t* nameInsideExtension(const wchar_t* name) noexcept {
    constexpr wchar_t separator[] = L"://";
    const wchar_t* const found = std::wcsstr(name, separator);
    return found != nullptr ? found + std::size(separator) - 1 : name;
}

ITEMIDLIST* buildExtensionRootItem(IMalloc* allocator, const wchar_t* name) noexcept {
    const std::size_t nameBytes = (std::wcslen(name) + 1) * sizeof(wchar_t);
    const std::size_t size = kCountBytes + kPrefixBytes + nameBytes;
    if (allocator == nullptr || size > std::numeric_limits<USHORT>::max()) {
        return nullptr;
    }
    auto* const block = static_cast<BYTE*>(allocator->Alloc(size + kCountBytes));
    if (block == nullptr) {
        return nullptr;
    }
    const auto count = static_cast<USHORT>(size);
    std::memcpy(block, &count, kCountBytes);
    std::memcpy(block + kCountBytes, kExtensionPrefix, kPrefixBytes);
    std::memcpy(block + kCountBytes + kPrefixBytes, name, nameBytes);
    ZeroMemory(block + size, kCountBytes);
    return reinterpret_cast<ITEMIDLIST*>(block);
}

}  // namespace knav

int NavIsExtensionRootItem(ITEMIDLIST* list) {
    return knav::extensionItemKind(list) == knav::ExtensionItem::Root;
}

int NavIsExtensionChildItem(ITEMIDLIST* list) {
    return knav::extensionItemKind(list) == knav::ExtensionItem::Child;
}

int NavIsExtensionItem(ITEMIDLIST* list) {
    return knav::extensionItemKind(list) != knav::ExtensionItem::None;
}

CNavExtension* NavFindExtensionForItem(ITEMIDLIST* list) {
    if (knav::extensionItemKind(list) == knav::ExtensionItem::None) {
        return nullptr;
    }
    return knav::atApiEdge<CNavExtension*>(nullptr, [list] { return findExtension(extensionName(list).c_str()); });
}

CNavExtension* NavFindExtensionByName(const wchar_t* name) {
    if (name == nullptr || name[0] == 0) {
        return nullptr;
    }
    return knav::atApiEdge<CNavExtension*>(nullptr, [name] { return findExtension(name); });
}

void NavGetExtensionNameFromItem(ITEMIDLIST* list, CString& name) {
    name.Empty();
    knav::atApiEdge([&] { name = extensionName(list).c_str(); });
}

IShellFolder* NavGetFolderFromExtensionItem(ITEMIDLIST* list) {
    CNavExtension* const extension = NavIsExtensionChildItem(list) ? NavFindExtensionForItem(list) : nullptr;
    if (extension == nullptr) {
        return nullptr;
    }
    const auto root = knav::ComPtr<IShellFolder>::adopt(extension->FetchRootFolder());
    return root ? knav::bindFolder(root.get(), knav::nextElement(list)).release() : nullptr;
}

ITEMIDLIST* NavBuildExtensionItemList(CNavExtension* extension, const wchar_t* path) {
    if (extension == nullptr || path == nullptr || extension->GetID() == nullptr) {
        return nullptr;
    }
    const auto root = knav::ComPtr<IShellFolder>::adopt(extension->FetchRootFolder());
    const knav::ItemList parsed =
        knav::parseName(root.get(), knav::nameInsideExtension(path), SFGAO_FOLDER | SFGAO_FILESYSTEM);
    return parsed ? knav::ItemList::join(extension->GetID(), parsed.get()).release() : nullptr;
}
