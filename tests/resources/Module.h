// The built resource modules, and what the tests read out of them.
#pragma once

#include <platform/Windows.h>

#include <string>
#include <vector>

namespace knav::test {

/// One line of ids.h.
struct IdRow {
    const char* name;
    UINT id;
    bool takesArgument;
    bool startsWith(std::string_view prefix) const { return std::string_view(name).starts_with(prefix); }
};

/// Every id of ids.h.
const std::vector<IdRow>& allIds();

/// A resource module, opened for its resources only.
class Module {
public:
    explicit Module(const std::wstring& language);
    ~Module();
    Module(const Module&) = delete;
    Module& operator=(const Module&) = delete;

    HINSTANCE handle() const { return m_handle; }
    bool has(UINT id, const wchar_t* type) const;
    std::wstring text(UINT id) const;
    std::vector<ACCEL> keys() const;
    std::vector<BYTE> bytes(UINT id, const wchar_t* type) const;

private:
    HINSTANCE m_handle;
};

/// The languages that were built: the sub-folders with a module, and "" for the default one.
std::vector<std::wstring> builtLanguages();

/// An entry of a menu: its text with the key behind it, and what it does; 0 for one that opens a menu of its own.
struct Entry {
    std::wstring text;
    UINT id;
};

/// The popups of a menu, the inner ones too, each with its entries but the separators.
std::vector<std::vector<Entry>> popupsOf(const Module& module, UINT menu);

/// A dialog made from a template with another size of type: the size stands in for the resolution, as both change the
/// dialog unit alike (18 points at 96 DPI are 9 points at 192).
class Dialog {
public:
    Dialog(const Module& module, UINT id, int points);
    ~Dialog() { DestroyWindow(m_window); }
    Dialog(const Dialog&) = delete;
    Dialog& operator=(const Dialog&) = delete;

    HWND window() const { return m_window; }
    std::vector<HWND> controls() const;
    /// The client area that the template asks for; the screen of a test run may be too small for it.
    SIZE area() const { return m_area; }

private:
    HWND m_window = nullptr;
    SIZE m_area{};
};

/// The key that "&" marks in a text, upper case; 0 without one.
wchar_t mnemonicOf(const std::wstring& text);

}  // namespace knav::test
