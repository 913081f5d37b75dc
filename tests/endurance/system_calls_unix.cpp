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

#include "endurance/fault_points.h"

using namespace system_calls;

namespace {

constexpr int KilledStatus = 77;

/// What happens to a call; of those that kill, only a write is left to the caller.
Outcome next(Kind kind) {
  const Outcome outcome = outcomeOf(kind);
  if (outcome == Outcome::Dies && kind != Kind::Write) ::_exit(KilledStatus);
  return outcome;
}

/// Whether the call fails, with the number in errno.
bool fails(Kind kind) {
  const int before = errno;
  const Outcome outcome = next(kind);
  errno = outcome == Outcome::NoRoom ? ENOSPC : outcome == Outcome::Fails ? EIO : before;
  return outcome == Outcome::NoRoom || outcome == Outcome::Fails;
}

}  // namespace

namespace system_calls {

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

void endOfChild() {
  ::_exit(0);
}

}  // namespace system_calls

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
  const Outcome outcome = next(Kind::Read);
  errno = EIO;
  if (outcome == Outcome::Fails) return -1;
  return __real_pread(file, bytes, outcome == Outcome::Halved ? std::max<size_t>(size / 2, 1) : size, place);
}

ssize_t __wrap_write(int file, const void* bytes, size_t size) {
  const size_t half = std::max<size_t>(size / 2, 1);
  const Outcome outcome = next(Kind::Write);
  if (outcome == Outcome::Dies) {
    [[maybe_unused]] const ssize_t put = __real_write(file, bytes, half);
    ::_exit(KilledStatus);
  }
  errno = outcome == Outcome::NoRoom ? ENOSPC : EIO;
  if (outcome == Outcome::Fails || outcome == Outcome::NoRoom) return -1;
  return __real_write(file, bytes, outcome == Outcome::Halved ? half : size);
}

}  // extern "C"
