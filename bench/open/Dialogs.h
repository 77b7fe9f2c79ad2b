// The ways to show a folder that are compared.
#pragma once

namespace bench {

/// The one file type of all of them.
inline constexpr wchar_t kDescription[] = L"Drawings";
inline constexpr wchar_t kPattern[] = L"*.dwg";
inline constexpr wchar_t kCaption[] = L"Open Drawing";

// Each shows `folder` with that file type and returns when it has been cancelled, with everything of its own gone, as a
// host would see it. They are cancelled by the command IDCANCEL to their window.

/// The dialog of this library.
void showThisDialog(const wchar_t* folder);
/// GetOpenFileNameW.
void showOlderDialog(const wchar_t* folder);
/// IFileOpenDialog.
void showNewerDialog(const wchar_t* folder);
/// The shell's view of the folder and nothing around it: what no dialog on top of that view can go below.
void showBareView(const wchar_t* folder);
/// The same view in a window with the controls of this library's dialog, which nobody fills or draws.
void showFramedView(const wchar_t* folder);

}  // namespace bench
