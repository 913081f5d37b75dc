#include "mainwindows/selected_object.h"

#include <algorithm>

#include "controls/work_queue.h"
#include "mainwindows/main_window.h"
#include "mainwindows/workspace.h"
#include "platform/code_page.h"
#include "platform/numbers.h"
#include "renderer/object_passes.h"
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

SelectedObject objectNamed(const Form1& form, const QString& name) {
  SelectedObject object{platform::trimBlanks(name), {}, {}, false};
  if (object.section.isEmpty()) return object;
  if (const renderer::DrawnObject* const drawn = drawnObject(form, name)) {
    object.heightKey = drawn->heightKey;
    if (!drawn->heightKey.isEmpty()) object.place = drawn->place;
    return object;
  }
  // The selected object can be sized by its mark if it isn't drawn, unless that is a line under a text.
  const bool isSelected = name == form.session().object();
  const themefiles::CursorRecord& record = form.services.state.CursorRect;
  const bool hasSize = isSelected && !(record.W.isEmpty() && record.H.isEmpty());
  if (platform::upperCase(name).contains(u"TEXT") && !hasSize) return object;
  object.heightKey = QStringLiteral("H");
  if (isSelected && form.Workspace->markVisible()) object.place = form.Workspace->markRect();
  return object;
}

SelectedObject selectedAt(const Form1& form, const QPoint& pixel) {
  const QString name = form.session().object();
  SelectedObject selected = objectNamed(form, name);
  if (selected.section.isEmpty()) return selected;
  const auto drawn = drawnPlace(form, name);
  selected.under = (form.Workspace->markVisible() && form.Workspace->markRect().contains(pixel)) ||
                   (drawn && drawn->contains(pixel));
  return selected;
}

bool isGroupAt(const Form1& form, const QPoint& pixel) {
  const QStringList& members = form.session().members();
  return selectedAt(form, pixel).under || std::any_of(members.begin(), members.end(), [&](const QString& member) {
           return drawnPlace(form, member).value_or(QRect()).contains(pixel);
         });
}

std::optional<QRect> drawnPlace(const Form1& form, const QString& name) {
  const renderer::DrawnObject* const drawn = drawnObject(form, name);
  return drawn == nullptr ? std::nullopt : std::optional(drawn->place);
}

QRect seenPlace(const Form1& form, const QString& name) {
  const auto drawn = drawnPlace(form, name);
  if (drawn && !drawn->isEmpty()) return *drawn;
  const bool isMarked = name == form.session().object() && form.Workspace->markVisible();
  return isMarked ? form.Workspace->markRect() : QRect();
}

QStringList groupOf(const editing::Session& session) {
  return QStringList{session.object()} + session.members();
}

bool goesAlong(const Form1& form, const QString& name, const QStringList& with) {
  const renderer::DrawnObject* const drawn = drawnObject(form, name);
  if (drawn == nullptr && !form.queue().busy()) return false;
  // A running drawing may not have come to the text: then its name tells.
  const QString owner = drawn != nullptr ? drawn->owner : renderer::buttonOfText(platform::trimBlanks(name));
  return std::any_of(with.begin(), with.end(),
                     [&](const QString& other) { return platform::sameName(platform::trimBlanks(other), owner); });
}

void noteStays(Form1& form, const QString& name, const QString& cause) {
  form.note(platform::reportText(QStringLiteral("%1 stays as it is").arg(platform::trimBlanks(name)), cause));
}

QString outsideText(const Form1& form) {
  const QString name = form.session().object();
  const bool isSeen = drawnPlace(form, name) || form.Workspace->markVisible();
  if (!isSeen || seenPlace(form, name).intersects(form.Workspace->rect())) return {};
  const themefiles::CursorRecord& record = form.services.state.CursorRect;
  return QStringLiteral("%1 lies outside the picture, at X = %2, Y = %3")
      .arg(form.session().section(), record.X, record.Y);
}

}  // namespace mainwindows
