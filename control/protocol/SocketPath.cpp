#include "SocketPath.h"

#include <pwd.h>
#include <unistd.h>

#include <cstdlib>
#include <string>
#include <vector>

namespace nxproto {

namespace {

std::string userName()
{
    const uid_t uid = geteuid();
    long size = sysconf(_SC_GETPW_R_SIZE_MAX);
    if (size <= 0)
        size = 16384;
    std::vector<char> buffer(static_cast<std::size_t>(size));
    passwd entry{};
    passwd* result = nullptr;
    if (getpwuid_r(uid, &entry, buffer.data(), buffer.size(), &result) == 0 && result &&
        result->pw_name)
        return result->pw_name;
    return std::to_string(uid);
}

} // namespace

std::string runtimeDirectory()
{
    const char* dir = std::getenv("XDG_RUNTIME_DIR");
    if (dir && *dir)
        return dir;
    return "/tmp/runtime-" + userName();
}

std::string socketPath()
{
    return runtimeDirectory() + "/" + kSocketFileName;
}

} // namespace nxproto
