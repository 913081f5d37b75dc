#pragma once

#include <QString>
#include <QStringList>

namespace toolwindow {

/// Words that narrow a list: a row has to have all of them, in any case.
class RowWords {
 public:
  explicit RowWords(const QString& typed);
  /// Whether they are in a row's searchable text.
  bool areIn(const QString& searchable) const;

 private:
  QStringList words_;
};

/// What words are looked for in: the row's text, and its key with its value as "X=120".
QString searchable(const QString& told, const QString& key, const QString& value = {});

}  // namespace toolwindow
