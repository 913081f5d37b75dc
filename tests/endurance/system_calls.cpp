#include "endurance/system_calls.h"

#include <algorithm>
#include <cerrno>
#include <cstdarg>
#include <cstdio>
#include <cstdlib>
#include <fcntl.h>
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
int seen = 0;

/// Counts a call; gives what happens to it.
Fault next() {
  if (!counting) return Fault::None;
  if (++seen != faulty) return Fault::None;
  if (armed == Fault::Kill) ::_exit(KilledStatus);
  return armed;
}

/// Whether the call fails, with the number in errno. `takesRoom`: on the disk.
bool fails(bool takesRoom) {
  const Fault fault = next();
  if (fault == Fault::Full && takesRoom) diskFull = true;
  if (diskFull && takesRoom) {
    errno = ENOSPC;
    return true;
  }
  errno = EIO;
  return fault == Fault::Error;
}

}  // namespace

void arm(Fault fault, int number) {
  armed = fault;
  faulty = number;
  seen = 0;
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

int disarm() {
  if (counting && armed == Fault::Kill) ::_exit(0);
  counting = diskFull = false;
  return seen;
}

}  // namespace system_calls

using namespace system_calls;

// The names are the linker's.
extern "C" {

int __real_open(const char* path, int flags, ...);
int __real_fchmod(int file, mode_t mode);
int __real_fsync(int file);
int __real_close(int file);
int __real_rename(const char* from, const char* to);
ssize_t __real_read(int file, void* bytes, size_t size);
ssize_t __real_write(int file, const void* bytes, size_t size);

int __wrap_open(const char* path, int flags, ...) {
  va_list rest;
  va_start(rest, flags);
  const int mode = (flags & O_CREAT) != 0 ? va_arg(rest, int) : 0;
  va_end(rest);
  return fails((flags & O_CREAT) != 0) ? -1 : __real_open(path, flags, mode);
}

int __wrap_fchmod(int file, mode_t mode) {
  return fails(false) ? -1 : __real_fchmod(file, mode);
}

int __wrap_fsync(int file) {
  return fails(true) ? -1 : __real_fsync(file);
}

int __wrap_close(int file) {
  // The file is closed all the same.
  if (!fails(false)) return __real_close(file);
  __real_close(file);
  errno = EIO;
  return -1;
}

int __wrap_rename(const char* from, const char* to) {
  return fails(true) ? -1 : __real_rename(from, to);
}

ssize_t __wrap_read(int file, void* bytes, size_t size) {
  const Fault fault = next();
  errno = EIO;
  if (fault == Fault::Error) return -1;
  return __real_read(file, bytes, fault == Fault::Short ? std::max<size_t>(size / 2, 1) : size);
}

ssize_t __wrap_write(int file, const void* bytes, size_t size) {
  const size_t half = std::max<size_t>(size / 2, 1);
  if (counting && seen + 1 == faulty && armed == Fault::Kill) {
    [[maybe_unused]] const ssize_t put = __real_write(file, bytes, half);
    ::_exit(KilledStatus);
  }
  if (diskFull) {
    errno = ENOSPC;
    return -1;
  }
  const Fault fault = next();
  errno = EIO;
  if (fault == Fault::Error) return -1;
  diskFull = fault == Fault::Full;
  return __real_write(file, bytes, fault == Fault::Full || fault == Fault::Short ? half : size);
}

}  // extern "C"
