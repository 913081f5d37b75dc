#pragma once

#include <QFile>
#include <QFileInfo>
#include <QTemporaryDir>

#include "platform/paths.h"

namespace support {

using namespace Qt::StringLiterals;

/// A folder that goes with the test. Names of files are relative to it; tables write "|" for a line end.
class Folder {
 public:
  QString native(const QString& name) const { return folder_.filePath(name); }
  /// The program's path of a file.
  QString path(const QString& name) const { return platform::programPath(native(name)); }
  void put(const QString& name, const QByteArray& bytes) const {
    QFile file(native(name));
    if (!file.open(QIODevice::WriteOnly) || file.write(bytes) != bytes.size()) qFatal("can't write a test file");
  }
  QByteArray get(const QString& name) const {
    QFile file(native(name));
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray("no file");
  }
  bool has(const QString& name) const { return QFileInfo::exists(native(name)); }
  void protect(const QString& name, bool on = true) const {
    QFile::setPermissions(native(name),
                          QFileDevice::ReadOwner | (on ? QFileDevice::Permission() : QFileDevice::WriteOwner));
  }

 private:
  QTemporaryDir folder_;
};

/// The bytes of a table row, "|" being `lineEnd`.
inline QByteArray linesOf(QByteArray table, const char* lineEnd = "\r\n") {
  return table.replace('|', lineEnd);
}

/// The lines of a section with so many colours: "C1=1 0 0|C2=2 0 0|".
inline QByteArray manyColors(int count) {
  QByteArray lines = "[Colors]|";
  for (int i = 1; i <= count; ++i) lines += "C" + QByteArray::number(i) + '=' + QByteArray::number(i) + " 0 0|";
  return lines;
}

}  // namespace support
