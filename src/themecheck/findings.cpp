#include "themecheck/findings.h"

#include <algorithm>
#include <array>

#include <QStringView>

#include "platform/code_page.h"
#include "platform/row_order.h"

namespace themecheck {
namespace {

/// Which findings of a kind are one: those of one place, or all of a file with the same text (and the same key).
enum class Fold { Never, ByText, ByKeyAndText };

struct KindRow {
  Kind kind;
  Level level;
  QStringView words;
  Fold fold = Fold::Never;
};

constexpr auto Kinds = std::to_array<KindRow>({
    {Kind::CantBeRead, Level::Error, u"can't be read: %1"},
    {Kind::CantBeOpened, Level::Error, u"can't be opened: there is no %1"},
    {Kind::UnclosedHead, Level::Error, u"the section's head has no ']'"},
    {Kind::UnopenedHead, Level::Error, u"the section's head has no '['"},
    {Kind::FollowedHead, Level::Error, u"something stands behind the ']' of the section's head"},
    {Kind::TooManyColors, Level::Error, u"more than 99 colours"},
    {Kind::BadColor, Level::Error, u"'%1' isn't three numbers from 0 to 255"},
    {Kind::NoTable, Level::Error, u"there is no section [%1], where %2 looked up"},
    {Kind::NoWordsTable, Level::Warning, u"there is no section [%1], where %2 looked up"},
    {Kind::EmptyTable, Level::Error, u"none of the %1 names that the theme uses stands here"},
    {Kind::EmptyWordsTable, Level::Warning, u"none of the %1 names that the theme uses stands here"},
    {Kind::NoPictures, Level::Error, u"none of the %1 picture files is there"},
    {Kind::HidingMark, Level::Error, u"a byte order mark hides the section [%1]"},
    {Kind::WordsHidingMark, Level::Warning, u"a byte order mark hides the section [%1]"},
    {Kind::Mark, Level::Warning, u"a byte order mark stands before the first line"},
    {Kind::Utf8, Level::Warning, u"letters look like UTF-8 and are read as Windows-1252; lines: %1"},
    {Kind::LeftOut, Level::Error, u"%1"},
    {Kind::NameLeftOut, Level::Error, u"%1", Fold::ByText},
    {Kind::NoPlace, Level::Warning, u"%1"},
    {Kind::Hidden, Level::Note, u"the button is hidden"},
    {Kind::OutsideSurface, Level::Warning, u"lies wholly outside the 800 x 600"},
    {Kind::NoScreen, Level::Warning, u"belongs to no screen"},
    {Kind::BehindScreen, Level::Warning, u"belongs to no screen, as it stands behind [%1]", Fold::ByText},
    {Kind::IndentedHead, Level::Warning, u"belongs to no screen, as a blank stands before its '['"},
    {Kind::NoKind, Level::Warning, u"is drawn by nothing: its name tells no kind of object"},
    {Kind::NoButton, Level::Warning, u"is drawn by nothing: there is no button '%1'"},
    {Kind::TextNumber, Level::Warning, u"is drawn by nothing: the texts of a button are numbered 1, 2, 3"},
    {Kind::BeyondTexts, Level::Warning, u"lies beyond the Texts of %1, which is %2"},
    {Kind::DoubledSection, Level::Warning, u"section given twice: only the one in line %1 counts"},
    {Kind::DoubledKey, Level::Warning, u"key given twice: only the one in line %1 counts"},
    {Kind::NoNumber, Level::Warning, u"'%1' is no number"},
    {Kind::OutsideList, Level::Warning, u"'%1' is not in the key's list"},
    {Kind::NoWords, Level::Warning, u"no words for '%1', which another language has", Fold::ByText},
    {Kind::NoLanguage, Level::Warning, u"no language has words for '%1'", Fold::ByText},
    {Kind::GameColor, Level::Warning, u"colour '%1' is in no table", Fold::ByText},
    {Kind::GameTexture, Level::Warning, u"texture '%1' has no entry in the skin", Fold::ByText},
    {Kind::GameEmptyTexture, Level::Warning, u"texture '%1' names no file", Fold::ByText},
    {Kind::LackingTexture, Level::Warning, u"texture that another skin lacks"},
    {Kind::OtherCase, Level::Warning, u"'%1' is found only without regard to case, as '%2'"},
    {Kind::NoEditor, Level::Note, u"key without an editor", Fold::ByKeyAndText},
    {Kind::UnusedColor, Level::Note, u"colour that no object uses"},
    {Kind::UnusedTexture, Level::Note, u"texture that no object uses"},
    {Kind::UnusedWords, Level::Note, u"words that no theme uses"},
    {Kind::UnusedPicture, Level::Note, u"picture that no skin names"},
});
static_assert(platform::inOrder(Kinds, &KindRow::kind, Kind::UnusedPicture));

struct LevelRow {
  Level level;
  QStringView name;
};
constexpr auto Levels =
    std::to_array<LevelRow>({{Level::Error, u"error"}, {Level::Warning, u"warning"}, {Level::Note, u"note"}});
static_assert(platform::inOrder(Levels, &LevelRow::level, Level::Note));

/// The words with `fill` in place of %1 and %2, whatever stands in it.
QString wordsOf(const KindRow& row, const QStringList& fill) {
  const QString words = row.words.toString();
  if (!words.contains(u"%1")) return words;
  return fill.size() > 1 ? words.arg(fill[0], fill[1]) : fill.size() > 0 ? words.arg(fill[0]) : words;
}

void addName(QStringList& names, const QString& name) {
  if (!name.isEmpty() && !names.contains(name)) names += name;
}

auto order(const Finding& finding) {
  const Place& place = finding.place;
  return std::tie(place.file, place.line, place.column, finding.level, place.section, place.key, finding.text);
}

std::pair<QString, QString> upper(const QString& section, const QString& key) {
  return {platform::upperCase(section), platform::upperCase(key)};
}

/// The skins, languages and schemes that don't go without saying.
QString namedSettings(const Finding& finding, const Scope& scope) {
  QStringList named;
  if (finding.skins.size() < scope.skins) named += finding.skins;
  if (finding.languages.size() < scope.languages) named += finding.languages;
  if (finding.schemes.size() < scope.schemes) {
    for (const QString& scheme : finding.schemes) named += QStringLiteral("scheme ") + scheme;
  }
  return named.join(QStringLiteral(", "));
}

}  // namespace

QString nameOf(Level level) {
  return Levels.at(static_cast<size_t>(level)).name.toString();
}

void Findings::add(Kind kind, const Place& place, const QStringList& fill, const Setting& setting) {
  const KindRow& row = Kinds.at(static_cast<size_t>(kind));
  const QString text = wordsOf(row, fill);
  const bool folds = row.fold != Fold::Never;
  const QString key = row.fold == Fold::ByText ? QString() : platform::upperCase(place.key);
  Entry& entry = entries_[{place.file, row.level, text, folds ? 0 : place.line, folds ? 0 : place.column,
                           folds ? QString() : place.section, key}];
  Finding& finding = entry.finding;
  finding.level = row.level;
  finding.text = text;
  Place& known = entry.sections.try_emplace(platform::upperCase(place.section), place).first->second;
  if (place.line < known.line) known = place;
  addName(finding.skins, setting.skin);
  addName(finding.languages, setting.language);
  addName(finding.schemes, setting.scheme);
  const bool isWhole = kind == Kind::NoScreen || kind == Kind::BehindScreen || kind == Kind::NoKind;
  if (row.level == Level::Error || kind == Kind::NoPlace || isWhole) {
    // An area is told of both sides: "W x H".
    for (const QString& side : place.key.split(QStringLiteral(" x "))) told_.insert(upper(place.section, side));
  }
}

bool Findings::isTold(const QString& section, const QString& key) const {
  return told_.contains(upper(section, key)) || told_.contains(upper(section, {}));
}

std::vector<Finding> Findings::taken(const Scope& scope) const {
  std::vector<Finding> all;
  for (const auto& [identity, entry] : entries_) {
    Finding& settled = all.emplace_back(entry.finding);
    for (const auto& [section, place] : entry.sections) settled.others.push_back(place);
    placeFirst(settled);
    settled.where = namedSettings(settled, scope);
  }
  sortFindings(all);
  return all;
}

void placeFirst(Finding& finding) {
  std::sort(finding.others.begin(), finding.others.end(),
            [](const Place& a, const Place& b) { return std::tie(a.line, a.column) < std::tie(b.line, b.column); });
  finding.place = finding.others.front();
  finding.others.erase(finding.others.begin());
}

QString furtherSections(const Finding& finding) {
  const size_t others = finding.others.size();
  if (others == 0) return {};
  return QStringLiteral("; the same in %1 more section%2")
      .arg(QString::number(others), others == 1 ? QString() : QStringLiteral("s"));
}

void sortFindings(std::vector<Finding>& findings) {
  std::sort(findings.begin(), findings.end(), [](const Finding& a, const Finding& b) { return order(a) < order(b); });
  const auto same = [](const Finding& a, const Finding& b) { return order(a) == order(b); };
  findings.erase(std::unique(findings.begin(), findings.end(), same), findings.end());
}

}  // namespace themecheck
