#include "themecheck/words.h"

#include <algorithm>

#include "platform/code_page.h"

namespace themecheck {
namespace {

using themefiles::TextSection;

bool hasWords(const IniFile& language, const QString& key) {
  return language.has(TextSection, key);
}

bool isKnown(const CheckedTheme& theme, const QString& key) {
  return std::any_of(theme.languages.begin(), theme.languages.end(),
                     [&](const IniFile& language) { return hasWords(language, key); });
}

/// What kind of letter it is, for telling names of words from words: "NAME_HELP" from "12 %".
QChar kindOf(QChar letter) {
  return letter.isUpper() ? u'A' : letter.isLower() ? u'a' : letter.isDigit() ? u'0' : letter;
}

/// The kinds of letters that the languages have in the names of their words.
QSet<QChar> lettersOfNames(const CheckedTheme& theme) {
  QSet<QChar> kinds{u'A', u'_'};
  for (const IniFile& language : theme.languages) {
    for (const IniKey* key : language.keysOf(TextSection)) {
      for (const QChar letter : key->name) kinds += kindOf(letter);
    }
  }
  return kinds;
}

/// A text may hold words as they are to be shown. Those don't look like the names that the languages have.
bool looksLikeName(const QString& text, const QSet<QChar>& letters) {
  return std::any_of(text.begin(), text.end(), [](QChar letter) { return letter.isLetter(); }) &&
         std::all_of(text.begin(), text.end(), [&](QChar letter) { return letters.contains(kindOf(letter)); });
}

/// A language without any of the words in use is one fault.
void checkTable(CheckedTheme& theme, const IniFile& language, const QSet<QString>& used, Findings& findings) {
  const bool hasTable = language.find(TextSection);
  if (used.size() < (hasTable ? 2 : 1) ||
      std::any_of(used.begin(), used.end(), [&](const QString& key) { return hasWords(language, key); })) {
    return;
  }
  theme.lostLanguages += language.name();
  if (!language.isChecked()) return;
  if (hasTable) {
    findings.add(Kind::EmptyWordsTable, language.place(TextSection), {QString::number(used.size())});
  } else if (!platform::sameName(language.sectionBehindMark(), TextSection)) {
    findings.add(Kind::NoWordsTable, language.wholeFile(), {TextSection, namesOfTheme(used.size())});
  }
}

}  // namespace

void checkWords(CheckedTheme& theme, Findings& findings) {
  const IniFile& file = theme.theme();
  const QSet<QChar> letters = lettersOfNames(theme);
  QSet<QString> used = valuesOf(file, themefiles::KeyGroup::Text);
  used.removeIf([&](const QString& key) { return !isKnown(theme, key) && !looksLikeName(key, letters); });
  for (const IniFile& language : theme.languages) checkTable(theme, language, used, findings);
  for (const IniSection* object : objectsOf(file)) {
    const QString key = wordsKeyOf(*object);
    if (key.isEmpty()) continue;
    const Place place = file.valueOf(object->name, QStringLiteral("Text"));
    if (!isKnown(theme, key)) {
      const bool isTold = !theme.allLanguages || !theme.lostLanguages.isEmpty() || theme.languages.empty();
      if (!isTold && used.contains(key)) findings.add(Kind::NoLanguage, place, {key});
      continue;
    }
    for (const IniFile& language : theme.languages) {
      if (!language.isChecked() || hasWords(language, key) || theme.lostLanguages.contains(language.name())) continue;
      findings.add(Kind::NoWords, place, {key}, {{}, language.name(), {}});
    }
  }
}

QSet<QString> wordsOf(const IniFile& theme) {
  QSet<QString> words;
  for (const IniSection* object : objectsOf(theme)) words += platform::upperCase(wordsKeyOf(*object));
  return words;
}

void checkUnusedWords(const IniFile& language, const QSet<QString>& used, Findings& findings) {
  for (const IniKey* key : language.keysOf(TextSection)) {
    if (used.contains(platform::upperCase(key->name))) continue;
    findings.add(Kind::UnusedWords, language.placeOf(*language.find(TextSection), *key));
  }
}

}  // namespace themecheck
