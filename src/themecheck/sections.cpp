#include "themecheck/sections.h"

#include <map>
#include <memory>
#include <vector>

#include <QRegularExpression>
#include <QSet>

#include "platform/code_page.h"
#include "platform/numbers.h"
#include "renderer/object_passes.h"
#include "themefiles/screen_table.h"
#include "themefiles/tag_listing.h"

namespace themecheck {
namespace {

using platform::upperCase;

/// What the screens make of the names of a theme's sections.
class Listing {
 public:
  explicit Listing(const CheckedTheme& theme);

  bool isListed(const QString& name) const { return listed_.contains(upperCase(name)); }
  bool isScreen(const QString& name) const { return runs_.contains(upperCase(name)); }
  /// Whether a screen's background, or named in the filter of a screen.
  bool isKnown(const QString& name) const { return known_.contains(upperCase(name)); }
  /// The other screen's section behind which a section of a screen stands that isn't listed; empty without one.
  QString screenBefore(const IniSection& section) const;

 private:
  /// The sections of one screen, and what ends them.
  struct Run {
    bool began = false;
    const IniSection* end = nullptr;
  };

  void findEnds(const IniFile& theme);

  QSet<QString> listed_;         ///< sections that belong to a screen, also those that its filter hides
  std::map<QString, Run> runs_;  ///< by the screen's own name
  QSet<QString> known_;
};

Listing::Listing(const CheckedTheme& theme) {
  const themefiles::ModuleState state = openState(theme, {}, {});
  HeardReports reports;
  for (const themefiles::ScreenRow& screen : state.ScreenTable) {
    const themefiles::TagFilter filter = themefiles::filterOf(screen.Name);
    for (const QString& name : (filter.OnlyTags + u',' + filter.SkipTags).split(u',')) known_ += upperCase(name);
    if (!runs_.try_emplace(upperCase(screen.Stem)).second) continue;
    known_ += upperCase(screen.Stem + QStringLiteral("Background"));
    themefiles::SortedTags tags;
    themefiles::ReadTags(state, screen.Name, tags, reports, [] {});
    for (const QString& tag : tags.rows()) listed_ += upperCase(tag);
  }
  findEnds(theme.theme());
}

void Listing::findEnds(const IniFile& theme) {
  for (const IniSection& section : theme.sections()) {
    const QString name = upperCase(section.name);
    const bool isOfScreen = runs_.contains(name);
    for (auto& [screen, run] : runs_) {
      if (name != screen && isOfScreen) {
        if (run.began && !run.end) run.end = &section;
      } else if (name.startsWith(screen)) {
        run.began = run.began || isListed(name);
      }
    }
  }
}

QString Listing::screenBefore(const IniSection& section) const {
  const QString name = upperCase(section.name);
  const Run* own = nullptr;
  qsizetype longest = 0;
  for (const auto& [screen, run] : runs_) {
    if (screen.size() <= longest || !name.startsWith(screen)) continue;
    longest = screen.size();
    own = &run;
  }
  return own && own->end && own->end->line < section.line ? own->end->name : QString();
}

bool drawsSomething(const IniSection& object) {
  return object.find(QStringLiteral("Tex")) || object.find(QStringLiteral("Text"));
}

void tellStray(const CheckedTheme& theme, const Listing& listing, const IniSection& object, Findings& findings) {
  const QString before = listing.screenBefore(object);
  const Place place = theme.theme().placeOf(object);
  if (object.head == Head::Indented) {
    findings.add(Kind::IndentedHead, place);
  } else if (before.isEmpty()) {
    findings.add(Kind::NoScreen, place);
  } else {
    findings.add(Kind::BehindScreen, place, {before});
  }
}

/// A text of a button whose name doesn't lead to one, or whose number leads too far.
void checkButtonText(const CheckedTheme& theme, const Listing& listing, const IniSection& object, Findings& findings) {
  static const QRegularExpression Ending(QStringLiteral("TEXT([0-9]+)$"), QRegularExpression::CaseInsensitiveOption);
  const QRegularExpressionMatch match = Ending.match(object.name);
  const QString name = object.name.first(match.hasMatch() ? match.capturedStart() : 0);
  if (!renderer::isButton(name) || listing.isScreen(name) || listing.isKnown(name)) return;
  const Place place = theme.theme().placeOf(object);
  const IniSection* button = theme.theme().find(name);
  if (!button) {
    findings.add(Kind::NoButton, place, {name});
  } else if (match.captured(1).startsWith(u'0')) {
    findings.add(Kind::TextNumber, place);
  } else {
    const auto texts = platform::roundToInt16(platform::numberOf(button->value(QStringLiteral("Texts"))));
    if (!texts || platform::numberOf(match.captured(1)) <= *texts) return;
    findings.add(Kind::BeyondTexts, place, {button->name, QString::number(*texts)});
  }
}

/// Texts of things that have a name of their own in the game, such as a player's name, are the game's.
bool isOfSomeKind(const QString& name) {
  return renderer::isStatic(name) || renderer::isButton(name) || upperCase(name).contains(u"TEXT");
}

void checkObject(const CheckedTheme& theme, const Listing& listing, const IniSection& object, Findings& findings) {
  if (object.head != Head::Right && object.head != Head::Indented) return;
  if (!listing.isListed(object.name)) return tellStray(theme, listing, object, findings);
  checkButtonText(theme, listing, object, findings);
  if (drawsSomething(object) && !isOfSomeKind(object.name) && !listing.isScreen(object.name) &&
      !listing.isKnown(object.name)) {
    findings.add(Kind::NoKind, theme.theme().placeOf(object));
  }
}

template <typename Named>
bool isDouble(const Named& named) {
  return named.line != named.counted;
}

}  // namespace

void checkHeads(const IniFile& file, bool isTheme, Findings& findings) {
  for (const IniSection& section : file.sections()) {
    const Place place = file.placeOf(section);
    if (section.head == Head::Unclosed) findings.add(Kind::UnclosedHead, place);
    if (section.head == Head::Unopened) findings.add(Kind::UnopenedHead, place);
    if (section.head == Head::Followed || (isTheme && section.head == Head::FollowedByBlanks)) {
      findings.add(Kind::FollowedHead, place);
    }
  }
}

void checkDoubles(const IniFile& file, Findings& findings, const std::optional<QSet<QString>>& only) {
  for (const IniSection& section : file.sections()) {
    if (isDouble(section)) {
      findings.add(Kind::DoubledSection, file.placeOf(section), {QString::number(section.counted)});
      continue;
    }
    for (const IniKey& key : section.keys) {
      if (only && !only->contains(upperCase(key.name))) continue;
      if (isDouble(key)) findings.add(Kind::DoubledKey, file.placeOf(section, key), {QString::number(key.counted)});
    }
  }
}

void addSectionSteps(const CheckedTheme& theme, Findings& findings, Steps& steps) {
  const auto listing = std::make_shared<std::optional<Listing>>();
  const QString& about = theme.files.theme.name;
  steps.add(about, [&theme, listing] { listing->emplace(theme); });
  const std::vector<const IniSection*> objects = objectsOf(theme.theme());
  steps.addEach(about, objects.size(), [&theme, &findings, listing, objects](size_t number) {
    checkObject(theme, **listing, *objects[number], findings);
  });
}

}  // namespace themecheck
