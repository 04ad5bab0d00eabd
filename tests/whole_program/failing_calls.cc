// Loaded in front of the system's library (LD_PRELOAD): counts the calls that a program makes to
// it and lets one of them fail. What the environment asks for:
//
//   FAIL_KIND    files: opening, reading, writing, renaming and the like; memory: allocations
//   FAIL_AT      the number, from 1, of the call that fails; 0 only counts
//   FAIL_HOW     once: that call alone; on: every call from there on; kill: the program ends there
//                by a signal, as it does when a user kills it or the power goes
//   FAIL_COUNT   a file that gets the number of calls when the program ends
//   FAIL_NAME    a file that gets the name of the call that failed first, and its file
//
// Allocations have calls of their own, as the program and its libraries make them. Nothing here
// allocates or uses the C++ library, which may not be there yet.
#include <dirent.h>
#include <dlfcn.h>
#include <errno.h>
#include <fcntl.h>
#include <signal.h>
#include <stdarg.h>
#include <stddef.h>
#include <stdio.h>
#include <stdlib.h>
#include <string.h>
#include <sys/stat.h>
#include <sys/uio.h>
#include <unistd.h>

extern "C" {
void* __libc_malloc(size_t);
void* __libc_calloc(size_t, size_t);
void* __libc_realloc(void*, size_t);
}

namespace {

enum Kind { none, files, memory };
enum How { once, on, kill };

Kind chosenKind = none;
How chosenHow = once;
long failAt = 0;
long counted = 0;

void readChoice() {
    const char* kind = getenv("FAIL_KIND");
    const char* at = getenv("FAIL_AT");
    const char* how = getenv("FAIL_HOW");
    if (how && strcmp(how, "on") == 0) chosenHow = on;
    if (how && strcmp(how, "kill") == 0) chosenHow = kill;
    failAt = at ? atol(at) : 0;
    if (kind) chosenKind = strcmp(kind, "files") == 0 ? files : memory;
}

// What the loader and the libraries do before the program begins is not counted.
__attribute__((constructor)) void begin() {
    readChoice();
    // A program that it starts is a program of its own.
    unsetenv("LD_PRELOAD");
}

template <class Function>
Function real(const char* name) {
    return reinterpret_cast<Function>(dlsym(RTLD_NEXT, name));
}

__attribute__((destructor)) void end() {
    const char* name = getenv("FAIL_COUNT");
    const long calls = counted;
    chosenKind = none;
    if (!name) return;
    char text[24];
    const int length = snprintf(text, sizeof text, "%ld\n", calls);
    const int file = open(name, O_WRONLY | O_CREAT | O_TRUNC, 0600);
    if (file < 0) return;
    if (write(file, text, static_cast<size_t>(length)) != length) abort();
    close(file);
}

void writeDown(const char* call, const char* path) {
    const char* name = getenv("FAIL_NAME");
    if (!name) return;
    const Kind kind = chosenKind;
    chosenKind = none;
    char text[300];
    const int length = snprintf(text, sizeof text, "%s %.250s\n", call, path);
    const int file = open(name, O_WRONLY | O_CREAT | O_TRUNC, 0600);
    if (file < 0 || write(file, text, static_cast<size_t>(length)) != length) abort();
    close(file);
    chosenKind = kind;
}

/// Whether the call that is being made has to fail.
bool fails(Kind kind, const char* call, const char* path = "") {
    if (kind != chosenKind) return false;
    ++counted;
    if (failAt == 0 || counted < failAt || (counted > failAt && chosenHow == once)) return false;
    if (counted == failAt && kind == files) writeDown(call, path);
    if (chosenHow == kill) raise(SIGKILL);
    return true;
}

constexpr int mostFiles = 64;
char paths[mostFiles][200];

/// What an open file is called, for whoever reads which call failed.
const char* pathOf(int file) {
    return file >= 0 && file < mostFiles ? paths[file] : "";
}
int opened(int file, const char* path) {
    if (file >= 0 && file < mostFiles) snprintf(paths[file], sizeof paths[file], "%s", path);
    return file;
}

int failed(int error) {
    errno = error;
    return -1;
}

}  // namespace

// --- memory -------------------------------------------------------------------------------------

extern "C" void* malloc(size_t size) {
    if (!fails(memory, "allocation")) return __libc_malloc(size);
    errno = ENOMEM;
    return nullptr;
}
extern "C" void* calloc(size_t count, size_t size) {
    if (!fails(memory, "allocation")) return __libc_calloc(count, size);
    errno = ENOMEM;
    return nullptr;
}
extern "C" void* realloc(void* block, size_t size) {
    if (!fails(memory, "allocation")) return __libc_realloc(block, size);
    errno = ENOMEM;
    return nullptr;
}

// --- files --------------------------------------------------------------------------------------

#define REAL(name) real<decltype(&::name)>(#name)

namespace {

int openFails(int flags, const char* path) {
    if (!fails(files, "open", path)) return 0;
    return failed((flags & O_CREAT) != 0 ? ENOSPC : EMFILE);
}

}  // namespace

#define OPEN(name)                                                                       \
    extern "C" int name(const char* path, int flags, ...) {                              \
        static const auto call = real<int (*)(const char*, int, ...)>(#name);            \
        va_list rest;                                                                    \
        va_start(rest, flags);                                                           \
        const mode_t mode = (flags & O_CREAT) != 0 ? va_arg(rest, mode_t) : 0;           \
        va_end(rest);                                                                    \
        return openFails(flags, path) != 0 ? -1 : opened(call(path, flags, mode), path); \
    }
OPEN(open)
OPEN(open64)

extern "C" int openat(int folder, const char* path, int flags, ...) {
    static const auto call = real<int (*)(int, const char*, int, ...)>("openat");
    va_list rest;
    va_start(rest, flags);
    const mode_t mode = (flags & O_CREAT) != 0 ? va_arg(rest, mode_t) : 0;
    va_end(rest);
    return openFails(flags, path) != 0 ? -1 : opened(call(folder, path, flags, mode), path);
}

extern "C" FILE* fopen(const char* path, const char* mode) {
    static const auto call = REAL(fopen);
    if (!fails(files, "fopen", path)) return call(path, mode);
    errno = EMFILE;
    return nullptr;
}
extern "C" FILE* fopen64(const char* path, const char* mode) {
    static const auto call = real<FILE* (*)(const char*, const char*)>("fopen64");
    if (!fails(files, "fopen64", path)) return call(path, mode);
    errno = EMFILE;
    return nullptr;
}
extern "C" ssize_t read(int file, void* bytes, size_t size) {
    static const auto call = REAL(read);
    return fails(files, "read", pathOf(file)) ? failed(EIO) : call(file, bytes, size);
}
extern "C" ssize_t write(int file, const void* bytes, size_t size) {
    static const auto call = REAL(write);
    // What the program complains of has to come through.
    return file != STDERR_FILENO && fails(files, "write", pathOf(file)) ? failed(ENOSPC)
                                                                        : call(file, bytes, size);
}
extern "C" ssize_t writev(int file, const struct iovec* parts, int count) {
    static const auto call = REAL(writev);
    return file != STDERR_FILENO && fails(files, "writev", pathOf(file)) ? failed(ENOSPC)
                                                                         : call(file, parts, count);
}

/// A call that fails with -1 and an error. `path` is told to whoever reads which one it was.
#define CALL(name, error, path, parameters, arguments)                     \
    extern "C" int name parameters {                                       \
        static const auto call = REAL(name);                               \
        return fails(files, #name, path) ? failed(error) : call arguments; \
    }

CALL(fsync, EIO, pathOf(file), (int file), (file))
extern "C" int close(int file) {
    static const auto call = REAL(close);
    if (!fails(files, "close", pathOf(file))) return call(file);
    call(file);  // it is gone either way
    return failed(EIO);
}
CALL(rename, EIO, from, (const char* from, const char* to), (from, to))
CALL(link, EIO, from, (const char* from, const char* to), (from, to))
CALL(unlink, EACCES, path, (const char* path), (path))
CALL(mkdir, ENOSPC, path, (const char* path, mode_t mode), (path, mode))

extern "C" char* mkdtemp(char* name) {
    static const auto call = REAL(mkdtemp);
    if (!fails(files, "mkdtemp", name)) return call(name);
    errno = ENOSPC;
    return nullptr;
}
CALL(fchmod, EPERM, pathOf(file), (int file, mode_t mode), (file, mode))
CALL(stat, EIO, path, (const char* path, struct stat* status), (path, status))
CALL(lstat, EIO, path, (const char* path, struct stat* status), (path, status))
CALL(fstat, EIO, pathOf(file), (int file, struct stat* status), (file, status))
CALL(access, EIO, path, (const char* path, int mode), (path, mode))

extern "C" char* realpath(const char* path, char* resolved) {
    static const auto call = REAL(realpath);
    if (!fails(files, "realpath", path)) return call(path, resolved);
    errno = EIO;
    return nullptr;
}
extern "C" DIR* opendir(const char* path) {
    static const auto call = REAL(opendir);
    if (!fails(files, "opendir", path)) return call(path);
    errno = EMFILE;
    return nullptr;
}
extern "C" int flock(int file, int operation) {
    static const auto call = real<int (*)(int, int)>("flock");
    return fails(files, "flock", pathOf(file)) ? failed(ENOLCK) : call(file, operation);
}
