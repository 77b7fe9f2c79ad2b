// Reads a list view of another process.
#pragma once

#include <platform/Windows.h>

#include <optional>
#include <string>

namespace knav::input {

/// The list's messages take addresses in the list's own process, so texts and rectangles travel through a block of
/// memory there.
class RemoteList {
public:
    explicit RemoteList(HWND list);
    RemoteList(const RemoteList&) = delete;
    RemoteList& operator=(const RemoteList&) = delete;
    ~RemoteList();

    int count() const;
    /// Index of the item of that name, ignoring case.
    std::optional<int> find(const std::wstring& name) const;
    /// Scrolls the item into sight and returns the middle of its text on the screen.
    std::optional<POINT> show(int index) const;
    bool isSelected(int index) const;

private:
    std::wstring textOf(int index) const;

    HWND m_list;
    HANDLE m_process = nullptr;
    char* m_block = nullptr;
};

}  // namespace knav::input
