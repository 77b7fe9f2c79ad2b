// A network provider that the platform's network functions load: a small network of servers that behave in different
// ways.
//
//   \\knavtest   has the share "plans"
//   \\knavbare   has no shares
//   \\knavslow   never answers
//
// Every other server is unknown.
#include <windows.h>
// Needs windows.h first and has no linkage of its own.
extern "C" {
#include <npapi.h>
}

#include <algorithm>
#include <cwchar>
#include <mutex>
#include <new>
#include <string>
#include <string_view>

namespace {

std::mutex g_mutex;
std::wstring g_questions;

struct Name {
    std::wstring server;
    std::wstring share;
};

Name split(std::wstring_view text) {
    text.remove_prefix(std::min<std::size_t>(text.size(), 2));
    const std::size_t serverEnd = std::min(text.find(L'\\'), text.size());
    const std::wstring_view rest = text.substr(std::min(serverEnd + 1, text.size()));
    return {std::wstring(text.substr(0, serverEnd)), std::wstring(rest.substr(0, rest.find(L'\\')))};
}

bool same(std::wstring_view a, std::wstring_view b) {
    return a.size() == b.size() && _wcsnicmp(a.data(), b.data(), a.size()) == 0;
}

void note(const wchar_t* verb, const wchar_t* name) {
    const std::scoped_lock lock(g_mutex);
    g_questions += std::wstring(verb) + L" " + name + L"\n";
}

DWORD answerOf(const std::wstring& server) {
    if (same(server, L"knavslow")) {
        Sleep(INFINITE);
    }
    return same(server, L"knavtest") || same(server, L"knavbare") ? WN_SUCCESS : ERROR_BAD_NETPATH;
}

struct Enumeration {
    std::wstring server;
    bool ended = false;
};

}  // namespace

/// What was asked so far, one question a line, into `text`; starts anew.
extern "C" void TakeQuestions(wchar_t* text, std::size_t room) {
    const std::scoped_lock lock(g_mutex);
    wcsncpy(text, g_questions.c_str(), room - 1);
    text[room - 1] = L'\0';
    g_questions.clear();
}

extern "C" DWORD WINAPI NPGetCaps(DWORD index) {
    switch (index) {
        case WNNC_SPEC_VERSION:
            return WNNC_SPEC_VERSION51;
        case WNNC_START:
            return WNNC_WAIT_FOR_START;
        case WNNC_ENUMERATION:
            return WNNC_ENUM_GLOBAL;
        case WNNC_DIALOG:
            return WNNC_DLG_GETRESOURCEINFORMATION;
        default:
            return 0;
    }
}

extern "C" DWORD WINAPI NPOpenEnum(DWORD scope, DWORD, DWORD, LPNETRESOURCEW container, LPHANDLE handle) {
    if (scope != RESOURCE_GLOBALNET) {
        return WN_NOT_SUPPORTED;
    }
    if (!container || !container->lpRemoteName) {
        return WN_BAD_NETNAME;
    }
    note(L"list", container->lpRemoteName);
    const Name name = split(container->lpRemoteName);
    if (const DWORD error = answerOf(name.server); error != WN_SUCCESS) {
        return error;
    }
    *handle = new (std::nothrow) Enumeration{name.server};
    return *handle ? WN_SUCCESS : WN_OUT_OF_MEMORY;
}

extern "C" DWORD WINAPI NPEnumResource(HANDLE handle, LPDWORD count, LPVOID buffer, LPDWORD) {
    auto& all = *static_cast<Enumeration*>(handle);
    if (!same(all.server, L"knavtest") || all.ended) {
        return WN_NO_MORE_ENTRIES;
    }
    all.ended = true;
    static wchar_t share[] = L"\\\\knavtest\\plans";
    static wchar_t provider[] = L"Test network";
    static wchar_t nothing[] = L"";
    *static_cast<NETRESOURCEW*>(buffer) = {RESOURCE_GLOBALNET,
                                           RESOURCETYPE_DISK,
                                           RESOURCEDISPLAYTYPE_SHARE,
                                           RESOURCEUSAGE_CONNECTABLE,
                                           nothing,
                                           share,
                                           nothing,
                                           provider};
    *count = 1;
    return WN_SUCCESS;
}

extern "C" DWORD WINAPI NPCloseEnum(HANDLE handle) {
    delete static_cast<Enumeration*>(handle);
    return WN_SUCCESS;
}

extern "C" DWORD WINAPI NPGetResourceInformation(LPNETRESOURCEW asked, LPVOID buffer, LPDWORD, LPWSTR* rest) {
    note(L"find", asked->lpRemoteName);
    const Name name = split(asked->lpRemoteName);
    if (const DWORD error = answerOf(name.server); error != WN_SUCCESS) {
        return error;
    }
    if (!name.share.empty() && !same(name.share, L"plans")) {
        return WN_BAD_NETNAME;
    }
    auto& found = *static_cast<NETRESOURCEW*>(buffer);
    found = {};
    found.dwScope = RESOURCE_GLOBALNET;
    found.dwType = RESOURCETYPE_DISK;
    found.dwDisplayType = name.share.empty() ? RESOURCEDISPLAYTYPE_SERVER : RESOURCEDISPLAYTYPE_SHARE;
    found.lpRemoteName = asked->lpRemoteName;
    *rest = nullptr;
    return WN_SUCCESS;
}
