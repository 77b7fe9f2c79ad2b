#include <ry/ryReg.h>

#include <cwchar>
#include <memory>
#include <new>

namespace {

// Runs `body`; a lack of memory becomes an error code.
template <class Body>
LONG withoutThrowing(Body&& body) noexcept {
    try {
        return body();
    } catch (...) {
        return ERROR_OUTOFMEMORY;
    }
}

bool isTooLong(const wchar_t* text, DWORD limit) noexcept {
    return std::wcslen(text) > limit;
}

}  // namespace

LONG ryRegOpenKeyEx(HKEY parent, const wchar_t* subKey, REGSAM access, HKEY* key) noexcept {
    if (key == nullptr) {
        return ERROR_INVALID_PARAMETER;
    }
    HKEY opened = nullptr;
    const LONG error = RegOpenKeyExW(parent, subKey, 0, access, &opened);
    if (error == ERROR_SUCCESS) {
        *key = opened;
    }
    return error;
}

LONG ryRegCreateKeyEx(HKEY parent, const wchar_t* subKey, REGSAM access, HKEY* key) noexcept {
    if (key == nullptr || subKey == nullptr) {
        return ERROR_INVALID_PARAMETER;
    }
    HKEY created = nullptr;
    const LONG error =
        RegCreateKeyExW(parent, subKey, 0, nullptr, REG_OPTION_NON_VOLATILE, access, nullptr, &created, nullptr);
    if (error == ERROR_SUCCESS) {
        *key = created;
    }
    return error;
}

LONG ryRegGetValue(HKEY key, const wchar_t* name, CString& value) noexcept {
    constexpr DWORD kTextOnly = RRF_RT_REG_SZ | RRF_RT_REG_EXPAND_SZ | RRF_NOEXPAND;
    return withoutThrowing([&]() -> LONG {
        constexpr DWORD kMaxBytes = (ryRegMaxText + 1) * sizeof(wchar_t);
        DWORD bytes = 0;
        DWORD type = REG_NONE;
        LONG error = RegQueryValueExW(key, name, nullptr, &type, nullptr, &bytes);
        if (error != ERROR_SUCCESS) {
            return error;
        }
        if (type != REG_SZ && type != REG_EXPAND_SZ) {
            return ERROR_UNSUPPORTED_TYPE;
        }
        if (bytes % sizeof(wchar_t) != 0) {
            return ERROR_INVALID_DATA;
        }
        if (bytes > kMaxBytes) {
            return ERROR_MORE_DATA;
        }
        // One character more than is stored: RegGetValue terminates text that was stored without its terminator.
        DWORD room = bytes + sizeof(wchar_t);
        const auto text = std::make_unique<wchar_t[]>(room / sizeof(wchar_t));
        error = RegGetValueW(key, nullptr, name, kTextOnly, nullptr, text.get(), &room);
        if (error != ERROR_SUCCESS) {
            return error;
        }
        if (isTooLong(text.get(), ryRegMaxText)) {
            return ERROR_MORE_DATA;
        }
        value = text.get();
        return ERROR_SUCCESS;
    });
}

LONG ryRegGetValue(HKEY key, const wchar_t* name, DWORD& value) noexcept {
    DWORD read = 0;
    DWORD bytes = sizeof(read);
    DWORD type = REG_NONE;
    const LONG error = RegQueryValueExW(key, name, nullptr, &type, reinterpret_cast<BYTE*>(&read), &bytes);
    if (error != ERROR_SUCCESS && error != ERROR_MORE_DATA) {
        return error;
    }
    if (type != REG_DWORD) {
        return ERROR_UNSUPPORTED_TYPE;
    }
    if (error == ERROR_MORE_DATA || bytes != sizeof(read)) {
        return ERROR_INVALID_DATA;
    }
    value = read;
    return ERROR_SUCCESS;
}

LONG ryRegSetValue(HKEY key, const wchar_t* name, const CString& value) noexcept {
    const std::size_t length = std::wcslen(value);
    if (length > ryRegMaxText) {
        return ERROR_MORE_DATA;
    }
    const auto bytes = static_cast<DWORD>((length + 1) * sizeof(wchar_t));
    return RegSetValueExW(key, name, 0, REG_SZ, reinterpret_cast<const BYTE*>(value.GetString()), bytes);
}

LONG ryRegSetValue(HKEY key, const wchar_t* name, DWORD value) noexcept {
    return RegSetValueExW(key, name, 0, REG_DWORD, reinterpret_cast<const BYTE*>(&value), sizeof(value));
}

LONG ryRegDeleteValue(HKEY key, const wchar_t* name) noexcept {
    return RegDeleteValueW(key, name);
}

LONG ryRegDeleteTree(HKEY parent, const wchar_t* subKey) noexcept {
    if (subKey == nullptr || *subKey == 0) {
        return ERROR_INVALID_PARAMETER;
    }
    return RegDeleteTreeW(parent, subKey);
}

LONG ryRegEnumValue(HKEY key, DWORD index, CString& name, DWORD* type) noexcept {
    return withoutThrowing([&]() -> LONG {
        const auto text = std::make_unique<wchar_t[]>(ryRegMaxValueName + 1);
        DWORD length = ryRegMaxValueName + 1;
        DWORD found = REG_NONE;
        const LONG error = RegEnumValueW(key, index, text.get(), &length, nullptr, &found, nullptr, nullptr);
        if (error != ERROR_SUCCESS) {
            return error;
        }
        name = CString(text.get(), static_cast<int>(length));
        if (type != nullptr) {
            *type = found;
        }
        return ERROR_SUCCESS;
    });
}

LONG ryRegCloseKey(HKEY key) noexcept {
    return key != nullptr ? RegCloseKey(key) : ERROR_SUCCESS;
}
