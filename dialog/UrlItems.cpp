// Remote items on OK. The component that transfers them is not part of the library yet, so they cannot be accepted.
#include <knav/CNavDataArray.h>
#include <knav/CNavNode.h>

#include "dialog/CNavDialogImp.h"
#include "dialog/Messages.h"
#include "dialog/NameRules.h"
#include "resources/ids.h"
#include "shell/FolderCalls.h"
#include "shell/SiteLocation.h"

namespace {

/// The name that an item's folder knows it by: the last component, without the scheme it may start with.
std::wstring nameAtSite(const CNavNode& node, const CString& text) {
    std::wstring_view name = knav::lastName(text.view());
    const std::wstring_view scheme = node.IsFTP() ? L"ftp://" : L"https://";
    if (name.starts_with(scheme)) {
        name.remove_prefix(scheme.size());
    }
    return std::wstring(name.substr(0, knav::kLongestPath));
}

}  // namespace

int CNavDialogImp::VerifyURLSave() {
    CNavNode* node = currentFolderNode();
    const CNavData* item = m_data.GetData(0);
    if (!node || !node->IsExtensionType() || !item) {
        return 1;
    }
    if (node->GetType() == NavNodeExtensionRoot) {
        knav::showMessage(m_facade, IDS_KNAV_NO_SAVE_AT_ROOT);
        return 0;
    }
    const auto existing = knav::parseName(node->GetFolder(), nameAtSite(*node, item->GetText()).c_str());
    return !existing ||
           knav::showMessage(m_facade, IDS_KNAV_REPLACE_REMOTE, item->GetText(), MB_YESNO | MB_ICONQUESTION) == IDYES;
}

int CNavDialogImp::OnUrlOK() {
    return !m_options.noUrlsAllowed && m_data.GetCount() == 0;
}

int CNavDialogImp::ReportURLTransferStatus(CDWordArray& codes, CStringArray& urls, CStringArray&) {
    constexpr DWORD kArrived = 1000;
    constexpr DWORD kArrivedToo = 1016;
    for (INT_PTR i = 0; i < codes.GetSize(); ++i) {
        const bool arrived = codes[i] == kArrived || codes[i] == kArrivedToo;
        if (arrived && i < urls.GetSize()) {
            m_facade.OnURLDownloadSuccess(urls[i]);
        }
    }
    // Nobody is there to put the failures into words, so there is no report to show.
    return 1;
}
