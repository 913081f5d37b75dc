#include "mainwindows/sample_game.h"

#include <QCoreApplication>
#include <QDir>
#include <QDirIterator>
#include <QFile>
#include <QFileInfo>
#include <QStandardPaths>

#include "platform/failure.h"

namespace mainwindows {

QString ownSampleGame() {
  const QString own =
      QStandardPaths::writableLocation(QStandardPaths::DocumentsLocation) + QStringLiteral("/Cantorama sample");
  if (QDir(own).exists()) return own;
  const QDir installed(QCoreApplication::applicationDirPath() +
                       QStringLiteral("/../share/cantorama-theme-edit/sample/Cantorama"));
  if (!installed.exists()) throw platform::Failure(QStringLiteral("no sample game is installed with the program"));
  // Under another name until it is whole.
  const QString making = own + QStringLiteral(".unfinished");
  QDir(making).removeRecursively();
  bool worked = QDir().mkpath(making);
  QDirIterator walk(installed.path(), QDir::Files, QDirIterator::Subdirectories);
  while (worked && walk.hasNext()) {
    const QString file = walk.next();
    const QString copy = making + u'/' + installed.relativeFilePath(file);
    worked = QDir().mkpath(QFileInfo(copy).path()) && QFile::copy(file, copy) &&
             QFile::setPermissions(copy, QFile::permissions(copy) | QFile::WriteOwner);
  }
  if (!worked || !QDir().rename(making, own)) {
    throw platform::Failure(QStringLiteral("the sample game can't be copied to '%1'").arg(own));
  }
  return own;
}

}  // namespace mainwindows
