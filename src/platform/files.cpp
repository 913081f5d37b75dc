#include "platform/files.h"

#include <algorithm>

#include "platform/code_page.h"
#include "platform/file_names.h"
#include "platform/found_path.h"

namespace platform {

namespace {

/// The value of a result. Throws its error.
template <typename Value>
Value valueOf(FileResult<Value>&& result, const QString& path) {
  if (!result) throw failureOf(path, result.error());
  return std::move(*result);
}

FileResult<OpenFile> opened(const QString& path, AtLink atLink) {
  return atFoundPath(path, [&](const QString& native) { return OpenFile::open(native, atLink); });
}

/// What is at the path. `native` becomes the path that it was found at.
Look look(const QString& path, AtLink atLink, QString& native) {
  auto found = atFoundPath(path, [&](const QString& at) -> FileResult<Look> {
    auto there = lookAt(native = at, atLink);
    if (there && !there->exists) return FileError{QString(), true};
    return there;
  });
  return found.isMissing() ? Look() : valueOf(std::move(found), path);
}

/// The turn at the file, under the name that it has on the disk.
Turn turnAt(const QString& path, AtLink atLink, Readers readers) {
  QString native;
  look(path, AtLink::Replace, native);
  return valueOf(Turn::take(native, atLink, readers), path);
}

}  // namespace

OpenFile openFile(const QString& path) {
  return valueOf(opened(path, AtLink::Follow), path);
}

std::optional<OpenFile> openIfThere(const QString& path, AtLink atLink) {
  auto file = opened(path, atLink);
  if (file.isMissing()) return std::nullopt;
  return valueOf(std::move(file), path);
}

QByteArray bytesOf(const OpenFile& file, const QString& path) {
  return valueOf(file.bytes(), path);
}

QByteArray readFile(const QString& path) {
  return bytesOf(openFile(path), path);
}

std::optional<QByteArray> readIfThere(const QString& path, AtLink atLink) {
  const auto file = openIfThere(path, atLink);
  return file ? std::optional(bytesOf(*file, path)) : std::nullopt;
}

FileTurn::FileTurn(const QString& path, AtLink atLink)
    : path_(path), turn_(turnAt(path, atLink, atLink == AtLink::Follow ? Readers::All : Readers::Owner)) {
  if (turn_.present()) text_ = bytesOf(*turn_.present(), path);
}

void FileTurn::replace(QByteArrayView bytes, const OpenFile* like) {
  valueOf(turn_.replace(bytes, like), path_);
}

void writeFile(const QString& path, QByteArrayView bytes, AtLink atLink) {
  Turn turn = turnAt(path, atLink, Readers::All);
  valueOf(turn.replace(bytes, nullptr), path);
}

void makeFile(const QString& path, QByteArrayView bytes) {
  FileTurn turn(path);
  if (!turn.text()) turn.replace(bytes);
}

bool fileExists(const QString& path) {
  QString native;
  return look(path, AtLink::Follow, native).isFile;
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
  auto listed = listNames(native);
  QStringList names = listed.isMissing() ? QStringList() : valueOf(std::move(listed), folder);
  names.removeIf([&](const QString& name) {
    if (name.startsWith(u'.') || name.size() < ending.size()) return true;
    if (!sameName(QStringView(name).last(ending.size()), ending)) return true;
    // A file that can't be looked at stays in the list: reading it will report why.
    const auto found = lookAt(native + u'/' + name, AtLink::Follow);
    return found && !found->isFile;
  });
  std::sort(names.begin(), names.end(), [](const QString& a, const QString& b) {
    return sameName(a, b) ? encodedName(a) < encodedName(b) : nameLess(a, b);
  });
  return names;
}

}  // namespace platform
