// The examples of docs/namespace.md, in one program that prints what it finds about the path it is given.
#include <knav/knav.h>

#include <cstdio>

/// The number of elements: how deep below its root an item lies.
int depthOf(ITEMIDLIST* list) {
    int depth = 0;
    for (ITEMIDLIST* element = list; NavGetItemElementSize(element) > 0; element = NavGetNextItemElement(element)) {
        ++depth;
    }
    return depth;
}

/// A list that names the first item of a folder from the desktop down; the caller frees it.
ITEMIDLIST* firstItemOf(IShellFolder* folder) {
    IEnumIDList* items = nullptr;
    if (folder->EnumObjects(nullptr, SHCONTF_FOLDERS | SHCONTF_NONFOLDERS, &items) != S_OK) {
        return nullptr;
    }
    ITEMIDLIST* item = nullptr;
    const HRESULT found = items->Next(1, &item, nullptr);
    items->Release();
    if (found != S_OK) {
        return nullptr;
    }
    CNavShell shell;
    ITEMIDLIST* qualified = shell.GetQualifiedItemList(folder, item);
    shell.FreeItemList(item);
    return qualified;
}

/// What to show a person, and what to give a program that opens the item.
void printNames(ITEMIDLIST* qualified) {
    CString shown;
    CString parsed;
    NavGetItemDisplayNameInDesktop(SHGDN_NORMAL, qualified, shown);
    NavGetItemDisplayNameInDesktop(SHGDN_FORPARSING, qualified, parsed);
    std::printf("%ls (%ls)\n", shown.GetString(), parsed.GetString());
}

/// The target of a shortcut, or the item itself; the caller frees it.
ITEMIDLIST* behindShortcut(ITEMIDLIST* qualified) {
    ITEMIDLIST* target = NavResolveLink(qualified, 0);  // 0: never asks the user where a lost target went
    return target ? target : CNavShell().CopyItemList(qualified);
}

/// Runs `visit` with the folder at a path; false when there is none.
template <class Visit>
bool withFolder(const wchar_t* path, Visit visit) {
    ITEMIDLIST* list = NavGetQualifiedItemListFromFolderFullPath(path);
    IShellFolder* folder = list ? NavGetFolderFromDesktop(list) : nullptr;
    NavFreeItemList(list);
    if (!folder) {
        return false;
    }
    visit(folder);
    NavReleaseFolder(folder);
    return true;
}

/// What a typed or stored text is.
void printLocation(const wchar_t* text) {
    CNavPathname pathname;
    const PathErr result = pathname.Parse(text, true);  // true: the last name may be a pattern, such as *.dwg
    CString location;
    CString server;
    pathname.GetFullPath(location);
    pathname.GetServerName(server);
    if (pathname.GetIsURL()) {
        std::printf("%ls on %ls\n", location.GetString(), server.GetString());
    } else if (result == PathErr::None) {
        std::printf("%ls, kind %d\n", location.GetString(), pathname.GetType());
    } else {
        std::printf("%ls is no location\n", text);
    }
}

int wmain(int count, wchar_t** arguments) {
    OleInitialize(nullptr);
    const bool found = withFolder(count > 1 ? arguments[1] : L"C:\\windows", [](IShellFolder* folder) {
        ITEMIDLIST* item = firstItemOf(folder);
        ITEMIDLIST* target = behindShortcut(item);
        std::printf("%d elements: ", depthOf(target));
        printNames(target);
        NavFreeItemList(target);
        NavFreeItemList(item);
    });
    for (const wchar_t* const text : {L"C:\\windows\\*.ini", L"ftp://host/plan.dwg", L"a|b"}) {
        printLocation(text);
    }
    OleUninitialize();
    return found ? 0 : 1;
}
