#include "sample_screens.h"

#include <algorithm>
#include <array>
#include <chrono>

#include <QDir>

#include "drawing/pictures.h"
#include "plain_files.h"
#include "platform/code_page.h"
#include "platform/numbers.h"
#include "platform/paths.h"
#include "themefiles/ini_access.h"
#include "themefiles/screen_table.h"
#include "themefiles/tag_reader.h"
#include "themefiles/theme_paths.h"

namespace bench {
namespace {

using Clock = std::chrono::steady_clock;

/// The picture as the render blends it.
renderer::PreparedPicture preparedOf(const Picture& picture, renderer::PreparedPictures& store) {
  using Type = renderer::Recoloring::Type;
  const Type type = picture.type == u"COLORIZED"    ? Type::Colorized
                    : picture.type == u"FONT BLACK" ? Type::FontBlack
                                                    : Type::None;
  return renderer::prepare(&store, {picture.path, {type, picture.color}, picture.place});
}

}  // namespace

SampleScreen::SampleScreen(const QString& gameFolder, const QString& theme, const QString& screen) : theme_(theme) {
  const QString game = platform::programPath(QDir(gameFolder).absolutePath()) + u'\\';
  const QString skin = themefiles::skinsOf(game, theme).value(0);
  state_.paths = themefiles::pathsOf(game, theme, skin, QStringLiteral("English"));
  themefiles::InitScreenTable(state_);
  themefiles::ReadColors(state_, panel_);
  host_.screen = screen;
  choose();
  draw();
}

void SampleScreen::choose() {
  tags_.Clear();
  state_.ButtonListFilled = false;
  themefiles::listScreenTags(state_, host_.screen, tags_, panel_, [this] { yield(); });
  if (tags_.ListIndex() >= 0) themefiles::ReadTag(state_, tags_.List(tags_.ListIndex()), panel_);
}

renderer::RenderContext SampleScreen::context(renderer::PreparedPictures* store) {
  host_.percents.clear();
  return {.state = state_,
          .tags = tags_,
          .Workspace = surface_,
          .host = host_,
          .status = panel_,
          .dialogs = boxes_,
          .graphics = graphics_,
          .account = account_,
          .pictures = store};
}

void SampleScreen::draw() {
  renderer::RenderContext all = context(nullptr);
  renderer::DrawScreen(all);
}

void SampleScreen::redraw() {
  renderer::RenderContext all = context(&store_);
  renderer::DrawScreen(all);
}

std::vector<QString> SampleScreen::readings() {
  return readingsOf({state_.paths.ThemeFile, state_.paths.SkinFile, state_.paths.LanguageFile}, [this] { redraw(); });
}

void SampleScreen::runForGap() {
  Clock::time_point last = Clock::now();
  const auto note = [&] {
    const Clock::time_point now = Clock::now();
    longestGap_ = std::max(longestGap_, std::chrono::duration<double, std::milli>(now - last).count());
    last = now;
  };
  host_.yielded = note;
  choose();
  draw();
  note();
  host_.yielded = nullptr;
}

std::vector<Picture> SampleScreen::pictures() const {
  std::vector<Picture> drawn;
  const QString stem = themefiles::stemOf(state_, host_.screen);
  add(drawn, stem + QStringLiteral("Background"), QRect(0, 0, drawing::Surface::Width, drawing::Surface::Height));
  for (const renderer::DrawnObject& object : account_.objects) add(drawn, object.section, object.place);
  return drawn;
}

std::vector<Text> SampleScreen::texts() const {
  constexpr std::array<std::pair<const char*, float>, 2> Faces{
      {{"Eurostar Regular Extended", 1.4F}, {"Eurostar Black", 2.0F}}};
  std::vector<Text> printed;
  for (const renderer::DrawnObject& object : account_.objects) {
    if (!fileOf(object.section).isEmpty()) continue;
    const QString key = valueOf(object.section, "Text").isEmpty() ? object.section : valueOf(object.section, "Text");
    const auto& [face, points] = Faces[valueOf(object.section, "Font") == u"1" ? 1 : 0];
    printed.push_back({themefiles::GetINI(QStringLiteral("Text"), key, key, state_.paths.LanguageFile),
                       {static_cast<float>(object.place.x()), static_cast<float>(object.place.y()), Qt::white,
                        QString::fromLatin1(face),
                        static_cast<float>(platform::numberOf(valueOf(object.section, "Size"))) * points}});
  }
  return printed;
}

QString SampleScreen::fileOf(const QString& section) const {
  return themefiles::GetINI(QStringLiteral("Textures"), valueOf(section, "Tex"), QString(), state_.paths.SkinFile);
}

QString SampleScreen::valueOf(const QString& section, const char* key) const {
  return themefiles::GetINI(section, QString::fromLatin1(key), QString(), state_.paths.ThemeFile);
}

void SampleScreen::add(std::vector<Picture>& drawn, const QString& section, const QRect& place) const {
  const QString file = fileOf(section);
  if (file.isEmpty()) return;  // a text
  const QString name = valueOf(section, "Color").isEmpty() ? valueOf(section, "DColor") : valueOf(section, "Color");
  const QStringList fields =
      platform::splitAtBlanks(themefiles::ResolveColor(state_, name, host_.schemeName()) + QStringLiteral("   "));
  const auto channel = [&](int i) { return static_cast<float>(platform::numberOf(fields[i])); };
  drawn.push_back({state_.paths.SkinDirectory + u'\\' + file,
                   platform::upperCase(valueOf(section, "TYPE")),
                   {channel(0), channel(1), channel(2)},
                   place});
}

std::shared_ptr<SampleScreen> fullestScreen() {
  std::shared_ptr<SampleScreen> fullest;
  themefiles::ModuleState state;
  themefiles::InitScreenTable(state);
  const QDir themes(QStringLiteral(SAMPLE_FOLDER "/Themes"));
  for (const QString& file : themes.entryList({QStringLiteral("*.ini")}, QDir::Files)) {
    for (const themefiles::ScreenRow& row : state.ScreenTable) {
      const QString theme = file.chopped(4);
      auto screen = std::make_shared<SampleScreen>(QStringLiteral(SAMPLE_FOLDER), theme, row.Name);
      if (fullest && fullest->objects() >= screen->objects()) continue;
      fullest = screen;
    }
  }
  return fullest;
}

std::function<void(drawing::Surface& surface)> blending(const SampleScreen& screen) {
  renderer::PreparedPictures store;
  std::vector<renderer::PreparedPicture> prepared;
  for (const Picture& picture : screen.pictures()) prepared.push_back(preparedOf(picture, store));
  return [prepared, texts = screen.texts()](drawing::Surface& surface) {
    for (const renderer::PreparedPicture& one : prepared) {
      surface.drawImage(one.picture, one.corner.x(), one.corner.y());
    }
    for (const Text& text : texts) {
      surface.setPen(text.pen);
      surface.Print(text.words);
    }
  };
}

void drawPlainly(const Picture& picture, drawing::Surface& surface) {
  QImage image = drawing::LoadPicture(picture.path);
  if (picture.type == u"COLORIZED") renderer::colorize(image, picture.color);
  if (picture.type == u"FONT BLACK") renderer::recolorFont(image, picture.color, renderer::NoIntensity);
  surface.drawImageRect(image, picture.place.x(), picture.place.y(), picture.place.width(), picture.place.height());
}

}  // namespace bench
