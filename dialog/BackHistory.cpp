#include "dialog/BackHistory.h"

#include <knav/NavFolders.h>

#include <algorithm>

#include "dialog/FolderQuestions.h"

namespace knav {
namespace {

constexpr std::size_t kMostFolders = 64;

bool sameEntry(const ItemList& a, const ItemList& b) {
    return a && b ? sameFolder(a.get(), b.get()) : !a && !b;
}

}  // namespace

void BackHistory::add(ITEMIDLIST* folder) {
    ItemList entry = NavIsDesktop(folder) ? ItemList() : ItemList::copyOf(folder);
    if (!m_folders.empty() && sameEntry(m_folders.front(), entry)) {
        return;
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
    // What lay before the one that is gone may be the folder shown: going back to it would not be seen.
    if (canGoBack() && sameEntry(m_folders[0], m_folders[1])) {
        m_folders.erase(m_folders.begin() + 1);
    }
}

}  // namespace knav
