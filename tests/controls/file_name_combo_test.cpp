#include "controls/ControlHost.h"
#include "controls/FileNameContext.h"

#include <gmock/gmock.h>

#include <knav/CNavDataArray.h>
#include <knav/CNavFileNameComboBox.h>
#include <knav/CNavNode.h>
#include <knav/CNavPathname.h>
#include <knav/CNavShell.h>
#include <knav/FileDialogAllowReturnFolderEnabler.h>

#include <optional>

namespace {

using namespace knav::test;

class Context : public knav::FileNameContext {
public:
    bool multiSelectAllowed() const override { return several; }
    CNavNode* lookInNode() const override { return node; }
    bool several = true;
    CNavNode* node = nullptr;
};

// A path name of any kind, without the disk.
class AnyPathname : public CNavPathname {
public:
    explicit AnyPathname(Type type) { m_type = type; }
};

class FileNameCombo : public testing::Test {
protected:
    FileNameCombo() {
        m_combo.Create(CBS_DROPDOWN | WS_CHILD | WS_VISIBLE, kComboPlace, &m_host, kControlId);
        m_combo.SetContext(&m_context);
    }

    CString text() const {
        CString found;
        m_combo.GetWindowText(found);
        return found;
    }

    void addItem(const wchar_t* name, CZoUiPathname::Type type) {
        CNavData* const item = m_data.AddData();
        item->SetTextInFolder(name);
        AnyPathname pathname(type);
        item->SetPathname(&pathname);
    }

    bool press(WPARAM key, UINT message = WM_KEYDOWN) {
        COMBOBOXINFO info{};
        m_combo.GetComboBoxInfo(&info);
        MSG press{info.hwndItem, message, key, 0, 0, {}};
        return m_combo.PreTranslateMessage(&press) != FALSE;
    }

    ControlHost m_host;
    Context m_context;
    CNavFileNameComboBox m_combo;
    CNavDataArray m_data;
};

TEST_F(FileNameCombo, SeveralNames_AreSplitWhereTheyAreAllowed_AndReplaceWhatIsThere) {
    m_data.AddData();
    m_combo.SetWindowText(L" \" a \" \"b\" ");
    ASSERT_EQ(m_combo.SendFileNameToData(m_data), 1);
    ASSERT_EQ(m_data.GetCount(), 2);
    EXPECT_STREQ(m_data.GetData(0)->GetText(), L"a ") << "leading blanks are cut";
    m_context.several = false;
    CStringArray names;
    EXPECT_EQ(m_combo.GetEditBoxStrings(names), 1);
    m_context.several = true;
    m_combo.SetContext(nullptr);
    EXPECT_EQ(m_combo.GetEditBoxStrings(names), 1);
    EXPECT_EQ(names[0], L"\" a \" \"b\"");
    m_combo.SetWindowText(L"   ");
    EXPECT_EQ(m_combo.SendFileNameToData(m_data), 1);
    EXPECT_EQ(m_data.GetCount(), 0);
}

TEST_F(FileNameCombo, SendToData_ClassifiesByTextAndFolder) {
    CNavShell shell;
    CNavNode node(shell);
    node.SetExtensionName(L"Store");
    const struct {
        const char* why;
        const wchar_t* text;
        std::optional<NavNodeType> folder;
        NAV_DATA_TYPE type;
        const wchar_t* extension;
    } rows[] = {
        {"a name", L"a.dwg", std::nullopt, NAV_DATA_FILE, L""},
        {"a name in an ordinary folder", L"a.dwg", NavNodeShell, NAV_DATA_FILE, L""},
        {"a URL", L"http://host/a.dwg", std::nullopt, NAV_DATA_URL, L""},
        {"a network path", L"\\\\server\\share\\a.dwg", NavNodeExtensionItem, NAV_DATA_NETWORK, L""},
        {"a name in an extension", L"a.dwg", NavNodeExtensionSite, NAV_DATA_EXTENSION, L"Store"},
        {"a URL in an extension", L"http://host/a.dwg", NavNodeExtensionRoot, NAV_DATA_EXTENSION, L"Store"},
        {"a name in a Web Folder", L"a.dwg", NavNodeWebFolderItem, NAV_DATA_FTP, L""},
        {"a URL below the internet root", L"http://host/a.dwg", NavNodeInternetItem, NAV_DATA_URL, L""},
    };
    for (const auto& row : rows) {
        SCOPED_TRACE(row.why);
        node.SetType(row.folder.value_or(NavNodeShell));
        m_context.node = row.folder ? &node : nullptr;
        m_combo.SetWindowText(row.text);
        ASSERT_EQ(m_combo.SendFileNameToData(m_data), 1);
        ASSERT_EQ(m_data.GetCount(), 1);
        EXPECT_EQ(m_data.GetData(0)->GetDataType(), row.type);
        EXPECT_STREQ(m_data.GetData(0)->GetExtensionName(), row.extension);
        EXPECT_STREQ(m_data.GetData(0)->GetText(), row.text);
    }
}

TEST_F(FileNameCombo, SyncToData_NamesFilesOnly) {
    using Path = CZoUiPathname;
    const struct {
        const char* why;
        std::vector<std::pair<const wchar_t*, Path::Type>> items;
        bool returnFolders;
        const wchar_t* text;
    } rows[] = {
        {"one file", {{L"a b", Path::ExistingFile}}, false, L"a b"},
        {"two files", {{L"a", Path::ExistingFile}, {L"b", Path::ExistingFile}}, false, L"\"a\" \"b\""},
        {"a file and a folder", {{L"d", Path::Directory}, {L"a", Path::ExistingFile}}, false, L"\"a\""},
        {"a folder leaves the text", {{L"d", Path::Directory}}, false, L"typed"},
        {"nothing leaves the text", {}, false, L"typed"},
        {"a new file leaves the text", {{L"n", Path::NewFile}}, false, L"typed"},
        {"a folder where it may be the result", {{L"d", Path::Directory}}, true, L"d"},
        {"a new file and a pattern there", {{L"n", Path::NewFile}, {L"*", Path::Wildcard}}, true, L"\"n\" \"*\""},
        {"no path at all there", {{L"i", Path::Invalid}}, true, L""},
        {"nothing there empties the text", {}, true, L""},
    };
    for (const auto& row : rows) {
        SCOPED_TRACE(row.why);
        std::optional<FileDialogAllowReturnFolderEnabler> mode;
        if (row.returnFolders) {
            mode.emplace();
        }
        m_data.RemoveAllData();
        for (const auto& [name, type] : row.items) {
            addItem(name, type);
        }
        m_combo.SetWindowText(L"typed");
        EXPECT_EQ(m_combo.SyncToData(m_data), 1);
        EXPECT_EQ(text(), row.text);
    }
}

TEST_F(FileNameCombo, ArrowKeys_OpenTheListOfAnEmptyFieldOnly) {
    m_combo.AddString(L"old.dwg");
    for (const WPARAM key : {VK_DOWN, VK_UP}) {
        m_combo.SetWindowText(L"a");
        EXPECT_FALSE(press(key));
        m_combo.SetWindowText(L"");
        EXPECT_FALSE(press(key, WM_KEYUP));
        EXPECT_FALSE(m_combo.GetDroppedState());
        EXPECT_TRUE(press(key));
        EXPECT_TRUE(m_combo.GetDroppedState());
        EXPECT_FALSE(press(key));
        m_combo.ShowDropDown(FALSE);
    }
}

TEST_F(FileNameCombo, Enter_ClosesTheListWithoutChoosingAndSelectsTheText) {
    m_combo.AddString(L"old.dwg");
    m_combo.ShowDropDown();
    m_combo.SetWindowText(L"typed");
    m_combo.SetEditSel(2, 2);
    EXPECT_FALSE(press(VK_RETURN));
    EXPECT_FALSE(m_combo.GetDroppedState());
    EXPECT_EQ(text(), L"typed");
    EXPECT_EQ(m_combo.GetEditSel(), MAKELONG(0, 5));
}

}  // namespace
