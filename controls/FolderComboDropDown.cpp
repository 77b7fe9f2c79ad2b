// Dropping the Look-in combo down, and keeping up with drives that come and go.
#include <knav/CNavFolderComboBox.h>

#include "controls/ComboItems.h"
#include "controls/Dpi.h"
#include "controls/RowIcons.h"
#include "data/ApiEdge.h"
#include "shell/FolderPaths.h"
#include "shell/ItemList.h"

#include <platform/CWaitCursor.h>
#include <platform/GdiOwners.h>
#include <algorithm>

namespace {

// Whether the folder can still be shown. A network place is taken to be there: asking could take a minute.
bool isStillThere(ITEMIDLIST* list) {
    const CString path = knav::pathOfFolder(list);
    return path.IsEmpty() || PathIsNetworkPathW(path) || knav::isPathThere(path);
}

knav::ItemList nearestStillThere(knav::ItemList list) {
    while (list && !isStillThere(list.get())) {
        list = knav::ItemList::parentOf(list.get());
    }
    return list;
}

}  // namespace

BOOL CNavFolderComboBox::OnDropDown() {
    knav::atApiEdge([this] {
        m_standardHierarchy = 1;
        if (!m_treeIsStandard) {
            fillStandardKeepingSelection();
        }
        widenDroppedList();
        items().beginDrop();
    });
    return FALSE;
}

BOOL CNavFolderComboBox::OnCloseUp() {
    m_standardHierarchy = 0;
    items().endDrop();
    return FALSE;
}

void CNavFolderComboBox::fillStandardKeepingSelection() {
    CNavNode* const selected = GetSelectedNode();
    const auto list = knav::ItemList::adopt(selected != nullptr ? selected->CalculateQualifiedItemList() : nullptr);
    auto look = selected != nullptr ? m_icons->giveUp(*selected) : knav::RowLook();
    FillWithTopLevelFolders(selected);
    if (items().count() == 0) {  // without the whole, the chain is better than nothing
        m_standardHierarchy = 0;
        FillToFolder(list.get());
    }
    const int index = FindItemByList(list.get());
    if (const CNavNode* const node = GetNode(index); node != nullptr && selected != nullptr) {
        m_icons->takeOver(*node, std::move(look));
    }
    SetCurSel(index);
}

void CNavFolderComboBox::widenDroppedList() {
    const zoui::WindowDC dc(m_hWnd);
    const zoui::SelectedObject font(dc, GetFont());
    const UINT dpi = knav::dpiOf(m_hWnd);
    int widest = 0;
    CString text;
    for (int index = 0, count = items().count(); index < count; ++index) {
        const CNavNode* const node = GetNode(index);
        SIZE size{};
        if (node != nullptr && GetItemText(index, text) && GetTextExtentPoint32W(dc, text, text.GetLength(), &size)) {
            widest = std::max(widest, pictureLeft(*node, false) + m_indentWidth + static_cast<int>(size.cx));
        }
    }
    MONITORINFO monitor{};
    monitor.cbSize = sizeof(monitor);
    GetMonitorInfoW(MonitorFromWindow(m_hWnd, MONITOR_DEFAULTTONEAREST), &monitor);
    const int room = static_cast<int>(monitor.rcWork.right - monitor.rcWork.left) / 2;
    SetDroppedWidth(std::min(room, widest + knav::scaled(8, dpi) + GetSystemMetrics(SM_CXVSCROLL)));
}

int CNavFolderComboBox::RefreshFolderInfo(int rebuild) {
    return knav::atApiEdge(0, [&] {
        const CWaitCursor wait;
        const CNavNode* const selected = GetSelectedNode();
        auto list = knav::ItemList::adopt(selected != nullptr ? selected->CalculateQualifiedItemList() : nullptr);
        if (!list) {
            return 0;
        }
        const bool stillThere = isStillThere(list.get());
        if (rebuild != 0 || !stillThere) {
            m_treeIsStandard = false;  // names, icons and drives are read anew when the list next drops down
        }
        if ((rebuild != 0 && !GetDroppedState()) || !stillThere) {  // a list in use stays as it is
            selectChainTo(nearestStillThere(std::move(list)));
        }
        return stillThere ? 1 : 0;
    });
}

void CNavFolderComboBox::selectChainTo(const knav::ItemList& list) {
    ShowDropDown(FALSE);
    m_standardHierarchy = 0;
    SetCurSel(list ? FillToFolder(list.get()) : (FillToNode(nullptr), 0));
}
