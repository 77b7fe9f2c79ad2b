#include "demo/driver/RemoteList.h"

namespace {

constexpr int kMaxText = 300;
constexpr SIZE_T kTextOffset = 256;
constexpr SIZE_T kBlockSize = kTextOffset + kMaxText * sizeof(wchar_t);

}  // namespace

knav::input::RemoteList::RemoteList(HWND list) : m_list(list) {
    DWORD processId = 0;
    GetWindowThreadProcessId(list, &processId);
    m_process = OpenProcess(PROCESS_VM_OPERATION | PROCESS_VM_READ | PROCESS_VM_WRITE, FALSE, processId);
    if (m_process != nullptr) {
        m_block = static_cast<char*>(VirtualAllocEx(m_process, nullptr, kBlockSize, MEM_COMMIT, PAGE_READWRITE));
    }
}

knav::input::RemoteList::~RemoteList() {
    if (m_block != nullptr) {
        VirtualFreeEx(m_process, m_block, 0, MEM_RELEASE);
    }
    if (m_process != nullptr) {
        CloseHandle(m_process);
    }
}

int knav::input::RemoteList::count() const {
    return static_cast<int>(SendMessageW(m_list, LVM_GETITEMCOUNT, 0, 0));
}

std::optional<int> knav::input::RemoteList::find(const std::wstring& name) const {
    for (int index = 0, end = count(); index < end; ++index) {
        if (lstrcmpiW(textOf(index).c_str(), name.c_str()) == 0) {
            return index;
        }
    }
    return std::nullopt;
}

std::optional<POINT> knav::input::RemoteList::show(int index) const {
    SendMessageW(m_list, LVM_ENSUREVISIBLE, static_cast<WPARAM>(index), FALSE);
    RECT area{LVIR_LABEL, 0, 0, 0};
    WriteProcessMemory(m_process, m_block, &area, sizeof area, nullptr);
    if (!SendMessageW(m_list, LVM_GETITEMRECT, static_cast<WPARAM>(index), reinterpret_cast<LPARAM>(m_block)) ||
        !ReadProcessMemory(m_process, m_block, &area, sizeof area, nullptr)) {
        return std::nullopt;
    }
    // Near the left end of the text: the label of a details row may reach far beyond the name.
    constexpr int kInset = 8;
    POINT point{area.left + kInset, (area.top + area.bottom) / 2};
    ClientToScreen(m_list, &point);
    return point;
}

bool knav::input::RemoteList::isSelected(int index) const {
    return SendMessageW(m_list, LVM_GETITEMSTATE, static_cast<WPARAM>(index), LVIS_SELECTED) != 0;
}

std::wstring knav::input::RemoteList::textOf(int index) const {
    LVITEMW item{};
    item.pszText = reinterpret_cast<wchar_t*>(m_block + kTextOffset);
    item.cchTextMax = kMaxText;
    WriteProcessMemory(m_process, m_block, &item, sizeof item, nullptr);
    SendMessageW(m_list, LVM_GETITEMTEXTW, static_cast<WPARAM>(index), reinterpret_cast<LPARAM>(m_block));
    wchar_t text[kMaxText] = L"";
    ReadProcessMemory(m_process, m_block, &item, sizeof item, nullptr);
    ReadProcessMemory(m_process, item.pszText, text, sizeof text, nullptr);
    text[kMaxText - 1] = L'\0';
    return text;
}
