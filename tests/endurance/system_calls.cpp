#include "endurance/system_calls.h"

#include <algorithm>
#include <cerrno>
#include <cstdarg>
#include <cstdio>
#include <cstdlib>
#include <dirent.h>
#include <fcntl.h>
#include <sys/stat.h>
#include <sys/types.h>
#include <sys/wait.h>
#include <unistd.h>

namespace system_calls {
namespace {

constexpr int KilledStatus = 77;

Fault armed = Fault::None;
bool counting = false;
bool diskFull = false;
int faulty = 0;
std::vector<Kind> seen;

/// Counts a call; gives what happens to it.
Fault next(Kind kind) {
  if (!counting) return Fault::None;
  seen.push_back(kind);
  if (static_cast<int>(seen.size()) != faulty) return Fault::None;
  if (armed == Fault::Kill) ::_exit(KilledStatus);
  return armed;
}

/// Whether the call fails, with the number in errno.
bool fails(Kind kind) {
  const Fault fault = next(kind);
  const bool takesRoom = concerns(Fault::Full, kind);
  if (fault == Fault::Full && takesRoom) diskFull = true;
  const int before = errno;
  errno = diskFull && takesRoom ? ENOSPC : EIO;
  const bool failing = fault == Fault::Error || (diskFull && takesRoom);
  if (!failing) errno = before;
  return failing;
}

}  // namespace

bool concerns(Fault fault, Kind kind) {
  if (fault == Fault::Short) return kind == Kind::Read || kind == Kind::Write;
  if (fault != Fault::Full) return true;
  return kind == Kind::Make || kind == Kind::Write || kind == Kind::Flush || kind == Kind::Rename;
}

void arm(Fault fault, int number) {
  armed = fault;
  faulty = number;
  seen.clear();
  diskFull = false;
  counting = true;
}

bool armInChild(int number) {
  const pid_t child = ::fork();
  if (child == 0) {
    arm(Fault::Kill, number);
    return false;
  }
  int status = 0;
  ::waitpid(child, &status, 0);
  if (!WIFEXITED(status)) std::abort();
  return WEXITSTATUS(status) == KilledStatus;
}

const std::vector<Kind>& disarm() {
  if (counting && armed == Fault::Kill) ::_exit(0);
  counting = diskFull = false;
  return seen;
}

}  // namespace system_calls

using namespace system_calls;

// The names are the linker's.
extern "C" {

// NOLINTBEGIN(bugprone-macro-parentheses)
// A call that fails gives `failure`.
#define WRAP(result, name, kind, failure, parameters, arguments)  \
  result __real_##name parameters;                                \
  result __wrap_##name parameters {                               \
    return fails(Kind::kind) ? failure : __real_##name arguments; \
  }
// NOLINTEND(bugprone-macro-parentheses)

WRAP(int, stat, Look, -1, (const char* path, struct stat* status), (path, status))
WRAP(int, lstat, Look, -1, (const char* path, struct stat* status), (path, status))
WRAP(int, fstat, Look, -1, (int file, struct stat* status), (file, status))
WRAP(int, faccessat, Look, -1, (int folder, const char* path, int mode, int flags), (folder, path, mode, flags))
WRAP(ssize_t, readlink, Look, -1, (const char* path, char* text, size_t size), (path, text, size))
WRAP(DIR*, opendir, List, nullptr, (const char* path), (path))
WRAP(dirent*, readdir, List, nullptr, (DIR * folder), (folder))
WRAP(int, fchmod, Own, -1, (int file, mode_t mode), (file, mode))
WRAP(int, fchown, Own, -1, (int file, uid_t owner, gid_t group), (file, owner, group))
WRAP(ssize_t, fgetxattr, Own, -1, (int file, const char* name, void* value, size_t size), (file, name, value, size))
WRAP(ssize_t, flistxattr, Own, -1, (int file, char* names, size_t size), (file, names, size))
WRAP(int, fsetxattr, Own, -1, (int file, const char* name, const void* value, size_t size, int flags),
     (file, name, value, size, flags))
WRAP(int, fremovexattr, Own, -1, (int file, const char* name), (file, name))
WRAP(int, flock, Own, -1, (int file, int how), (file, how))
WRAP(int, fsync, Flush, -1, (int file), (file))
WRAP(int, rename, Rename, -1, (const char* from, const char* to), (from, to))
WRAP(int, unlink, Remove, -1, (const char* path), (path))
// What fails to close is closed all the same.
WRAP(int, close, Close, (__real_close(file), errno = EIO, -1), (int file), (file))
WRAP(int, closedir, Close, (__real_closedir(folder), errno = EIO, -1), (DIR * folder), (folder))

// Where the compiler checks calls, an open of a file that is there already has this name.
WRAP(int, __open_2, Open, -1, (const char* path, int flags), (path, flags))

int __real_open(const char* path, int flags, ...);
ssize_t __real_pread(int file, void* bytes, size_t size, off_t place);
ssize_t __real_write(int file, const void* bytes, size_t size);

int __wrap_open(const char* path, int flags, ...) {
  va_list rest;
  va_start(rest, flags);
  const int mode = (flags & O_CREAT) != 0 ? va_arg(rest, int) : 0;
  va_end(rest);
  return fails((flags & O_CREAT) != 0 ? Kind::Make : Kind::Open) ? -1 : __real_open(path, flags, mode);
}

ssize_t __wrap_pread(int file, void* bytes, size_t size, off_t place) {
  const Fault fault = next(Kind::Read);
  if (fault == Fault::Error) {
    errno = EIO;
    return -1;
  }
  return __real_pread(file, bytes, fault == Fault::Short ? std::max<size_t>(size / 2, 1) : size, place);
}

ssize_t __wrap_write(int file, const void* bytes, size_t size) {
  const size_t half = std::max<size_t>(size / 2, 1);
  if (counting && static_cast<int>(seen.size()) + 1 == faulty && armed == Fault::Kill) {
    [[maybe_unused]] const ssize_t put = __real_write(file, bytes, half);
    ::_exit(KilledStatus);
  }
  if (diskFull) {
    errno = ENOSPC;
    return -1;
  }
  const Fault fault = next(Kind::Write);
  errno = EIO;
  if (fault == Fault::Error) return -1;
  diskFull = fault == Fault::Full;
  return __real_write(file, bytes, fault == Fault::Full || fault == Fault::Short ? half : size);
}

}  // extern "C"
