#pragma once

#include <string>

#include <QString>

#include "platform/at_link.h"
#include "platform/file_handle.h"
#include "platform/file_result.h"
#include "platform/windows_api.h"

/// What the sources for Windows share: wide paths, open handles, and errors.
namespace platform {

/// The error of that number, or of the last failed call.
FileError systemError(DWORD number = ::GetLastError());

/// The result of a call that tells by `worked` whether it did.
inline FileResult<> called(BOOL worked) {
  if (!worked) return systemError();
  return Done();
}

/// The error for a folder, a device, a pipe or a stream in a file.
FileError noRegularFile();

/// The path for wide calls: whole, whatever its length, and read by nothing but the file system. Fails with
/// noRegularFile for a path that Windows reads as that of a device, a pipe or a stream.
FileResult<std::wstring> widePath(const QString& native);

/// The handle for a call of the system.
inline HANDLE handleOf(const FileHandle& file) {
  return reinterpret_cast<HANDLE>(file.value());
}

/// Opens what is at the path, folders too. Other programs may go on reading, writing, renaming and deleting it. With
/// Replace a link is opened itself.
FileResult<FileHandle> openPresent(const std::wstring& path, DWORD access, AtLink atLink);

/// What is known of an open handle.
struct Kind {
  bool onDisk = false;    ///< neither a device nor a pipe
  bool isFolder = false;  ///< or a link to one that is opened itself
  bool isTagged = false;  ///< its file system has to do something when it is read, or it is a link
  bool isLink = false;    ///< a symbolic link or a mount point that is opened itself
  bool isFile() const { return onDisk && !isFolder && !isLink; }
};
FileResult<Kind> kindOf(const FileHandle& file);

/// Nanoseconds since 1970; no time before.
qint64 nanosecondsOf(const LARGE_INTEGER& time);

}  // namespace platform
