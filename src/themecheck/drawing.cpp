#include <algorithm>
#include <utility>

#include <QRect>
#include <QSet>

#include "platform/code_page.h"
#include "renderer/chosen_screen.h"
#include "renderer/object_passes.h"
#include "renderer/prepared_pictures.h"
#include "themecheck/checked_theme.h"
#include "themefiles/colour_tables.h"
#include "themefiles/ini_access.h"
#include "themefiles/screen_table.h"
#include "themefiles/theme_paths.h"

namespace themecheck {
namespace {

constexpr QRect Shown(0, 0, drawing::Surface::Width, drawing::Surface::Height);

/// A screen of a theme with one skin, drawn pass by pass as a render does. The account of each pass is examined.
class ScreenCheck {
 public:
  ScreenCheck(const CheckedTheme& theme, const themefiles::ModuleState& state, const themefiles::ScreenRow& screen,
              QString skin, renderer::PreparedPictures& pictures, Findings& findings)
      : theme_(theme),
        skin_(std::move(skin)),
        findings_(findings),
        chosen_(state, screen.Name, themefiles::schemeNames(state).value(0), reports_) {
    chosen_.pictures = &pictures;
  }

  void run();

 private:
  using Pass = void (*)(renderer::RenderContext&);

  void draw(renderer::RenderContext context, Pass pass);
  void drawWords(const QString& language);
  void selectInTurn();
  void tellMissing(const renderer::LeftOut& entry);
  bool isUnseen(const renderer::DrawnObject& object, bool isText) const;

  const CheckedTheme& theme_;
  QString skin_;
  QString language_;
  bool picturesDrawn_ = false;
  Findings& findings_;
  HeardReports reports_;  // dropped: the accounts have the same
  renderer::ChosenScreen chosen_;
};

void drawGround(renderer::RenderContext& context) {
  renderer::DrawBackground(context, themefiles::stemOf(context.state, context.host.screenName()));
  renderer::DrawStatics(context);
}

/// Draws everything, with the first button selected.
void drawButtons(renderer::RenderContext& context) {
  context.state.SelectedButton = 1;
  context.state.ButtonCount = 0;
  renderer::DrawButtons(context);
}

void ScreenCheck::run() {
  draw(chosen_.context(), drawGround);
  const drawing::Pen pen = chosen_.workspace.pen();
  // Without a language the keys of the words are drawn.
  const QStringList none{QString()};
  for (const QString& language : theme_.languageNames.isEmpty() ? none : theme_.languageNames) {
    chosen_.workspace.setPen(pen);
    drawWords(language);
    picturesDrawn_ = true;
  }
}

/// A language changes only words: pictures are drawn for one language, texts for each.
void ScreenCheck::drawWords(const QString& language) {
  language_ = language;
  chosen_.state.paths.LanguageFile =
      themefiles::pathsOf(theme_.gameFolder, theme_.theme.name(), skin_, language).LanguageFile;
  draw(chosen_.context(), renderer::DrawTexts);
  draw(chosen_.context(), drawButtons);
  selectInTurn();
}

/// Draws each other button as the selected one. Only that button looks different, so it is drawn alone. If it has no
/// text of its own, its growth moves the texts of the next button that has some, which is drawn, too.
void ScreenCheck::selectInTurn() {
  QSet<QString> hidden;
  for (const renderer::LeftOut& entry : chosen_.account.missing) {
    if (entry.why == renderer::Reason::Hidden) hidden += entry.section;
  }
  QSet<QString> withTexts;
  for (const renderer::DrawnObject& object : chosen_.account.objects) withTexts += object.owner;
  QStringList buttons = chosen_.tags.rows();
  buttons.removeIf([&](const QString& tag) { return !renderer::isButton(tag) || hidden.contains(tag); });
  buttons.resize(std::min<qsizetype>(buttons.size(), chosen_.state.ButtonCount));
  for (qsizetype button = 1; button < buttons.size(); ++button) {
    themefiles::SortedTags rows;
    rows.AddItem(buttons[button]);
    const auto mover = std::find_if(buttons.begin() + button, buttons.end(),
                                    [&](const QString& tag) { return withTexts.contains(tag); });
    if (mover != buttons.end() && *mover != buttons[button]) rows.AddItem(*mover);
    draw(chosen_.context(rows), drawButtons);
  }
}

void ScreenCheck::draw(renderer::RenderContext context, Pass pass) {
  context.textsOnly = picturesDrawn_;
  chosen_.account = {};
  pass(context);
  for (const renderer::LeftOut& entry : chosen_.account.missing) tellMissing(entry);
  for (const renderer::DrawnObject& object : chosen_.account.objects) {
    const bool isText = pass == renderer::DrawTexts || !object.owner.isEmpty();
    if (!isUnseen(object, isText)) continue;
    findings_.add(Kind::OutsideSurface, theme_.theme.place(object.section), {},
                  {skin_, isText ? language_ : QString()});
  }
}

/// A missing background is no finding. The texts of a button share its cause, and that is told of the button.
bool isNoFault(const renderer::LeftOut& entry, const QString& background) {
  using renderer::Reason;
  return entry.why == Reason::HiddenWithButton || entry.why == Reason::WithButton ||
         (entry.why == Reason::NoTexture && entry.value.isEmpty() && entry.section == background);
}

void ScreenCheck::tellMissing(const renderer::LeftOut& entry) {
  if (isNoFault(entry, chosen_.account.background)) return;
  Place place = theme_.theme.place(entry.section, entry.key);
  // Width and height make one finding, at the first of the two lines.
  for (const QString& key : entry.key.split(QStringLiteral(" x "))) {
    const Place line = theme_.theme.place(entry.section, key);
    if (line.line == place.line) continue;
    place.line = line.line;
    break;
  }
  const Kind kind = entry.why == renderer::Reason::Hidden ? Kind::Hidden : Kind::LeftOut;
  findings_.add(kind, place, {renderer::reasonText(entry)}, {skin_, {}});
}

/// Whether an object lies wholly outside the screen. A text without words doesn't: it would show nowhere.
bool ScreenCheck::isUnseen(const renderer::DrawnObject& object, bool isText) const {
  if (object.place.intersects(Shown)) return false;
  if (!isText) return true;
  const IniSection* section = theme_.theme.find(object.section);
  const QString key = section ? wordsKeyOf(*section) : object.section;
  // A text without a key is drawn by the object's name.
  return key.isEmpty() ||
         !themefiles::GetINI(QStringLiteral("Text"), key, key, chosen_.state.paths.LanguageFile).isEmpty();
}

}  // namespace

void checkDrawing(const CheckedTheme& theme, Findings& findings, const Progress& progress) {
  renderer::PreparedPictures pictures;
  for (const QString& skin : theme.skinNames) {
    const themefiles::ModuleState state = openState(theme, skin, theme.languageNames.value(0));
    for (const themefiles::ScreenRow& screen : state.ScreenTable) {
      progress(theme.theme.name(), skin, screen.Name);
      ScreenCheck(theme, state, screen, skin, pictures, findings).run();
    }
  }
}

}  // namespace themecheck
