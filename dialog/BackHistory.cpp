#include "dialog/BackHistory.h"

#include <knav/NavFolders.h>

#include <algorithm>

#include "dialog/FolderQuestions.h"

namespace knav {
namespace {

constexpr std::size_t kMostFolders = 64;

}  // namespace

void BackHistory::add(ITEMIDLIST* folder) {
    ItemList entry = NavIsDesktop(folder) ? ItemList() : ItemList::copyOf(folder);
    if (!m_folders.empty()) {
        const ItemList& head = m_folders.front();
        if (entry ? head && sameFolder(head.get(), entry.get()) : !head) {
            return;
        }
    }
    m_folders.push_front(std::move(entry));
    if (m_folders.size() > kMostFolders) {
        m_folders.pop_back();
    }
}

ItemList BackHistory::previous() const {
    if (!canGoBack()) {
        return {};
    }
    const ItemList& entry = m_folders[1];
    return entry ? ItemList::copyOf(entry.get()) : ItemList::adopt(NavGetDesktopFolderItem(nullptr));
}

void BackHistory::wentBack() {
    m_folders.erase(m_folders.begin(), m_folders.begin() + std::min<std::ptrdiff_t>(2, std::ssize(m_folders)));
}

void BackHistory::forgetPrevious() {
    if (canGoBack()) {
        m_folders.erase(m_folders.begin() + 1);
    }
}

}  // namespace knav
