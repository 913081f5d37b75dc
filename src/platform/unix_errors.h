#pragma once

#include <cerrno>
#include <optional>

#include "platform/file_bytes.h"

/// Error numbers of system calls, for the files that make them.
namespace platform {

/// 0, or the error number that a call which gave -1 left behind.
inline int errorNumber(int result) {
  return result < 0 ? errno : 0;
}

inline std::optional<FileError> errorOf(int number) {
  if (number == 0) return std::nullopt;
  return FileError{qt_error_string(number), number == ENOENT || number == ENOTDIR};
}

/// For what is neither file nor folder: a pipe, a device, a socket.
inline FileError noRegularFile() {
  return {QStringLiteral("It is no regular file")};
}

}  // namespace platform
