// The entry to the Find dialog for hosts that show no other.
#include <knav/NavFind.h>

int BrowseFiles(CString&, UINT, const CString&, CWnd*, CString&, CString&) {
    return 0;
}
