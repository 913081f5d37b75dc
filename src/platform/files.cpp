#include "platform/files.h"

#include <algorithm>
#include <functional>

#include "platform/code_page.h"
#include "platform/failure.h"
#include "platform/file_bytes.h"
#include "platform/paths.h"

namespace platform {

namespace {

Failure failureOf(const QString& native, const FileError& error) {
  return Failure(native.section(u'/', -1) + QStringLiteral(": ") + error.description);
}

/// Takes a step on the path as written, and when nothing stands there on the one that is found without regard to case.
/// Gives the failure when nothing stands there either, and throws any other.
std::optional<Failure> touch(const QString& path, const std::function<std::optional<FileError>(const QString&)>& step) {
  QString native = PlainPath(path);
  auto error = step(native);
  if (error && error->missing) error = step(native = FindPath(native));
  if (!error) return std::nullopt;
  if (!error->missing) throw failureOf(native, *error);
  return failureOf(native, *error);
}

/// What stands at the path, and where that is.
Look look(const QString& path, AtLink atLink, QString& native) {
  Look found;
  touch(path, [&](const QString& at) {
    auto error = LookAt(native = at, atLink, found);
    if (!error && !found.stands) error = FileError{QString(), true};
    return error;
  });
  return found;
}

}  // namespace

QByteArray ReadFile(const QString& path) {
  QByteArray bytes;
  const auto missing = touch(path, [&](const QString& native) { return ReadBytes(native, AtLink::Follow, bytes); });
  if (missing) throw Failure(*missing);
  return bytes;
}

std::optional<QByteArray> ReadIfThere(const QString& path, AtLink atLink) {
  QByteArray bytes;
  if (touch(path, [&](const QString& native) { return ReadBytes(native, atLink, bytes); })) return std::nullopt;
  return bytes;
}

std::unique_ptr<QFile> OpenFile(const QString& path) {
  auto file = std::make_unique<QFile>();
  const auto missing = touch(path, [&](const QString& native) { return OpenBytes(native, *file); });
  if (missing) throw Failure(*missing);
  return file;
}

void WriteFile(const QString& path, QByteArrayView bytes, AtLink atLink) {
  QString native;
  look(path, AtLink::Replace, native);
  if (const auto error = ReplaceBytes(native, bytes, atLink)) throw failureOf(native, *error);
}

bool FileExists(const QString& path) {
  QString native;
  return look(path, AtLink::Follow, native).isFile;
}

qint64 LastWritten(const QString& path) {
  QString native;
  return look(path, AtLink::Replace, native).lastWritten;
}

bool FolderHoldsFiles(const QString& folder) {
  try {
    return NativePath(folder).endsWith(u'/') && !ListFiles(folder, QString()).isEmpty();
  } catch (const Failure&) {
    return false;
  }
}

QStringList ListFiles(const QString& folder, const QString& ending) {
  const QString native = FindPath(PlainPath(folder));
  QStringList names;
  const auto error = ListNames(native, names);
  if (error && !error->missing) throw failureOf(native, *error);
  names.removeIf([&](const QString& name) {
    if (name.startsWith(u'.') || name.size() < ending.size()) return true;
    if (!SameName(QStringView(name).last(ending.size()), ending)) return true;
    Look found;
    return LookAt(native + u'/' + name, AtLink::Follow, found) || !found.isFile;
  });
  std::sort(names.begin(), names.end(), [](const QString& a, const QString& b) {
    return SameName(a, b) ? QFile::encodeName(a) < QFile::encodeName(b) : NameLess(a, b);
  });
  return names;
}

}  // namespace platform
