#include "shell/NavNodeTest.h"
#include "support/ObjectCounts.h"

namespace {

using namespace knav;
using namespace knav::test;

class NodeIcon : public NavNode {
protected:
    NodeIcon() { m_folder->add(L"item", SFGAO_FOLDER); }

    ComPtr<FakeFolder> m_folder = FakeFolder::make(L"root");
    std::unique_ptr<CNavNode> m_parent = nodeOver(m_folder);
};

TEST_F(NodeIcon, ComesFromTheExtractorOrFromTheModuleItNames) {
    wchar_t shellModule[MAX_PATH];
    GetModuleFileNameW(GetModuleHandleW(L"shell32.dll"), shellModule, MAX_PATH);
    wchar_t thisProgram[MAX_PATH];
    GetModuleFileNameW(nullptr, thisProgram, MAX_PATH);
    struct Row {
        const char* why;
        FakeIcon icon;
        bool found;
    };
    const Row rows[] = {
        {"extracted", {L"", 0, S_OK}, true},
        {"left to the caller", {shellModule, 1, S_FALSE}, true},
        {"extraction failed", {shellModule, 1, E_FAIL}, true},
        {"no such icon", {shellModule, 31'000, E_FAIL}, false},
        {"the number is a name", {thisProgram, 777, E_FAIL}, true},
        {"neither number nor name", {thisProgram, 778, E_FAIL}, false},
        {"no such module", {L"C:\\missing.dll", 1, E_FAIL}, false},
        {"no module", {L"", 0, E_FAIL}, false},
    };
    const auto takeIcons = [&] {
        for (const Row& row : rows) {
            m_folder->setIcon(row.icon);
            const auto node = itemBelow(*m_parent, NavNodeExtensionSite);
            node->SetIcon();
            node->SetIcon();
            EXPECT_EQ(node->GetIcon() != nullptr, row.found) << row.why;
            EXPECT_FALSE(m_folder->askedForItself()) << row.why;
        }
    };
    takeIcons();
    const ObjectCounts before = ObjectCounts::now();
    takeIcons();
    EXPECT_EQ(ObjectCounts::now(), before);
    nodeOver(m_folder, NavNodeExtensionRoot)->SetIcon();
    EXPECT_TRUE(m_folder->askedForItself());
}

TEST_F(NodeIcon, IsTakenWhenItIsAskedForAndOnlyOnce) {
    m_folder->setIcon({L"", 0, S_OK});
    const auto node = itemBelow(*m_parent, NavNodeExtensionSite);
    EXPECT_EQ(node->GetIcon(), nullptr) << "nothing has called for one";
    for (int times = 1; times <= 2; ++times) {
        ASSERT_TRUE(node->GetAttributes());
        EXPECT_EQ(m_folder->calls(FolderCall::GetUIObjectOf), times - 1);
        const HICON icon = node->GetIcon();
        EXPECT_NE(icon, nullptr);
        EXPECT_EQ(node->GetIcon(), icon);
        EXPECT_EQ(m_folder->calls(FolderCall::GetUIObjectOf), times);
    }
}

TEST_F(NodeIcon, OfAnOrdinaryItemIsTheShells) {
    CNavNode node(m_shell);
    ITEMIDLIST* list = nullptr;
    ASSERT_EQ(SHGetSpecialFolderLocation(nullptr, CSIDL_DRIVES, &list), S_OK);
    node.SetID(list);
    node.SetIcon();
    EXPECT_NE(node.GetIcon(), nullptr);
    RegisteredForTest registered;
    registered.add(L"FTPSites");
    CNavNode item(m_shell);
    item.SetType(NavNodeExtensionItem);
    item.SetExtensionName(L"FTPSites");
    item.SetIcon();
    EXPECT_NE(item.GetIcon(), nullptr) << "the closed folder";
    EXPECT_TRUE(item.IsFTP() && item.IsFTPRoot());
    item.SetExtensionName(L"no such extension");
    EXPECT_FALSE(item.IsFTP());
}

}  // namespace
