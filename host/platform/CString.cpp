#include <platform/CString.h>

#include <algorithm>
#include <cwctype>
#include <vector>

#include <platform/Resources.h>

namespace {

std::size_t atLeastZero(int count) noexcept {
    return static_cast<std::size_t>(std::max(count, 0));
}

int positionOrNone(std::size_t position) noexcept {
    return position == std::wstring_view::npos ? -1 : static_cast<int>(position);
}

bool isSpace(wchar_t character) noexcept {
    return std::iswspace(character) != 0;
}

}  // namespace

CString::CString(const wchar_t* text, int length)
    : m_text(text != nullptr ? std::wstring(text, atLeastZero(length)) : std::wstring()) {
}

CString::CString(wchar_t character, int repeat) : m_text(atLeastZero(repeat), character) {
}

std::size_t CString::clamped(int position) const noexcept {
    return std::min(atLeastZero(position), m_text.size());
}

wchar_t CString::GetAt(int index) const noexcept {
    return index >= 0 && index < GetLength() ? m_text[static_cast<std::size_t>(index)] : L'\0';
}

void CString::SetAt(int index, wchar_t character) noexcept {
    if (index >= 0 && index < GetLength()) {
        m_text[static_cast<std::size_t>(index)] = character;
    }
}

CString& CString::operator+=(const CString& text) {
    m_text += text.m_text;
    return *this;
}

CString& CString::operator+=(const wchar_t* text) {
    m_text += orEmpty(text);
    return *this;
}

CString& CString::operator+=(wchar_t character) {
    m_text += character;
    return *this;
}

void CString::Append(const wchar_t* text, int length) {
    if (text != nullptr) {
        m_text.append(text, atLeastZero(length));
    }
}

int CString::Compare(const wchar_t* other) const noexcept {
    const auto order = *this <=> other;
    return order < 0 ? -1 : order > 0 ? 1 : 0;
}

int CString::CompareNoCase(const wchar_t* other) const noexcept {
    return CompareStringOrdinal(m_text.c_str(), GetLength(), other != nullptr ? other : L"", -1, TRUE) - CSTR_EQUAL;
}

CString CString::Left(int count) const {
    return CString(view().substr(0, clamped(count)));
}

CString CString::Right(int count) const {
    return CString(view().substr(m_text.size() - clamped(count)));
}

CString CString::Mid(int first) const {
    return CString(view().substr(clamped(first)));
}

CString CString::Mid(int first, int count) const {
    return CString(view().substr(clamped(first), atLeastZero(count)));
}

int CString::Find(wchar_t character, int start) const noexcept {
    return positionOrNone(m_text.find(character, atLeastZero(start)));
}

int CString::Find(const wchar_t* text, int start) const noexcept {
    return positionOrNone(view().find(orEmpty(text), atLeastZero(start)));
}

int CString::ReverseFind(wchar_t character) const noexcept {
    return positionOrNone(m_text.rfind(character));
}

int CString::FindOneOf(const wchar_t* characters) const noexcept {
    return positionOrNone(view().find_first_of(orEmpty(characters)));
}

int CString::Replace(const wchar_t* from, const wchar_t* to) {
    const std::wstring_view searched = orEmpty(from);
    if (searched.empty()) {
        return 0;
    }
    int count = 0;
    std::wstring result;
    std::size_t copied = 0;
    for (std::size_t hit; (hit = m_text.find(searched, copied)) != std::wstring::npos; copied = hit + searched.size()) {
        result.append(m_text, copied, hit - copied).append(orEmpty(to));
        ++count;
    }
    if (count > 0) {
        result.append(m_text, copied);
        m_text = std::move(result);
    }
    return count;
}

int CString::Replace(wchar_t from, wchar_t to) noexcept {
    if (from == to) {
        return 0;
    }
    const auto count = std::count(m_text.begin(), m_text.end(), from);
    std::replace(m_text.begin(), m_text.end(), from, to);
    return static_cast<int>(count);
}

int CString::Remove(wchar_t character) {
    return static_cast<int>(std::erase(m_text, character));
}

int CString::Delete(int index, int count) {
    m_text.erase(clamped(index), atLeastZero(count));
    return GetLength();
}

int CString::Insert(int index, const wchar_t* text) {
    m_text.insert(clamped(index), std::wstring(orEmpty(text)));
    return GetLength();
}

int CString::Insert(int index, wchar_t character) {
    m_text.insert(clamped(index), 1, character);
    return GetLength();
}

template <class Belongs>
CString& CString::trimLeftWhere(Belongs belongs) {
    m_text.erase(m_text.begin(), std::find_if_not(m_text.begin(), m_text.end(), belongs));
    return *this;
}

template <class Belongs>
CString& CString::trimRightWhere(Belongs belongs) {
    m_text.erase(std::find_if_not(m_text.rbegin(), m_text.rend(), belongs).base(), m_text.end());
    return *this;
}

CString& CString::TrimLeft() {
    return trimLeftWhere(isSpace);
}

CString& CString::TrimLeft(const wchar_t* characters) {
    // The set is copied: it may be this string's own text.
    return trimLeftWhere([set = std::wstring(orEmpty(characters))](wchar_t c) { return set.find(c) != set.npos; });
}

CString& CString::TrimLeft(wchar_t character) {
    return trimLeftWhere([character](wchar_t c) { return c == character; });
}

CString& CString::TrimRight() {
    return trimRightWhere(isSpace);
}

CString& CString::TrimRight(const wchar_t* characters) {
    return trimRightWhere([set = std::wstring(orEmpty(characters))](wchar_t c) { return set.find(c) != set.npos; });
}

CString& CString::TrimRight(wchar_t character) {
    return trimRightWhere([character](wchar_t c) { return c == character; });
}

CString& CString::MakeUpper() {
    CharUpperBuffW(m_text.data(), static_cast<DWORD>(m_text.size()));
    return *this;
}

CString& CString::MakeLower() {
    CharLowerBuffW(m_text.data(), static_cast<DWORD>(m_text.size()));
    return *this;
}

void CString::formatArguments(const wchar_t* format, ...) {
    va_list arguments;
    va_start(arguments, format);
    FormatV(format, arguments);
    va_end(arguments);
}

void CString::FormatV(const wchar_t* format, va_list arguments) {
    if (format == nullptr) {
        Empty();
        return;
    }
    // The system library's own functions: in them %s is wide text, which the standard's spelling of them is not.
    va_list counted;
    va_copy(counted, arguments);
    const int length = _vscwprintf(format, counted);
    va_end(counted);
    std::wstring text(atLeastZero(length), L'\0');
    if (length > 0) {
        _vsnwprintf(text.data(), text.size(), format, arguments);
    }
    m_text = std::move(text);
}

CString CString::formatFromTable(UINT id) {
    CString format;
    format.LoadString(id);
    return format;
}

BOOL CString::LoadString(UINT id) {
    return AfxLoadString(id, *this);
}

BOOL CString::LoadString(HINSTANCE module, UINT id) {
    const wchar_t* text = nullptr;
    const int length = ::LoadStringW(module, id, reinterpret_cast<LPWSTR>(&text), 0);
    m_text.assign(text != nullptr ? text : L"", atLeastZero(length));
    return length > 0;
}

wchar_t* CString::GetBuffer(int minimumLength) {
    m_text.resize(std::max(m_text.size(), atLeastZero(minimumLength)));
    return m_text.data();
}

wchar_t* CString::GetBufferSetLength(int length) {
    m_text.resize(atLeastZero(length));
    return m_text.data();
}

void CString::ReleaseBuffer(int length) {
    const std::size_t newLength = length < 0 ? std::wstring_view(m_text.c_str()).size() : clamped(length);
    m_text.resize(newLength);
}
