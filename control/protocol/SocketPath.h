#pragma once

#include <string>

namespace nxproto {

// File name of the service's socket inside the user's runtime directory.
constexpr char kSocketFileName[] = "norvalex-control.sock";

// The user's runtime directory as Qt's RuntimeLocation resolves it on Linux:
// $XDG_RUNTIME_DIR when set and not empty, else /tmp/runtime-<user name>.
std::string runtimeDirectory();
std::string socketPath();

} // namespace nxproto
