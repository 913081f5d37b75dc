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
  int counted = 0;  ///< line of the key that counts: another one's when this is a double
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

/// One ini file of the game as it stood when the check began, with the lines of its sections and keys.
class IniFile {
 public:
  /// `shown` is the path that findings name. Throws platform::Failure for a file that can't be read.
  IniFile(QString name, const QString& path, QString shown);

  const QString& name() const { return name_; }
  const std::vector<IniSection>& sections() const { return sections_; }
  /// The section that counts, by its name in any case; null without one.
  const IniSection* find(const QString& section) const;

  Place wholeFile() const { return {shown_, 0, {}, {}}; }

  /// Where the key stands, spelled as in the file; its section where it doesn't, and the file as a whole without the
  /// section. A section may also be named as the reader of tags names it.
  Place place(const QString& section, const QString& key = {}) const;

 private:
  QString name_;
  QString shown_;
  std::vector<IniSection> sections_;
  QHash<QString, qsizetype> byName_;
  QHash<QString, int> tagLines_;
};

}  // namespace themecheck
