#pragma once

#include <vector>

#include <QByteArray>
#include <QString>

namespace themefiles {

/// A key's whole line, with the key and the "=", but no line end.
struct KeyedLine {
  QString section;
  QString key;
  QByteArray line;
};

/// Like changedLine, for several lines, of which no two are of the same key.
QByteArray changedLines(const QByteArray& text, const std::vector<KeyedLine>& lines);

}  // namespace themefiles
