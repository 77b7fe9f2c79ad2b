// Places that host programs ask for: each is offered to a user once, so that one the user removed stays away.
#pragma once

#include <knav/CNavPlace.h>

#include <optional>
#include <vector>

namespace knav {

/// The full path of a text that names an absolute location of the file system; nothing otherwise.
std::optional<CString> absolutePath(const wchar_t* text);

class AddedPlaces {
public:
    /// The one of the process. User-interface thread only.
    static AddedPlaces& ofProcess();

    /// Queues a place for the next Places list. False when its path is not absolute, or was offered before.
    bool queue(const wchar_t* name, const wchar_t* path);

    /// The places that wait.
    CNavPlacesArray& waiting() { return m_waiting; }

    /// Keeps for good that the user was offered this path.
    static void remember(const CString& path);

private:
    void readOffered();

    bool m_read = false;
    std::vector<CString> m_offered;
    CNavPlacesArray m_waiting;
};

}  // namespace knav
