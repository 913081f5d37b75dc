#include "mainwindows/selected_object.h"

#include <algorithm>

#include "mainwindows/main_window.h"
#include "mainwindows/workspace.h"
#include "platform/code_page.h"
#include "platform/numbers.h"
#include "themefiles/module_state.h"

namespace mainwindows {
namespace {

/// The object as the last render drew it; null if it didn't.
const renderer::DrawnObject* drawnObject(const Form1& form, const QString& name) {
  const auto& objects = form.account().objects;
  const auto found = std::find_if(objects.begin(), objects.end(), [&](const renderer::DrawnObject& object) {
    return platform::sameName(object.section, name);
  });
  return found == objects.end() ? nullptr : &*found;
}

}  // namespace

SelectedObject selectedAt(const Form1& form, const QPoint& pixel) {
  const QString name = form.session().object();
  SelectedObject selected{platform::trimBlanks(name), {}, {}, false};
  if (selected.section.isEmpty()) return selected;
  const bool marked = form.Workspace->markVisible();
  const QRect mark = form.Workspace->markRect();
  selected.under = marked && mark.contains(pixel);
  if (const renderer::DrawnObject* const drawn = drawnObject(form, name)) {
    selected.heightKey = drawn->heightKey;
    if (!drawn->heightKey.isEmpty()) selected.place = drawn->place;
    selected.under = selected.under || drawn->place.contains(pixel);
    return selected;
  }
  // An object that isn't drawn can be sized by its mark, unless that is a line under a text.
  const themefiles::CursorRecord& record = form.services.state.CursorRect;
  const bool isText = platform::upperCase(name).contains(u"TEXT");
  if (isText && record.W.isEmpty() && record.H.isEmpty()) return selected;
  selected.heightKey = QStringLiteral("H");
  if (marked) selected.place = mark;
  return selected;
}

QRect seenPlace(const Form1& form) {
  const renderer::DrawnObject* const drawn = drawnObject(form, form.session().object());
  if (drawn != nullptr && !drawn->place.isEmpty()) return drawn->place;
  return form.Workspace->markVisible() ? form.Workspace->markRect() : QRect();
}

QString outsideText(const Form1& form) {
  const bool isSeen = drawnObject(form, form.session().object()) != nullptr || form.Workspace->markVisible();
  if (!isSeen || seenPlace(form).intersects(form.Workspace->rect())) return {};
  const themefiles::CursorRecord& record = form.services.state.CursorRect;
  return QStringLiteral("%1 lies outside the picture, at X = %2, Y = %3")
      .arg(form.session().section(), record.X, record.Y);
}

}  // namespace mainwindows
