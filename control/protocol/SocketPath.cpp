#include "SocketPath.h"

#include <pwd.h>
#include <sys/socket.h>
#include <sys/stat.h>
#include <unistd.h>

#include <cerrno>
#include <cstdlib>
#include <cstring>
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

// Empty when `dir` is (or has just been created as) a directory private to this user, else what
// is wrong with it. Created when missing; a symbolic link is refused, even to a good directory.
std::string privacyFault(const std::string& dir)
{
    if (::mkdir(dir.c_str(), 0700) == 0)
        return {};
    if (errno != EEXIST)
        return std::string("cannot create: ") + std::strerror(errno);
    struct stat info {
    };
    if (::lstat(dir.c_str(), &info) != 0)
        return std::strerror(errno);
    if (!S_ISDIR(info.st_mode))
        return "not a directory";
    if (info.st_uid != geteuid())
        return "owned by uid " + std::to_string(info.st_uid);
    if ((info.st_mode & 07777) != 0700)
        return "mode is not 0700";
    return {};
}

std::string fallbackDirectory()
{
    const char* tmp = std::getenv("TMPDIR");
    std::string base = tmp && *tmp ? tmp : "/tmp";
    while (base.size() > 1 && base.back() == '/')
        base.pop_back();
    return base + "/runtime-" + userName();
}

} // namespace

std::string runtimeDirectory(std::string* problem)
{
    // The checks QStandardPaths makes for RuntimeLocation, so that the panel's own files and
    // ours end up side by side.
    std::string why;
    const char* variable = std::getenv("XDG_RUNTIME_DIR");
    if (variable && *variable) {
        const std::string fault = privacyFault(variable);
        if (fault.empty()) {
            if (problem)
                problem->clear();
            return variable;
        }
        why = "XDG_RUNTIME_DIR " + std::string(variable) + ": " + fault + "; ";
    } else {
        why = "XDG_RUNTIME_DIR not set; ";
    }
    const std::string fallback = fallbackDirectory();
    const std::string fault = privacyFault(fallback);
    if (problem)
        *problem = fault.empty() ? std::string() : why + fallback + ": " + fault;
    return fault.empty() ? fallback : std::string();
}

std::string socketPath(std::string* problem)
{
    const std::string dir = runtimeDirectory(problem);
    return dir.empty() ? dir : dir + "/" + kSocketFileName;
}

bool peerIsSameUser(int fd)
{
    struct ucred peer {
    };
    socklen_t size = sizeof peer;
    return ::getsockopt(fd, SOL_SOCKET, SO_PEERCRED, &peer, &size) == 0 && size == sizeof peer &&
           peer.uid == geteuid();
}

} // namespace nxproto
