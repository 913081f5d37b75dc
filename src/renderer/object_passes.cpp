#include "renderer/object_passes.h"

#include <algorithm>
#include <new>
#include <utility>

#include <QHash>
#include <QRegularExpression>

#include "drawing/system_colours.h"
#include "platform/code_page.h"
#include "platform/numbers.h"
#include "renderer/object_values.h"
#include "renderer/text_objects.h"
#include "renderer/texture_pipeline.h"
#include "themefiles/colour_tables.h"
#include "themefiles/screen_table.h"

namespace renderer {
namespace {

constexpr int MostButtons = 255;
constexpr int ChildrenBetweenYields = 50;

constexpr std::initializer_list<QStringView> StaticWords{u"STATIC", u"SONGVIDEOICON"};

bool holdsAny(const QString& text, std::initializer_list<QStringView> words) {
  return std::any_of(words.begin(), words.end(), [&](QStringView word) { return text.contains(word); });
}

QString staticStep() {
  return QStringLiteral("Error while drawing Static!");
}

QString screenStep() {
  return QStringLiteral("Error while Draw Screen");
}

/// The keys of an object's colour, intensity and height. They differ for a selected button.
struct Look {
  QString colorKey;
  QString intensityKey;  ///< empty if the object has none
  QString heightKey = QStringLiteral("H");
};

/// Whether none of the first three fields is outside 0 to 255.
bool isColor(const QString& color) {
  const QStringList fields = platform::splitAtBlanks(color).first(3);
  return std::all_of(fields.begin(), fields.end(), [](const QString& field) {
    const double channel = platform::numberOf(field);
    return 0 <= channel && channel <= 255;
  });
}

/// Draws the object's texture and enters the outcome in the account.
void drawObject(RenderContext& context, const ObjectSection& section, const PictureFile& file, const Box& box,
                const Look& look) {
  if (context.parts == Parts::Texts) return;
  const QString colorName = section.Value(look.colorKey);
  const QString color = themefiles::ResolveColor(context.state, colorName, context.host.schemeName());
  const float intensity =
      look.intensityKey.isEmpty() ? NoIntensity : static_cast<float>(section.number(look.intensityKey));
  const QString type = platform::upperCase(section.Value(QStringLiteral("TYPE")));
  const TextureResult result = DrawTexture(context, {file, type, box, color, intensity, section.inHand()});
  switch (result.outcome) {
    case TextureOutcome::Drawn:
      context.account.objects.push_back({section.Name(), result.place, {}, look.heightKey});
      break;
    case TextureOutcome::NoSession:
      break;
    case TextureOutcome::Unread:
    case TextureOutcome::NoPicture:
      leaveOut(context, section.Name(), result.outcome == TextureOutcome::Unread ? Reason::Unread : Reason::NoPicture,
               QStringLiteral("Tex"), nameOfPicture(context, file));
      break;
    case TextureOutcome::NoColor:
      leaveOut(context, section.Name(), color.isEmpty() ? Reason::UnknownColor : Reason::BadColor, look.colorKey,
               colorName);
      break;
    case TextureOutcome::ColorRange:
      if (look.intensityKey.isEmpty() || !isColor(color)) {
        leaveOut(context, section.Name(), Reason::BadColor, look.colorKey, colorName);
      } else {
        leaveOut(context, section.Name(), Reason::ColorRange, look.intensityKey, section.Value(look.intensityKey));
      }
      break;
    case TextureOutcome::NoArea:
      leaveOut(context, section.Name(), Reason::NoArea, QStringLiteral("W x ") + look.heightKey,
               QStringLiteral("%1 x %2").arg(QString::number(box.W), QString::number(box.H)));
      break;
  }
}

void showObject(RenderContext& context) {
  UpdateProgress(context, context.state.ProgressStep);
  context.host.Refresh();
  context.host.yield();
}

/// Counts a button. Returns whether it is the selected one.
bool countButton(themefiles::ModuleState& state) {
  if (state.ButtonCount == MostButtons) return false;
  ++state.ButtonCount;
  return state.ButtonCount == state.SelectedButton;
}

/// Draws the child texts 1 to `count` relative to the button. The first one drawn is moved by the shift, and clears it.
void drawChildTexts(RenderContext& context, const QString& tag, const Box& box, int count) {
  for (int number = 1; number <= count; ++number) {
    const ObjectSection child(context, tag + QStringLiteral("TEXT") + QString::number(number));
    const QString x = QStringLiteral("X");
    if (!child.Value(x).isEmpty()) {
      DrawTextObject(context, child, box.X, box.Y + std::exchange(context.textShift, 0), tag);
    } else if (child.isThere()) {
      leaveOut(context, child.Name(), Reason::NoPlace, x, {});
    }
    if (number % ChildrenBetweenYields == 0) context.host.yield();
  }
}

/// A button that grows sets the context's `textShift`. The next child text is moved by it, even if it belongs to
/// another button. Returns the reason for its texts if they are left out, too.
std::optional<Reason> drawButton(RenderContext& context, const QString& tag) {
  const ObjectSection section(context, tag);
  const QString visible = section.Value(QStringLiteral("Visible"));
  if (visible == u"0") {
    leaveOut(context, tag, Reason::Hidden, QStringLiteral("Visible"), visible);
    return Reason::HiddenWithButton;
  }
  const bool selected = countButton(context.state);
  const bool hasPicture = context.parts != Parts::Texts;
  const PictureFile file = hasPicture ? texturePath(context, section) : PictureFile();
  if (hasPicture && file.path.isEmpty()) return Reason::WithButton;
  auto box = themeBox(context, section, screenStep());
  if (!box) return Reason::WithButton;
  Look look{QStringLiteral("DColor"), QStringLiteral("DINT")};
  if (selected) {
    look.colorKey = QStringLiteral("Color");
    look.intensityKey = QStringLiteral("INT");
    const auto selectedHeight = themeInt16(context, section, QStringLiteral("SelectH"), screenStep());
    if (!selectedHeight) return Reason::WithButton;
    if (*selectedHeight != 0) {
      if (!platform::upperCase(tag).contains(u"COLLECTION")) context.textShift = *selectedHeight - box->H;
      box->H = *selectedHeight;
      look.heightKey = QStringLiteral("SelectH");
    }
  }
  drawObject(context, section, file, *box, look);
  const auto texts = themeInt16(context, section, QStringLiteral("TEXTS"), screenStep());
  if (!texts) return Reason::WithButton;
  if (context.parts != Parts::Pictures) drawChildTexts(context, tag, *box, *texts);
  showObject(context);
  return std::nullopt;
}

/// Enters the listed texts of the buttons without texts, by the buttons' names in upper case.
void leaveOutTexts(RenderContext& context, const QHash<QString, Reason>& buttons) {
  if (buttons.isEmpty()) return;
  for (int row = 0; row < context.tags.ListCount(); ++row) {
    const QString tag = context.tags.List(row);
    const QString button = buttonOfText(tag);
    const auto found = buttons.constFind(platform::upperCase(button));
    if (found != buttons.constEnd()) leaveOut(context, tag, *found, {}, button);
  }
}

/// Whether the tag, in upper case, is drawn as something else as well: on the screen Name every name is a button's.
bool isDrawnElsewhere(const QString& tag, const QString& stem) {
  return holdsAny(tag, StaticWords) || tag == stem || tag == stem + QStringLiteral("BACKGROUND");
}

}  // namespace

bool isStatic(const QString& tag) {
  return holdsAny(platform::upperCase(tag), StaticWords);
}

bool isFreeText(const QString& tag) {
  const QString upper = platform::upperCase(tag);
  return upper.contains(u"TEXT") && !holdsAny(upper, {u"BUTTON", u"NAME", u"TEXTURES"});
}

bool isButton(const QString& tag) {
  const QString upper = platform::upperCase(tag);
  return holdsAny(upper, {u"BUTTON", u"SELECT", u"NAME"}) && !upper.contains(u"TEXT");
}

QString buttonOfText(const QString& tag) {
  static const QRegularExpression Ending(QStringLiteral("TEXT[1-9][0-9]*$"), QRegularExpression::CaseInsensitiveOption);
  const qsizetype head = tag.indexOf(Ending);
  return head > 0 && isButton(tag.first(head)) ? tag.first(head) : QString();
}

void DrawBackground(RenderContext& context, const QString& stem) {
  const QString section = stem + QStringLiteral("Background");
  context.account.background = section;
  const PictureFile file = texturePath(context, ObjectSection(context, section));
  const auto wipe = [&] { context.Workspace.wipe(drawing::colorOf(context.state.BackgroundColor)); };
  if (file.path.isEmpty()) return wipe();
  const QRect surface = context.Workspace.image().rect();
  PreparedPicture prepared;
  try {
    prepared = prepare(context.pictures, {file.path, {}, surface, false, file.identity});
  } catch (const std::bad_alloc&) {
    prepared.missing = Reason::NoPicture;
  }
  if (prepared.missing || prepared.picture.hasAlphaChannel()) wipe();  // else it covers all
  if (prepared.missing) {
    leaveOut(context, section, *prepared.missing, QStringLiteral("Tex"), nameOfPicture(context, file));
    return;
  }
  context.Workspace.drawImage(prepared.picture, 0, 0);
  UpdateProgress(context, context.state.ProgressStep);
}

void DrawStatics(RenderContext& context) {
  for (int row = 0; row < context.tags.ListCount(); ++row) {
    const QString tag = context.tags.List(row);
    if (!isStatic(tag)) continue;
    const ObjectSection section(context, tag);
    const PictureFile file = texturePath(context, section);
    if (file.path.isEmpty()) continue;
    const auto box = themeBox(context, section, staticStep());
    if (!box) continue;
    drawObject(context, section, file, *box, {QStringLiteral("Color"), QString()});
    showObject(context);
  }
}

void DrawTexts(RenderContext& context) {
  for (int row = 0; row < context.tags.ListCount(); ++row) {
    const QString tag = context.tags.List(row);
    if (isFreeText(tag)) DrawTextObject(context, ObjectSection(context, tag), 0, 0, {});
  }
}

void DrawButtons(RenderContext& context) {
  const QString stem = platform::upperCase(themefiles::stemOf(context.state, context.host.screenName()));
  QHash<QString, Reason> withoutTexts;
  for (int row = 0; row < context.tags.ListCount(); ++row) {
    const QString tag = context.tags.List(row);
    if (!isButton(tag)) continue;
    const QString upper = platform::upperCase(tag);
    const bool isMereButton = !isDrawnElsewhere(upper, stem);
    context.notMissed = isMereButton ? QString() : tag;
    const std::optional<Reason> withoutText = drawButton(context, tag);
    if (isMereButton && withoutText) withoutTexts.insert(upper, *withoutText);
  }
  context.notMissed.clear();
  leaveOutTexts(context, withoutTexts);
}

}  // namespace renderer
