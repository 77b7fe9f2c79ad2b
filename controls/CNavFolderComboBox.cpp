#include <knav/CNavFolderComboBox.h>

#include "controls/ComboItems.h"
#include "controls/RowIcons.h"
#include "data/ApiEdge.h"
#include "shell/ExtensionItems.h"
#include "shell/FolderCalls.h"
#include "shell/FolderPaths.h"

#include <knav/CNavExtension.h>
#include <knav/CNavPathname.h>
#include <knav/NavFolders.h>
#include <knav/NavNames.h>

BEGIN_MESSAGE_MAP(CNavFolderComboBox, CNavComboBox)
ON_CONTROL_REFLECT_EX(CBN_DROPDOWN, &CNavFolderComboBox::OnDropDown)
ON_CONTROL_REFLECT_EX(CBN_CLOSEUP, &CNavFolderComboBox::OnCloseUp)
END_MESSAGE_MAP()

namespace {

// A place in an extension is a folder, and known as one by the root of the extension alone.
void parseNode(CNavPathname& pathname, const CNavNode& node, ITEMIDLIST* list, CString& name) {
    if (node.IsExtensionType()) {
        pathname.Parse(nullptr, nullptr, knav::ItemList::firstOf(list).get(), name);
    } else {
        pathname.Parse(list, node.GetParentFolder(), knav::ItemList::parentOf(list).get(), name);
    }
}

}  // namespace

CNavFolderComboBox::CNavFolderComboBox()
    : m_icons(std::make_unique<knav::RowIcons>()), m_items(std::make_unique<knav::ComboItems>()) {
}

knav::ComboItems& CNavFolderComboBox::items() const {
    m_items->of(m_hWnd);
    return *m_items;
}

CNavFolderComboBox::~CNavFolderComboBox() = default;

void CNavFolderComboBox::SetNoFTP(int noFtp) {
    m_treeIsStandard = m_treeIsStandard && noFtp == m_noFtp;
    m_noFtp = noFtp;
}

void CNavFolderComboBox::SetNoExtraExtensions(int noExtensions) {
    m_treeIsStandard = m_treeIsStandard && noExtensions == m_noExtraExtensions;
    m_noExtraExtensions = noExtensions;
}

int CNavFolderComboBox::OnAutoLoad() {
    int width = 0;
    int height = 0;
    if (!ImageList_GetIconSize(NavGetSystemImageList(), &width, &height)) {
        return 0;
    }
    m_indentWidth = m_iconWidth = width;
    m_itemHeight = m_iconHeight = height;
    SetItemHeight(-1, m_itemHeight);
    SetItemHeight(0, m_itemHeight);
    return 1;
}

int CNavFolderComboBox::GetPathname(CNavPathname& pathname) {
    return knav::atApiEdge(0, [&] {
        const CNavNode* const node = GetSelectedNode();
        if (node == nullptr || !node->IsFolder()) {
            return 0;
        }
        const auto list = knav::ItemList::adopt(node->CalculateQualifiedItemList());
        CString name;
        if (NavIsDesktop(list.get())) {
            name = knav::pathOfSpecialFolder(CSIDL_DESKTOPDIRECTORY);
            pathname.Parse(name, false);
        } else if (NavGetItemNameForParsing(node->GetParentFolder(), node->GetID(), name)) {
            parseNode(pathname, *node, list.get(), name);
        }
        return name.IsEmpty() ? 0 : 1;
    });
}

int CNavFolderComboBox::FindItemByNode(CNavNode* node) {
    return knav::atApiEdge(-1, [&] {
        const auto list = knav::ItemList::adopt(node != nullptr ? node->CalculateQualifiedItemList() : nullptr);
        return FindItemByList(list.get());
    });
}

int CNavFolderComboBox::FindItemByList(ITEMIDLIST* list) {
    return knav::atApiEdge(-1, [&] {
        const auto desktop = knav::desktopFolder();
        if (list == nullptr || !desktop) {
            return -1;
        }
        const auto firstThat = [this](auto&& matches) {
            for (int index = 0, count = items().count(); index < count; ++index) {
                const CNavNode* const node = GetNode(index);
                const auto other = knav::ItemList::adopt(node ? node->CalculateQualifiedItemList() : nullptr);
                if (other && matches(other.get())) {
                    return index;
                }
            }
            return -1;
        };
        // Most often there is one of the same bytes, and to compare with those before it takes the shell long.
        const int same = firstThat([&](ITEMIDLIST* other) { return knav::areSameBytes(list, other); });
        return same >= 0 ? same : firstThat([&](ITEMIDLIST* other) {
            return NavCompareFolderItems(desktop.get(), list, other) == 0;
        });
    });
}

int CNavFolderComboBox::FindParentItemIndex(int index) {
    const int indent = GetItemIndent(index);
    int parent = index - 1;
    while (parent >= 0 && GetItemIndent(parent) >= indent) {
        --parent;
    }
    return index >= 0 && index < items().count() ? parent : -1;
}

int CNavFolderComboBox::GetExtensionRootIndex(const wchar_t* extensionName) {
    for (int index = 0; extensionName != nullptr && index < items().count(); ++index) {
        const CNavNode* const node = GetNode(index);
        if (node == nullptr || node->GetType() != NavNodeExtensionRoot || *node->GetExtensionName() == L'\0') {
            continue;
        }
        const CNavExtension* const extension = NavFindExtensionByName(node->GetExtensionName());
        if (extension != nullptr && CString(extension->GetName()).CompareNoCase(extensionName) == 0) {
            return index;
        }
    }
    return -1;
}

CNavNode* CNavFolderComboBox::GetNode(int index) const {
    return static_cast<CNavNode*>(items().data(index));
}

CNavNode* CNavFolderComboBox::GetSelectedNode() const {
    return GetNode(GetCurSel());
}

int CNavFolderComboBox::GetItemIndent(int index) const {
    const CNavNode* const node = GetNode(index);
    return node != nullptr ? node->GetIndent() : 0;
}

int CNavFolderComboBox::GetItemText(int index, CString& text) const {
    text.Empty();
    return knav::atApiEdge(0, [&] {
        text = items().text(index);
        const CNavNode* const node = text.IsEmpty() ? GetNode(index) : nullptr;
        if (node != nullptr) {
            node->GetNameInFolder(text);
        }
        return text.IsEmpty() ? 0 : 1;
    });
}
