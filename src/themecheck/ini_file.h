#pragma once

#include <vector>

#include <QHash>
#include <QString>

#include "themecheck/findings.h"

namespace themecheck {

struct IniKey {
  QString name;
  QString value;
  int line = 0;
  int counted = 0;  ///< line of the first key of this name, the one that counts
};

struct IniSection {
  QString name;
  int line = 0;
  int counted = 0;
  std::vector<IniKey> keys;
  QHash<QString, qsizetype> byName;  ///< the keys that count

  /// The key that counts, by its name in any case; null without one.
  const IniKey* find(const QString& key) const;
  QString value(const QString& key) const;
};

/// An ini file of the game, read once, with the line numbers of its sections and keys.
class IniFile {
 public:
  /// `shown` is the path that findings name. Throws platform::Failure for a file that can't be read.
  IniFile(QString name, const QString& path, QString shown);

  const QString& name() const { return name_; }
  const std::vector<IniSection>& sections() const { return sections_; }
  /// The section that counts, by its name in any case; null without one.
  const IniSection* find(const QString& section) const;

  Place wholeFile() const { return {shown_, 0, {}, {}}; }

  /// The place of a key, spelled as in the file. If the key is missing, the place of its section; if that is missing,
  /// too, the file. A section may also be named as the reader of tags names it.
  Place place(const QString& section, const QString& key = {}) const;

 private:
  QString name_;
  QString shown_;
  std::vector<IniSection> sections_;
  QHash<QString, qsizetype> byName_;
  QHash<QString, int> tagLines_;
};

}  // namespace themecheck
