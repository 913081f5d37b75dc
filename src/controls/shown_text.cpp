#include "controls/shown_text.h"

namespace controls {

QString shownText(const QString& text) {
  return text.size() <= LongestText ? text : text.left(LongestText) + QStringLiteral("...");
}

QString ShownTexts::displayText(const QVariant& value, const QLocale& /*locale*/) const {
  return shownText(value.toString());
}

}  // namespace controls
