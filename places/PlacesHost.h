// What the Places list asks of the dialog around it.
#pragma once

#include <platform/CString.h>
#include <shlobj.h>

namespace knav {

class PlacesHost {
public:
    /// A text of the values that all dialogs share. False when there is none of that name.
    virtual bool readSharedText(const CString& name, CString& value) = 0;
    /// Stores the order of the rows now.
    virtual void savePlaces() = 0;
    /// The user changed the rows; they are saved when the dialog saves.
    virtual void placesChanged() = 0;
    /// Whether extensions that are switched off on this machine are left out.
    virtual bool leavesOutDisabledExtensions() const = 0;
    /// Whether the user removed that extension from the list, in this dialog or another.
    virtual bool isExtensionDeleted(const wchar_t* name) = 0;

    /// Qualified list of the folder that the dialog shows; null when it shows none. It stays the dialog's.
    virtual ITEMIDLIST* shownFolder() const = 0;

protected:
    ~PlacesHost() = default;
};

}  // namespace knav
