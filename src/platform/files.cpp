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

/// Tries the step on the path as written. If there is nothing, tries it on the path found regardless of case. Returns
/// the failure if there is nothing either, and throws any other.
std::optional<Failure> touch(const QString& path, const std::function<std::optional<FileError>(const QString&)>& step) {
  QString native = plainPath(path);
  auto error = step(native);
  if (error && error->missing) error = step(native = findPath(native));
  if (!error) return std::nullopt;
  if (!error->missing) throw failureOf(native, *error);
  return failureOf(native, *error);
}

/// What is at the path. `native` becomes the path that it was found at.
Look look(const QString& path, AtLink atLink, QString& native) {
  Look found;
  touch(path, [&](const QString& at) {
    auto error = lookAt(native = at, atLink, found);
    if (!error && !found.stands) error = FileError{QString(), true};
    return error;
  });
  return found;
}

}  // namespace

QByteArray readFile(const QString& path) {
  QByteArray bytes;
  const auto missing = touch(path, [&](const QString& native) { return readBytes(native, AtLink::Follow, bytes); });
  if (missing) throw Failure(*missing);
  return bytes;
}

std::optional<QByteArray> readIfThere(const QString& path, AtLink atLink) {
  QByteArray bytes;
  if (touch(path, [&](const QString& native) { return readBytes(native, atLink, bytes); })) return std::nullopt;
  return bytes;
}

std::unique_ptr<QFile> openFile(const QString& path) {
  auto file = std::make_unique<QFile>();
  const auto missing = touch(path, [&](const QString& native) { return openBytes(native, *file); });
  if (missing) throw Failure(*missing);
  return file;
}

void writeFile(const QString& path, QByteArrayView bytes, AtLink atLink) {
  QString native;
  look(path, AtLink::Replace, native);
  if (const auto error = replaceBytes(native, bytes, atLink)) throw failureOf(native, *error);
}

bool fileExists(const QString& path) {
  QString native;
  return look(path, AtLink::Follow, native).isFile;
}

qint64 lastWritten(const QString& path) {
  QString native;
  return look(path, AtLink::Replace, native).lastWritten;
}

bool folderHoldsFiles(const QString& folder) {
  try {
    return nativePath(folder).endsWith(u'/') && !listFiles(folder, QString()).isEmpty();
  } catch (const Failure&) {
    return false;
  }
}

QStringList listFiles(const QString& folder, const QString& ending) {
  const QString native = findPath(plainPath(folder));
  QStringList names;
  const auto error = listNames(native, names);
  if (error && !error->missing) throw failureOf(native, *error);
  names.removeIf([&](const QString& name) {
    if (name.startsWith(u'.') || name.size() < ending.size()) return true;
    if (!sameName(QStringView(name).last(ending.size()), ending)) return true;
    Look found;
    // A file that can't be looked at stays in the list: reading it will report why.
    return !lookAt(native + u'/' + name, AtLink::Follow, found) && !found.isFile;
  });
  std::sort(names.begin(), names.end(), [](const QString& a, const QString& b) {
    return sameName(a, b) ? QFile::encodeName(a) < QFile::encodeName(b) : nameLess(a, b);
  });
  return names;
}

}  // namespace platform
