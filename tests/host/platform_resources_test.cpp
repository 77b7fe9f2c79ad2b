// The chain of resource modules, with two modules made for the purpose, and menus loaded from it.
#include <platform/CDialog.h>
#include <platform/CMenu.h>
#include <platform/Prompt.h>
#include <platform/Resources.h>

#include <gtest/gtest.h>

#include <vector>

#include "support/DialogTemplate.h"
#include "support/ScopedTempFolder.h"

namespace {

constexpr WORD kNeutral = MAKELANGID(LANG_NEUTRAL, SUBLANG_NEUTRAL);
constexpr UINT kFirstString = 40'000;  // a multiple of 16: the start of a block
constexpr UINT kDialogId = 500;

// The block of strings with ids from kFirstString on; an empty text is no string.
std::vector<WORD> stringBlock(std::initializer_list<std::wstring_view> texts) {
    std::vector<WORD> block;
    for (const std::wstring_view text : texts) {
        block.push_back(static_cast<WORD>(text.size()));
        block.insert(block.end(), text.begin(), text.end());
    }
    block.resize(block.size() + 16 - texts.size());
    return block;
}

// A module with nothing but the resources given.
class ResourceFile {
public:
    ResourceFile(const knav::test::ScopedTempFolder& folder, const wchar_t* name,
                 std::initializer_list<std::wstring_view> texts, bool withDialog) {
        const CString path = folder.path(name);
        const HMODULE framework = LoadLibraryW(L"zoui.dll");
        wchar_t source[MAX_PATH];
        GetModuleFileNameW(framework, source, MAX_PATH);
        FreeLibrary(framework);
        CopyFileW(source, path, FALSE);
        const HANDLE update = BeginUpdateResourceW(path, TRUE);
        std::vector<WORD> strings = stringBlock(texts);
        UpdateResourceW(update, RT_STRING, MAKEINTRESOURCEW(kFirstString / 16 + 1), kNeutral, strings.data(),
                        static_cast<DWORD>(strings.size() * sizeof(WORD)));
        if (withDialog) {
            const knav::test::DialogTemplate dialog(L"from the module");
            UpdateResourceW(update, RT_DIALOG, MAKEINTRESOURCEW(kDialogId), kNeutral,
                            const_cast<DLGTEMPLATE*>(dialog.get()), static_cast<DWORD>(dialog.byteCount()));
        }
        EndUpdateResourceW(update, FALSE);
        m_module = LoadLibraryExW(path, nullptr, LOAD_LIBRARY_AS_DATAFILE | LOAD_LIBRARY_AS_IMAGE_RESOURCE);
    }
    ~ResourceFile() { FreeLibrary(m_module); }
    ResourceFile(const ResourceFile&) = delete;
    ResourceFile& operator=(const ResourceFile&) = delete;
    operator HINSTANCE() const { return m_module; }

private:
    HMODULE m_module;
};

class ResourceChain : public testing::Test {
protected:
    static CString load(UINT id) {
        CString text(L"before");
        const BOOL found = text.LoadString(id);
        EXPECT_EQ(found != FALSE, !text.IsEmpty());
        return text;
    }

    knav::test::ScopedTempFolder m_folder;
    ResourceFile m_old{m_folder, L"old.dll", {L"old 0", L"old 1", L"%2 of %1"}, true};
    ResourceFile m_new{m_folder, L"new.dll", {L"new 0", L""}, false};
};

TEST_F(ResourceChain, SearchesCurrentThenNewestExtensionFirst) {
    EXPECT_STREQ(load(kFirstString), L"");
    const CDynLinkLibrary oldLink(m_old);
    EXPECT_STREQ(load(kFirstString), L"old 0");
    {
        const CDynLinkLibrary newLink(m_new);
        EXPECT_STREQ(load(kFirstString), L"new 0");
        EXPECT_STREQ(load(kFirstString + 1), L"old 1");  // its block is in both, the string in one
        const ScopedResourceHandle current(m_old);
        EXPECT_STREQ(load(kFirstString), L"old 0");
    }
    EXPECT_STREQ(load(kFirstString), L"old 0");
    EXPECT_STREQ(load(kFirstString + 9), L"");
}

TEST_F(ResourceChain, ModuleLinkedTwiceStaysUntilTheLastLinkEnds) {
    const CDynLinkLibrary first(m_old);
    { const CDynLinkLibrary second(m_old); }
    EXPECT_STREQ(load(kFirstString), L"old 0");
}

TEST_F(ResourceChain, CurrentModuleIsRestoredAndDefaultsToTheProgram) {
    EXPECT_EQ(AfxGetResourceHandle(), GetModuleHandleW(nullptr));
    {
        const ScopedResourceHandle outer(m_old);
        {
            const ScopedResourceHandle inner(m_new);
            EXPECT_EQ(AfxGetResourceHandle(), static_cast<HINSTANCE>(m_new));
        }
        EXPECT_EQ(AfxGetResourceHandle(), static_cast<HINSTANCE>(m_old));
    }
    EXPECT_EQ(AfxGetResourceHandle(), AfxGetInstanceHandle());
}

TEST_F(ResourceChain, FindsTheModuleOfAResource) {
    const CDynLinkLibrary oldLink(m_old);
    const CDynLinkLibrary newLink(m_new);
    EXPECT_EQ(AfxFindResourceHandle(MAKEINTRESOURCEW(kDialogId), RT_DIALOG), static_cast<HINSTANCE>(m_old));
    EXPECT_EQ(AfxFindResourceHandle(MAKEINTRESOURCEW(kDialogId + 1), RT_DIALOG), AfxGetResourceHandle());
}

TEST_F(ResourceChain, FormatsAndDialogsComeFromIt) {
    const CDynLinkLibrary oldLink(m_old);
    CString text;
    AfxFormatString2(text, kFirstString + 2, L"ten", L"two");
    EXPECT_STREQ(text, L"two of ten");
    AfxFormatString1(text, kFirstString + 2, L"ten");
    EXPECT_STREQ(text, L"%2 of ten");

    CDialog dialog;
    ASSERT_TRUE(dialog.Create(kDialogId));
    dialog.GetWindowText(text);
    EXPECT_STREQ(text, L"from the module");
    EXPECT_EQ(dialog.GetTemplateModule(), static_cast<HINSTANCE>(m_old));
}

HMENU menuWithSubmenu() {
    const HMENU menu = CreatePopupMenu();
    AppendMenuW(menu, MF_STRING, 1, L"&One");
    AppendMenuW(menu, MF_POPUP, reinterpret_cast<UINT_PTR>(CreatePopupMenu()), L"Sub");
    return menu;
}

TEST(Menu, OwnsWhatItHoldsAndNotItsParts) {
    HMENU menu = menuWithSubmenu();
    {
        CMenu owner;
        owner.Attach(menu);
        CMenu* const part = owner.GetSubMenu(1);
        ASSERT_NE(part, nullptr);
        EXPECT_EQ(part, owner.GetSubMenu(1));
        EXPECT_EQ(owner.GetSubMenu(0), nullptr);
        EXPECT_EQ(owner.GetMenuItemID(1), static_cast<UINT>(-1));
        part->AppendMenu(MF_STRING, 2, L"Two");
        EXPECT_EQ(part->GetMenuItemCount(), 1);
        EXPECT_EQ(owner.Detach(), menu);
    }
    EXPECT_TRUE(IsMenu(menu));
    {
        CMenu owner;
        owner.Attach(menu);
    }
    EXPECT_FALSE(IsMenu(menu));
}

TEST(Menu, EntriesAreChangedByIdAndByPosition) {
    CMenu menu;
    menu.Attach(menuWithSubmenu());
    CString text;
    EXPECT_EQ(menu.GetMenuString(1, text, MF_BYCOMMAND), 4);
    EXPECT_STREQ(text, L"&One");
    EXPECT_EQ(menu.EnableMenuItem(1, MF_BYCOMMAND | MF_GRAYED), UINT{MF_ENABLED});
    EXPECT_TRUE(menu.GetMenuState(1, MF_BYCOMMAND) & MF_GRAYED);
    EXPECT_EQ(menu.EnableMenuItem(99, MF_BYCOMMAND | MF_GRAYED), static_cast<UINT>(-1));
    EXPECT_TRUE(menu.InsertMenu(0, MF_BYPOSITION | MF_STRING, 7, L"First"));
    EXPECT_EQ(menu.GetMenuItemID(0), 7u);
    EXPECT_TRUE(menu.DeleteMenu(2, MF_BYPOSITION));
    EXPECT_FALSE(menu.DeleteMenu(99, MF_BYCOMMAND));
    EXPECT_EQ(menu.GetMenuItemCount(), 2);
    EXPECT_FALSE(CMenu().DestroyMenu());
}

}  // namespace
