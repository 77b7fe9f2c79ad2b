// The framework's wide (UTF-16) string: a value type whose indices and lengths are int.
#pragma once

#include <compare>
#include <cstdarg>
#include <string>
#include <string_view>
#include <utility>

#include <platform/Windows.h>
#include <platform/export.h>

// Null pointers are read as empty text everywhere. Positions outside the text are clamped unless a function says
// otherwise; -1 means "not found". May throw std::bad_alloc. Distinct objects may be used on distinct threads.
class ZOUI_API CString {
public:
    CString() noexcept = default;
    CString(const wchar_t* text) : m_text(orEmpty(text)) {}
    CString(const wchar_t* text, int length);  // `length` characters, embedded terminators included; negative is 0
    CString(std::wstring_view text) : m_text(text) {}
    CString(const std::wstring& text) : m_text(text) {}
    explicit CString(wchar_t character, int repeat = 1);

    int GetLength() const noexcept { return static_cast<int>(m_text.size()); }
    bool IsEmpty() const noexcept { return m_text.empty(); }
    void Empty() noexcept { m_text.clear(); }

    // The text, terminated; valid until the next change of this object.
    operator const wchar_t*() const noexcept { return m_text.c_str(); }
    const wchar_t* GetString() const noexcept { return m_text.c_str(); }
    std::wstring_view view() const noexcept { return m_text; }

    // A character; 0 outside the text. SetAt ignores a position outside it.
    wchar_t GetAt(int index) const noexcept;
    wchar_t operator[](int index) const noexcept { return GetAt(index); }
    void SetAt(int index, wchar_t character) noexcept;

    CString& operator+=(const CString& text);
    CString& operator+=(const wchar_t* text);
    CString& operator+=(wchar_t character);
    void Append(const wchar_t* text, int length);

    // Order by code unit, or with upper and lower case equal in every language. Negative, 0 or positive.
    int Compare(const wchar_t* other) const noexcept;
    int CompareNoCase(const wchar_t* other) const noexcept;

    CString Left(int count) const;
    CString Right(int count) const;
    CString Mid(int first) const;
    CString Mid(int first, int count) const;

    // Case-sensitive searches from `start` on. Empty text is found at `start` itself.
    int Find(wchar_t character, int start = 0) const noexcept;
    int Find(const wchar_t* text, int start = 0) const noexcept;
    int ReverseFind(wchar_t character) const noexcept;
    int FindOneOf(const wchar_t* characters) const noexcept;

    // Replaced or removed occurrences are counted; replaced text is not searched again; empty `from` replaces nothing.
    int Replace(const wchar_t* from, const wchar_t* to);
    int Replace(wchar_t from, wchar_t to) noexcept;
    int Remove(wchar_t character);

    // Both return the new length.
    int Delete(int index, int count = 1);
    int Insert(int index, const wchar_t* text);
    int Insert(int index, wchar_t character);

    // Cut white space, one character, or any of a set of characters.
    CString& TrimLeft();
    CString& TrimLeft(const wchar_t* characters);
    CString& TrimLeft(wchar_t character);
    CString& TrimRight();
    CString& TrimRight(const wchar_t* characters);
    CString& TrimRight(wchar_t character);
    CString& Trim() { return TrimRight().TrimLeft(); }
    CString& Trim(const wchar_t* characters) { return TrimRight(characters).TrimLeft(characters); }
    CString& Trim(wchar_t character) { return TrimRight(character).TrimLeft(character); }

    CString& MakeUpper();
    CString& MakeLower();

    // printf formatting, %s is wide text. CString arguments may be passed as they are. A format from the string
    // table is named by its id; a missing one gives empty text. The arguments may refer to this string.
    template <class... Arguments>
    void Format(const wchar_t* format, const Arguments&... arguments) {
        formatArguments(format, formatArgument(arguments)...);
    }
    template <class... Arguments>
    void Format(UINT id, const Arguments&... arguments) {
        formatArguments(formatFromTable(id), formatArgument(arguments)...);
    }
    void FormatV(const wchar_t* format, va_list arguments);

    // Take the text of a string resource. The first form searches the resource modules (see Resources.h). FALSE and
    // empty text when there is none.
    BOOL LoadString(UINT id);
    BOOL LoadString(HINSTANCE module, UINT id);

    // Room for at least `minimumLength` characters and a terminator, to be written by foreign code. ReleaseBuffer ends
    // it: the text is then cut at `length`, or at the first terminator for -1. No other operation in between.
    wchar_t* GetBuffer(int minimumLength = 0);
    wchar_t* GetBufferSetLength(int length);
    void ReleaseBuffer(int length = -1);

    bool operator==(const CString& other) const noexcept { return m_text == other.m_text; }
    bool operator==(const wchar_t* other) const noexcept { return m_text == orEmpty(other); }
    std::strong_ordering operator<=>(const CString& other) const noexcept { return m_text <=> other.m_text; }
    std::strong_ordering operator<=>(const wchar_t* other) const noexcept { return view() <=> orEmpty(other); }

private:
    static std::wstring_view orEmpty(const wchar_t* text) noexcept { return text != nullptr ? text : L""; }
    template <class Argument>
    static decltype(auto) formatArgument(const Argument& argument) noexcept {
        if constexpr (std::is_same_v<Argument, CString>) {
            return argument.GetString();
        } else if constexpr (std::is_array_v<Argument>) {
            return static_cast<const std::remove_extent_t<Argument>*>(argument);
        } else {
            return Argument(argument);
        }
    }
    static CString formatFromTable(UINT id);
    void formatArguments(const wchar_t* format, ...);
    template <class Belongs>
    CString& trimLeftWhere(Belongs belongs);
    template <class Belongs>
    CString& trimRightWhere(Belongs belongs);
    std::size_t clamped(int position) const noexcept;

    std::wstring m_text;
};

inline CString operator+(CString left, const CString& right) {
    return std::move(left += right);
}
inline CString operator+(CString left, const wchar_t* right) {
    return std::move(left += right);
}
inline CString operator+(CString left, wchar_t right) {
    return std::move(left += right);
}
inline CString operator+(const wchar_t* left, const CString& right) {
    return CString(left) += right;
}
inline CString operator+(wchar_t left, const CString& right) {
    return CString(left) += right;
}
