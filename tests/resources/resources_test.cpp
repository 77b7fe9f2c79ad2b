#include <algorithm>
#include <map>
#include <optional>
#include <set>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "resources/Module.h"
#include "resources/ids.h"
#include "support/Controls.h"
#include "support/Printers.h"

namespace knav::test {
namespace {

class Resources : public testing::TestWithParam<std::wstring> {
protected:
    const Module m_module{GetParam()};
};

INSTANTIATE_TEST_SUITE_P(, Resources, testing::ValuesIn(builtLanguages()), [](const auto& built) {
    return built.param.empty() ? std::string("standard") : utf8(built.param);
});

// The window that the dialog itself makes.
constexpr UINT kMadeByCode[] = {IDC_KNAV_FIND_STATUS};
constexpr UINT kMenus[] = {IDR_KNAV_OK_MENU, IDR_KNAV_TOOLS_MENU, IDR_KNAV_VIEWS_MENU, IDR_KNAV_PLACES_MENU};

std::vector<UINT> dialogIds() {
    std::vector<UINT> ids;
    for (const IdRow& row : allIds()) {
        if (row.startsWith("IDD_"))
            ids.push_back(row.id);
    }
    return ids;
}

bool isThere(const Module& module, const IdRow& row, const std::set<UINT>& controls) {
    if (row.startsWith("IDS_"))
        return !module.text(row.id).empty();
    if (row.startsWith("IDC_"))
        return controls.contains(row.id);
    if (row.startsWith("IDB_"))
        return module.has(row.id, RT_GROUP_ICON);
    if (row.startsWith("IDD_"))
        return module.has(row.id, RT_DIALOG);
    if (row.startsWith("IDR_"))
        return module.has(row.id, row.id == IDR_KNAV_KEYS ? RT_ACCELERATOR : RT_MENU);
    return row.startsWith("IDM_");
}

TEST_P(Resources, EveryIdIsThere) {
    std::set<UINT> controls(std::begin(kMadeByCode), std::end(kMadeByCode));
    for (const UINT id : dialogIds()) {
        const Dialog dialog(m_module, id, 9);
        for (HWND control : dialog.controls())
            controls.insert(static_cast<UINT>(GetDlgCtrlID(control)));
    }
    for (const IdRow& row : allIds()) {
        EXPECT_TRUE(isThere(m_module, row, controls)) << row.name;
    }
    EXPECT_TRUE(FindResourceW(m_module.handle(), L"IDB_KNAV_NEW_FTP_16", RT_GROUP_ICON));
}

// A number means one thing within each kind, so that a wrong look-up cannot find something else.
TEST(ResourceIds, NumbersAreUsedOncePerKind) {
    std::map<std::pair<std::string, UINT>, std::string> seen;
    for (const IdRow& row : allIds()) {
        const auto [other, fresh] = seen.try_emplace({std::string(row.name).substr(0, 4), row.id}, row.name);
        EXPECT_TRUE(fresh) << row.name << " and " << other->second << " are both " << row.id;
    }
    EXPECT_GT(seen.size(), 100u);
}

TEST_P(Resources, TextsTakeTheArgumentThatTheirCallersGive) {
    for (const IdRow& row : allIds()) {
        if (!row.startsWith("IDS_"))
            continue;
        const std::wstring text = m_module.text(row.id);
        EXPECT_EQ(text.find(L"%1") != std::wstring::npos, row.takesArgument) << row.name;
        EXPECT_EQ(std::ranges::count(text, L'%'), row.takesArgument ? 1 : 0) << row.name;
    }
}

// What a menu entry promises at its right edge is what the keys do.
std::string shownKey(const ACCEL& key) {
    const std::string text = key.fVirt & FCONTROL ? "Ctrl+" : "";
    return text + (key.fVirt & FSHIFT ? "Shift+" : "") + static_cast<char>(key.key);
}

TEST_P(Resources, MenuEntriesHaveMnemonicsOfTheirOwnAndShowTheKeysOfTheirCommands) {
    std::map<UINT, std::string> keyOf;
    std::set<std::pair<WORD, BYTE>> used;
    for (const ACCEL& key : m_module.keys()) {
        keyOf[key.cmd] = shownKey(key);
        EXPECT_TRUE(std::ranges::any_of(allIds(), [&](const IdRow& row) {
            return row.startsWith("IDM_") && row.id == key.cmd;
        })) << key.cmd;
        EXPECT_TRUE(used.insert({key.key, static_cast<BYTE>(key.fVirt & 0x7F)}).second) << key.cmd;
        // Keys that type or edit belong to the control with the focus.
        const bool bare = !(key.fVirt & (FCONTROL | FALT));
        EXPECT_TRUE(!bare || (key.key >= VK_F1 && key.key <= VK_F12)) << key.cmd;
    }
    ASSERT_FALSE(keyOf.empty());
    for (const UINT id : kMenus) {
        for (const auto& popup : popupsOf(m_module, id)) {
            std::set<wchar_t> mnemonics;
            for (const Entry& entry : popup) {
                const wchar_t mnemonic = mnemonicOf(entry.text);
                EXPECT_TRUE(mnemonic && mnemonics.insert(mnemonic).second) << id << ": " << utf8(entry.text);
                const size_t tab = entry.text.find(L'\t');
                const std::wstring shown = tab != std::wstring::npos ? entry.text.substr(tab + 1) : L"";
                EXPECT_TRUE(shown.empty() || utf8(shown) == keyOf[entry.id]) << utf8(entry.text);
            }
        }
    }
    for (const UINT item : {IDS_KNAV_FAVORITE_ITEM, IDS_KNAV_FAVORITE_ITEMS}) {
        EXPECT_NE(mnemonicOf(m_module.text(IDS_KNAV_FAVORITE_FOLDER)), mnemonicOf(m_module.text(item)));
    }
}

// Sizes in an icon, as its directory lists them.
std::vector<int> sizesOf(const std::vector<BYTE>& directory) {
    std::vector<int> sizes;
    for (size_t at = 6; at + 14 <= directory.size(); at += 14)
        sizes.push_back(directory[at]);
    return sizes;
}

// The alpha values of an icon, pixel by pixel.
std::vector<BYTE> alphaOf(HICON icon, int size) {
    ICONINFO parts{};
    BITMAP colour{};
    if (!GetIconInfo(icon, &parts) || !GetObjectW(parts.hbmColor, sizeof colour, &colour) || colour.bmWidth != size)
        return {};
    const zoui::UniqueBitmap picture(parts.hbmColor);
    const zoui::UniqueBitmap mask(parts.hbmMask);
    std::vector<BYTE> bytes(static_cast<size_t>(size * size * 4));
    GetBitmapBits(parts.hbmColor, size * size * 4, bytes.data());
    std::vector<BYTE> alpha;
    for (size_t at = 3; at < bytes.size(); at += 4)
        alpha.push_back(bytes[at]);
    return alpha;
}

TEST_P(Resources, PicturesHaveEverySizeWithAlpha) {
    for (const IdRow& row : allIds()) {
        if (!row.startsWith("IDB_"))
            continue;
        SCOPED_TRACE(row.name);
        const std::vector<int> sizes = sizesOf(m_module.bytes(row.id, RT_GROUP_ICON));
        EXPECT_THAT(sizes, testing::AnyOf(testing::ElementsAre(16, 20, 24, 32), testing::ElementsAre(32, 40, 48, 64)));
        for (const int size : sizes) {
            const zoui::UniqueIcon icon(static_cast<HICON>(
                LoadImageW(m_module.handle(), MAKEINTRESOURCEW(row.id), IMAGE_ICON, size, size, LR_DEFAULTCOLOR)));
            EXPECT_THAT(alphaOf(icon.get(), size), testing::IsSupersetOf({0, 255})) << size;
        }
    }
}

// --- dialogs ---------------------------------------------------------------------------------------------------

bool shown(HWND control) {
    return (GetWindowLongW(control, GWL_STYLE) & WS_VISIBLE) != 0;
}

// What a control needs besides its text; nothing for a picture button, which does not draw it.
std::optional<int> extraWidth(HWND control) {
    const LONG style = GetWindowLongW(control, GWL_STYLE);
    if (classOf(control) == L"Static")
        return 0;
    if (classOf(control) != L"Button")
        return std::nullopt;
    switch (style & BS_TYPEMASK) {
        case BS_OWNERDRAW:
            return std::nullopt;
        case BS_PUSHBUTTON:
        case BS_DEFPUSHBUTTON:
            return 2 * GetSystemMetrics(SM_CXEDGE) + 8;
        default:
            return GetSystemMetrics(SM_CXMENUCHECK) + 6;
    }
}

// 96, 117, 149 and 192 DPI, by their dialog units.
constexpr int kPointSizes[] = {9, 11, 14, 18};

TEST_P(Resources, NoControlIsClippedOrCovered) {
    for (const UINT id : dialogIds()) {
        for (const int points : kPointSizes) {
            SCOPED_TRACE(std::to_string(id) + " at " + std::to_string(points) + " points");
            const Dialog dialog(m_module, id, points);
            const SIZE area = dialog.area();
            const bool mirrored = (GetWindowLongW(dialog.window(), GWL_EXSTYLE) & WS_EX_LAYOUTRTL) != 0;
            EXPECT_EQ(mirrored, GetParam() == L"xr") << "read from the right";
            std::vector<std::pair<RECT, std::string>> placed;
            for (HWND control : dialog.controls()) {
                // An up-down control lies over its field on purpose.
                if (!shown(control) || classOf(control) == UPDOWN_CLASSW)
                    continue;
                const std::string name = std::to_string(GetDlgCtrlID(control)) + " " + utf8(textOf(control));
                const RECT at = rectIn(dialog.window(), control);
                if (const auto extra = extraWidth(control)) {
                    EXPECT_LE(extentOf(control).cx + *extra, at.right - at.left) << name;
                    EXPECT_LE(extentOf(control).cy, at.bottom - at.top) << name;
                }
                EXPECT_TRUE(at.left > 0 && at.top > 0 && at.right < area.cx && at.bottom < area.cy) << name;
                for (const auto& [other, otherName] : placed) {
                    RECT common;
                    EXPECT_FALSE(IntersectRect(&common, &at, &other)) << name << " covers " << otherName;
                }
                placed.emplace_back(at, name);
            }
        }
    }
}

// The pages of the Find dialog are on screen together with its frame.
TEST_P(Resources, DialogMnemonicsAreUnique) {
    const std::vector<std::vector<UINT>> together{{IDD_KNAV},
                                                  {IDD_KNAV_PLACE},
                                                  {IDD_KNAV_FTP},
                                                  {IDD_KNAV_FIND, IDD_KNAV_FIND_NAME},
                                                  {IDD_KNAV_FIND, IDD_KNAV_FIND_DATE},
                                                  {IDD_KNAV_FIND_FOLDER}};
    for (const auto& ids : together) {
        std::map<wchar_t, std::string> used;
        for (const UINT id : ids) {
            const Dialog dialog(m_module, id, 9);
            for (HWND control : dialog.controls()) {
                const std::wstring text = textOf(control);
                if (const wchar_t key = mnemonicOf(text)) {
                    const auto [other, fresh] = used.try_emplace(key, utf8(text));
                    EXPECT_TRUE(fresh) << id << ": " << utf8(text) << " and " << other->second;
                }
            }
        }
        EXPECT_FALSE(used.empty()) << ids.front();
    }
}

}  // namespace
}  // namespace knav::test
