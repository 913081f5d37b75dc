#include <QDateTime>
#include <QDir>
#include <QFileInfo>
#include <QSaveFile>

#include "platform/file_bytes.h"

namespace platform {

namespace {

/// An error unless the path leads to a regular file. With Replace a link counts as missing.
std::optional<FileError> checkRegular(const QFileInfo& info, AtLink atLink) {
  const bool passed = atLink == AtLink::Replace && info.isSymbolicLink();
  if (!info.exists() || passed) return FileError{QStringLiteral("No such file"), true};
  if (!info.isFile()) return FileError{QStringLiteral("It is no regular file")};
  return std::nullopt;
}

}  // namespace

std::optional<FileError> lookAt(const QString& native, AtLink atLink, Look& found) {
  const QFileInfo info(native);
  const bool link = atLink == AtLink::Replace && info.isSymbolicLink();
  found = {info.exists() || link, info.isFile() && !link, info.lastModified().toMSecsSinceEpoch() * 1'000'000};
  return std::nullopt;
}

std::optional<FileError> listNames(const QString& native, QStringList& names) {
  const QDir folder(native);
  if (!folder.exists()) return FileError{QStringLiteral("No such folder"), true};
  names += folder.entryList(QDir::AllEntries | QDir::Hidden | QDir::System | QDir::NoDotAndDotDot, QDir::Unsorted);
  return std::nullopt;
}

std::optional<FileError> openBytes(const QString& native, QFile& file) {
  if (auto error = checkRegular(QFileInfo(native), AtLink::Follow)) return error;
  file.setFileName(native);
  if (!file.open(QIODevice::ReadOnly)) return FileError{file.errorString()};
  return std::nullopt;
}

std::optional<FileError> readBytes(const QString& native, AtLink atLink, QByteArray& bytes) {
  if (auto error = checkRegular(QFileInfo(native), atLink)) return error;
  QFile file;
  if (auto error = openBytes(native, file)) return error;
  bytes = file.readAll();
  if (file.error() != QFileDevice::NoError) return FileError{file.errorString()};
  return std::nullopt;
}

std::optional<FileError> replaceBytes(const QString& native, QByteArrayView bytes, AtLink atLink) {
  const QFileInfo old(native);
  const auto error = checkRegular(old, atLink);
  if (error && !error->missing) return error;
  if (!error && !old.permission(QFileDevice::WriteOwner)) {
    return FileError{QStringLiteral("The file is write-protected")};
  }
  if (atLink == AtLink::Replace && old.isSymbolicLink() && !QFile::remove(native)) {
    return FileError{QStringLiteral("The link at this name can't be removed")};
  }
  QSaveFile file(native);
  const bool done =
      file.open(QIODevice::WriteOnly) && file.write(bytes.data(), bytes.size()) == bytes.size() && file.commit();
  if (!done) return FileError{file.errorString()};
  return std::nullopt;
}

}  // namespace platform
