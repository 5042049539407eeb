#pragma once

#include "Platform.h"

#include <string>

// The panel's side of Platform::messageBox on POSIX: a modal QMessageBox with no owner, or a
// line on standard error when there is no screen to show it on (offscreen, minimal).
namespace PanelMessageBox {

void show(const std::wstring& text, const std::wstring& caption, Platform::MessageIcon icon);
// Makes show() the platform's message box hook. Win32 keeps MessageBoxW.
void install();

} // namespace PanelMessageBox
