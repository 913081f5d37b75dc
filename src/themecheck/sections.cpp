#include <QRegularExpression>
#include <QSet>

#include "platform/code_page.h"
#include "platform/numbers.h"
#include "renderer/object_passes.h"
#include "themecheck/checked_theme.h"
#include "themefiles/tag_listing.h"

namespace themecheck {
namespace {

/// The sections that belong to a screen, in upper case, also those that its filter hides.
QSet<QString> listedSections(const themefiles::ModuleState& state) {
  QSet<QString> listed;
  HeardReports reports;
  QSet<QString> stems;
  for (const themefiles::ScreenRow& screen : state.ScreenTable) {
    if (stems.contains(screen.Stem)) continue;
    stems += screen.Stem;
    themefiles::SortedTags tags;
    themefiles::ReadTags(state, screen.Name, tags, reports, [] {});
    for (const QString& tag : tags.rows()) listed += platform::upperCase(tag);
  }
  return listed;
}

/// The number of a button's text that is greater than the button's Texts.
void checkButtonText(const CheckedTheme& theme, const IniSection& object, Findings& findings) {
  static const QRegularExpression NumberedText(QStringLiteral("^(.+)TEXT([1-9][0-9]*)$"),
                                               QRegularExpression::CaseInsensitiveOption);
  const QRegularExpressionMatch match = NumberedText.match(object.name);
  const IniSection* button = match.hasMatch() ? theme.theme.find(match.captured(1)) : nullptr;
  if (!button || !renderer::isButton(button->name)) return;
  const auto texts = platform::roundToInt16(platform::numberOf(button->value(QStringLiteral("Texts"))));
  if (!texts || platform::numberOf(match.captured(2)) <= *texts) return;
  findings.add(Kind::BeyondTexts, theme.theme.place(object.name), {button->name, QString::number(*texts)});
}

template <typename Named>
bool isDouble(const Named& named) {
  return named.line != named.counted;
}

}  // namespace

void checkDoubles(const IniFile& file, Findings& findings, const std::optional<QSet<QString>>& only) {
  for (const IniSection& section : file.sections()) {
    Place place = file.place(section.name);
    place.line = section.line;
    place.section = section.name;
    if (isDouble(section)) {
      findings.add(Kind::DoubledSection, place, {QString::number(section.counted)});
      continue;
    }
    for (const IniKey& key : section.keys) {
      if (only && !only->contains(platform::upperCase(key.name))) continue;
      place.line = key.line;
      place.key = key.name;
      if (isDouble(key)) findings.add(Kind::DoubledKey, place, {QString::number(key.counted)});
    }
  }
}

void checkSections(const CheckedTheme& theme, Findings& findings) {
  const QSet<QString> listed = listedSections(openState(theme, {}, {}));
  for (const IniSection* object : objectsOf(theme.theme)) {
    if (!listed.contains(platform::upperCase(object->name))) {
      findings.add(Kind::NoScreen, theme.theme.place(object->name));
    }
    checkButtonText(theme, *object, findings);
  }
}

}  // namespace themecheck
