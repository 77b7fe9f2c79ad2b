#include "view/ShellIdList.h"

#include "shell/Guard.h"

#include <cstring>
#include <optional>

namespace knav {
namespace {

class StorageMedium {
public:
    StorageMedium() = default;
    StorageMedium(const StorageMedium&) = delete;
    StorageMedium& operator=(const StorageMedium&) = delete;
    ~StorageMedium() {
        guardedRun([this] { ReleaseStgMedium(&medium); });
    }
    STGMEDIUM medium{};
};

class LockedMemory {
public:
    explicit LockedMemory(HGLOBAL memory) : m_memory(memory), m_bytes(GlobalLock(memory)) {}
    LockedMemory(const LockedMemory&) = delete;
    LockedMemory& operator=(const LockedMemory&) = delete;
    ~LockedMemory() {
        if (m_bytes != nullptr) {
            GlobalUnlock(m_memory);
        }
    }
    std::span<const std::byte> bytes() const {
        return {static_cast<const std::byte*>(m_bytes), m_bytes != nullptr ? GlobalSize(m_memory) : 0};
    }

private:
    HGLOBAL m_memory;
    void* m_bytes;
};

template <class Number>
std::optional<Number> numberAt(std::span<const std::byte> bytes, std::size_t at) {
    if (at > bytes.size() || bytes.size() - at < sizeof(Number)) {
        return std::nullopt;
    }
    Number number;
    std::memcpy(&number, bytes.data() + at, sizeof(number));
    return number;
}

// Whether a list that starts at `at` ends, with its terminator, inside the bytes.
bool holdsList(std::span<const std::byte> bytes, std::size_t at) {
    auto size = numberAt<USHORT>(bytes, at);
    while (size && *size >= sizeof(USHORT)) {
        at += *size;
        size = numberAt<USHORT>(bytes, at);
    }
    return size && *size == 0;
}

// The list that an offset of the array, the folder's before those of the items, leads to; null when it does not lie in
// the bytes.
ItemList listAt(std::span<const std::byte> bytes, std::size_t index) {
    const auto offset = numberAt<UINT>(bytes, sizeof(UINT) * (index + 1));
    return offset && holdsList(bytes, *offset)
               ? ItemList::copyOf(reinterpret_cast<const ITEMIDLIST*>(bytes.data() + *offset))
               : ItemList();
}

FORMATETC shellIdListFormat() {
    static const auto format = static_cast<CLIPFORMAT>(RegisterClipboardFormatW(CFSTR_SHELLIDLIST));
    return {format, nullptr, DVASPECT_CONTENT, -1, TYMED_HGLOBAL};
}

}  // namespace

ShellIdList readShellIdList(std::span<const std::byte> bytes) {
    ShellIdList array{listAt(bytes, 0), {}};
    const UINT count = numberAt<UINT>(bytes, 0).value_or(0);
    for (std::size_t index = 1; index <= count; ++index) {
        ItemList item = listAt(bytes, index);
        if (!item) {
            break;
        }
        array.items.push_back(std::move(item));
    }
    return array;
}

ShellIdList shellIdListOf(IDataObject* object) {
    FORMATETC format = shellIdListFormat();
    StorageMedium storage;
    if (FAILED(guarded([&] { return object->GetData(&format, &storage.medium); })) ||
        storage.medium.tymed != TYMED_HGLOBAL) {
        return {};
    }
    const LockedMemory memory(storage.medium.hGlobal);
    return readShellIdList(memory.bytes());
}

bool offersShellIdList(IDataObject* object) {
    FORMATETC format = shellIdListFormat();
    return guarded([&] { return object->QueryGetData(&format); }) == S_OK;
}

}  // namespace knav
