#include "mainwindows/held_objects.h"

#include <algorithm>
#include <utility>

#include <QHash>

#include "editing/commit.h"
#include "mainwindows/main_window.h"
#include "mainwindows/selected_object.h"
#include "mainwindows/workspace.h"
#include "platform/code_page.h"
#include "platform/numbers.h"

namespace mainwindows {

bool HeldObjects::take(editing::Grip grip, bool reports) {
  const editing::Session& session = form_.session();
  held_.clear();
  grip_ = grip;
  names_ = groupOf(session);
  if (session.object().isEmpty()) return false;
  scope_ = std::make_unique<platform::ReportScope>(form_);
  QByteArray theme;
  const auto unread = platform::failureIn([&] { theme = editing::readTheme(session); });
  QStringList movable;
  std::vector<std::pair<QString, QString>> staying;  // with their causes
  for (const QString& name : grip.sizes() ? names_.mid(0, 1) : names_) {
    const SelectedObject object = objectNamed(form_, name);
    Held held{.name = name, .section = object.section, .heightKey = object.heightKey, .start = {}, .now = {}};
    const auto cause =
        unread ? unread
               : platform::failureIn([&] { held.start = editing::heldIn(theme, held.section, grip, held.heightKey); });
    held.now = held.start;
    if (cause) {
      staying.emplace_back(name, *cause);
    } else {
      movable += name;
      held_.push_back(held);
    }
  }
  std::erase_if(held_, [&](const Held& held) { return goesAlong(form_, held.name, movable); });
  for (const auto& [name, cause] : staying) {
    if (reports && !goesAlong(form_, name, movable)) noteStays(form_, name, cause);
  }
  if (held_.empty()) scope_.reset();
  return !held_.empty();
}

void HeldObjects::moveFromStart(const QPoint& movement) {
  for (Held& held : held_) held.now = editing::moved(held.start, grip_, movement);
}

void HeldObjects::moveOn(const QPoint& step) {
  for (Held& held : held_) held.now = editing::moved(held.now, grip_, step);
}

QRect HeldObjects::startPlace() const {
  QRect all;
  for (const Held& held : held_) all |= seenPlace(form_, held.name);
  return all;
}

bool HeldObjects::isOfHand(const QString& section, const QString& owner) const {
  return std::any_of(names_.begin(), names_.end(), [&](const QString& name) {
    return platform::sameName(platform::trimBlanks(name), section) || platform::sameName(name, owner);
  });
}

std::vector<editing::Guide> HeldObjects::guides() const {
  // As the list has them: the drawing names the texts of a button in its own way.
  QHash<QString, QString> names;
  const themefiles::TagList& listed = form_.session().objects();
  for (int row = 0; row < listed.ListCount(); ++row) {
    names.insert(platform::upperCase(platform::trimBlanks(listed.List(row))), listed.List(row));
  }
  std::vector<editing::Guide> guides{{QStringLiteral("the picture"), form_.Workspace->rect()}};
  for (const renderer::DrawnObject& object : form_.account().objects) {
    const bool seen = object.place.intersects(form_.Workspace->rect());
    if (seen && !isOfHand(object.section, object.owner)) {
      guides.push_back({names.value(platform::upperCase(object.section), object.section), object.place});
    }
  }
  return guides;
}

QString HeldObjects::label() const {
  const QString first = editing::labelOf(held_.front().now, grip_);
  return held_.size() == 1 ? first : first + QStringLiteral(" and %1 more").arg(held_.size() - 1);
}

void HeldObjects::showFrame() {
  std::vector<renderer::TrialValues> values;
  for (const Held& held : held_) values.push_back({held.section, editing::changedValues(held.start, held.now)});
  trial_.show(values);
}

void HeldObjects::commit() {
  const auto scope = std::exchange(scope_, nullptr);
  const std::vector<renderer::TrialValues> changes = changesToWrite();
  held_.clear();
  if (changes.empty() || !editing::commitValues(form_.session(), changes)) trial_.putBack();
}

/// Of objects whose section another program has taken away meanwhile there are none.
std::vector<renderer::TrialValues> HeldObjects::changesToWrite() {
  std::erase_if(held_, [](const Held& held) { return editing::changedValues(held.start, held.now).empty(); });
  if (held_.empty()) return {};
  QByteArray theme;
  const auto unread = platform::failureIn([&] { theme = editing::readTheme(form_.session()); });
  std::vector<renderer::TrialValues> changes;
  for (const Held& held : held_) {
    const auto cause =
        unread ? unread : platform::failureIn([&] { editing::heldIn(theme, held.section, grip_, held.heightKey); });
    if (cause) {
      noteStays(form_, held.section, *cause);
    } else {
      changes.push_back({held.section, editing::changedValues(held.start, held.now)});
    }
  }
  return changes;
}

void HeldObjects::giveUp() {
  held_.clear();
  scope_.reset();
  trial_.putBack();
}

void HeldObjects::letGo() {
  held_.clear();
  scope_.reset();
  trial_.forget();
}

}  // namespace mainwindows
