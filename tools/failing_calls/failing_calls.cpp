// Preloaded into a program, fails the call number FAIL_AT of a kind, FAIL_KIND: "file" (open, read, write,
// ftruncate, fchmod, fsync, rename, close, unlink) or "memory" (malloc and its like). At its end, with
// FAIL_COUNT set, each process adds a line to that file: how many calls there were, its parent's before it
// counted in. tools/failing_calls.py uses it.
#include <cerrno>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <dlfcn.h>
#include <fcntl.h>
#include <stdarg.h>
#include <sys/uio.h>
#include <unistd.h>

extern "C" void* __libc_malloc(size_t);
extern "C" void* __libc_calloc(size_t, size_t);
extern "C" void* __libc_realloc(void*, size_t);

namespace {

long fileCalls = 0, memoryCalls = 0, failAt = -1;
bool failsFiles = false, failsMemory = false, isReady = false;

template <typename Function>
Function next(const char* name) {
    return reinterpret_cast<Function>(dlsym(RTLD_NEXT, name));
}

bool failsFile(int reason) {
    if (!isReady || ++fileCalls != failAt || !failsFiles) return false;
    errno = reason;
    return true;
}

bool failsAllocation() {
    if (!isReady || ++memoryCalls != failAt || !failsMemory) return false;
    errno = ENOMEM;
    return true;
}

__attribute__((constructor)) void begin() {
    const char* kind = getenv("FAIL_KIND");
    const char* at = getenv("FAIL_AT");
    failsFiles = kind != nullptr && strcmp(kind, "file") == 0;
    failsMemory = kind != nullptr && strcmp(kind, "memory") == 0;
    if (at != nullptr) failAt = atol(at);
    isReady = true;
}

__attribute__((destructor)) void end() {
    isReady = false;
    const char* name = getenv("FAIL_COUNT");
    if (name == nullptr) return;
    const int file = next<int (*)(const char*, int, ...)>("open")(name, O_WRONLY | O_CREAT | O_APPEND, 0600);
    dprintf(file, "%ld %ld\n", fileCalls, memoryCalls);
}

mode_t modeOf(int flags, va_list arguments) { return (flags & O_CREAT) != 0 ? va_arg(arguments, mode_t) : 0; }

}  // namespace

extern "C" {

/// A worker of the verbs ends so.
void _exit(int code) {
    end();
    next<void (*)(int)>("_exit")(code);
    __builtin_unreachable();
}
void* malloc(size_t size) { return failsAllocation() ? nullptr : __libc_malloc(size); }
void* calloc(size_t count, size_t size) { return failsAllocation() ? nullptr : __libc_calloc(count, size); }
void* realloc(void* block, size_t size) { return failsAllocation() ? nullptr : __libc_realloc(block, size); }

int open(const char* path, int flags, ...) {
    va_list arguments;
    va_start(arguments, flags);
    const mode_t mode = modeOf(flags, arguments);
    va_end(arguments);
    return failsFile(EACCES) ? -1 : next<int (*)(const char*, int, ...)>("open")(path, flags, mode);
}
int open64(const char* path, int flags, ...) {
    va_list arguments;
    va_start(arguments, flags);
    const mode_t mode = modeOf(flags, arguments);
    va_end(arguments);
    return failsFile(EACCES) ? -1 : next<int (*)(const char*, int, ...)>("open64")(path, flags, mode);
}
FILE* fopen(const char* path, const char* mode) {
    return failsFile(EACCES) ? nullptr : next<FILE* (*)(const char*, const char*)>("fopen")(path, mode);
}
FILE* fopen64(const char* path, const char* mode) {
    return failsFile(EACCES) ? nullptr : next<FILE* (*)(const char*, const char*)>("fopen64")(path, mode);
}
ssize_t read(int file, void* data, size_t size) {
    return failsFile(EIO) ? -1 : next<ssize_t (*)(int, void*, size_t)>("read")(file, data, size);
}
ssize_t write(int file, const void* data, size_t size) {
    // What the program tells must get through.
    if (file > 2 && failsFile(ENOSPC)) return -1;
    return next<ssize_t (*)(int, const void*, size_t)>("write")(file, data, size);
}
ssize_t writev(int file, const iovec* vectors, int count) {
    if (file > 2 && failsFile(ENOSPC)) return -1;
    return next<ssize_t (*)(int, const iovec*, int)>("writev")(file, vectors, count);
}
int ftruncate(int file, off_t size) {
    return failsFile(EIO) ? -1 : next<int (*)(int, off_t)>("ftruncate")(file, size);
}
int ftruncate64(int file, off64_t size) {
    return failsFile(EIO) ? -1 : next<int (*)(int, off64_t)>("ftruncate64")(file, size);
}
int fchmod(int file, mode_t mode) {
    return failsFile(EPERM) ? -1 : next<int (*)(int, mode_t)>("fchmod")(file, mode);
}
int fsync(int file) { return failsFile(EIO) ? -1 : next<int (*)(int)>("fsync")(file); }
int rename(const char* from, const char* to) {
    return failsFile(EIO) ? -1 : next<int (*)(const char*, const char*)>("rename")(from, to);
}
int unlink(const char* path) { return failsFile(EACCES) ? -1 : next<int (*)(const char*)>("unlink")(path); }
int close(int file) {
    const int result = next<int (*)(int)>("close")(file);  // a failed close has closed all the same
    return file > 2 && failsFile(EIO) ? -1 : result;
}

}  // extern "C"
