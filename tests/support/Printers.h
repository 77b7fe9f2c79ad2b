// How a failed expectation shows the project's values.
#pragma once

#include <gtest/gtest.h>

#include <platform/CString.h>

#include <ostream>

namespace knav::test {

/// `text` in UTF-8.
std::string utf8(std::wstring_view text);

}  // namespace knav::test

// Found by argument-dependent lookup, so it lives where CString lives.
inline void PrintTo(const CString& text, std::ostream* out) {
    *out << '"' << knav::test::utf8(text.view()) << '"';
}
