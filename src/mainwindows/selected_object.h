#pragma once

#include <optional>

#include <QPoint>
#include <QRect>
#include <QString>
#include <QStringList>

#include "editing/session.h"

namespace mainwindows {

class Form1;

/// An object as the preview has it.
struct SelectedObject {
  QString section;     ///< empty without one
  QString heightKey;   ///< empty for a text
  QRect place;         ///< of an object with a rectangle
  bool under = false;  ///< whether the pixel asked for lies in it
};

/// The selected object, and whether it lies under a pixel: as the last render drew it, or by its mark. Only with a
/// theme open.
SelectedObject selectedAt(const Form1& form, const QPoint& pixel);

/// Whether the selected object, or another one of its group, lies under a pixel. Only with a theme open.
bool isGroupAt(const Form1& form, const QPoint& pixel);

/// An object of the screen, by its name.
SelectedObject objectNamed(const Form1& form, const QString& name);

/// Where the last render drew an object; none if it didn't.
std::optional<QRect> drawnPlace(const Form1& form, const QString& name);

/// Where an object is seen, or the selected one's mark; empty if it isn't. Only with a theme open.
QRect seenPlace(const Form1& form, const QString& name);

/// The selected object, and behind it the others of its group.
QStringList groupOf(const editing::Session& session);

/// Whether an object is the text of a button among these, and goes along with that.
bool goesAlong(const Form1& form, const QString& name, const QStringList& with);

/// Reports why an object of the group can't be moved or sized.
void noteStays(Form1& form, const QString& name, const QString& cause);

/// Tells where the selected object is if it lies wholly outside the picture; else empty. Only with a theme open.
QString outsideText(const Form1& form);

}  // namespace mainwindows
