#include <QFile>
#include <QSaveFile>

#include "platform/file_bytes.h"

namespace platform {

std::optional<FileError> ReadBytes(const QString& native, QByteArray& bytes) {
  QFile file(native);
  if (!file.open(QIODevice::ReadOnly)) return FileError{file.errorString(), !file.exists()};
  bytes = file.readAll();
  if (file.error() != QFileDevice::NoError) return FileError{file.errorString()};
  return std::nullopt;
}

std::optional<FileError> ReplaceBytes(const QString& native, QByteArrayView bytes) {
  QSaveFile file(native);
  const bool done =
      file.open(QIODevice::WriteOnly) && file.write(bytes.data(), bytes.size()) == bytes.size() && file.commit();
  if (!done) return FileError{file.errorString()};
  return std::nullopt;
}

}  // namespace platform
