#include "themecheck/drawn_screens.h"

#include <algorithm>
#include <array>
#include <optional>
#include <utility>

#include <QRect>

#include "platform/code_page.h"
#include "platform/row_order.h"
#include "renderer/chosen_screen.h"
#include "renderer/object_passes.h"
#include "renderer/plain_host.h"
#include "themefiles/colour_tables.h"
#include "themefiles/screen_table.h"

namespace themecheck {
namespace {

using renderer::Reason;

constexpr QRect Shown(0, 0, drawing::Surface::Width, drawing::Surface::Height);

/// What a reason makes in the check, and whether it depends on the skin.
struct ReasonRow {
  Reason reason;
  std::optional<Kind> kind;  ///< none for the texts of a button that is left out: they share its cause, told of it
  bool ofSkin = false;
};

constexpr auto Reasons = std::to_array<ReasonRow>({
    {Reason::NoTexture, Kind::NameLeftOut, true},
    {Reason::EmptyTexture, Kind::NameLeftOut, true},
    {Reason::NoFile, Kind::NameLeftOut, true},
    {Reason::Unseen, Kind::NameLeftOut, true},
    {Reason::Unread, Kind::NameLeftOut, true},
    {Reason::NoPicture, Kind::NameLeftOut, true},
    {Reason::UnknownColor, Kind::NameLeftOut},
    {Reason::BadColor, Kind::NameLeftOut},
    {Reason::ColorRange, Kind::LeftOut, true},
    {Reason::NumberTooLarge, Kind::LeftOut},
    {Reason::NoArea, Kind::LeftOut},
    {Reason::Hidden, Kind::Hidden},
    {Reason::NoSize, Kind::LeftOut},
    {Reason::NoPlace, Kind::NoPlace},
    {Reason::HiddenWithButton, {}},
    {Reason::WithButton, {}},
});
static_assert(platform::inOrder(Reasons, &ReasonRow::reason, Reason::WithButton));

/// Chooses a screen, unless that was done before.
const DrawingTools::Screen& chosenScreen(const CheckedTheme& theme, const QString& name, DrawingTools& tools) {
  const auto [place, isNew] = tools.screens.try_emplace(name);
  if (!isNew) return place->second;
  HeardReports reports;
  const renderer::ChosenScreen screen(openState(theme, {}, {}), name, {}, reports);
  place->second = {screen.tags.rows(), screen.workspace.pen()};
  return place->second;
}

/// A screen with a skin or in a language, drawn part by part, and the findings in what the renderer tells of each.
class ScreenCheck {
 public:
  ScreenCheck(const CheckedTheme& theme, const QString& screen, Setting setting, renderer::Parts parts,
              DrawingTools& tools, Findings& findings)
      : theme_(theme),
        setting_(std::move(setting)),
        parts_(parts),
        tags_(chosenScreen(theme, screen, tools).tags),
        tools_(tools),
        findings_(findings),
        frame_(tools.files),
        state_(openState(theme, setting_.skin, setting_.language)),
        host_(screen, themefiles::schemeNames(theme.state).value(0)) {
    tools.surface.setPen(chosenScreen(theme, screen, tools).pen);
  }

  void drawPictures();
  void drawTexts();

 private:
  using Pass = void (*)(renderer::RenderContext&);

  void drawInSchemes(QStringList buttons);
  void drawButtons(const QStringList& buttons, int selected);
  void draw(const QStringList& tags, Pass pass);
  QStringList visibleButtons() const;
  void tellMissing(const renderer::LeftOut& entry);
  Place placeOf(const renderer::LeftOut& entry) const;
  bool isToldElsewhere(const renderer::LeftOut& entry, const IniSection& section) const;
  bool isUnseen(const renderer::DrawnObject& object) const;

  const CheckedTheme& theme_;
  Setting setting_;
  renderer::Parts parts_;
  const QStringList& tags_;
  DrawingTools& tools_;
  Findings& findings_;
  renderer::TrialFrame frame_;
  themefiles::ModuleState state_;
  renderer::PlainHost host_;
  renderer::RenderAccount account_;
  HeardReports reports_;  // dropped: the account has the same
  renderer::NoDialogs dialogs_{reports_};
  drawing::Graphics graphics_;
};

void drawBackgroundAndStatics(renderer::RenderContext& context) {
  renderer::DrawBackground(context, themefiles::stemOf(context.state, context.host.screenName()));
  renderer::DrawStatics(context);
}

/// The buttons that can be selected: those that are shown and counted.
QStringList ScreenCheck::visibleButtons() const {
  QStringList buttons = tags_;
  buttons.removeIf([&](const QString& tag) {
    const IniSection* section = theme_.theme().find(tag);
    return !renderer::isButton(tag) || (section && section->value(QStringLiteral("Visible")) == u"0");
  });
  buttons.resize(std::min<qsizetype>(buttons.size(), state_.ButtonCount));
  return buttons;
}

void ScreenCheck::drawPictures() {
  draw(tags_, drawBackgroundAndStatics);
  drawButtons(tags_, 0);
  const QStringList buttons = visibleButtons();
  for (const QString& button : buttons) drawButtons({button}, 1);
  drawInSchemes(buttons);
}

/// Only an intensity can make the colour of one scheme another fault than that of the first.
void ScreenCheck::drawInSchemes(QStringList buttons) {
  buttons.removeIf([&](const QString& tag) {
    const IniSection* section = theme_.theme().find(tag);
    const auto isOfScheme = [&](const QString& key) {
      return themefiles::programColorNames().contains(section->value(key), Qt::CaseInsensitive);
    };
    return !section || !platform::sameName(section->value(QStringLiteral("Type")), u"FONT BLACK") ||
           (!isOfScheme(QStringLiteral("Color")) && !isOfScheme(QStringLiteral("DColor")));
  });
  if (buttons.isEmpty()) return;
  for (const QString& scheme : themefiles::schemeNames(state_)) {
    host_.setScheme(scheme);
    setting_.scheme = scheme;
    drawButtons(buttons, 0);
    for (const QString& button : buttons) drawButtons({button}, 1);
  }
}

void ScreenCheck::drawTexts() {
  draw(tags_, renderer::DrawTexts);
  drawButtons(tags_, 0);
  QSet<QString> withTexts;
  for (const renderer::DrawnObject& object : account_.objects) withTexts += object.owner;
  const QStringList buttons = visibleButtons();
  for (auto button = buttons.begin(); button != buttons.end(); ++button) {
    const IniSection* section = theme_.theme().find(*button);
    if (!section || section->value(QStringLiteral("SelectH")).isEmpty()) continue;
    // A selected button that has no text moves the texts of the next one that has some.
    const auto mover = std::find_if(button, buttons.end(), [&](const QString& tag) { return withTexts.contains(tag); });
    QStringList rows{*button};
    if (mover != buttons.end() && mover != button) rows += *mover;
    drawButtons(rows, 1);
  }
}

void ScreenCheck::drawButtons(const QStringList& buttons, int selected) {
  state_.SelectedButton = static_cast<quint8>(selected);
  state_.ButtonCount = 0;
  draw(buttons, renderer::DrawButtons);
}

void ScreenCheck::draw(const QStringList& tags, Pass pass) {
  themefiles::SortedTags rows;
  for (const QString& tag : tags) rows.AddItem(tag);
  account_ = {};
  renderer::RenderContext context{.state = state_,
                                  .tags = rows,
                                  .Workspace = tools_.surface,
                                  .host = host_,
                                  .status = reports_,
                                  .dialogs = dialogs_,
                                  .graphics = graphics_,
                                  .account = account_,
                                  .pictures = &tools_.pictures,
                                  .trial = &frame_,
                                  .parts = parts_};
  pass(context);
  for (const renderer::LeftOut& entry : account_.missing) tellMissing(entry);
  for (const renderer::DrawnObject& object : account_.objects) {
    if (isUnseen(object)) findings_.add(Kind::OutsideSurface, theme_.theme().place(object.section), {}, setting_);
  }
}

void ScreenCheck::tellMissing(const renderer::LeftOut& entry) {
  const ReasonRow& row = Reasons.at(static_cast<size_t>(entry.why));
  const IniSection* section = theme_.theme().find(entry.section);
  // Without a section, its line is told.
  if (!row.kind || !section || isToldElsewhere(entry, *section)) return;
  // What no name stands for has no cause elsewhere.
  const Kind kind = *row.kind == Kind::NameLeftOut && entry.value.isEmpty() ? Kind::LeftOut : *row.kind;
  Setting setting;
  if (row.ofSkin) setting.skin = setting_.skin;
  if (entry.why == Reason::ColorRange) setting.scheme = setting_.scheme;
  findings_.add(kind, placeOf(entry), {renderer::reasonWithoutKey(entry)}, setting);
}

/// Width and height make one finding, at the first of the two lines.
Place ScreenCheck::placeOf(const renderer::LeftOut& entry) const {
  Place place = theme_.theme().valueOf(entry.section, entry.key);
  const QStringList sides = entry.key.split(QStringLiteral(" x "));
  for (const QString& side : sides) {
    const Place line = theme_.theme().valueOf(entry.section, side);
    if (sides.size() == 1 || line.column == 0 || (place.column > 0 && place.line < line.line)) continue;
    place = line;
    place.key = entry.key;
  }
  return place;
}

bool ScreenCheck::isToldElsewhere(const renderer::LeftOut& entry, const IniSection& section) const {
  const auto isBad = [&](const QString& color) { return theme_.badColors.contains(color); };
  switch (entry.why) {
    case Reason::NoTexture:
      return entry.value.isEmpty() && entry.section == account_.background;  // no fault at all
    case Reason::NoFile:
      return theme_.picturelessSkins.contains(setting_.skin);
    case Reason::UnknownColor:
      return isBad(entry.value) || (theme_.colorsLost && !isBuiltInColor(theme_, entry.value));
    case Reason::BadColor:
      return isBad(entry.value);
    case Reason::ColorRange:
      return isBad(section.value(entry.key.startsWith(u'D') ? QStringLiteral("DColor") : QStringLiteral("Color")));
    default:
      return false;
  }
}

/// Whether an object lies wholly outside the screen. A text without words doesn't: it would show nowhere.
bool ScreenCheck::isUnseen(const renderer::DrawnObject& object) const {
  if (object.place.intersects(Shown)) return false;
  if (parts_ == renderer::Parts::Pictures) return true;
  const IniSection* section = theme_.theme().find(object.section);
  const QString key = section ? wordsKeyOf(*section) : object.section;
  // A text without a key is drawn by the object's name.
  const QString words = frame_.section(themefiles::TextSection, state_.paths.LanguageFile).Value(key, key);
  return key.isEmpty() || !words.isEmpty();
}

}  // namespace

void checkPicturesOf(const CheckedTheme& theme, const QString& screen, const QString& skin, DrawingTools& tools,
                     Findings& findings) {
  ScreenCheck(theme, screen, {skin, {}, {}}, renderer::Parts::Pictures, tools, findings).drawPictures();
}

void checkTextsOf(const CheckedTheme& theme, const QString& screen, const QString& language, DrawingTools& tools,
                  Findings& findings) {
  ScreenCheck(theme, screen, {{}, language, {}}, renderer::Parts::Texts, tools, findings).drawTexts();
}

}  // namespace themecheck
