// A hidden window that combo boxes of the tests are children of.
#pragma once

#include <platform/CComboBox.h>
#include <platform/CWnd.h>
#include <string>
#include <vector>

namespace knav::test {

/// Counts what its combo boxes tell it.
class ComboHost {
public:
    static constexpr RECT kPlace{0, 0, 200, 300};

    ComboHost();

    class Window : public CWnd {
    public:
        std::vector<UINT> notified;

    protected:
        BOOL OnCommand(WPARAM wParam, LPARAM lParam) override;
    } window;
};

std::vector<std::wstring> textsOf(const CComboBox& combo);

}  // namespace knav::test
