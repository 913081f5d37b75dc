#include "sample_screens.h"

#include <algorithm>
#include <chrono>

#include <QDir>

#include "platform/code_page.h"
#include "platform/numbers.h"
#include "platform/paths.h"
#include "platform/pictures.h"
#include "themefiles/ini_access.h"
#include "themefiles/screen_table.h"
#include "themefiles/theme_paths.h"

namespace bench {
namespace {

using Clock = std::chrono::steady_clock;

}  // namespace

SampleScreen::SampleScreen(const QString& theme, const QString& screen) : theme_(theme) {
  const QString game = platform::ProgramPath(QDir(QStringLiteral(SAMPLE_FOLDER)).absolutePath()) + u'\\';
  const QString skin = themefiles::SkinsOf(game, theme).value(0);
  state_.Paths = themefiles::PathsOf(game, theme, skin, QStringLiteral("English"));
  themefiles::InitScreenTable(state_);
  themefiles::ReadColors(state_, panel_);
  host_.screen = screen;
  state_.Filter = themefiles::FilterOf(screen);
  themefiles::ReadTags(state_, screen, tags_, panel_, [] {});
  draw();
}

void SampleScreen::draw() {
  host_.percents.clear();
  renderer::RenderContext context{state_, tags_, surface_, host_, panel_, boxes_, graphics_, account_};
  renderer::DrawScreen(context);
}

void SampleScreen::drawForGap() {
  Clock::time_point last = Clock::now();
  const auto note = [&] {
    const Clock::time_point now = Clock::now();
    longestGap_ = std::max(longestGap_, std::chrono::duration<double, std::milli>(now - last).count());
    last = now;
  };
  host_.yielded = note;
  draw();
  note();
  host_.yielded = nullptr;
}

std::vector<Picture> SampleScreen::pictures() const {
  std::vector<Picture> drawn;
  const QString stem = themefiles::StemOf(state_, host_.screen);
  add(drawn, stem + QStringLiteral("Background"), QRect(0, 0, platform::Surface::Width, platform::Surface::Height));
  for (const renderer::Drawn& object : account_.Objects) add(drawn, object.Section, object.Place);
  return drawn;
}

QString SampleScreen::valueOf(const QString& section, const char* key) const {
  return themefiles::GetINI(section, QString::fromLatin1(key), QString(), state_.Paths.ThemeFile);
}

void SampleScreen::add(std::vector<Picture>& drawn, const QString& section, const QRect& place) const {
  const QString file =
      themefiles::GetINI(QStringLiteral("Textures"), valueOf(section, "Tex"), QString(), state_.Paths.SkinFile);
  if (file.isEmpty()) return;  // a text
  const QString name = valueOf(section, "Color").isEmpty() ? valueOf(section, "DColor") : valueOf(section, "Color");
  const QStringList fields =
      platform::SplitAtBlanks(themefiles::ResolveColor(state_, name, host_.SchemeName()) + QStringLiteral("   "));
  const auto channel = [&](int i) { return static_cast<float>(platform::NumberOf(fields[i])); };
  drawn.push_back({state_.Paths.SkinDirectory + u'\\' + file,
                   platform::UpperCase(valueOf(section, "TYPE")),
                   {channel(0), channel(1), channel(2)},
                   place});
}

std::shared_ptr<SampleScreen> FullestScreen() {
  std::shared_ptr<SampleScreen> fullest;
  themefiles::ModuleState state;
  themefiles::InitScreenTable(state);
  const QDir themes(QStringLiteral(SAMPLE_FOLDER "/Themes"));
  for (const QString& file : themes.entryList({QStringLiteral("*.ini")}, QDir::Files)) {
    for (const themefiles::ScreenRow& row : state.ScreenTable) {
      const QString theme = file.chopped(4);
      auto screen = std::make_shared<SampleScreen>(theme, row.Name);
      if (fullest && fullest->objects() >= screen->objects()) continue;
      fullest = screen;
    }
  }
  return fullest;
}

void DrawPlainly(const Picture& picture, platform::Surface& surface) {
  QImage image = platform::LoadPicture(picture.path);
  if (picture.type == u"COLORIZED") renderer::Colorize(image, picture.color);
  if (picture.type == u"FONT BLACK") renderer::RecolourFont(image, picture.color, renderer::NoIntensity);
  surface.DrawImageRect(image, picture.place.x(), picture.place.y(), picture.place.width(), picture.place.height());
}

}  // namespace bench
