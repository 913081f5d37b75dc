#include "drawing/shipped_fonts.h"

#include <QCoreApplication>
#include <QDir>
#include <QFontDatabase>
#ifdef Q_OS_WIN
#include <QGuiApplication>
#include <QSettings>
#endif

namespace drawing {

namespace {

QStringList shippedFiles() {
  const QDir folder(QCoreApplication::applicationDirPath() + QStringLiteral("/fonts"));
  QStringList files;
  for (const QString& name : folder.entryList({QStringLiteral("*.ttf")}, QDir::Files)) files += folder.filePath(name);
  return files;
}

#ifdef Q_OS_WIN
/// The files of the game's faces that are installed. A program without windows doesn't know of them by itself.
QStringList installedFiles() {
  if (QGuiApplication::platformName() == QStringLiteral("windows")) return {};
  const QDir folder(qEnvironmentVariable("windir") + QStringLiteral("/Fonts"));
  QStringList files;
  for (const char* root : {"HKEY_LOCAL_MACHINE", "HKEY_CURRENT_USER"}) {
    const QSettings fonts(
        QLatin1String(root) + QStringLiteral("\\SOFTWARE\\Microsoft\\Windows NT\\CurrentVersion\\Fonts"),
        QSettings::NativeFormat);
    for (const QString& name : fonts.allKeys()) {
      if (name.startsWith(QStringLiteral("Eurostar"))) files += folder.absoluteFilePath(fonts.value(name).toString());
    }
  }
  return files;
}
#else
QStringList installedFiles() {
  return {};
}
#endif

}  // namespace

void addShippedFonts() {
  static const bool added = [] {
    for (const QString& file : installedFiles() + shippedFiles()) QFontDatabase::addApplicationFont(file);
    return true;
  }();
  Q_UNUSED(added);
}

}  // namespace drawing
