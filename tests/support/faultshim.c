#define _GNU_SOURCE

#include "faultshim.h"

#include <dlfcn.h>
#include <errno.h>
#include <fcntl.h>
#include <stdarg.h>
#include <stdio.h>
#include <string.h>
#include <sys/types.h>
#include <unistd.h>

#define MAX_HANDLE 4096

static char marker[256];
static enum FaultCall armedCall;
static int armedNumber;
static int armedError;
static int armedShort;
static int counts[FaultCallCount];
static char isMarked[MAX_HANDLE];

void faultArm(const char* text, enum FaultCall call, int nth, int error, int shortWrite)
{
    snprintf(marker, sizeof marker, "%s", text);
    armedCall = call;
    armedNumber = nth;
    armedError = error;
    armedShort = shortWrite;
    memset(counts, 0, sizeof counts);
}

int faultCalls(enum FaultCall call)
{
    return counts[call];
}

static int concerns(const char* path)
{
    return marker[0] && path && strstr(path, marker);
}

static int handleIsMarked(int handle)
{
    return handle >= 0 && handle < MAX_HANDLE && isMarked[handle];
}

static int mustFail(enum FaultCall call)
{
    if (++counts[call] != armedNumber || call != armedCall)
        return 0;
    if (armedError < 0)
        _exit(FAULT_KILLED);
    errno = armedError;
    return 1;
}

static int opened(int handle, const char* path)
{
    if (handle >= 0 && handle < MAX_HANDLE)
        isMarked[handle] = (char)!!concerns(path);
    return handle;
}

#define REAL(name) ((__typeof__(&name))dlsym(RTLD_NEXT, #name))

#define OPEN_BODY(call)                                                                            \
    va_list arguments;                                                                             \
    va_start(arguments, flags);                                                                    \
    const mode_t mode = flags & (O_CREAT | __O_TMPFILE) ? va_arg(arguments, mode_t) : 0;           \
    va_end(arguments);                                                                             \
    if (concerns(path) && mustFail(FaultOpen))                                                     \
        return -1;                                                                                 \
    return opened(call, path);

int open(const char* path, int flags, ...)
{
    OPEN_BODY(REAL(open)(path, flags, mode))
}

int open64(const char* path, int flags, ...)
{
    OPEN_BODY(REAL(open64)(path, flags, mode))
}

int openat(int folder, const char* path, int flags,
           ...){OPEN_BODY(REAL(openat)(folder, path, flags, mode))}

ssize_t write(int handle, const void* data, size_t size)
{
    if (handleIsMarked(handle)) {
        const int isArmed = armedShort && armedCall == FaultWrite && armedNumber > 0;
        const int number = counts[FaultWrite] + 1;
        if (isArmed && number == armedNumber && size > 1) {
            ++counts[FaultWrite];
            return REAL(write)(handle, data, size / 2);
        }
        if (isArmed && number > armedNumber)
            armedNumber = number;
        if (mustFail(FaultWrite))
            return -1;
    }
    return REAL(write)(handle, data, size);
}

int fsync(int handle)
{
    if (handleIsMarked(handle) && mustFail(FaultSync))
        return -1;
    return REAL(fsync)(handle);
}

int rename(const char* from, const char* to)
{
    if (concerns(to) && mustFail(FaultRename))
        return -1;
    return REAL(rename)(from, to);
}

int close(int handle)
{
    const int fails = handleIsMarked(handle) && mustFail(FaultClose);
    const int error = errno;
    if (handle >= 0 && handle < MAX_HANDLE)
        isMarked[handle] = 0;
    const int result = REAL(close)(handle);
    if (!fails)
        return result;
    errno = error;
    return -1;
}
