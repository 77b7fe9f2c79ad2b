// Starting the program registered for web pages.
#pragma once

#include <platform/CString.h>

#include <functional>

namespace knav {

/// Starts a process from a command line, which it may change; false when that fails.
using ProcessStarter = std::function<bool(wchar_t* commandLine)>;

/// Starts the system's own way.
bool startProcess(wchar_t* commandLine);

/// The registered command for web pages; empty when there is none.
CString browserCommand();

/// The command line for a URL: nothing in the URL can end its argument.
CString browserCommandLine(const CString& command, const wchar_t* url);

/// Looks the command up and hands its command line for the URL to `start`; false when there is none.
bool launchBrowser(const wchar_t* url, const ProcessStarter& start);

}  // namespace knav
