#pragma once

#include <cerrno>
#include <optional>

#include "platform/file_bytes.h"

/// From the results of system calls to errors.
namespace platform {

/// The error number of a failed call (-1), or 0.
inline int errorNumber(int result) {
  return result < 0 ? errno : 0;
}

inline std::optional<FileError> errorOf(int number) {
  if (number == 0) return std::nullopt;
  return FileError{qt_error_string(number), number == ENOENT || number == ENOTDIR};
}

/// The error for a pipe, a device or a socket.
inline FileError noRegularFile() {
  return {QStringLiteral("It is no regular file")};
}

}  // namespace platform
