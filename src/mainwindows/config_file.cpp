#include "mainwindows/config_file.h"

#include <algorithm>

#include <QCoreApplication>
#include <QDir>
#include <QStandardPaths>

#include "platform/code_page.h"
#include "platform/failure.h"
#include "platform/files.h"
#include "platform/paths.h"
#include "platform/system_folders.h"
#include "themefiles/ini_access.h"

namespace mainwindows {
namespace {

constexpr QByteArrayView FirstContent = "[Setup]\r\nEXEDirectory=\r\n";

/// Settings don't belong there, even if the user may write them.
bool isInSystemFolder(const QString& folder) {
  const QString native = platform::nativePath(folder) + u'/';
  const QStringList heads = platform::systemFolders();
  return std::any_of(heads.begin(), heads.end(),
                     [&](const QString& head) { return native.startsWith(head + u'/', Qt::CaseInsensitive); });
}

/// Whether the folder is that of an installed program, wherever that is: its data then lies in a folder beside it.
bool isInstalled(const QString& folder) {
  return QDir(platform::nativePath(folder) + QStringLiteral("/../share/cantorama-theme-edit")).exists();
}

/// A folder's path as UTF-8 bytes, each byte one letter of the code page.
QString asBytes(const QString& folder) {
  return platform::fromAnsi(folder.toUtf8());
}

}  // namespace

ConfigFile::ConfigFile(const QStringList& folders) {
  for (const QString& folder : folders) {
    const QString path = folder + QStringLiteral("\\config.ini");
    try {
      if (!platform::readIfThere(path)) {
        if (isInSystemFolder(folder) || isInstalled(folder)) continue;
        QDir().mkpath(platform::nativePath(folder));  // the making of the file tells if that failed
        platform::makeFile(path, FirstContent);
      }
    } catch (const platform::Failure& failure) {
      problem_ = failure.description();
      continue;
    }
    path_ = path;
    problem_.clear();
    return;
  }
}

QString ConfigFile::gameFolder() const {
  if (!folderOfThisRun_.isEmpty()) return folderOfThisRun_;
  if (path_.isEmpty()) return {};
  const QString stored = themefiles::GetINI(QStringLiteral("Setup"), QStringLiteral("EXEDirectory"), QString(), path_,
                                            themefiles::ListBufferSize);
  if (stored.isEmpty() || platform::folderHoldsFiles(stored)) return stored;
  const auto bytes = platform::toAnsi(stored);
  const QString fromUtf8 = bytes ? QString::fromUtf8(*bytes) : stored;
  return platform::folderHoldsFiles(fromUtf8) ? fromUtf8 : stored;
}

void ConfigFile::setGameFolder(const QString& folder) {
  // The choice replaces the folder of the command line, even if it can't be stored.
  if (!folderOfThisRun_.isEmpty()) folderOfThisRun_ = folder;
  if (path_.isEmpty()) throw platform::Failure(problem_);
  const QString text = platform::toAnsi(folder) ? folder : asBytes(folder);
  themefiles::putINIChecked(QStringLiteral("Setup"), QStringLiteral("EXEDirectory"), text, path_);
  folderOfThisRun_.clear();
}

QStringList configFolders() {
  return {platform::programPath(QCoreApplication::applicationDirPath()),
          platform::programPath(QStandardPaths::writableLocation(QStandardPaths::AppConfigLocation))};
}

}  // namespace mainwindows
