#include <algorithm>
#include <cstdio>
#include <filesystem>

#include <QElapsedTimer>
#include <QListWidget>

#include "controls/list_box.h"
#include "figures.h"
#include "mainwindows/side_by_side.h"
#include "open_editor.h"
#include "platform/files.h"
#include "toolwindow/list_window.h"

namespace bench {
namespace {

namespace fs = std::filesystem;

constexpr double LongestReach = 100;

/// More skins and languages of the same contents: ten of each.
void addVariants(const QString& game, const QString& theme) {
  const fs::path folder = game.toStdString();
  const fs::path skins = folder / "Skins" / theme.toStdString();
  const fs::path languages = folder / "Languages";
  for (const fs::path& of : {skins, languages}) {
    fs::path model;
    int count = 0;
    for (const auto& file : fs::directory_iterator(of)) {
      if (file.path().extension() != ".ini") continue;
      model = file.path();
      ++count;
    }
    for (; count < 10; ++count) fs::copy_file(model, of / ("More" + std::to_string(count) + ".ini"));
  }
}

/// A theme whose first screen has so many pictures, texts, and buttons with two texts each; with the skins of another.
void addHugeScreen(const QString& game, const QString& name, const QString& model, int objects) {
  const fs::path skins = fs::path(game.toStdString()) / "Skins";
  fs::copy(skins / model.toStdString(), skins / name.toStdString(), fs::copy_options::recursive);
  QByteArray text = "[Theme]\r\nName=Huge\r\n[Colors]\r\n[Loading]\r\n";
  for (int i = 0; i < objects; ++i) {
    const QByteArray number = QByteArray::number(i);
    const QByteArray place =
        "X=" + QByteArray::number(i * 7 % 760) + "\r\nY=" + QByteArray::number(i * 11 % 560) + "\r\n";
    const QByteArray looks =
        place + "Tex=Button\r\nW=90\r\nH=30\r\nColor=P1Dark\r\nDColor=P1Dark\r\nINT=1\r\nDINT=1\r\n";
    const QByteArray words = place + "Font=0\r\nSize=8\r\nColor=P1Dark\r\n";
    text += "[LoadingButton" + number + "]\r\n" + looks + "TEXTS=2\r\n";
    text += "[LoadingButton" + number + "TEXT1]\r\n" + words + "[LoadingButton" + number + "TEXT2]\r\n" + words;
    text += "[LoadingStatic" + number + "]\r\n" + looks + "[LoadingText" + number + "]\r\n" + words;
  }
  platform::writeFile(platform::programPath(game) + QStringLiteral("\\Themes\\%1.ini").arg(name), text);
}

/// A theme with two skins that name so many textures each, of which only one has a file.
void addLongSkins(const QString& game, const QString& name, int textures) {
  const QString folder = QStringLiteral("\\Skins\\") + name;
  fs::create_directory(fs::path(game.toStdString()) / "Skins" / name.toStdString());
  QByteArray skin = "[Textures]\r\nButton=button.png\r\n";
  for (int i = 0; i < textures; ++i) {
    const QByteArray number = QByteArray::number(i);
    skin += "Texture" + number + "=pictures\\missing" + number + ".png\r\n";
  }
  const QString program = platform::programPath(game);
  for (const QString& file : {QStringLiteral("\\One.ini"), QStringLiteral("\\Two.ini")}) {
    platform::writeFile(program + folder + file, skin);
  }
  platform::writeFile(program + folder + QStringLiteral("\\button.png"), "no picture");
  platform::writeFile(
      program + QStringLiteral("\\Themes\\%1.ini").arg(name),
      "[Theme]\r\nName=Long\r\n[Loading]\r\n[LoadingStaticA]\r\nTex=Texture1\r\nX=1\r\nY=1\r\nW=9\r\nH=9\r\n");
}

/// Opens both windows that go over the whole theme. Prints the longest time in which no event is served until they have
/// all that they show; whether that is short enough.
bool isGapShort(const OpenEditor& editor, const char* what) {
  editor.showWholeTheme();
  const toolwindow::Form2& tools = *editor.form.toolWindow();
  const auto& faults = *tools.findChild<toolwindow::ListWindow*>(QStringLiteral("Faults"));
  const auto& pictures = *tools.findChild<mainwindows::SideBySide*>()->findChild<QListWidget*>(QStringLiteral("List"));
  const auto isDrawn = [&] {
    for (int i = 0; i < pictures.count(); ++i) {
      if (pictures.item(i)->icon().isNull()) return false;
    }
    return true;
  };
  double longest = 0;
  QElapsedTimer all;
  all.start();
  while (faults.List->ListCount() == 0 || !isDrawn()) {
    constexpr double NanosecondsInMillisecond = 1e6;
    QElapsedTimer one;
    one.start();
    QApplication::processEvents(QEventLoop::WaitForMoreEvents);
    longest = std::max(longest, static_cast<double>(one.nsecsElapsed()) / NanosecondsInMillisecond);
  }
  std::printf("longest gap beside the check and %d pictures of %s: %.1f ms, in %.1f s (reach: under %.0f)\n",
              pictures.count(), what, longest, static_cast<double>(all.elapsed()) / 1000, LongestReach);
  return longest < LongestReach;
}

}  // namespace

bool gapsAreShort(const SampleScreen& screen) {
  const QString& theme = screen.theme();
  const QString huge = QStringLiteral("Huge");
  constexpr int HugeCount = 500;
  const OpenEditor plain(theme, screen.name());
  const OpenEditor ten(theme, screen.name(), [&](const QString& game) { addVariants(game, theme); });
  const OpenEditor crowded(huge, QStringLiteral("Loading Screen"),
                           [&](const QString& game) { addHugeScreen(game, huge, theme, HugeCount); });
  const QString longSkins = QStringLiteral("Long");
  constexpr int TextureCount = 20000;
  const OpenEditor missing(longSkins, QStringLiteral("Loading Screen"),
                           [&](const QString& game) { addLongSkins(game, longSkins, TextureCount); });
  const bool isMissingShort = isGapShort(missing, "two skins of 20,000 textures without files");
  const bool isPlainShort = isGapShort(plain, "the fullest screen");
  const bool isTenShort = isGapShort(ten, "it in 10 skins and 10 languages");
  return isGapShort(crowded, "a screen of 2,500 objects") && isPlainShort && isTenShort && isMissingShort;
}

}  // namespace bench
