// Calls into shell folders, each under the fault guard. A call that fails or faults leaves nothing behind. Lists that
// cannot be read up to their terminator are refused.
#pragma once

#include <platform/Windows.h>

#include <optional>

#include "shell/ComPtr.h"
#include "shell/ItemList.h"
#include "shell/ListWalk.h"

namespace knav {

/// Longest text that is handed to a folder for parsing, in characters with the terminator.
inline constexpr int kParseLimit = MAX_PATH;

/// The desktop folder; null when the system has none.
ComPtr<IShellFolder> desktopFolder() noexcept;

/// The folder `list` of `parent`; null when it is none.
ComPtr<IShellFolder> bindFolder(IShellFolder* parent, const ITEMIDLIST* list) noexcept;

/// An object of type `Interface` for one item of `folder`; null when the folder has none.
template <class Interface>
ComPtr<Interface> uiObjectOf(IShellFolder* folder, const ITEMIDLIST* list) noexcept {
    if (!isWhole(list)) {
        return nullptr;
    }
    return ComPtr<Interface>::from([&](Interface** object) {
        return folder->GetUIObjectOf(nullptr, 1, &list, __uuidof(Interface), nullptr, reinterpret_cast<void**>(object));
    });
}

/// The list, relative to `folder`, that `text` names; null for empty text, text beyond the limit and text that the
/// folder cannot parse. `attributes` (SFGAO_...) are asked for when not 0; what the folder answers goes to `found`.
ItemList parseName(IShellFolder* folder, const wchar_t* text, DWORD attributes = 0, DWORD* found = nullptr) noexcept;

/// The name that the folder gives an item, still in the folder's form.
std::optional<STRRET> displayNameOf(IShellFolder* folder, const ITEMIDLIST* list, DWORD shgdn) noexcept;

/// The attributes of an item among those of `mask`.
std::optional<DWORD> attributesOf(IShellFolder* folder, const ITEMIDLIST* list, DWORD mask) noexcept;

/// What enumerating the folder gives, or null when it has nothing; false when it fails.
bool enumerateItems(IShellFolder* folder, HWND owner, DWORD shcontf, ComPtr<IEnumIDList>& items) noexcept;

/// The next item; null behind the last one, and when the enumeration fails.
ItemList nextItem(const ComPtr<IEnumIDList>& items) noexcept;

/// The order that the folder gives two items; not 0 when it fails.
int compareIds(IShellFolder* folder, const ITEMIDLIST* a, const ITEMIDLIST* b) noexcept;

/// The list of an item that stands for the folder itself.
const ITEMIDLIST* emptyList() noexcept;

}  // namespace knav
