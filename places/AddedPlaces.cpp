#include "places/AddedPlaces.h"

#include <knav/CNavPathname.h>
#include <knav/NavPlaces.h>
#include <ry/RyRegKey.h>

#include "data/ApiEdge.h"
#include "shell/HostApplication.h"
#include "shell/TextRules.h"

namespace knav {
namespace {

CString offeredKey() {
    CString key;
    hostApplication().GetExtensionsKey(key);
    return key + L"\\FileNavAddedPlaces";
}

}  // namespace

std::optional<CString> absolutePath(const wchar_t* text) {
    CNavPathname path;
    CString full;
    if (path.Parse(text, false) != PathErr::None || !path.WasAbsolute() || !path.GetFullPath(full))
        return std::nullopt;
    return full;
}

AddedPlaces& AddedPlaces::ofProcess() {
    static AddedPlaces places;
    return places;
}

void AddedPlaces::readOffered() {
    if (std::exchange(m_read, true))
        return;
    RyRegKey key;
    if (!key.open(HKEY_CURRENT_USER, offeredKey()))
        return;
    CString name;
    DWORD type = 0;
    for (DWORD i = 0; ryRegEnumValue(key.get(), i, name, &type) == ERROR_SUCCESS; ++i) {
        if (type == REG_SZ && !name.IsEmpty())
            m_offered.push_back(name);
    }
}

bool AddedPlaces::queue(const wchar_t* name, const wchar_t* path) {
    readOffered();
    const auto isPath = [path](const CString& known) { return compareNoCase(known, path) == 0; };
    if (std::ranges::any_of(m_offered, isPath) || !absolutePath(path))
        return false;
    CNavPlace* place = m_waiting.AddData();
    if (!place)
        return false;
    place->SetName(name);
    place->SetPath(path);
    m_offered.push_back(path);
    return true;
}

void AddedPlaces::remember(const CString& path) {
    RyRegKey key;
    CString lower = path;
    if (key.create(HKEY_CURRENT_USER, offeredKey()))
        ryRegSetValue(key.get(), lower.MakeLower(), CString());
}

}  // namespace knav

int NavAddPlace(const wchar_t* name, const wchar_t* path) {
    return knav::atApiEdge(0, [=] { return knav::AddedPlaces::ofProcess().queue(name, path) ? 1 : 0; });
}
