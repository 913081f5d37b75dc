#pragma once

#include <QStyledItemDelegate>

namespace controls {

/// Length of the longest text that a control shows whole. The toolkit cuts longer ones in a text box without telling,
/// and needs seconds to lay out a line of megabytes.
inline constexpr qsizetype LongestText = 32'000;

/// The text, cut with "..." if it is longer than LongestText.
QString shownText(const QString& text);

/// Paints the rows of a list with their texts cut so. The rows themselves keep the whole texts.
class ShownTexts : public QStyledItemDelegate {
 public:
  using QStyledItemDelegate::QStyledItemDelegate;
  QString displayText(const QVariant& value, const QLocale& locale) const override;
};

}  // namespace controls
