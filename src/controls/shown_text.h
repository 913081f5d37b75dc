#pragma once

#include <QStyledItemDelegate>

namespace controls {

/// The longest text that controls show whole and text boxes are given. The toolkit cuts longer ones in a box without a
/// word, and takes seconds to lay out a line of megabytes.
inline constexpr qsizetype LongestText = 32'000;

/// The text, a longer one cut with "...".
QString shownText(const QString& text);

/// Shows the texts of a list so; its rows keep them whole.
class ShownTexts : public QStyledItemDelegate {
 public:
  using QStyledItemDelegate::QStyledItemDelegate;
  QString displayText(const QVariant& value, const QLocale& locale) const override;
};

}  // namespace controls
