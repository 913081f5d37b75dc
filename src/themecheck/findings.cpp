#include "themecheck/findings.h"

#include <algorithm>
#include <array>

#include <QStringView>

#include "platform/row_order.h"

namespace themecheck {
namespace {

struct KindRow {
  Kind kind;
  Level level;
  QStringView words;
};

constexpr auto Kinds = std::to_array<KindRow>({
    {Kind::CantBeRead, Level::Error, u"can't be read: %1"},
    {Kind::CantBeOpened, Level::Error, u"can't be opened: there is no %1"},
    {Kind::TooManyColors, Level::Error, u"more than 99 colours"},
    {Kind::LeftOut, Level::Error, u"%1"},
    {Kind::Hidden, Level::Note, u"%1"},
    {Kind::OutsideSurface, Level::Warning, u"lies wholly outside the 800 x 600"},
    {Kind::NoScreen, Level::Warning, u"belongs to no screen"},
    {Kind::DoubledSection, Level::Warning, u"section given twice: only the one in line %1 counts"},
    {Kind::DoubledKey, Level::Warning, u"key given twice: only the one in line %1 counts"},
    {Kind::NoNumber, Level::Warning, u"'%1' is no number"},
    {Kind::OutsideList, Level::Warning, u"'%1' is not in the key's list"},
    {Kind::NoEditor, Level::Note, u"key without an editor"},
    {Kind::BeyondTexts, Level::Warning, u"lies beyond the Texts of %1, which is %2"},
    {Kind::NoWords, Level::Warning, u"no words for '%1', which another language has"},
    {Kind::LackingTexture, Level::Warning, u"texture that another skin lacks"},
    {Kind::OtherCase, Level::Warning, u"'%1' is found only without regard to case, as '%2'"},
    {Kind::UnusedColor, Level::Note, u"colour that no object uses"},
    {Kind::UnusedTexture, Level::Note, u"texture that no object uses"},
    {Kind::UnusedWords, Level::Note, u"words that no theme uses"},
    {Kind::UnusedPicture, Level::Note, u"picture that no skin names"},
});
static_assert(platform::inOrder(Kinds, &KindRow::kind, Kind::UnusedPicture));

constexpr auto LevelNames = std::to_array<QStringView>({u"error", u"warning", u"note"});
static_assert(LevelNames.size() == static_cast<size_t>(Level::Note) + 1);

/// The words with `fill` in place of %1 and %2, whatever stands in it.
QString wordsOf(const KindRow& row, const QStringList& fill) {
  const QString words = row.words.toString();
  return fill.size() > 1 ? words.arg(fill[0], fill[1]) : fill.size() > 0 ? words.arg(fill[0]) : words;
}

void addName(QStringList& names, const QString& name) {
  if (!name.isEmpty() && !names.contains(name)) names += name;
}

auto order(const Finding& finding) {
  const Place& place = finding.place;
  return std::tie(place.file, place.line, finding.level, place.section, place.key, finding.text);
}

}  // namespace

QString nameOf(Level level) {
  return LevelNames.at(static_cast<size_t>(level)).toString();
}

void Findings::add(Kind kind, const Place& place, const QStringList& fill, const Setting& setting) {
  const KindRow& row = Kinds.at(static_cast<size_t>(kind));
  const Finding made{row.level, place, wordsOf(row, fill), {}, {}, {}};
  Finding& finding = findings_.try_emplace(order(made), made).first->second;
  addName(finding.skins, setting.skin);
  addName(finding.languages, setting.language);
}

std::vector<Finding> Findings::taken(const QStringList& skins, const QStringList& languages) const {
  std::vector<Finding> all;
  for (const auto& [key, finding] : findings_) {
    Finding& settled = all.emplace_back(finding);
    QStringList where;
    if (settled.skins.size() < skins.size()) where += settled.skins;
    if (settled.languages.size() < languages.size()) where += settled.languages;
    settled.where = where.join(QStringLiteral(", "));
  }
  return all;
}

void sortFindings(std::vector<Finding>& findings) {
  std::sort(findings.begin(), findings.end(), [](const Finding& a, const Finding& b) { return order(a) < order(b); });
}

}  // namespace themecheck
