#include <platform/CCmdTarget.h>

#include <new>

#include "platform/ComIdentity.h"

IMPLEMENT_DYNAMIC(CCmdTarget, CObject)

namespace {

struct Command {
    UINT message;
    UINT id;
    WORD code;
};

bool matches(const AFX_MSGMAP_ENTRY& entry, const Command& command) noexcept {
    return entry.m_thunk != nullptr && entry.m_message == command.message && LOWORD(entry.m_code) == command.code &&
           command.id >= entry.m_firstId && command.id <= entry.m_lastId;
}

zoui::MessageCall callOf(UINT id, void* extra, LRESULT& unused) noexcept {
    if (const auto* notify = static_cast<const AFX_NOTIFY*>(extra)) {
        return {id, reinterpret_cast<LPARAM>(notify->pNMHDR), id, notify->pResult};
    }
    return {id, 0, id, &unused};
}

}  // namespace

CCmdTarget::~CCmdTarget() {
    if (m_identity != nullptr) {
        m_identity->targetEnded();
    }
}

const AFX_MSGMAP* CCmdTarget::GetThisMessageMap() {
    static constexpr AFX_MSGMAP map{nullptr, {}};
    return &map;
}

const AFX_MSGMAP* CCmdTarget::GetMessageMap() const {
    return GetThisMessageMap();
}

BOOL CCmdTarget::OnCmdMsg(UINT id, int code, void* extra, AFX_CMDHANDLERINFO* info) {
    const UINT message = HIWORD(code) != 0 ? HIWORD(code) : WM_COMMAND;
    const Command command{message, id, LOWORD(code)};
    LRESULT unused = 0;
    const zoui::MessageCall call = callOf(id, extra, unused);
    for (const AFX_MSGMAP* map = GetMessageMap(); map != nullptr; map = map->m_getBase ? map->m_getBase() : nullptr) {
        for (const AFX_MSGMAP_ENTRY& entry : map->m_entries) {
            if (!matches(entry, command)) {
                continue;
            }
            if (info != nullptr) {
                info->pTarget = this;
                return TRUE;
            }
            if (entry.m_thunk(*this, call)) {
                return TRUE;
            }
        }
    }
    return FALSE;
}

zoui::ComIdentity* CCmdTarget::identity() noexcept {
    if (m_identity == nullptr) {
        m_identity = new (std::nothrow) zoui::ComIdentity(*this);
    }
    return m_identity;
}

IDispatch* CCmdTarget::GetIDispatch(BOOL addRef) {
    IDispatch* const dispatch = m_automated ? identity() : nullptr;
    if (dispatch != nullptr && addRef) {
        dispatch->AddRef();
    }
    return dispatch;
}

ULONG CCmdTarget::ExternalAddRef() noexcept {
    return identity() != nullptr ? m_identity->AddRef() : 0;
}

ULONG CCmdTarget::ExternalRelease() noexcept {
    return identity() != nullptr ? m_identity->Release() : 0;
}

HRESULT CCmdTarget::ExternalQueryInterface(REFIID iid, void** object) noexcept {
    return identity() != nullptr ? m_identity->QueryInterface(iid, object) : E_OUTOFMEMORY;
}

void CCmdTarget::OnFinalRelease() {
    delete this;
}

IUnknown* CCmdTarget::GetInterfaceHook(REFIID) {
    return nullptr;
}
