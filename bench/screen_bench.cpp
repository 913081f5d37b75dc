#include <chrono>
#include <memory>
#include <vector>

#include <QDir>

#include "figures.h"
#include "platform/files.h"
#include "platform/numbers.h"
#include "platform/pictures.h"
#include "renderer/recolouring.h"
#include "renderer/texture_pipeline.h"
#include "support/stage.h"
#include "themefiles/ini_access.h"

namespace bench {
namespace {

using Clock = std::chrono::steady_clock;

double longestGap = 0;
std::string screenInWords;

/// A picture of the screen as the render draws it.
struct Picture {
  QString path;
  QString type;
  renderer::ColorNumbers color;
  QRect place;
};

/// One screen of a sample theme, drawn on a surface without a window.
class SampleScreen {
 public:
  SampleScreen(const QString& theme, const QString& screen) {
    const QString game = platform::ProgramPath(QDir(QStringLiteral(SAMPLE_FOLDER)).absolutePath()) + u'\\';
    themefiles::ThemePaths& paths = state_.Paths;
    paths.SkinDirectory = game + QStringLiteral("Skins\\") + theme;
    const QString ending = QStringLiteral(".ini");
    const QStringList skins = platform::ListFiles(paths.SkinDirectory, ending);
    paths.ThemeFile = game + QStringLiteral("Themes\\") + theme + ending;
    paths.SkinFile = paths.SkinDirectory + u'\\' + skins.value(0);
    paths.LanguageFile = game + QStringLiteral("Languages\\English.ini");
    themefiles::InitScreenTable(state_);
    themefiles::ReadColors(state_, panel_);
    host_.screen = screen;
    state_.Filter = themefiles::FilterOf(screen);
    themefiles::ReadTags(state_, screen, tags_, panel_, [] {});
    draw();
  }

  void draw() {
    host_.percents.clear();
    renderer::RenderContext context{state_, tags_, surface_, host_, panel_, boxes_, graphics_, account_};
    renderer::DrawScreen(context);
  }

  /// Draws once more and gives the longest time between two yields in milliseconds.
  double drawForGap() {
    double longest = 0;
    Clock::time_point last = Clock::now();
    const auto note = [&] {
      const Clock::time_point now = Clock::now();
      longest = std::max(longest, std::chrono::duration<double, std::milli>(now - last).count());
      last = now;
    };
    host_.yielded = note;
    draw();
    note();
    host_.yielded = nullptr;
    return longest;
  }

  std::size_t objects() const { return account_.Objects.size(); }

  /// The pictures that the last render drew.
  std::vector<Picture> pictures() const {
    std::vector<Picture> drawn;
    const QString stem = themefiles::StemOf(state_, host_.screen);
    add(drawn, stem + QStringLiteral("Background"), QRect(0, 0, platform::Surface::Width, platform::Surface::Height));
    for (const renderer::Drawn& object : account_.Objects) add(drawn, object.Section, object.Place);
    return drawn;
  }

 private:
  QString valueOf(const QString& section, const char* key) const {
    return themefiles::GetINI(section, QString::fromLatin1(key), QString(), state_.Paths.ThemeFile);
  }

  void add(std::vector<Picture>& drawn, const QString& section, const QRect& place) const {
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

  themefiles::ModuleState state_;
  support::Tags tags_;
  platform::Surface surface_;
  support::Host host_;
  support::Panel panel_;
  support::Boxes boxes_;
  platform::Graphics graphics_;
  renderer::RenderAccount account_;
};

/// The screen on which most objects are drawn, of all sample themes.
std::shared_ptr<SampleScreen> fullestScreen() {
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
      screenInWords = (row.Name + QStringLiteral(" of ") + theme).toStdString();
    }
  }
  return fullest;
}

/// Decodes, recolours and draws scaled; nothing else.
void drawPlainly(const std::vector<Picture>& pictures, platform::Surface& surface) {
  for (const Picture& picture : pictures) {
    QImage image = platform::LoadPicture(picture.path);
    if (picture.type == u"COLORIZED") renderer::Colorize(image, picture.color);
    if (picture.type == u"FONT BLACK") renderer::RecolourFont(image, picture.color, renderer::NoIntensity);
    surface.DrawImageRect(image, picture.place.x(), picture.place.y(), picture.place.width(), picture.place.height());
  }
}

}  // namespace

void RegisterScreen() {
  const auto screen = fullestScreen();
  if (!screen) return;
  Register(
      {"DrawScreen", 1.25, Held::AtMost},
      [screen](benchmark::State& state) {
        for ([[maybe_unused]] auto turn : state) screen->draw();
        longestGap = std::max(longestGap, screen->drawForGap());
      },
      [pictures = screen->pictures()](benchmark::State& state) {
        platform::Surface surface;
        for ([[maybe_unused]] auto turn : state) drawPlainly(pictures, surface);
      });
}

double LongestGap() {
  return longestGap;
}

std::string ScreenInWords() {
  return screenInWords;
}

}  // namespace bench
