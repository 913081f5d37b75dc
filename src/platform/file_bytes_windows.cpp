#include <algorithm>
#include <memory>

#include "platform/file_bytes.h"
#include "platform/windows_calls.h"

namespace platform {

namespace {

struct EndSearch {
  void operator()(void* search) const { ::FindClose(search); }
};

/// A reading handle that can be read as a file. One that has another tag than a link, such as a file that lies on a
/// server until it is read, has to be opened as any other for that.
FileResult<FileHandle> openForReading(const QString& native, AtLink atLink) {
  const auto path = widePath(native);
  if (!path) return path.error();
  auto file = openPresent(*path, GENERIC_READ, atLink);
  if (!file) return file;
  const auto kind = kindOf(*file);
  if (!kind) return kind.error();
  if (kind->isLink && atLink == AtLink::Replace) return systemError(ERROR_FILE_NOT_FOUND);
  if (!kind->isFile()) return noRegularFile();
  return atLink == AtLink::Replace && kind->isTagged ? openPresent(*path, GENERIC_READ, AtLink::Follow)
                                                     : std::move(file);
}

}  // namespace

void FileHandle::close(qintptr value) {
  ::CloseHandle(reinterpret_cast<HANDLE>(value));
}

FileResult<Look> lookAt(const QString& native, AtLink atLink) {
  const auto path = widePath(native);
  if (!path) return path.isMissing() ? Look() : Look{true, false};
  const auto file = openPresent(*path, FILE_READ_ATTRIBUTES, atLink);
  // The second stands for a loop of links.
  if (!file && (file.isMissing() || file.error().number == ERROR_CANT_RESOLVE_FILENAME)) return Look();
  if (!file) return file.error();
  const auto kind = kindOf(*file);
  if (!kind) return kind.error();
  return Look{true, kind->isFile()};
}

FileResult<QStringList> listNames(const QString& native) {
  const auto path = widePath(native + QStringLiteral("/*"));
  if (!path) return path.error();
  WIN32_FIND_DATAW entry;
  const HANDLE search = ::FindFirstFileExW(path->c_str(), FindExInfoBasic, &entry, FindExSearchNameMatch, nullptr,
                                           FIND_FIRST_EX_LARGE_FETCH);
  if (search == INVALID_HANDLE_VALUE) return systemError();
  const std::unique_ptr<void, EndSearch> end(search);
  QStringList names;
  do {
    const QString name = QString::fromWCharArray(entry.cFileName);
    const bool hidden = (entry.dwFileAttributes & FILE_ATTRIBUTE_HIDDEN) != 0;
    if (!hidden && name != u"." && name != u"..") names += name;
  } while (::FindNextFileW(search, &entry));
  if (::GetLastError() != ERROR_NO_MORE_FILES) return systemError();
  return names;
}

FileResult<OpenFile> OpenFile::open(const QString& native, AtLink atLink) {
  auto file = openForReading(native, atLink);
  if (!file) return file.error();
  FILE_STANDARD_INFO sizes;
  FILE_BASIC_INFO times;
  auto told = called(::GetFileInformationByHandleEx(handleOf(*file), FileStandardInfo, &sizes, sizeof(sizes)));
  if (told) told = called(::GetFileInformationByHandleEx(handleOf(*file), FileBasicInfo, &times, sizeof(times)));
  if (!told) return told.error();
  return OpenFile(std::move(*file), sizes.EndOfFile.QuadPart, nanosecondsOf(times.LastWriteTime));
}

FileResult<qsizetype> OpenFile::readAt(qsizetype place, char* to, qsizetype most) const {
  constexpr qsizetype MostAtOnce = 1 << 30;
  OVERLAPPED from{};
  from.Offset = static_cast<DWORD>(place);
  from.OffsetHigh = static_cast<DWORD>(place >> 32);
  DWORD got = 0;
  if (::ReadFile(handleOf(handle_), to, static_cast<DWORD>(std::min(most, MostAtOnce)), &got, &from)) return got;
  if (::GetLastError() == ERROR_HANDLE_EOF) return 0;
  return systemError();
}

}  // namespace platform
