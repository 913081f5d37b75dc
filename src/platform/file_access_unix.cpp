#include "platform/file_access_unix.h"

#include <fcntl.h>
#include <optional>
#include <sys/stat.h>
#include <unistd.h>
#ifdef Q_OS_LINUX
#include <sys/xattr.h>
#endif

#include "platform/unix_errors.h"

namespace platform {

namespace {

constexpr mode_t AllBits = 07777;
constexpr mode_t Rights = 0777;
constexpr mode_t OwnersRights = S_IRUSR | S_IWUSR;

int descriptorOf(const FileHandle& file) {
  return static_cast<int>(file.value());
}

FileResult<struct stat> statusOf(const FileHandle& file) {
  struct stat status;
  if (const auto looked = called(::fstat(descriptorOf(file), &status)); !looked) return looked.error();
  return status;
}

/// Whether the system doesn't permit a change, or has no such thing, or no room for it. Other errors are failures.
bool isRefusal(int error) {
  return error == EPERM || error == EACCES || error == EINVAL || error == ENOTSUP || error == ENOSYS ||
         error == ENOSPC || error == EDQUOT || error == ERANGE || error == E2BIG;
}

/// Tries a change: whether it was made. Fails with any other error than a refusal.
FileResult<bool> tried(int result) {
  if (result >= 0) return true;
  if (isRefusal(errno)) return false;
  return systemError();
}

/// Gives the file the owner and group of another one. Gives whether it has that group now.
FileResult<bool> copyOwner(const FileHandle& fresh, const struct stat& old) {
  const auto now = statusOf(fresh);
  if (!now) return now.error();
  if (now->st_uid != old.st_uid) {
    const auto both = tried(::fchown(descriptorOf(fresh), old.st_uid, old.st_gid));
    if (!both || *both) return both;
  }
  if (now->st_gid == old.st_gid) return true;
  return tried(::fchown(descriptorOf(fresh), static_cast<uid_t>(-1), old.st_gid));
}

#ifdef Q_OS_LINUX

constexpr char AccessList[] = "system.posix_acl_access";

/// The value of an extended attribute; none if the file has none of this name, or the file system none at all.
FileResult<std::optional<QByteArray>> attributeOf(const FileHandle& file, const char* name) {
  QByteArray value(XATTR_SIZE_MAX, Qt::Uninitialized);
  const ssize_t size = ::fgetxattr(descriptorOf(file), name, value.data(), XATTR_SIZE_MAX);
  if (size < 0 && (errno == ENODATA || errno == ENOTSUP)) return std::optional<QByteArray>();
  if (size < 0) return systemError();
  value.truncate(size);
  return std::optional(value);
}

FileResult<bool> setAttribute(const FileHandle& file, const char* name, const QByteArray& value) {
  return tried(::fsetxattr(descriptorOf(file), name, value.constData(), static_cast<size_t>(value.size()), 0));
}

/// A new file may have got a list from its folder.
FileResult<bool> removeAccessList(const FileHandle& file) {
  const int result = ::fremovexattr(descriptorOf(file), AccessList);
  if (result < 0 && (errno == ENODATA || errno == ENOTSUP)) return true;
  return tried(result);
}

/// Gives the file the access list of another one, or none if that has none. Gives whether both have the same now. In
/// another group the list would say something else.
FileResult<bool> copyAccessList(const FileHandle& fresh, const OpenFile& old, bool sameGroup) {
  const auto list = attributeOf(old.handle(), AccessList);
  if (!list && !isRefusal(list.error().number)) return list.error();
  if (!list) return false;
  if (!*list) return removeAccessList(fresh);
  return sameGroup ? setAttribute(fresh, AccessList, **list) : FileResult<bool>(false);
}

FileResult<> copyAttributes(const FileHandle& fresh, const OpenFile& old) {
  QByteArray names(XATTR_LIST_MAX, Qt::Uninitialized);
  const ssize_t size = ::flistxattr(descriptorOf(old.handle()), names.data(), XATTR_LIST_MAX);
  if (size <= 0) {
    const auto listed = tried(static_cast<int>(size));
    return listed ? FileResult<>(Done()) : listed.error();
  }
  names.truncate(size - 1);  // each name ends in a NUL
  for (const QByteArray& name : names.split('\0')) {
    if (name == AccessList) continue;
    const auto value = attributeOf(old.handle(), name.constData());
    if (!value && !isRefusal(value.error().number)) return value.error();
    if (!value || !*value) continue;
    if (const auto set = setAttribute(fresh, name.constData(), **value); !set) return set.error();
  }
  return Done();
}

#else

FileResult<bool> copyAccessList(const FileHandle& /*fresh*/, const OpenFile& /*old*/, bool /*sameGroup*/) {
  return true;
}

FileResult<> copyAttributes(const FileHandle& /*fresh*/, const OpenFile& /*old*/) {
  return Done();
}

#endif

/// What the file's mode permits, without what would permit more to anybody who isn't in the former group, or whom only
/// the access list kept out.
mode_t safeMode(mode_t mode, bool sameGroup, bool sameList) {
  constexpr int Group = 3;
  constexpr mode_t Others = 07;
  if (!sameList) return mode & ~(Others << Group | Others);
  if (sameGroup) return mode;
  const mode_t everybodys = mode & mode >> Group & Others;
  return (mode & ~(Others << Group | Others)) | everybodys << Group | everybodys;
}

/// Gives the file the owner, group and access list of another one, then the mode: a change of the others changes it.
FileResult<> copyRights(const FileHandle& fresh, const OpenFile& old, mode_t bits, mode_t added) {
  const auto status = statusOf(old.handle());
  if (!status) return status.error();
  const auto sameGroup = copyOwner(fresh, *status);
  if (!sameGroup) return sameGroup.error();
  const auto sameList = copyAccessList(fresh, old, *sameGroup);
  if (!sameList) return sameList.error();
  const mode_t mode = safeMode(status->st_mode & bits, *sameGroup, *sameList);
  return called(::fchmod(descriptorOf(fresh), mode | added));
}

}  // namespace

FileResult<> checkWritable(const QByteArray& name, const OpenFile& file) {
  const auto status = statusOf(file.handle());
  if (!status) return status.error();
  if ((status->st_mode & S_IWUSR) == 0) return FileError{QStringLiteral("The file is write-protected")};
  return called(::faccessat(AT_FDCWD, name.constData(), W_OK, AT_EACCESS));
}

FileResult<> keepAttributes(const FileHandle& fresh, const OpenFile& old) {
  const auto copied = copyRights(fresh, old, AllBits, 0);
  return copied ? copyAttributes(fresh, old) : copied;
}

FileResult<> copyAccess(const FileHandle& fresh, const OpenFile& model) {
  return copyRights(fresh, model, Rights, OwnersRights);
}

}  // namespace platform
