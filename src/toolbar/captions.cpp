#include "toolbar/captions.h"

#include <algorithm>

#include "drawing/fonts.h"
#include "drawing/raster_text.h"
#include "platform/numbers.h"
#include "toolbar/checked_numbers.h"

namespace toolbar {

namespace {

constexpr QChar Blank = u' ';
constexpr int SideMargin = 5;

bool isBreakChar(QChar letter) {
  return !((letter >= u'A' && letter <= u'Z') || (letter >= u'a' && letter <= u'z') || letter == u'_');
}

/// The blanks at the end of the text.
QString blanksBehind(const QString& text) {
  const auto letter = std::find_if(text.rbegin(), text.rend(), [](QChar letter) { return letter != Blank; });
  return text.last(std::distance(text.rbegin(), letter));
}

}  // namespace

QStringList WrapCaption(const QString& caption, int maxWidth, const std::function<int(const QString&)>& textWidth) {
  const QString text = QString(caption).remove(QStringLiteral("\r\n"));
  if (text.isEmpty()) return {};
  if (textWidth(text) < maxWidth) return {text};
  QStringList lines;
  QString buffer;
  QString cutOff;  // the last line before its blanks were trimmed
  qsizetype consumed = 0;
  qsizetype cut = 0;
  for (qsizetype place = 1; place <= text.size(); ++place) {
    const QChar letter = text[place - 1];
    if (isBreakChar(letter)) cut = place - consumed - 1;
    if (textWidth(buffer + letter) >= maxWidth || place == text.size()) {
      if (cut == 0) cut = place - consumed - 1;
      cutOff = buffer.first(cut);
      lines += platform::trimBlanks(cutOff);
      buffer.remove(0, cut);
      consumed += cut;
      cut = 0;
    }
    buffer += letter;
  }
  // The last letter is still in the buffer.
  if (lines.size() == 1 && buffer.size() > 1) {
    lines += platform::trimBlanks(buffer);
  } else {
    lines.last() = platform::trimBlanks(cutOff) + blanksBehind(cutOff) + buffer;
  }
  return lines;
}

void DrawCaption(drawing::Raster& raster, const QFont& font, QRgb color, const QString& caption, const QRect& box,
                 int shift) {
  const QFont drawn = drawing::drawnFont(font);
  const int lineHeight = drawing::TextHeight(drawn);
  const QStringList lines = WrapCaption(caption, box.width() - SideMargin,
                                        [&drawn](const QString& text) { return drawing::TextWidth(drawn, text); });
  int top = nearestInt((box.height() - static_cast<double>(lines.size() + shift) * lineHeight) / 2 + box.y());
  for (const QString& line : lines) {
    drawing::drawText(raster, drawn, line, QRect(box.x(), top, box.width(), raster.Height() - top), color);
    top += lineHeight;
  }
}

}  // namespace toolbar
