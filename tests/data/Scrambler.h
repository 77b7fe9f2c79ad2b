// Texts that look a little like locations, from a fixed seed.
#pragma once

#include <random>
#include <string>
#include <string_view>

namespace knav::test {

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

}  // namespace knav::test
