// A million texts each that only look like URLs and paths, from fixed seeds.
#include <knav/CNavPathname.h>
#include <knav/NavUrl.h>

#include <random>

#include "data/SiteHierarchy.h"
#include "shell/SiteLocation.h"
#include "shell/TextRules.h"
#include "support/AllocationSpy.h"
#include "support/Printers.h"

namespace {

using knav::test::AllocationSpy;
using knav::test::SiteHierarchy;
using knav::test::utf8;

// Makes texts that look a little like locations.
class Scrambler {
public:
    explicit Scrambler(unsigned seed) : m_random(seed) {}

    std::wstring text(std::size_t longest) {
        constexpr std::wstring_view letters = L"abx:/\\/\\..  *?\"%~\u00C4\xD83D\xFFFF\x1";
        std::wstring made;
        for (std::size_t length = pick(longest + 1); made.size() < length;) {
            switch (pick(12)) {
                case 0:
                    made += L"ftp://";
                    break;
                case 1:
                    made += L"/..";
                    break;
                default:
                    made += letters[pick(letters.size())];
            }
        }
        return made;
    }

private:
    std::size_t pick(std::size_t count) { return m_random() % count; }

    std::mt19937 m_random;
};

constexpr int kRounds = 1'000'000;

// Mostly short texts, and now and then one that is longer than any path may be.
std::wstring scrambled(Scrambler& scrambler, int round, std::size_t usual = 24) {
    return scrambler.text(round % 64 != 0 ? usual : 700);
}

CString fullPath(const CNavPathname& pathname) {
    CString path;
    pathname.GetFullPath(path);
    return path;
}

TEST(HostileText, UrlsAreToldAndDecoded) {
    Scrambler scrambler(31);
    int urls = 0;
    for (int round = 0; round < kRounds; ++round) {
        CString text = scrambled(scrambler, round);
        CString decoded = L"old";
        const bool isDecoded = NavDecodeURL(text, decoded) != 0;
        const bool isUrl = NavIsURL(text) != 0;
        ASSERT_TRUE(isDecoded ? isUrl && decoded.GetLength() < MAX_PATH : decoded == text) << utf8(text.view());
        CString inPlace = text;
        ASSERT_TRUE((NavDecodeURL(inPlace, inPlace) != 0) == isDecoded && inPlace == decoded) << utf8(text.view());
        ASSERT_TRUE(!isUrl || text.Find(L':') > 0) << utf8(text.view());
        ASSERT_TRUE(!isUrl || !NavIsUNCPath(text));
        urls += isUrl;
    }
    EXPECT_GT(urls, 10'000);
}

TEST(HostileText, LocationsStayInTheirSite) {
    Scrambler scrambler(32);
    int canonicalised = 0;
    for (int round = 0; round < kRounds; ++round) {
        const std::wstring location = scrambled(scrambler, round);
        const std::optional<std::wstring> canonical = knav::canonicalLocation(location);
        if (!canonical) {
            continue;
        }
        ++canonicalised;
        const std::wstring prefix(knav::sitePrefix(location));
        ASSERT_LT(canonical->size(), std::size_t{MAX_PATH});
        ASSERT_TRUE(canonical->size() == prefix.size() || (*canonical)[prefix.size()] == L'/')
            << utf8(location) << " became " << utf8(*canonical);
        ASSERT_EQ(canonical->find(L'\\'), std::wstring::npos);
        const bool plainDots = location.find(L"...") == std::wstring::npos;  // the path functions stumble over more
        ASSERT_TRUE(!plainDots || (*canonical + L'/').find(L"/../", prefix.size()) == std::wstring::npos)
            << utf8(location) << " became " << utf8(*canonical);
    }
    EXPECT_GT(canonicalised, 100'000);
}

TEST(HostileText, PathNamesTakeAnything) {
    Scrambler scrambler(33);
    int paths = 0;
    const LONG before = AllocationSpy::live();
    for (int round = 0; round < kRounds; ++round) {
        const std::wstring text = scrambled(scrambler, round, 64);  // few of them are paths, which ask the disk
        CNavPathname pathname;
        const PathErr result = pathname.Parse(text.c_str(), round % 2 != 0);
        ASSERT_TRUE(!pathname.GetIsURL() || fullPath(pathname) == text.c_str());
        ASSERT_EQ(result == PathErr::None, pathname.GetPathString() != nullptr) << utf8(text);
        paths += result == PathErr::None;
        wchar_t out[MAX_PATH + 1];
        out[MAX_PATH] = L'!';
        if (round % 4 == 0) {
            pathname.NavPathCanonicalize(out, text.c_str());
            ASSERT_EQ(out[MAX_PATH], L'!');
        }
        CString part;
        pathname.GetServerName(part);
        pathname.GetBasename(part);
    }
    EXPECT_GT(paths, 10'000);
    EXPECT_EQ(AllocationSpy::live(), before);
}

TEST(HostileText, TypedTextsNeverLeaveTheSite) {
    Scrambler scrambler(34);
    SiteHierarchy hierarchy(NavNodeExtensionRoot, L"ftp://host/home");
    int inside = 0;
    const LONG before = AllocationSpy::live();
    for (int round = 0; round < kRounds / 5; ++round) {
        const std::wstring text = scrambled(scrambler, round);
        CNavPathname pathname;
        const PathErr result = pathname.ParseRelative(text.c_str(), nullptr, &hierarchy.item, 1);
        if (result != PathErr::None || !pathname.GetIsExtension()) {
            continue;
        }
        ++inside;
        const CString location = fullPath(pathname);
        ASSERT_LT(location.GetLength(), MAX_PATH);
        ASSERT_TRUE(location == L"ftp://host" || location.Left(11) == L"ftp://host/") << utf8(text);
    }
    EXPECT_GT(inside, 50'000);
    EXPECT_EQ(AllocationSpy::live(), before);
}

}  // namespace
