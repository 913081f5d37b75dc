#include <algorithm>

#include <QSet>

#include "platform/code_page.h"
#include "themecheck/checked_theme.h"

namespace themecheck {
namespace {

const QString Text = QStringLiteral("Text");

bool hasWords(const IniFile& language, const QString& key) {
  const IniSection* words = language.find(Text);
  return words && words->find(key);
}

}  // namespace

void checkWords(const CheckedTheme& theme, Findings& findings) {
  for (const IniSection* object : objectsOf(theme.theme)) {
    const QString key = wordsKeyOf(*object);
    if (std::none_of(theme.languages.begin(), theme.languages.end(),
                     [&](const IniFile& language) { return hasWords(language, key); })) {
      continue;
    }
    for (const IniFile& language : theme.languages) {
      if (hasWords(language, key) || !theme.languageNames.contains(language.name())) continue;
      findings.add(Kind::NoWords, theme.theme.place(object->name, Text), {key}, {{}, language.name()});
    }
  }
}

QSet<QString> wordsOf(const IniFile& theme) {
  QSet<QString> words;
  for (const IniSection* object : objectsOf(theme)) words += platform::upperCase(wordsKeyOf(*object));
  return words;
}

void checkUnusedWords(const IniFile& language, const QSet<QString>& used, Findings& findings) {
  const IniSection* words = language.find(Text);
  if (!words) return;
  for (const IniKey& key : words->keys) {
    if (key.line != key.counted || used.contains(platform::upperCase(key.name))) continue;
    findings.add(Kind::UnusedWords, language.place(Text, key.name));
  }
}

}  // namespace themecheck
