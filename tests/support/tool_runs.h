#pragma once

#include <QCryptographicHash>
#include <QDirIterator>
#include <QProcess>
#include <QTest>

#include "platform/files.h"

// For tests of the programs that draw without a display.

namespace support {

struct ToolRun {
  QByteArray output, errors;
};

/// The status of a program that ends without a failure, whatever it found.
constexpr int Either = -1;

/// Runs the program, as on a machine without a display, to its end with the status; gives what it tells.
inline ToolRun runTool(const QString& program, int status, const QStringList& arguments,
                       const QStringList& variables = {}) {
  using namespace Qt::StringLiterals;
  const QStringList display{u"-uDISPLAY"_s, u"-uWAYLAND_DISPLAY"_s, u"-uQT_QPA_PLATFORM"_s};
  QProcess tool;
  tool.start(u"env"_s, display + variables + QStringList{program} + arguments);
  const bool ended = tool.waitForFinished(240'000) && tool.exitStatus() == QProcess::NormalExit;
  const ToolRun run{tool.readAllStandardOutput(), tool.readAllStandardError()};
  const bool expected = status == Either ? tool.exitCode() < 2 : tool.exitCode() == status;
  if (!ended || !expected) QTest::qFail(run.errors, __FILE__, __LINE__);
  return run;
}

/// Names, times and bytes of all that lies in the folder.
inline QStringList contentsOf(const QString& folder) {
  QStringList entries;
  QDirIterator walk(folder, QDir::AllEntries | QDir::Hidden | QDir::NoDotAndDotDot, QDirIterator::Subdirectories);
  while (walk.hasNext()) {
    const QString entry = walk.next();
    const QFileInfo info = walk.fileInfo();
    const QByteArray bytes = info.isFile() ? platform::readFile(entry) : QByteArray();
    entries += entry + info.lastModified().toString(Qt::ISODateWithMs) +
               QString::fromLatin1(QCryptographicHash::hash(bytes, QCryptographicHash::Sha1).toHex());
  }
  entries.sort();
  return entries;
}

}  // namespace support
