#include "OptionPage.h"

#include <knav/NavToolsMenuItem.h>
#include <platform/CComboBox.h>

#include <cwchar>

#include "ids.h"

namespace {

// Which control shows which option.
template <class Type>
struct Shown {
    int control;
    Type DialogOptions::*value;
};

constexpr Shown<CString> kTexts[] = {
    {IDC_DIALOG_CAPTION, &DialogOptions::dialogCaption},
    {IDC_OK_BUTTON_TEXT, &DialogOptions::okButtonText},
    {IDC_FILE_TYPES, &DialogOptions::fileTypes},
    {IDC_DEFAULT_FILE_EXTENSION, &DialogOptions::defaultFileExtension},
    {IDC_INITIAL_FILE_NAME, &DialogOptions::initialFileName},
    {IDC_FORCE_INITIAL_FOLDER, &DialogOptions::forceInitialFolder},
    {IDC_DEFAULT_INITIAL_FOLDER, &DialogOptions::defaultInitialFolder},
};

constexpr Shown<int> kNumbers[] = {
    {IDC_DEFAULT_FILTER_INDEX, &DialogOptions::defaultFilterIndex},
    {IDC_FORCE_FILTER_INDEX, &DialogOptions::forceFilterIndex},
    {IDC_FILTER_INDEX, &DialogOptions::filterIndex},
};

constexpr Shown<int> kFlags[] = {
    {IDC_CREATING_FILE, &DialogOptions::creatingFile},
    {IDC_FOLDERS_ONLY, &DialogOptions::foldersOnly},
    {IDC_MAY_RETURN_FOLDER, &DialogOptions::mayReturnFolder},
    {IDC_MULTI_SELECT_ALLOWED, &DialogOptions::multiSelectAllowed},
    {IDC_CONFIRM_REPLACE, &DialogOptions::confirmReplace},
    {IDC_OK_BUTTON_MENU_EXISTS, &DialogOptions::okButtonMenuExists},
    {IDC_READ_ONLY_ALLOWED, &DialogOptions::readOnlyAllowed},
    {IDC_READ_ONLY_HIDDEN, &DialogOptions::readOnlyHidden},
    {IDC_READ_ONLY_SPECIFIED, &DialogOptions::readOnlySpecified},
    {IDC_ACCEPT_ANY_FILE_EXTENSION, &DialogOptions::acceptAnyFileExtension},
    {IDC_USE_REG_EXTENSION_FLAGS, &DialogOptions::useRegExtensionFlags},
    {IDC_OWN_LIST_CONTROL, &DialogOptions::ownListControl},
    {IDC_NO_FTP_IN_PLACES, &DialogOptions::noFtpInPlaces},
    {IDC_NO_FAVORITES_IN_PLACES, &DialogOptions::noFavoritesInPlaces},
    {IDC_NO_EXTRA_EXTENSIONS_IN_PLACES, &DialogOptions::noExtraExtensionsInPlaces},
    {IDC_NO_FTP, &DialogOptions::noFtp},
    {IDC_NO_EXTRA_EXTENSIONS, &DialogOptions::noExtraExtensions},
    {IDC_NO_URLS_ALLOWED, &DialogOptions::noUrlsAllowed},
    {IDC_NO_URL_FILE_TRANSFER, &DialogOptions::noUrlFileTransfer},
};

struct ToolsItem {
    int control;
    NavToolsMenuItem item;
};

constexpr ToolsItem kToolsItems[] = {
    {IDC_TOOLS_FIND, NavToolsFind},
    {IDC_TOOLS_LOCATE, NavToolsLocate},
    {IDC_TOOLS_ITEM_3, NavToolsItem3},
    {IDC_TOOLS_ITEM_4, NavToolsItem4},
    {IDC_TOOLS_ADD_TO_PLACES, NavToolsAddToPlaces},
    {IDC_TOOLS_ADD_TO_FAVORITES, NavToolsAddToFavorites},
};

// The shell's view modes in their order, from 1, behind the choice of none.
constexpr const wchar_t* kViewModes[] = {L"As remembered", L"Large icons", L"Small icons", L"List",
                                         L"Details",       L"Thumbnails",  L"Tiles"};

void exchangeNumber(CDataExchange* exchange, int control, int& number) {
    CString text;
    if (!exchange->m_bSaveAndValidate) {
        text.Format(L"%d", number);
        DDX_Text(exchange, control, text);
        return;
    }
    DDX_Text(exchange, control, text);
    wchar_t* end = nullptr;
    const long read = std::wcstol(text.Trim(), &end, 10);
    if (text.IsEmpty() || *end != L'\0' || read < -1 || read > 999) {
        exchange->m_pDlgWnd->MessageBox(
            L"The index of a file type is a number from 0, or -1 for none.\n"
            L"Correct the field, then try again.",
            nullptr, MB_OK | MB_ICONEXCLAMATION);
        exchange->Fail(static_cast<UINT>(control));
    }
    number = static_cast<int>(read);
}

void exchangeBit(CDataExchange* exchange, int control, unsigned int bit, unsigned int& bits) {
    int set = (bits & bit) != 0;
    DDX_Check(exchange, control, set);
    bits = set ? bits | bit : bits & ~bit;
}

void exchangeViewMode(CDataExchange* exchange, int control, unsigned int& mode) {
    const CWnd& page = *exchange->m_pDlgWnd;
    if (exchange->m_bSaveAndValidate) {
        mode = static_cast<unsigned int>(page.SendDlgItemMessage(control, CB_GETCURSEL));
    } else {
        page.SendDlgItemMessage(control, CB_SETCURSEL, mode);
    }
}

}  // namespace

BOOL OptionPage::OnInitDialog() {
    for (const wchar_t* name : kViewModes) {
        SendDlgItemMessage(IDC_VIEW_MODE, CB_ADDSTRING, 0, reinterpret_cast<LPARAM>(name));
    }
    return CZoUiTabPage::OnInitDialog();
}

void OptionPage::DoDataExchange(CDataExchange* exchange) {
    CZoUiTabPage::DoDataExchange(exchange);
    const auto each = [this](const auto& table, auto exchangeOne) {
        for (const auto& row : table) {
            if (has(static_cast<UINT>(row.control))) {
                exchangeOne(row);
            }
        }
    };
    DialogOptions& options = *m_options;
    each(kTexts, [&](const auto& row) { DDX_Text(exchange, row.control, options.*row.value); });
    each(kNumbers, [&](const auto& row) { exchangeNumber(exchange, row.control, options.*row.value); });
    each(kFlags, [&](const auto& row) { DDX_Check(exchange, row.control, options.*row.value); });
    each(kToolsItems,
         [&](const auto& row) { exchangeBit(exchange, row.control, row.item, options.toolsMenuItemsPresent); });
    if (has(IDC_VIEW_MODE)) {
        exchangeViewMode(exchange, IDC_VIEW_MODE, options.viewMode);
    }
}
