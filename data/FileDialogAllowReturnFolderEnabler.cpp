#include <knav/FileDialogAllowReturnFolderEnabler.h>

namespace {
int g_enablers = 0;
}

FileDialogAllowReturnFolderEnabler::FileDialogAllowReturnFolderEnabler() {
    ++g_enablers;
}

FileDialogAllowReturnFolderEnabler::~FileDialogAllowReturnFolderEnabler() {
    --g_enablers;
}

bool FileDialogAllowReturnFolderEnabler::status() {
    return g_enablers > 0;
}
