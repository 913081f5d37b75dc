#include "themefiles/theme_search.h"

#include <algorithm>
#include <array>

#include "platform/code_page.h"
#include "platform/files.h"
#include "platform/ini_reading.h"
#include "themefiles/key_table.h"
#include "themefiles/section_names.h"
#include "themefiles/tag_listing.h"
#include "themefiles/tag_reader.h"

namespace themefiles {
namespace {

// How well an entry matches, the best first.
enum Rank { SameName, NameBegins, InNames, InLines, NoHit };

}  // namespace

/// Whether the line has the word. "X=1" means a key X whose value, or words, begin with 1.
bool ThemeSearch::has(const Line& line, const QString& word) {
  const qsizetype equals = word.indexOf(u'=');
  if (equals <= 0) return line.upper.contains(word);
  if (keyIdentity(line.key) != QStringView(word).first(equals)) return false;
  const QString value = word.sliced(equals + 1);
  const QStringView shown = QStringView(line.upper).sliced(line.key.size() + 1);
  return shown.startsWith(value) || shown.contains(u'\n' + value);
}

/// The theme's files while the search is built.
class ThemeSearch::Reading {
 public:
  explicit Reading(const ModuleState& state)
      : theme_(platform::IniText(platform::readFile(state.paths.ThemeFile))),
        language_(platform::IniText(platform::readFile(state.paths.LanguageFile))),
        tags_(theme_.text()),
        rows_(allTags(theme_.text())),
        words_(platform::iniKeys(language_.lines(TextSection.toLatin1()))) {}

  const ScreenTags& tags() const { return tags_; }
  /// The lines of an object. Screens share them.
  std::shared_ptr<const Lines> linesOf(const QString& object) {
    std::shared_ptr<const Lines>& known = lines_[object];
    if (!known) known = std::make_shared<const Lines>(newLines(object));
    return known;
  }

 private:
  Lines newLines(const QString& object) const {
    Lines lines;
    const QString words = wordsOf(object);
    bool told = words.isEmpty();
    int number = 0;
    for (const ValueRow& row : rows_.value(platform::upperCase(object))) {
      Line line{number++, row.Item, row.Item + QStringLiteral(" = ") + row.Value, row.Item + u'=' + row.Value};
      if (!told && keyIdentity(row.Item) == u"TEXT") {
        line.shown += QStringLiteral(", ") + words;
        line.upper += u'\n' + words;
        told = true;
      }
      line.upper = platform::upperCase(line.upper);
      lines.push_back(std::move(line));
    }
    if (!told) lines.push_back({-1, {}, words, platform::upperCase(words)});
    return lines;
  }

  /// The object's words in the language file, by its Text key or else by its name.
  QString wordsOf(const QString& object) const {
    const QByteArray name = platform::toAnsi(object).value_or(QByteArray());
    const QByteArray key = platform::findIniValue(theme_.lines(name), "Text").value_or(name);
    const platform::IniLine* line = key.isEmpty() ? nullptr : platform::lineOf(words_, key);
    return line == nullptr ? QString() : platform::fromAnsi(platform::unquoted(line->value));
  }

  platform::IniSections theme_, language_;
  ScreenTags tags_;
  QHash<QString, std::vector<ValueRow>> rows_;
  platform::IniKeys words_;
  QHash<QString, std::shared_ptr<const Lines>> lines_;
};

ThemeSearch::ThemeSearch(const ModuleState& state) {
  Reading files(state);
  const auto nothing = std::make_shared<const Lines>();
  for (const ScreenRow& screen : state.ScreenTable) {
    const QString upperScreen = platform::upperCase(screen.Name);
    entries_.push_back({screen.Name, {}, upperScreen, {}, nothing});
    for (const QString& object : files.tags().of(state, screen.Name)) {
      if (entries_.back().object == object) continue;  // the file has the section twice
      const QString upperObject = platform::upperCase(object);
      const bool shows = upperObject != platform::upperCase(screen.Stem);  // the screen's own section doesn't
      entries_.push_back({screen.Name, object, upperScreen, upperObject, shows ? files.linesOf(object) : nothing});
    }
  }
}

int ThemeSearch::rankOf(const Entry& entry, const QStringList& words) {
  int rank = InNames;
  for (const QString& word : words) {
    if (entry.upperScreen.contains(word) || entry.upperObject.contains(word)) continue;
    const auto hasWord = [&](const Line& line) { return has(line, word); };
    if (std::none_of(entry.lines->begin(), entry.lines->end(), hasWord)) return NoHit;
    rank = InLines;
  }
  const QString& name = entry.object.isEmpty() ? entry.upperScreen : entry.upperObject;
  const auto beginsName = [&](const QString& word) { return name.startsWith(word); };
  if (rank == InNames && std::any_of(words.begin(), words.end(), beginsName)) rank = NameBegins;
  const QString whole = words.join(u' ');
  return whole == entry.upperObject || (entry.object.isEmpty() && whole == entry.upperScreen) ? SameName : rank;
}

Hit ThemeSearch::hitOf(const Entry& entry, const QStringList& words) {
  Hit hit{entry.screen, entry.object, -1, {}, entry.screen};
  if (!entry.object.isEmpty()) hit.shown += QStringLiteral(", ") + entry.object;
  // The best line has most of the words that neither screen nor object has in its name, and begins with most of them.
  const Line* best = nullptr;
  std::pair<int, int> bestCounts;
  for (const Line& line : *entry.lines) {
    std::pair<int, int> counts;
    for (const QString& word : words) {
      if (entry.upperScreen.contains(word) || entry.upperObject.contains(word) || !has(line, word)) continue;
      ++counts.first;
      if (line.upper.startsWith(word)) ++counts.second;
    }
    if (counts <= bestCounts) continue;
    best = &line;
    bestCounts = counts;
  }
  if (best == nullptr) return hit;
  hit.row = best->row;
  hit.key = best->key;
  hit.shown += QStringLiteral(": ") + best->shown;
  return hit;
}

Hits ThemeSearch::find(const QString& typed, int most) const {
  const QStringList words = platform::upperCase(typed).split(u' ', Qt::SkipEmptyParts);
  if (words.isEmpty()) return {};
  std::array<std::vector<const Entry*>, NoHit> found;
  Hits hits;
  for (const Entry& entry : entries_) {
    const int rank = rankOf(entry, words);
    if (rank == NoHit) continue;
    found.at(rank).push_back(&entry);
    ++hits.count;
  }
  for (const auto& entries : found) {
    for (const Entry* entry : entries) {
      if (static_cast<int>(hits.first.size()) == most) return hits;
      hits.first.push_back(hitOf(*entry, words));
    }
  }
  return hits;
}

}  // namespace themefiles
