#include "shell/NavNodeTest.h"

namespace {

using namespace knav;
using namespace knav::test;

// a
// +- b
// |  +- c
// +- d
class LinkedNodes : public NavNode {
protected:
    CNavNode m_a{m_shell};
    CNavNode* m_b = m_a.AddChild(nullptr);
    CNavNode* m_d = m_b->AddNode(nullptr);
    CNavNode* m_c = m_a.AddChild(nullptr);
};

TEST_F(LinkedNodes, ChildrenGoToTheDeepestFirstChildAndSiblingsToTheEnd) {
    EXPECT_EQ(m_b->GetParent(), &m_a);
    EXPECT_EQ(m_c->GetParent(), m_b);
    EXPECT_EQ(m_d->GetPrev(), m_b);
    EXPECT_EQ(m_d->GetParent(), &m_a);
    EXPECT_EQ(m_d->GetFirst(), m_b);
    EXPECT_EQ(m_b->GetLast(), m_d);
    EXPECT_EQ(m_a.GetLastChild(), m_c) << "down along first children, not along siblings";
    EXPECT_EQ(m_d->GetLastChild(), m_d);
    std::vector<CNavNode*> inOrder;
    for (CNavNode* node = &m_a; node != nullptr; node = CNavNode::EnumerateNextNode(node)) {
        inOrder.push_back(node);
    }
    EXPECT_EQ(inOrder, (std::vector{&m_a, m_b, m_c, m_d}));
    EXPECT_EQ(CNavNode::EnumerateNextNode(nullptr), nullptr);
}

struct Flag {
    const char* name;
    DWORD shell;
    int (CNavNode::*get)() const;
};

constexpr Flag kFlags[] = {
    {"CanCopy", 0x1, &CNavNode::CanCopy},
    {"CanDelete", 0x20, &CNavNode::CanDelete},
    {"CanLink", 0x4, &CNavNode::CanLink},
    {"CanMove", 0x2, &CNavNode::CanMove},
    {"CanRename", 0x10, &CNavNode::CanRename},
    {"HasSubFolder", 0x80000000, &CNavNode::HasSubFolder},
    {"HasPropSheet", 0x40, &CNavNode::HasPropSheet},
    {"IsDropTarget", 0x100, &CNavNode::IsDropTarget},
    {"IsFileSystemAncestor", 0x10000000, &CNavNode::IsFileSystemAncestor},
    {"IsFolder", 0x20000000, &CNavNode::IsFolder},
    {"IsGhosted", 0x8000, &CNavNode::IsGhosted},
    {"IsInFileSystem", 0x40000000, &CNavNode::IsInFileSystem},
    {"IsLink", 0x10000, &CNavNode::IsLink},
    {"IsOnRemovableMedia", 0x2000000, &CNavNode::IsOnRemovableMedia},
    {"IsShared", 0x20000, &CNavNode::IsShared},
};

TEST_F(NavNode, EachShellAttributeSetsItsFlagOnly) {
    const auto folder = FakeFolder::make(L"root");
    const auto parent = nodeOver(folder);
    const auto node = itemBelow(*parent);
    for (const Flag& asked : kFlags) {
        folder->add(L"item", asked.shell);
        ASSERT_TRUE(node->GetAttributes());
        for (const Flag& flag : kFlags) {
            EXPECT_EQ(((*node).*flag.get)() != 0, &flag == &asked) << asked.name << " sets " << flag.name;
        }
    }
    folder->set(FolderCall::GetAttributesOf, Conduct::Faults);
    EXPECT_FALSE(node->GetAttributes());
    EXPECT_TRUE(node->IsShared()) << "a failed query leaves the flags";

    folder->set(FolderCall::GetAttributesOf, Conduct::Works);
    folder->add(L"item", SFGAO_CANRENAME | SFGAO_FILESYSTEM | SFGAO_CANCOPY);
    node->SetType(NavNodeExtensionRoot);
    ASSERT_TRUE(node->GetAttributes());
    EXPECT_TRUE(node->CanCopy());
    EXPECT_FALSE(node->CanRename() || node->IsInFileSystem()) << "the root of an extension has no path";
    EXPECT_TRUE(node->IsFileSystemAncestor() && node->IsFolder());
}

TEST_F(NavNode, ListOfMoreThanOneElementIsQualifiedAlready) {
    const auto parent = nodeOver(FakeFolder::make(L"root"));
    const ItemList list = makeList({"x", "y"});
    parent->AddChild(nullptr)->SetID(ItemList::copyOf(list.get()).release());
    EXPECT_THAT(ItemList::adopt(parent->GetChild()->CalculateQualifiedItemList()).get(), HoldsSameBytes(list.get()));
}

TEST_F(NavNode, FolderOfTheParentIsAskedAboutANodeAndItsOwnWithoutOne) {
    const auto outer = FakeFolder::make(L"outer");
    const auto inner = FakeFolder::make(L"inner");
    outer->add(L"item", SFGAO_CANCOPY);
    inner->add(L"item", SFGAO_CANMOVE);
    const auto parent = nodeOver(outer);
    const auto child = nodeOver(inner, NavNodeShell, FakeFolder::item(L"item"));
    ASSERT_TRUE(child->GetAttributes());
    EXPECT_TRUE(child->CanMove());
    child->SetParent(parent.get());
    ASSERT_TRUE(child->GetAttributes());
    EXPECT_TRUE(child->CanCopy());
    EXPECT_FALSE(child->CanMove());
    EXPECT_FALSE(CNavNode(m_shell).GetAttributes()) << "without a folder there is nobody to ask";
    const int asked = outer->calls(FolderCall::GetAttributesOf);
    CNavNode nameless(m_shell);
    nameless.SetParent(parent.get());
    EXPECT_FALSE(nameless.GetAttributes());
    EXPECT_EQ(outer->calls(FolderCall::GetAttributesOf), asked) << "without an item there is nothing to ask for";
}

TEST_F(NavNode, NameOfAnExtensionRootIsThatOfItsFolder) {
    RegisteredForTest registered;
    registered.add(L"Foo").SetRootFolderDisplayName(L"Foo sites");
    const auto root = nodeOver(FakeFolder::make(L"what the folder says"), NavNodeExtensionRoot);
    CString name;
    EXPECT_TRUE(root->GetNameInFolder(name));
    EXPECT_EQ(name, L"what the folder says");
    EXPECT_EQ(root->FindName(L"WHAT the folder says"), root.get());
    EXPECT_EQ(root->FindName(L"what"), nullptr);
    const auto deferred = nodeOver({}, NavNodeExtensionRoot);
    EXPECT_FALSE(deferred->GetNameInFolder(name));
    deferred->SetExtensionName(L"foo");
    EXPECT_TRUE(deferred->GetNameInFolder(name));
    EXPECT_EQ(name, L"Foo sites");
}

TEST_F(NavNode, InitializeForgetsWithoutFreeing) {
    const ItemList id = makeList({"x"});
    const auto folder = FakeFolder::make(L"root");
    CNavNode node(m_shell);
    node.SetID(id.get());
    node.SetFolder(folder.get());
    node.SetDisplayNode(&node);
    node.SetExtensionName(L"Foo");
    node.Initialize();
    EXPECT_EQ(node.GetID(), nullptr);
    EXPECT_EQ(node.GetFolder(), nullptr);
    EXPECT_EQ(node.GetDisplayNode(), nullptr);
    EXPECT_STREQ(node.GetExtensionName(), L"Foo");
}

TEST_F(NavNode, DestructionFreesEverythingBelowAndBehind) {
    const auto folder = FakeFolder::make(L"root");
    expectNoTaskMemoryLeft([&] {
        const auto node = nodeOver(folder);
        for (int index = 0; index < 20'000; ++index) {
            CNavNode* const child = new CNavNode(m_shell);
            child->SetNext(node->GetChild());
            child->SetID(makeList({"x"}).release());
            node->SetChild(child);
        }
    });
    EXPECT_EQ(folder->references(), 1);
}

}  // namespace
