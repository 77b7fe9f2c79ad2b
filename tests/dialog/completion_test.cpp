// Completion of names while they are typed in the real dialog, and where the names come from.
#include "dialog/DialogUser.h"
#include "dialog/FolderNames.h"
#include "shell/ComPtr.h"

namespace knav::test {
namespace {

using testing::IsEmpty;
using testing::UnorderedElementsAre;

class DialogCompletion : public DialogTest {
protected:
    DialogCompletion() {
        folder.addFile(L"plan.dwg");
        folder.addFile(L"text.txt");
        folder.addFile(L"sub\\inner.dwg");
    }

    static HWND edit() { return GetWindow(DialogDriver::control(IDC_KNAV_FILE_NAME), GW_CHILD); }

    /// Empties the field and types one letter as a keyboard does; the field then holds `expected`.
    static void typeLetter(DialogUser& user, wchar_t letter, std::wstring expected) {
        user.type(L"").settle().check([letter] {
            SetFocus(edit());
            PostMessageW(edit(), WM_KEYDOWN, static_cast<WPARAM>(towupper(letter)), 1);
            PostMessageW(edit(), WM_KEYUP, static_cast<WPARAM>(towupper(letter)), static_cast<LPARAM>(0xC0000001));
        });
        user.untilName(std::move(expected)).settle();
    }
};

TEST_F(DialogCompletion, FirstLetter_IsCompletedFromTheFolderAndTypeShown) {
    TestDialog dialog;
    dialog.SetForceInitialFolder(folder.path());
    DialogUser user(dialog);
    user.untilShown({L"plan.dwg", L"sub"});
    typeLetter(user, L'p', L"plan.dwg");
    typeLetter(user, L's', L"sub");
    typeLetter(user, L't', L"t");
    user.chooseType(kTexts).untilShown({L"sub", L"text.txt"});
    typeLetter(user, L't', L"text.txt");
    user.chooseType(kDrawings).type(L"sub").ok().untilFolder(folder.path(L"sub"));
    typeLetter(user, L'i', L"inner.dwg");
    typeLetter(user, L'p', L"p");
    user.cancel();
    EXPECT_EQ(user.run(), IDCANCEL);
}

TEST_F(DialogCompletion, WhenSavingOrSwitchedOffByTheUser_TheNameStaysAsTyped) {
    constexpr std::tuple<int, const wchar_t*, const wchar_t*> rows[] = {
        {1, L"yes", L"p"}, {0, L"No", L"p"}, {0, L"no", L"p"}, {0, L"yes", L"plan.dwg"}};
    for (const auto& [creating, value, shown] : rows) {
        SCOPED_TRACE(utf8(value));
        RegSetKeyValueW(HKEY_CURRENT_USER, L"Software\\Microsoft\\Windows\\CurrentVersion\\Explorer\\AutoComplete",
                        L"Append Completion", REG_SZ, value, static_cast<DWORD>((wcslen(value) + 1) * sizeof(wchar_t)));
        TestDialog dialog(folder.path());
        dialog.SetCreatingFile(creating);
        DialogUser user(dialog);
        user.untilShown({L"plan.dwg", L"sub"});
        typeLetter(user, L'p', shown);
        user.check([text = shown] { EXPECT_EQ(fileNameText(), text); });
        EXPECT_EQ(user.cancel().run(), IDCANCEL);
    }
}

std::vector<std::wstring> all(FolderNames& names) {
    std::vector<std::wstring> texts;
    LPOLESTR text = nullptr;
    while (names.Next(1, &text, nullptr) == S_OK) {
        texts.emplace_back(text);
        CoTaskMemFree(text);
    }
    return texts;
}

TEST(FolderNames, Folder_IsReadAnewAfterEachReset) {
    const ScopedTempFolder folder;
    folder.addFile(L"a.dwg");
    folder.addFolder(L"sub");
    SetFileAttributesW(folder.addFile(L"hidden.dwg"), FILE_ATTRIBUTE_HIDDEN);
    const auto names = ComPtr<FolderNames>::adopt(new FolderNames);
    EXPECT_THAT(all(*names.get()), IsEmpty());
    names->setFolder(std::wstring(folder.path().view()));
    EXPECT_THAT(all(*names.get()), UnorderedElementsAre(L"a.dwg", L"sub"));
    EXPECT_THAT(all(*names.get()), IsEmpty()) << "at the end it stays there";
    folder.addFile(L"b.dwg");
    names->Reset();
    EXPECT_THAT(all(*names.get()), UnorderedElementsAre(L"a.dwg", L"b.dwg", L"sub"));
    names->Reset();
    EXPECT_EQ(names->Skip(2), S_OK);
    EXPECT_EQ(all(*names.get()).size(), 1u);
    for (const wchar_t* const nowhere : {L"C:\\no such folder", L"::{20D04FE0-3AEA-1069-A2D8-08002B30309D}", L""}) {
        names->setFolder(nowhere);
        EXPECT_THAT(all(*names.get()), IsEmpty());
    }
}

}  // namespace
}  // namespace knav::test
