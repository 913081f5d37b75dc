#include "platform/windows_calls.h"

#include <algorithm>
#include <array>

#include <QList>

namespace platform {

namespace {

constexpr QChar Separator(u'\\');
const QString WholePath = QStringLiteral("\\\\?\\");  // at its head: nothing else of the path is read
const QString DevicePath = QStringLiteral("\\\\.\\");

/// Whether Windows takes the name for a device, whatever its ending.
bool isDevice(QStringView name) {
  constexpr auto Devices = std::to_array<QStringView>({u"CON", u"PRN", u"AUX", u"NUL", u"CONIN$", u"CONOUT$"});
  constexpr auto Ports = std::to_array<QStringView>({u"COM", u"LPT"});
  constexpr QStringView Numbers = u"123456789\u00B9\u00B2\u00B3";
  const qsizetype dot = name.indexOf(u'.');
  const QStringView stem = (dot < 0 ? name : name.first(dot)).trimmed();
  const auto isStem = [&](QStringView device) { return stem.compare(device, Qt::CaseInsensitive) == 0; };
  if (std::any_of(Devices.begin(), Devices.end(), isStem)) return true;
  return stem.size() == 4 && Numbers.contains(stem.last(1)) &&
         std::any_of(Ports.begin(), Ports.end(),
                     [&](QStringView port) { return stem.startsWith(port, Qt::CaseInsensitive); });
}

/// Whether the path names a device or, by a colon, a stream. The colon of a drive is none.
bool namesNoFile(const QString& path) {
  if (path.startsWith(DevicePath)) return true;
  const bool hasDrive = path.size() > 1 && path[1] == u':';
  const auto names = QStringView(path).sliced(hasDrive ? 2 : 0).split(Separator);
  return std::any_of(names.begin(), names.end(),
                     [](QStringView name) { return name.contains(u':') || isDevice(name); });
}

bool isMissing(DWORD number) {
  // A name that can't be one, and a file where a folder is asked for, are missing as well.
  constexpr auto Missing = std::to_array<DWORD>(
      {ERROR_FILE_NOT_FOUND, ERROR_PATH_NOT_FOUND, ERROR_INVALID_NAME, ERROR_BAD_PATHNAME, ERROR_DIRECTORY});
  return std::find(Missing.begin(), Missing.end(), number) != Missing.end();
}

}  // namespace

FileError systemError(DWORD number) {
  return {qt_error_string(static_cast<int>(number)), isMissing(number), static_cast<int>(number)};
}

FileError noRegularFile() {
  return {QStringLiteral("It is no regular file")};
}

FileResult<std::wstring> widePath(const QString& native) {
  QString path = native;
  path.replace(u'/', Separator);
  if (path.contains(QChar(u'\0'))) return systemError(ERROR_INVALID_NAME);
  if (path.startsWith(WholePath)) return path.toStdWString();
  if (namesNoFile(path)) return noRegularFile();
  const std::wstring given = path.toStdWString();
  std::wstring full(static_cast<size_t>(MAX_PATH), L'\0');
  for (;;) {
    const DWORD length = ::GetFullPathNameW(given.c_str(), static_cast<DWORD>(full.size()), full.data(), nullptr);
    if (length == 0) return systemError();
    const bool fits = length < full.size();
    full.resize(length);
    if (fits) break;
  }
  const bool onServer = full.starts_with(L"\\\\");
  return WholePath.toStdWString() + (onServer ? L"UNC" + full.substr(1) : full);
}

FileResult<FileHandle> openPresent(const std::wstring& path, DWORD access, AtLink atLink) {
  constexpr DWORD Shared = FILE_SHARE_READ | FILE_SHARE_WRITE | FILE_SHARE_DELETE;
  const DWORD flags = FILE_FLAG_BACKUP_SEMANTICS | (atLink == AtLink::Replace ? FILE_FLAG_OPEN_REPARSE_POINT : 0);
  const HANDLE handle = ::CreateFileW(path.c_str(), access, Shared, nullptr, OPEN_EXISTING, flags, nullptr);
  if (handle == INVALID_HANDLE_VALUE) return systemError();
  return FileHandle(reinterpret_cast<qintptr>(handle));
}

FileResult<Kind> kindOf(const FileHandle& file) {
  Kind kind;
  kind.onDisk = ::GetFileType(handleOf(file)) == FILE_TYPE_DISK;
  if (!kind.onDisk) return kind;
  FILE_ATTRIBUTE_TAG_INFO info;
  const auto told = called(::GetFileInformationByHandleEx(handleOf(file), FileAttributeTagInfo, &info, sizeof(info)));
  if (!told) return told.error();
  kind.isFolder = (info.FileAttributes & FILE_ATTRIBUTE_DIRECTORY) != 0;
  kind.isTagged = (info.FileAttributes & FILE_ATTRIBUTE_REPARSE_POINT) != 0;
  kind.isLink = kind.isTagged && IsReparseTagNameSurrogate(info.ReparseTag);
  return kind;
}

qint64 nanosecondsOf(const LARGE_INTEGER& time) {
  constexpr qint64 From1601To1970 = 116'444'736'000'000'000;  // in units of 100 nanoseconds, as the time
  return std::max<qint64>(time.QuadPart - From1601To1970, 0) * 100;
}

}  // namespace platform
