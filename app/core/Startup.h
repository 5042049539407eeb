#pragma once

#include <QString>

// Start-up helpers shared by the entry point and the controller.
namespace Startup {

// The program's data directory (DataDirectory::path()).
QString dataDirectory();
// Reads "DebugMode/isDebugMode" from "ModuleDevice.ini" in the data directory.
bool isDebugMode();
// Launches the control service from this program's own directory unless it already runs.
void startControl();

} // namespace Startup
