#include "platform/files.h"

#include <algorithm>

#include <QDir>
#include <QFile>
#include <QFileInfo>

#include "platform/code_page.h"
#include "platform/failure.h"
#include "platform/file_bytes.h"
#include "platform/paths.h"

namespace platform {

namespace {

[[noreturn]] void fail(const QString& native, const QString& description) {
  throw Failure(QFileInfo(native).fileName() + QStringLiteral(": ") + description);
}

}  // namespace

QByteArray ReadFile(const QString& path) {
  QString native = PlainPath(path);
  QByteArray bytes;
  auto error = ReadBytes(native, bytes);
  if (error && error->missing) error = ReadBytes(native = FindPath(native), bytes);
  if (error) fail(native, error->description);
  return bytes;
}

void WriteFile(const QString& path, QByteArrayView bytes) {
  const QString native = NativePath(path);
  const QFileInfo target(native);
  if (target.exists() && !target.permission(QFileDevice::WriteOwner)) {
    fail(native, QStringLiteral("The file is write-protected"));
  }
  if (const auto error = ReplaceBytes(native, bytes)) fail(native, error->description);
}

bool FileExists(const QString& path) {
  return QFileInfo(NativePath(path)).isFile();
}

bool FolderHoldsFiles(const QString& folder) {
  const QString native = NativePath(folder);
  return native.endsWith(u'/') && !QDir(native).entryList(QDir::Files).isEmpty();
}

QStringList ListFiles(const QString& folder, const QString& ending) {
  QStringList names = QDir(NativePath(folder)).entryList(QDir::Files, QDir::Unsorted);
  names.removeIf([&](const QString& name) {
    return name.size() < ending.size() || !SameName(QStringView(name).last(ending.size()), ending);
  });
  std::sort(names.begin(), names.end(), [](const QString& a, const QString& b) {
    return SameName(a, b) ? QFile::encodeName(a) < QFile::encodeName(b) : NameLess(a, b);
  });
  return names;
}

}  // namespace platform
