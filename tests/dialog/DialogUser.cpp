#include "dialog/DialogUser.h"

namespace knav::test {
namespace {

HWND fileNameEdit() {
    COMBOBOXINFO info{};
    info.cbSize = sizeof info;
    GetComboBoxInfo(DialogDriver::control(IDC_KNAV_FILE_NAME), &info);
    return info.hwndItem;
}

int rowOf(const std::wstring& name) {
    LVFINDINFOW find{};
    find.flags = LVFI_STRING;
    find.psz = name.c_str();
    return ListView_FindItem(viewList(), -1, &find);
}

bool allShown(const std::vector<std::wstring>& names) {
    return viewList() && std::ranges::all_of(names, [](const std::wstring& name) { return rowOf(name) >= 0; });
}

void select(const std::vector<std::wstring>& names) {
    constexpr UINT mask = LVIS_SELECTED | LVIS_FOCUSED;
    ListView_SetItemState(viewList(), -1, 0, mask);
    for (const std::wstring& name : names) {
        ListView_SetItemState(viewList(), rowOf(name), mask, mask);
    }
}

/// The Look-in list tells the name of the folder; that of a place without a path, or of a drive, is the system's.
bool lookInIsAt(const CString& path) {
    const std::wstring name(PathFindFileNameW(path));
    const bool isPlace = path.Find(L'\\') < 0 || name.empty() || name.back() == L'\\';
    return isPlace ? !lookInText().empty() : lstrcmpiW(lookInText().c_str(), name.c_str()) == 0;
}

void postDoubleClick(HWND list, int row) {
    RECT label{};
    ListView_EnsureVisible(list, row, FALSE);
    ListView_GetItemRect(list, row, &label, LVIR_LABEL);
    const LPARAM where = MAKELPARAM(label.left + 2, (label.top + label.bottom) / 2);
    for (const UINT message : {WM_LBUTTONDOWN, WM_LBUTTONUP, WM_LBUTTONDBLCLK, WM_LBUTTONUP}) {
        PostMessageW(list, message, message == WM_LBUTTONUP ? 0 : MK_LBUTTON, where);
    }
}

}  // namespace

CString TestDialog::shownFolder() const {
    CString path;
    GetCurrentFolderForPersistence(path);
    return path;
}

std::vector<std::wstring> TestDialog::chosen() const {
    std::vector<std::wstring> texts;
    for (int i = 0; i < data.GetCount(); ++i) {
        texts.emplace_back(data.GetData(i)->GetText());
    }
    return texts;
}

DialogUser& DialogUser::type(std::wstring name) {
    m_driver.setText(IDC_KNAV_FILE_NAME, std::move(name));
    return *this;
}

DialogUser& DialogUser::press(WORD virtualKey) {
    m_driver.press(IDC_KNAV_FILE_NAME, virtualKey);
    return *this;
}

DialogUser& DialogUser::pick(std::vector<std::wstring> names) {
    return until("items to pick", [names] { return allShown(names); }).check([names] { select(names); }).settle();
}

DialogUser& DialogUser::doubleClick(std::wstring name) {
    return until("an item", [name] { return allShown({name}); }).check([name] {
        postDoubleClick(viewList(), rowOf(name));
    });
}

DialogUser& DialogUser::choose(UINT id, int index) {
    m_driver.select(id, index);
    return *this;
}

DialogUser& DialogUser::click(UINT id) {
    m_driver.click(id);
    return *this;
}

DialogUser& DialogUser::command(UINT id) {
    m_driver.command(id);
    return *this;
}

DialogUser& DialogUser::until(std::string what, std::function<bool()> condition) {
    m_driver.wait(std::move(what), std::move(condition));
    return *this;
}

DialogUser& DialogUser::untilShown(std::vector<std::wstring> names) {
    return until("the view shows the right names", [names = std::move(names)] { return shownNames() == names; });
}

DialogUser& DialogUser::untilFolder(const CString& path) {
    return until("folder " + utf8(path.view()),
                 [this, path] { return m_dialog.shownFolder().CompareNoCase(path) == 0 && lookInIsAt(path); });
}

DialogUser& DialogUser::untilName(std::wstring text) {
    return until("file name \"" + utf8(text) + "\"", [text] { return fileNameText() == text; });
}

DialogUser& DialogUser::untilAsked(const ScriptedPrompts& prompts, std::size_t count) {
    return until("message " + std::to_string(count), [&prompts, count] { return prompts.seen().size() >= count; });
}

DialogUser& DialogUser::settle() {
    // Timers come only when no other message waits.
    return check([] {}).check([] {});
}

DialogUser& DialogUser::check(std::function<void()> look) {
    m_driver.then("look", std::move(look));
    return *this;
}

INT_PTR DialogUser::run() {
    return m_driver.run([this] { return m_dialog.DoModal(); });
}

HWND viewList() {
    const HWND view = FindWindowExW(DialogDriver::dialog(), nullptr, L"SHELLDLL_DefView", nullptr);
    return view ? FindWindowExW(view, nullptr, WC_LISTVIEWW, nullptr) : nullptr;
}

std::vector<std::wstring> shownNames() {
    std::vector<std::wstring> names;
    const HWND list = viewList();
    for (int row = 0; row < ListView_GetItemCount(list); ++row) {
        std::array<wchar_t, MAX_PATH> text{};
        ListView_GetItemText(list, row, 0, text.data(), MAX_PATH);
        names.emplace_back(text.data());
    }
    std::ranges::sort(names);
    return names;
}

std::wstring lookInText() {
    wchar_t text[MAX_PATH] = L"";
    const HWND combo = DialogDriver::control(IDC_KNAV_LOOK_IN);
    SendMessageW(combo, CB_GETLBTEXT, static_cast<WPARAM>(SendMessageW(combo, CB_GETCURSEL, 0, 0)),
                 reinterpret_cast<LPARAM>(text));
    return text;
}

std::wstring fileNameText() {
    return DialogDriver::text(IDC_KNAV_FILE_NAME);
}

bool isEnabled(UINT id) {
    return IsWindowEnabled(DialogDriver::control(id)) != FALSE;
}

void expectTextSelected() {
    const auto selection = static_cast<DWORD>(SendMessageW(fileNameEdit(), EM_GETSEL, 0, 0));
    EXPECT_EQ(LOWORD(selection), 0);
    EXPECT_EQ(HIWORD(selection), fileNameText().size());
}

void expectNameReadyToRetype(const std::wstring& text) {
    EXPECT_EQ(utf8(fileNameText()), utf8(text));
    expectTextSelected();
    EXPECT_EQ(GetFocus(), fileNameEdit());
    EXPECT_EQ(LOWORD(SendMessageW(DialogDriver::dialog(), DM_GETDEFID, 0, 0)), IDOK);
}

DialogTest::DialogTest() {
    GetCurrentDirectoryW(MAX_PATH, m_directory);
}

DialogTest::~DialogTest() {
    SetCurrentDirectoryW(m_directory);
}

std::vector<std::wstring> DialogTest::paths(std::initializer_list<const wchar_t*> names) const {
    std::vector<std::wstring> all;
    std::ranges::transform(names, std::back_inserter(all), [this](auto name) { return wide(folder.path(name)); });
    return all;
}

std::wstring wide(const CString& text) {
    return std::wstring(text.view());
}

}  // namespace knav::test
