#include "toolwindow/row_words.h"

#include <algorithm>

#include "platform/code_page.h"
#include "platform/numbers.h"

namespace toolwindow {

RowWords::RowWords(const QString& typed) : words_(platform::upperCase(typed).split(u' ', Qt::SkipEmptyParts)) {}

bool RowWords::areIn(const QString& searchable) const {
  return std::all_of(words_.begin(), words_.end(), [&](const QString& word) {
    // "X=" is the key X, not the end of another one.
    return word.indexOf(u'=') > 0 ? searchable.contains(u'\n' + word) : searchable.contains(word);
  });
}

QString searchable(const QString& told, const QString& key, const QString& value) {
  QString words = platform::upperCase(told + u'\n' + platform::trimBlanks(key) + u'=' + value);
  // Keys and captions say "color", sentences "colour".
  if (words.contains(u"COLOUR"))
    words += u'\n' + QString(words).replace(QStringLiteral("COLOUR"), QStringLiteral("COLOR"));
  return words;
}

}  // namespace toolwindow
