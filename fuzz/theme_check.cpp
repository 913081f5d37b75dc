#include <QDir>
#include <QGuiApplication>
#include <QImage>
#include <QTemporaryDir>

#include "input.h"
#include "platform/files.h"
#include "themecheck/game_check.h"

namespace {

constexpr const char* Files[] = {"Themes/T.ini", "Skins/T/Only.ini", "Languages/Some.ini"};

/// A game folder whose three files are written anew for each input.
QString gameFolder() {
  static const QTemporaryDir folder;
  for (const char* part : {"Themes", "Skins/T", "Languages"}) QDir(folder.path()).mkpath(QString::fromLatin1(part));
  return folder.path();
}

}  // namespace

extern "C" int LLVMFuzzerInitialize(int* argc, char*** argv) {
  static const QGuiApplication application(*argc, *argv);
  QImage picture(4, 4, QImage::Format_ARGB32);
  picture.fill(Qt::black);
  picture.save(gameFolder() + QStringLiteral("/Skins/T/a.png"));
  return 0;
}

/// Theme, skin and language, each ended by a NUL.
extern "C" int LLVMFuzzerTestOneInput(const unsigned char* data, std::size_t size) {
  static const QString game = gameFolder();
  const QByteArrayList texts = QByteArray(reinterpret_cast<const char*>(data), qsizetype(size)).split('\0');
  for (int file = 0; file < 3; ++file) {
    platform::writeFile(game + u'/' + QString::fromLatin1(Files[file]), texts.value(file));
  }
  for (const themecheck::Finding& finding : themecheck::checkGame({game, {}, {}, {}}, [](auto&&...) {})) {
    fuzz::require(!finding.text.isEmpty() && finding.place.line >= 1, "a finding tells what and where");
    fuzz::require(finding.place.file.startsWith(game + u'/'), "its file is the game's");
  }
  return 0;
}
