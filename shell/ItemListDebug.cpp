#include "shell/ItemListDebug.h"

#include <knav/NavNames.h>

#include <algorithm>

#include "shell/ItemList.h"
#include "shell/ListWalk.h"

namespace {

constexpr int kShownBytes = 12;
constexpr int kShownElements = 16;

void describeElement(const ITEMIDLIST* element, std::wstring& text) {
    const int size = knav::elementSize(element);
    const int payload = size - static_cast<int>(sizeof element->mkid.cb);
    BYTE bytes[kShownBytes] = {};
    const int shown = std::clamp(payload, 0, kShownBytes);
    text += L" [" + std::to_wstring(size) + L":";
    if (!knav::copyListBytes(bytes, element->mkid.abID, static_cast<std::size_t>(shown))) {
        text += L" unreadable]";
        return;
    }
    constexpr wchar_t digits[] = L"0123456789abcdef";
    for (int index = 0; index < shown; ++index) {
        text += {L' ', digits[bytes[index] >> 4], digits[bytes[index] & 0xF]};
    }
    text += shown < payload ? L" ...]" : L"]";
}

}  // namespace

std::wstring knav::describe(const ITEMIDLIST* list) {
    if (list == nullptr) {
        return L"no list";
    }
    if (elementSize(list) == 0) {
        return L"the desktop (empty list)";
    }
    CString name;
    std::wstring text = NavGetItemDisplayNameInDesktop(SHGDN_FORPARSING, listArgument(list), name)
                            ? L"\"" + std::wstring(name.view()) + L"\""
                            : L"unnamed";
    int left = kShownElements;
    for (const ITEMIDLIST* element = list; element != nullptr; element = nextElement(element)) {
        if (left-- == 0) {
            return text + L" ...";
        }
        describeElement(element, text);
    }
    return text;
}
