// Items of navigation extensions.
//
// The root of an extension is a list of one element that holds the text "Extension-" and the extension's name; a list
// of more elements that starts with such an element is a child item, whose rest is relative to the extension's root
// folder. The functions with contract names take null lists, and return 0 or null on failure.
#pragma once

#include <platform/CString.h>

class CNavExtension;

namespace knav {

enum class ExtensionItem { None, Root, Child };

/// What `list` is, found with one look at its bytes.
ExtensionItem extensionItemKind(const ITEMIDLIST* list) noexcept;

/// The part of a name inside an extension that its folder parses: what follows the first "://", if there is one.
const wchar_t* nameInsideExtension(const wchar_t* name) noexcept;

/// The root item of the extension of that name; the caller frees it.
ITEMIDLIST* buildExtensionRootItem(IMalloc* allocator, const wchar_t* name) noexcept;

inline constexpr wchar_t kExtensionPrefix[] = L"Extension-";

}  // namespace knav

int NavIsExtensionRootItem(ITEMIDLIST* list);
int NavIsExtensionChildItem(ITEMIDLIST* list);
int NavIsExtensionItem(ITEMIDLIST* list);

/// The first registered extension, in order of registration, whose root element `list` starts with.
CNavExtension* NavFindExtensionForItem(ITEMIDLIST* list);

/// The registered extension of that name, ignoring case.
CNavExtension* NavFindExtensionByName(const wchar_t* name);

/// Sets `name` to the extension's name, or empties it when `list` starts with no extension root element.
void NavGetExtensionNameFromItem(ITEMIDLIST* list, CString& name);

/// The folder of an extension child item; carries one reference for the caller.
IShellFolder* NavGetFolderFromExtensionItem(ITEMIDLIST* list);

/// A new qualified list for a path inside the extension, which may start with a scheme and "://".
ITEMIDLIST* NavBuildExtensionItemList(CNavExtension* extension, const wchar_t* path);
