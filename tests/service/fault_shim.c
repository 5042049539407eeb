/* Preloaded into the service by tests: makes the saves of the state file fail the way a full,
 * broken or read-only disk makes them fail. The file named by NX_FAULT_CONTROL holds the mode,
 * read on every call, so that a test can start and end a fault while the service runs:
 *   enospc  writes fail with ENOSPC         short  writes stop half-way, then ENOSPC
 *   eio     fsync fails with EIO            erofs  creating or renaming fails with EROFS
 * Any other content, or no file, lets every call through. Only files whose path contains
 * "control-state.json" are affected. */
#define _GNU_SOURCE

#include <dlfcn.h>
#include <errno.h>
#include <fcntl.h>
#include <stdarg.h>
#include <stdio.h>
#include <stdlib.h>
#include <string.h>
#include <sys/stat.h>
#include <unistd.h>

static const char kTarget[] = "control-state.json";

static int isTargetFd(int fd)
{
    struct stat info;
    if (fstat(fd, &info) != 0 || !S_ISREG(info.st_mode))
        return 0;
    char link[64];
    char path[4096];
    snprintf(link, sizeof link, "/proc/self/fd/%d", fd);
    const ssize_t n = readlink(link, path, sizeof path - 1);
    if (n <= 0)
        return 0;
    path[n] = '\0';
    return strstr(path, kTarget) != NULL;
}

/* Reads the control file on every call; open without O_CREAT passes the hook below untouched. */
static int faulty(const char* wanted)
{
    const char* control = getenv("NX_FAULT_CONTROL");
    const int fd = control ? open(control, O_RDONLY | O_CLOEXEC) : -1;
    if (fd < 0)
        return 0;
    char mode[32];
    const ssize_t got = read(fd, mode, sizeof mode - 1);
    close(fd);
    mode[got > 0 ? got : 0] = '\0';
    mode[strcspn(mode, "\n ")] = '\0';
    return strcmp(mode, wanted) == 0;
}

ssize_t write(int fd, const void* data, size_t size)
{
    static ssize_t (*realWrite)(int, const void*, size_t);
    if (!realWrite)
        realWrite = (ssize_t(*)(int, const void*, size_t))dlsym(RTLD_NEXT, "write");
    if (isTargetFd(fd)) {
        if (faulty("enospc")) {
            errno = ENOSPC;
            return -1;
        }
        if (faulty("short")) {
            struct stat info;
            if (fstat(fd, &info) == 0 && info.st_size > 0) {
                errno = ENOSPC;
                return -1;
            }
            return realWrite(fd, data, size / 2 > 0 ? size / 2 : size);
        }
    }
    return realWrite(fd, data, size);
}

int fsync(int fd)
{
    static int (*realFsync)(int);
    if (!realFsync)
        realFsync = (int (*)(int))dlsym(RTLD_NEXT, "fsync");
    if (isTargetFd(fd) && faulty("eio")) {
        errno = EIO;
        return -1;
    }
    return realFsync(fd);
}

/* The mode argument is there only when the flags create a file. */
static int openWith(const char* symbol, const char* path, int flags, va_list args)
{
    const mode_t mode = (flags & (O_CREAT | O_TMPFILE)) ? (mode_t)va_arg(args, int) : 0;
    int (*realOpen)(const char*, int, ...) =
        (int (*)(const char*, int, ...))dlsym(RTLD_NEXT, symbol);
    if ((flags & O_CREAT) && strstr(path, kTarget) && faulty("erofs")) {
        errno = EROFS;
        return -1;
    }
    return realOpen(path, flags, mode);
}

int open(const char* path, int flags, ...)
{
    va_list args;
    va_start(args, flags);
    const int fd = openWith("open", path, flags, args);
    va_end(args);
    return fd;
}

int open64(const char* path, int flags, ...)
{
    va_list args;
    va_start(args, flags);
    const int fd = openWith("open64", path, flags, args);
    va_end(args);
    return fd;
}

int rename(const char* from, const char* to)
{
    static int (*realRename)(const char*, const char*);
    if (!realRename)
        realRename = (int (*)(const char*, const char*))dlsym(RTLD_NEXT, "rename");
    if (strstr(to, kTarget) && faulty("erofs")) {
        errno = EROFS;
        return -1;
    }
    return realRename(from, to);
}
