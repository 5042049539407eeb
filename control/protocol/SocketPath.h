#pragma once

#include <string>

namespace nxproto {

// File name of the service's socket inside the user's runtime directory.
constexpr char kSocketFileName[] = "norvalex-control.sock";

// The one rule by which the service and the library find the user's runtime directory, the
// same as QStandardPaths::RuntimeLocation: $XDG_RUNTIME_DIR when set, else (or when it is not a
// real directory owned by this user with mode 0700) <$TMPDIR or /tmp>/runtime-<user name>,
// created 0700 when missing and checked the same way. Empty, with the reason in `problem`, when
// neither is private to the user.
std::string runtimeDirectory(std::string* problem = nullptr);
// Empty when runtimeDirectory() is.
std::string socketPath(std::string* problem = nullptr);

// True when the other end of the connected Unix socket `fd` runs as this process's user.
bool peerIsSameUser(int fd);

} // namespace nxproto
