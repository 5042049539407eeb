/* Preloaded into the service by tests: makes the saves of the state file fail the way a full or
 * broken disk makes them fail. The file named by NX_FAULT_CONTROL holds the mode, read on every
 * call, so that a test can start and end a fault while the service runs:
 *   short  writes stop half-way, then fail with ENOSPC      eio  fsync fails with EIO
 * Any other content, or no file, lets every call through. Only files whose path contains
 * "control-state.json" are affected. */
#define _GNU_SOURCE

#include <dlfcn.h>
#include <errno.h>
#include <fcntl.h>
#include <stdio.h>
#include <stdlib.h>
#include <string.h>
#include <sys/stat.h>
#include <unistd.h>

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
    return strstr(path, "control-state.json") != NULL;
}

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
    return strcmp(mode, wanted) == 0;
}

ssize_t write(int fd, const void* data, size_t size)
{
    static ssize_t (*realWrite)(int, const void*, size_t);
    if (!realWrite)
        realWrite = (ssize_t(*)(int, const void*, size_t))dlsym(RTLD_NEXT, "write");
    if (isTargetFd(fd) && faulty("short")) {
        struct stat info;
        if (fstat(fd, &info) == 0 && info.st_size > 0) {
            errno = ENOSPC;
            return -1;
        }
        return realWrite(fd, data, size / 2 > 0 ? size / 2 : size);
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
