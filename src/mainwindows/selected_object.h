#pragma once

#include <QPoint>
#include <QRect>
#include <QString>

namespace mainwindows {

class Form1;

/// The selected object as the preview has it.
struct SelectedObject {
  QString section;     ///< empty without one
  QString heightKey;   ///< empty for a text
  QRect place;         ///< of an object with a rectangle
  bool under = false;  ///< whether the pixel asked for lies in it
};

/// The selected object, and whether it lies under a pixel: as the last render drew it, or by its mark. Only with a
/// theme open.
SelectedObject selectedAt(const Form1& form, const QPoint& pixel);

/// Where the selected object is seen; empty if neither it nor its mark is. Only with a theme open.
QRect seenPlace(const Form1& form);

/// Tells where the selected object is if it lies wholly outside the picture; else empty. Only with a theme open.
QString outsideText(const Form1& form);

}  // namespace mainwindows
