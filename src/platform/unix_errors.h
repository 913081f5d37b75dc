#pragma once

#include <cerrno>

#include "platform/file_result.h"

/// From the results of system calls to those of the file layer.
namespace platform {

inline FileError systemError(int number = errno) {
  return {qt_error_string(number), number == ENOENT || number == ENOTDIR, number};
}

/// The result of a call that gives -1 when it fails.
inline FileResult<> called(int result) {
  if (result < 0) return systemError();
  return Done();
}

/// The error for a pipe, a device or a socket.
inline FileError noRegularFile() {
  return {QStringLiteral("It is no regular file")};
}

}  // namespace platform
