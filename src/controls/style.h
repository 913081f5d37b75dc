#pragma once

#include <QProxyStyle>

namespace controls {

/// The Fusion style without what it takes from the desktop. Boxes may be lower, and frames may have controls close to
/// their title.
class Style : public QProxyStyle {
  Q_OBJECT

 public:
  Style();

  /// The fixed light palette from the classic system colours.
  QPalette standardPalette() const override;
  int styleHint(StyleHint hint, const QStyleOption* option, const QWidget* widget,
                QStyleHintReturn* result) const override;
  QRect subControlRect(ComplexControl control, const QStyleOptionComplex* option, SubControl part,
                       const QWidget* widget) const override;
  void drawPrimitive(PrimitiveElement element, const QStyleOption* option, QPainter* painter,
                     const QWidget* widget) const override;
  void drawComplexControl(ComplexControl control, const QStyleOptionComplex* option, QPainter* painter,
                          const QWidget* widget) const override;
};

}  // namespace controls
