#include <knav/CNavExtension.h>

#include <knav/CNavShell.h>
#include <knav/NavItemList.h>
#include <platform/GdiOwners.h>
#include <ry/RyRegKey.h>

#include <utility>

#include "data/ApiEdge.h"
#include "shell/ExtensionItems.h"
#include "shell/FolderCalls.h"
#include "shell/HostApplication.h"

namespace {

constexpr DWORD kCanParseNames = 1;

// Bit 0 of a number in the key that switches extensions off on this machine.
int isSwitchSet(const CString& name) {
    CString path;
    RyRegKey key;
    DWORD value = 0;
    const bool read = knav::hostApplication().GetExtensionsDisableKey(path) != 0 &&
                      key.open(HKEY_LOCAL_MACHINE, path) && ryRegGetValue(key.get(), name, value) == ERROR_SUCCESS;
    return read && (value & 1) != 0;
}

}  // namespace

CNavExtension::CNavExtension() = default;

CNavExtension::~CNavExtension() {
    SetRootFolder(nullptr);
    SetID(nullptr);
    SetBitmap(nullptr);
    knav::ComPtr<IUnknown>::adopt(std::exchange(m_object, nullptr)).reset();
}

const wchar_t* CNavExtension::GetName() const {
    return m_name;
}
void CNavExtension::SetName(const wchar_t* name) {
    knav::atApiEdge([&] { m_name = name; });
}

const wchar_t* CNavExtension::GetPlacesLabel() const {
    return m_placesLabel;
}
void CNavExtension::SetPlacesLabel(const wchar_t* label) {
    knav::atApiEdge([&] { m_placesLabel = label; });
}

const wchar_t* CNavExtension::GetPlacesTip() const {
    return m_placesTip;
}
void CNavExtension::SetPlacesTip(const wchar_t* tip) {
    knav::atApiEdge([&] { m_placesTip = tip; });
}

const wchar_t* CNavExtension::GetInstallMessage() const {
    return m_installMessage;
}
void CNavExtension::SetInstallMessage(const wchar_t* message) {
    knav::atApiEdge([&] { m_installMessage = message; });
}

const wchar_t* CNavExtension::GetInstallMessageCaption() const {
    return m_installMessageCaption;
}
void CNavExtension::SetInstallMessageCaption(const wchar_t* caption) {
    knav::atApiEdge([&] { m_installMessageCaption = caption; });
}

const wchar_t* CNavExtension::GetInstallationURL() const {
    return m_installationURL;
}
void CNavExtension::SetInstallationURL(const wchar_t* url) {
    knav::atApiEdge([&] { m_installationURL = url; });
}

const GUID& CNavExtension::GetRootFolderCLSID() const {
    return m_rootFolderCLSID;
}
void CNavExtension::SetRootFolderCLSID(const GUID& clsid) {
    m_rootFolderCLSID = clsid;
}

int CNavExtension::GetDelayInit() const {
    return m_delayInit;
}
void CNavExtension::SetDelayInit(int delay) {
    m_delayInit = delay;
}

IShellFolder* CNavExtension::GetRootFolder() const {
    return m_rootFolder;
}

void CNavExtension::SetRootFolder(IShellFolder* folder) {
    auto held = knav::ComPtr<IShellFolder>::retain(folder);
    held = knav::ComPtr<IShellFolder>::adopt(std::exchange(m_rootFolder, held.release()));
}

IShellFolder* CNavExtension::FetchRootFolder() {
    if (m_rootFolder == nullptr) {
        const auto object = knav::ComPtr<IUnknown>::retain(m_object);
        const auto folder = object ? object.as<IShellFolder>() : knav::createInProcess<IShellFolder>(m_rootFolderCLSID);
        SetRootFolder(folder.get());
    }
    return knav::ComPtr<IShellFolder>::retain(m_rootFolder).release();
}

ITEMIDLIST* CNavExtension::GetID() const {
    return m_id;
}

void CNavExtension::SetID(ITEMIDLIST* list) {
    if (list != m_id) {
        knav::ItemList::adopt(std::exchange(m_id, list)).reset();
    }
}

int CNavExtension::CreateID() {
    SetID(knav::buildExtensionRootItem(CNavShell(), m_name));
    return m_id != nullptr;
}

DWORD CNavExtension::GetAttributes() const {
    return m_attributes;
}
void CNavExtension::SetAttributes(DWORD attributes) {
    m_attributes = attributes;
}

const wchar_t* CNavExtension::GetRootFolderDisplayName() const {
    return m_rootFolderDisplayName;
}
void CNavExtension::SetRootFolderDisplayName(const wchar_t* name) {
    knav::atApiEdge([&] { m_rootFolderDisplayName = name; });
}

HBITMAP CNavExtension::GetBitmapCopy() const {
    return static_cast<HBITMAP>(CopyImage(m_picture, IMAGE_BITMAP, 0, 0, LR_CREATEDIBSECTION));
}

void CNavExtension::SetBitmap(HBITMAP picture) {
    zoui::UniqueBitmap(std::exchange(m_picture, picture));
}

int CNavExtension::IsFTP() const {
    return m_name.CompareNoCase(L"FTPSites") == 0;
}

int CNavExtension::AllDisabled() {
    return knav::atApiEdge(0, [] { return isSwitchSet(L"AllExtraExtensionsOff"); });
}

int CNavExtension::IsDisabled() const {
    return !IsFTP() && AllDisabled() ? 1 : knav::atApiEdge(0, [this] { return isSwitchSet(m_name + L"ExtensionOff"); });
}

ITEMIDLIST* CNavExtension::GetItemListFromName(const wchar_t* name) {
    if (m_rootFolder == nullptr || (m_attributes & kCanParseNames) == 0 || name == nullptr) {
        return nullptr;
    }
    return NavBuildExtensionItemList(this, name);
}
