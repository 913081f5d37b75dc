#include <cstring>
#include <limits>

#include "platform/file_identity.h"
#include "platform/windows_calls.h"

namespace platform {

namespace {

/// Volume and number of the file. Where file numbers have 128 bits, both halves count.
FileResult<> numberOf(const FileHandle& file, FileIdentity& identity) {
  FILE_ID_INFO id;
  if (::GetFileInformationByHandleEx(handleOf(file), FileIdInfo, &id, sizeof(id))) {
    quint64 halves[2];
    static_assert(sizeof(halves) == sizeof(id.FileId));
    std::memcpy(halves, &id.FileId, sizeof(halves));
    identity.device = id.VolumeSerialNumber;
    identity.number = halves[0] ^ (halves[1] << 1);
    return Done();
  }
  BY_HANDLE_FILE_INFORMATION older;  // all that some file systems know
  const auto told = called(::GetFileInformationByHandle(handleOf(file), &older));
  if (!told) return told;
  identity.device = older.dwVolumeSerialNumber;
  identity.number = (static_cast<quint64>(older.nFileIndexHigh) << 32) | older.nFileIndexLow;
  return Done();
}

}  // namespace

FileResult<std::optional<FileIdentity>> identityAt(const QString& native) {
  using Identity = std::optional<FileIdentity>;
  const auto path = widePath(native);
  if (!path && !path.isMissing()) return Identity();
  if (!path) return path.error();
  const auto file = openPresent(*path, FILE_READ_ATTRIBUTES, AtLink::Follow);
  if (!file && file.error().number == ERROR_CANT_RESOLVE_FILENAME) return Identity();
  if (!file) return file.error();
  const auto kind = kindOf(*file);
  if (!kind) return kind.error();
  if (!kind->isFile()) return Identity();

  FileIdentity identity;
  FILE_STANDARD_INFO sizes;
  FILE_BASIC_INFO times;
  auto told = numberOf(*file, identity);
  if (told) told = called(::GetFileInformationByHandleEx(handleOf(*file), FileStandardInfo, &sizes, sizeof(sizes)));
  if (told) told = called(::GetFileInformationByHandleEx(handleOf(*file), FileBasicInfo, &times, sizeof(times)));
  if (!told) return told.error();
  identity.size = sizes.EndOfFile.QuadPart;
  identity.modified = nanosecondsOf(times.LastWriteTime);
  // File systems without such a time have 0 there, or a coarse clock: their files never count as settled.
  identity.changed =
      times.ChangeTime.QuadPart > 0 ? nanosecondsOf(times.ChangeTime) : std::numeric_limits<qint64>::max();
  return Identity(identity);
}

}  // namespace platform
