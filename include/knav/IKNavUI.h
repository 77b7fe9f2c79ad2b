// The callback interface through which the hosted view's default command (double-click, Enter) reaches the dialog.
#pragma once

#include <platform/Windows.h>

/// {24BABD39-519B-11D3-AF16-0060B03C311A}
inline constexpr GUID IID_IKNavUI = {0x24BABD39, 0x519B, 0x11D3, {0xAF, 0x16, 0x00, 0x60, 0xB0, 0x3C, 0x31, 0x1A}};

/// Offered by the command target passed to CNavCommDlgBrowser::SetViewOwnerWindow, next to its IDispatch.
/// User-interface thread only.
struct IKNavUI : public IUnknown {
    /// The user asked for the default action on the selection. A success code means that it was handled; after a
    /// failure code the view does what it would do on its own.
    virtual HRESULT STDMETHODCALLTYPE OnDefaultCommand() = 0;

protected:
    ~IKNavUI() = default;
};
