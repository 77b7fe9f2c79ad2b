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

}  // namespace

std::vector<ItemList> readShellIdList(std::span<const std::byte> bytes) {
    std::vector<ItemList> items;
    const UINT count = numberAt<UINT>(bytes, 0).value_or(0);
    for (std::size_t item = 1; item <= count; ++item) {
        const auto offset = numberAt<UINT>(bytes, sizeof(UINT) * (item + 1));
        if (!offset || !holdsList(bytes, *offset)) {
            break;
        }
        items.push_back(ItemList::copyOf(reinterpret_cast<const ITEMIDLIST*>(bytes.data() + *offset)));
    }
    return items;
}

std::vector<ItemList> itemsOf(IDataObject* object) {
    static const auto shellIdList = static_cast<CLIPFORMAT>(RegisterClipboardFormatW(CFSTR_SHELLIDLIST));
    FORMATETC format{shellIdList, nullptr, DVASPECT_CONTENT, -1, TYMED_HGLOBAL};
    StorageMedium storage;
    if (FAILED(guarded([&] { return object->GetData(&format, &storage.medium); })) ||
        storage.medium.tymed != TYMED_HGLOBAL) {
        return {};
    }
    const LockedMemory memory(storage.medium.hGlobal);
    return readShellIdList(memory.bytes());
}

}  // namespace knav
