#pragma once

#include <vector>

#include <QByteArrayView>
#include <QHash>
#include <QString>

#include "platform/ini_text.h"
#include "themecheck/findings.h"

namespace themecheck {

/// What some editors write at the head of a file in UTF-8. It is no part of the game's code page.
inline constexpr QByteArrayView ByteOrderMark("\xEF\xBB\xBF");

struct IniKey {
  QString name;
  QString value;
  int line = 0;
  int counted = 0;  ///< line of the first key of this name, the one that counts
};

/// What is wrong with the line of a section.
enum class Head { Right, Indented, Unopened, Unclosed, Followed, FollowedByBlanks };

struct IniSection {
  QString name;
  int line = 0;
  int counted = 0;
  Head head = Head::Right;
  std::vector<IniKey> keys;
  QHash<QString, qsizetype> byName;  ///< the keys that count

  /// The key that counts, by its name in any case; null without one.
  const IniKey* find(const QString& key) const;
  QString value(const QString& key) const;
};

/// A file that is checked: where it is read, and how findings name it.
struct CheckedFile {
  QString name;  ///< of the theme, the skin or the language
  QString path;
  QString shown;
  bool isChecked = true;  ///< else it is only compared with the others
};

/// An ini file of the game, read once, with the places of its sections and keys.
class IniFile {
 public:
  /// Throws platform::Failure for a file that can't be read, or that isn't written in single bytes.
  explicit IniFile(CheckedFile file);

  const QString& name() const { return file_.name; }
  bool isChecked() const { return file_.isChecked; }
  const std::vector<QByteArrayView>& lines() const { return text_.lines(); }
  const std::vector<IniSection>& sections() const { return sections_; }
  /// The section that counts, by its name in any case; null without one.
  const IniSection* find(const QString& section) const;
  /// The first key of each name in a section; none without the section.
  std::vector<const IniKey*> keysOf(const QString& section) const;
  bool has(const QString& section, const QString& key) const;
  /// The section in the first line, if a byte order mark hides it; empty without one.
  QString sectionBehindMark() const;

  Place wholeFile() const { return {file_.shown, 1, 0, {}, {}}; }
  /// The place of a section, spelled as in the file. If it is missing, the file.
  Place place(const QString& section) const;
  /// The place of the value of a key that counts. If the key is missing, that of its section.
  Place valueOf(const QString& section, const QString& key) const;
  /// The place of a section's or a key's own line.
  Place placeOf(const IniSection& section) const { return {file_.shown, section.line, 0, section.name, {}}; }
  Place placeOf(const IniSection& section, const IniKey& key) const;
  Place lineAt(int line, int column) const { return {file_.shown, line, column, {}, {}}; }

 private:
  void readSections();
  void splitAtUnopenedHeads();
  void enterNames();
  QByteArrayView line(int number) const;

  CheckedFile file_;
  platform::IniText text_;
  std::vector<IniSection> sections_;
  QHash<QString, qsizetype> byName_;
};

}  // namespace themecheck
