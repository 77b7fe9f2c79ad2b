// An object that commands can be sent to and that can show COM interfaces.
#pragma once

#include <platform/CObject.h>
#include <platform/MessageMap.h>

namespace zoui {
class ComIdentity;
}

// Used on the user-interface thread. Deleting the object while others hold COM references to it is safe for its
// identity and its IDispatch: they then answer failure. Interfaces that a derived class shows end with the object.
class ZOUI_API CCmdTarget : public CObject {
    DECLARE_DYNAMIC(CCmdTarget)
public:
    CCmdTarget() = default;
    ~CCmdTarget() override;

    // Looks a command up in the message map, from the most derived class to the base, and runs its handler. `code`
    // holds the notification code in its low word and WM_COMMAND (or 0) or WM_NOTIFY in its high word; `extra` is an
    // AFX_NOTIFY for WM_NOTIFY. With `info` the handler is only looked for. Nonzero when there was one that took it.
    virtual BOOL OnCmdMsg(UINT id, int code, void* extra, AFX_CMDHANDLERINFO* info);

    // Makes IDispatch one of the object's interfaces. It has no members of its own: it is the handle by which others
    // reach the object's further interfaces.
    void EnableAutomation() noexcept { m_automated = true; }
    // Null unless automation is enabled. Without `addRef` the pointer is valid as long as the object.
    IDispatch* GetIDispatch(BOOL addRef);

    // IUnknown of the whole object, to be called by the interfaces that a derived class shows. The count starts at the
    // one reference of whoever created the object.
    ULONG ExternalAddRef() noexcept;
    ULONG ExternalRelease() noexcept;
    HRESULT ExternalQueryInterface(REFIID iid, void** object) noexcept;

    // The last reference was released through COM. Deletes the object; override for one that lives elsewhere.
    virtual void OnFinalRelease();

protected:
    // The object's interface `iid`, without adding a reference, or null. IUnknown and IDispatch are not asked for.
    virtual IUnknown* GetInterfaceHook(REFIID iid);

    static const AFX_MSGMAP* GetThisMessageMap();
    virtual const AFX_MSGMAP* GetMessageMap() const;

private:
    friend class zoui::ComIdentity;
    zoui::ComIdentity* identity() noexcept;

    zoui::ComIdentity* m_identity = nullptr;
    bool m_automated = false;
};
