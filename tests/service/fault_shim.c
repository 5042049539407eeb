/* Preloaded into the service by tests: makes the saves of the state file fail the way a full
 * disk makes them fail, writes stopping half-way and then failing with ENOSPC, while the file
 * named by NX_FAULT_CONTROL exists (checked on every call, so that a test can start and end a
 * fault while the service runs). Only files whose path contains "control-state.json" are
 * affected. */
#define _GNU_SOURCE

#include <dlfcn.h>
#include <errno.h>
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

static int faulty(void)
{
    const char* control = getenv("NX_FAULT_CONTROL");
    return control && access(control, F_OK) == 0;
}

ssize_t write(int fd, const void* data, size_t size)
{
    static ssize_t (*realWrite)(int, const void*, size_t);
    if (!realWrite)
        realWrite = (ssize_t(*)(int, const void*, size_t))dlsym(RTLD_NEXT, "write");
    if (isTargetFd(fd) && faulty()) {
        struct stat info;
        if (fstat(fd, &info) == 0 && info.st_size > 0) {
            errno = ENOSPC;
            return -1;
        }
        return realWrite(fd, data, size / 2 > 0 ? size / 2 : size);
    }
    return realWrite(fd, data, size);
}
