#include <knav/NavNames.h>

#include <cwchar>
#include <string>
#include <vector>

#include "data/ApiEdge.h"
#include "shell/ComPtr.h"
#include "shell/Guard.h"
#include "shell/ListWalk.h"

namespace {

// 8-bit text in the system's code page, up to its terminator.
CString fromCodePage(const char* text, std::size_t room) {
    const int length = static_cast<int>(strnlen(text, room));
    const int needed = MultiByteToWideChar(CP_ACP, 0, text, length, nullptr, 0);
    std::wstring wide(static_cast<std::size_t>(needed), L'\0');
    MultiByteToWideChar(CP_ACP, 0, text, length, wide.data(), needed);
    return CString(wide);
}

// Folders name places inside the list that they were given: a position outside it is a fault of the folder.
CString textInList(const ITEMIDLIST* list, std::size_t offset) {
    const std::size_t end = knav::measureList(list).bytes;
    if (list == nullptr || offset >= end) {
        return {};
    }
    std::vector<char> text(end - offset);
    const bool copied = knav::copyListBytes(text.data(), reinterpret_cast<const char*>(list) + offset, text.size());
    return copied ? fromCodePage(text.data(), text.size()) : CString();
}

CString takeWideText(STRRET& strret) {
    struct Freed {
        wchar_t* text;
        ~Freed() {
            const auto allocator = knav::ComPtr<IMalloc>::from([](IMalloc** object) { return SHGetMalloc(object); });
            if (allocator && text != nullptr) {
                knav::guardedRun([&] { allocator->Free(text); });
            }
        }
    } const owned{std::exchange(strret.pOleStr, nullptr)};
    const auto length = knav::guardedOr<std::size_t>(
        0, [&] { return owned.text != nullptr ? std::wcslen(owned.text) : std::size_t{0}; });
    return CString(std::wstring_view(owned.text, length));
}

CString textOf(const ITEMIDLIST* list, STRRET& strret) {
    switch (strret.uType) {
        case STRRET_WSTR:
            return takeWideText(strret);
        case STRRET_OFFSET:
            return textInList(list, strret.uOffset);
        case STRRET_CSTR:
            return fromCodePage(strret.cStr, sizeof strret.cStr);
        default:
            return {};
    }
}

}  // namespace

int NavConvertToString(ITEMIDLIST* list, STRRET& strret, CString& text) {
    text.Empty();
    knav::atApiEdge([&] { text = textOf(list, strret); });
    return !text.IsEmpty();
}
