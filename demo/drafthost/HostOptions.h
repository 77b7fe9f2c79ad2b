// What the command line asks the sample host to do.
#pragma once

#include <platform/CString.h>

#include <span>

/// Texts are given to the dialog as they stand; flags are off unless named.
struct HostOptions {
    CString folder;    ///< --folder DIR: where the dialog starts; empty: where it was left
    CString start;     ///< --start DIR: with --window, where a dialog starts that was never used before
    CString name;      ///< --name TEXT: what the file name field holds at first
    CString settings;  ///< --settings KEY: below HKEY_CURRENT_USER, where the dialogs keep what they remember
    CString language;  ///< --language NAME: of the library's texts
    CString filter = L"Drawings (*.dwg)|*.dwg|Drawing templates (*.dwt)|*.dwt|All files (*.*)|*.*|";  ///< --filter
    bool save = false;         ///< --save: choose a file to create
    bool foldersOnly = false;  ///< --folders-only: choose a folder
    bool multi = false;        ///< --multi: several items may be chosen
    bool window = false;       ///< --window: the host's window with its commands instead of one dialog
    bool help = false;         ///< --help

    /// Reads the arguments behind the program's name. False, with the reason in `error`, when one is not understood.
    static bool parse(std::span<const wchar_t* const> arguments, HostOptions& options, CString& error);
    static const char* usage() noexcept;
};
