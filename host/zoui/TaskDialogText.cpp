#include "zoui/TaskDialogText.h"

#include <xmllite.h>

#include <algorithm>
#include <array>
#include <memory>

namespace zoui {
namespace {

struct ReleaseInterface {
    void operator()(IUnknown* object) const noexcept { object->Release(); }
};
template <class Interface>
using OwnedInterface = std::unique_ptr<Interface, ReleaseInterface>;

constexpr wchar_t kNamespace[] = L"urn:kelvara:task-dialogs";

struct IconName {
    const wchar_t* name;
    TaskDialogIcon icon;
};
constexpr std::array kIcons = {IconName{L"None", TaskDialogIcon::None},
                               IconName{L"Information", TaskDialogIcon::Information},
                               IconName{L"Warning", TaskDialogIcon::Warning}, IconName{L"Error", TaskDialogIcon::Error},
                               IconName{L"Shield", TaskDialogIcon::Shield}};

struct ButtonName {
    const wchar_t* name;
    TASKDIALOG_COMMON_BUTTON_FLAGS flag;
    int id;
};
constexpr std::array kButtons = {
    ButtonName{L"Ok", TDCBF_OK_BUTTON, IDOK},          ButtonName{L"Cancel", TDCBF_CANCEL_BUTTON, IDCANCEL},
    ButtonName{L"Yes", TDCBF_YES_BUTTON, IDYES},       ButtonName{L"No", TDCBF_NO_BUTTON, IDNO},
    ButtonName{L"Retry", TDCBF_RETRY_BUTTON, IDRETRY}, ButtonName{L"Close", TDCBF_CLOSE_BUTTON, IDCLOSE}};

template <class Row, std::size_t Count>
const Row* findByName(const std::array<Row, Count>& rows, const CString& name) noexcept {
    const auto row = std::ranges::find_if(rows, [&name](const Row& r) { return name == r.name; });
    return row != rows.end() ? &*row : nullptr;
}

// XmlLite has no import library everywhere, and few programs ever show a task dialog.
OwnedInterface<IXmlReader> createReader() {
    using Create = HRESULT(WINAPI*)(REFIID, void**, IMalloc*);
    static const HMODULE module = LoadLibraryExW(L"xmllite.dll", nullptr, LOAD_LIBRARY_SEARCH_SYSTEM32);
    const auto create =
        module != nullptr ? reinterpret_cast<Create>(reinterpret_cast<void*>(GetProcAddress(module, "CreateXmlReader")))
                          : nullptr;
    void* reader = nullptr;
    if (create == nullptr || FAILED(create(__uuidof(IXmlReader), &reader, nullptr))) {
        return nullptr;
    }
    return OwnedInterface<IXmlReader>(static_cast<IXmlReader*>(reader));
}

// Thrown where the file is not what it has to be; never leaves readTaskDialog.
struct Damaged {};

void require(bool condition) {
    if (!condition) {
        throw Damaged{};
    }
}

// Walks a file of task dialogs from one node to the next.
class Reader {
public:
    explicit Reader(std::string_view xml) : m_reader(createReader()) {
        require(m_reader != nullptr);
        m_stream.reset(SHCreateMemStream(reinterpret_cast<const BYTE*>(xml.data()), static_cast<UINT>(xml.size())));
        require(m_stream != nullptr && SUCCEEDED(m_reader->SetInput(m_stream.get())) &&
                SUCCEEDED(m_reader->SetProperty(XmlReaderProperty_DtdProcessing, DtdProcessing_Prohibit)));
    }

    // The next node that says anything; false at the end of the file.
    bool next() {
        do {
            const HRESULT result = m_reader->Read(&m_type);
            require(SUCCEEDED(result));
            if (result != S_OK) {
                return false;
            }
        } while (m_type == XmlNodeType_Comment || m_type == XmlNodeType_Whitespace ||
                 m_type == XmlNodeType_XmlDeclaration);
        return true;
    }

    bool isElement() const noexcept { return m_type == XmlNodeType_Element; }
    bool isEndElement() const noexcept { return m_type == XmlNodeType_EndElement; }
    bool isText() const noexcept { return m_type == XmlNodeType_Text || m_type == XmlNodeType_CDATA; }
    bool isEmptyElement() { return m_reader->IsEmptyElement() != FALSE; }

    CString localName() { return text(&IXmlReader::GetLocalName); }
    CString namespaceUri() { return text(&IXmlReader::GetNamespaceUri); }
    CString value() { return text(&IXmlReader::GetValue); }

    // Calls `take(name, value)` for each attribute and stands on the element again.
    template <class Take>
    void forAttributes(Take take) {
        for (HRESULT moved = m_reader->MoveToFirstAttribute(); moved == S_OK; moved = m_reader->MoveToNextAttribute()) {
            if (namespaceUri() != L"http://www.w3.org/2000/xmlns/") {
                take(localName(), value());
            }
        }
        m_reader->MoveToElement();
    }

private:
    using Getter = HRESULT (STDMETHODCALLTYPE IXmlReader::*)(const WCHAR**, UINT*);
    CString text(Getter get) {
        const wchar_t* characters = nullptr;
        UINT length = 0;
        require(SUCCEEDED((m_reader.get()->*get)(&characters, &length)));
        return CString(characters, static_cast<int>(length));
    }

    OwnedInterface<IStream> m_stream;
    OwnedInterface<IXmlReader> m_reader;
    XmlNodeType m_type = XmlNodeType_None;
};

template <class Row, std::size_t Count>
const Row& named(const std::array<Row, Count>& rows, const CString& name) {
    const Row* const row = findByName(rows, name);
    require(row != nullptr);
    return *row;
}

TASKDIALOG_COMMON_BUTTON_FLAGS buttonsFrom(const CString& names) {
    int flags = 0;
    for (int start = 0; start < names.GetLength();) {
        const int blank = names.Find(L' ', start);
        const int end = blank >= 0 ? blank : names.GetLength();
        if (end > start) {
            flags |= named(kButtons, names.Mid(start, end - start)).flag;
        }
        start = end + 1;
    }
    require(flags != 0);
    return static_cast<TASKDIALOG_COMMON_BUTTON_FLAGS>(flags);
}

void takeAttribute(TaskDialogText& dialog, const CString& name, const CString& value) {
    if (name == L"Name") {
        dialog.name = value;
    } else if (name == L"Title") {
        dialog.title = value;
    } else if (name == L"Icon") {
        dialog.icon = named(kIcons, value).icon;
    } else if (name == L"Buttons") {
        dialog.buttons = buttonsFrom(value);
    } else if (name == L"DefaultButton") {
        dialog.defaultButton = named(kButtons, value).id;
    } else {
        throw Damaged{};
    }
}

// The reader stands on an element that holds nothing but text; afterwards on its end. Line ends and the blanks of the
// indentation count as one blank.
CString readText(Reader& reader) {
    CString text;
    if (reader.isEmptyElement()) {
        return text;
    }
    while (reader.next() && !reader.isEndElement()) {
        require(reader.isText());
        text += reader.value();
    }
    require(reader.isEndElement());
    CString plain;
    for (const wchar_t c : text.Trim().view()) {
        const bool isBlank = c == L' ' || c == L'\t' || c == L'\n' || c == L'\r';
        if (!isBlank) {
            plain += c;
        } else if (plain[plain.GetLength() - 1] != L' ') {
            plain += L' ';
        }
    }
    return plain;
}

TaskDialogText readDialog(Reader& reader) {
    TaskDialogText dialog;
    reader.forAttributes([&dialog](const CString& name, const CString& value) { takeAttribute(dialog, name, value); });
    require(!dialog.name.IsEmpty() && !reader.isEmptyElement());
    while (reader.next() && !reader.isEndElement()) {
        require(reader.isElement() && reader.namespaceUri() == kNamespace);
        const CString part = reader.localName();
        require(part == L"MainInstruction" || part == L"Content");
        (part == L"Content" ? dialog.content : dialog.mainInstruction) = readText(reader);
    }
    require(!dialog.mainInstruction.IsEmpty());
    return dialog;
}

// Reads to the end, so that a file with a damaged tail is noticed by whoever wrote it.
std::optional<TaskDialogText> findDialog(Reader& reader, const wchar_t* name) {
    std::optional<TaskDialogText> found;
    require(reader.next() && reader.isElement() && reader.localName() == L"TaskDialogs" &&
            reader.namespaceUri() == kNamespace && !reader.isEmptyElement());
    while (reader.next() && !reader.isEndElement()) {
        require(reader.isElement() && reader.localName() == L"TaskDialog" && reader.namespaceUri() == kNamespace);
        TaskDialogText dialog = readDialog(reader);
        if (!found && dialog.name == name) {
            found = std::move(dialog);
        }
    }
    require(!reader.next());
    return found;
}

}  // namespace

std::optional<TaskDialogText> readTaskDialog(std::string_view xml, const wchar_t* name) try {
    Reader reader(xml);
    return findDialog(reader, name);
} catch (const Damaged&) {
    return std::nullopt;
}

CString filledIn(const CString& text, const std::vector<std::pair<CString, CString>>& values) {
    CString result;
    int position = 0;
    for (;;) {
        const int open = text.Find(L'{', position);
        const int close = open >= 0 ? text.Find(L'}', open) : -1;
        if (close < 0) {
            return result + text.Mid(position);
        }
        result += text.Mid(position, open - position);
        const CString key = text.Mid(open + 1, close - open - 1);
        const auto pair = std::ranges::find_if(values, [&key](const auto& value) { return value.first == key; });
        if (pair != values.end()) {
            result += pair->second;
        }
        position = close + 1;
    }
}

}  // namespace zoui
