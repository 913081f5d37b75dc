#include "editing/session.h"

#include <utility>

#include <QScopedValueRollback>

#include "editing/reports.h"
#include "platform/code_page.h"
#include "platform/failure.h"
#include "platform/numbers.h"

namespace editing {

Session::Session(themefiles::ModuleState& state, platform::StatusLine& status) : state_(state), status_(status) {}

void Session::begin(themefiles::TagList& objects) {
  objects_ = &objects;
  screen_.clear();
  listed_.reset();
  row_ = -1;
  pendingHit_.reset();
}

void Session::end() {
  if (!isOpen()) return;
  objects_ = nullptr;
  endGroup();
  state_.EditorShown = false;
  Q_EMIT ended();
}

void Session::listObjects(const QString& kept, const std::function<void()>& yield) {
  endGroup();
  state_.ButtonListFilled = false;
  objects_->Clear();
  listed_.reset();
  const int picked = themefiles::listScreenTags(state_, screen_, *objects_, status_, yield);
  listed_ = screen_;
  // What the user has picked while the list was filling outranks what is waited for.
  const int again = picked >= 0 ? -1 : rowOf(kept);
  const int row = again >= 0 ? again : picked;
  if (row >= 0 && !pendingHit_) pickObject(row);
  pickPendingHit();
}

int Session::rowOf(const QString& object) const {
  int row = 0;
  while (row < objects_->ListCount() && objects_->List(row) != object) ++row;
  return row < objects_->ListCount() ? row : -1;
}

QString Session::object() const {
  const int row = isOpen() ? objects_->ListIndex() : -1;
  return row < 0 ? QString() : objects_->List(row);
}

QString Session::section() const {
  return platform::trimBlanks(object());
}

void Session::pickObject(int row) {
  {
    const QScopedValueRollback<bool> quiet(picking_, true);
    objects_->SetListIndex(row);
  }
  chooseObject(Chooser::User);
}

void Session::objectClicked(Chooser chooser) {
  if (!picking_) chooseObject(chooser);
}

void Session::chooseObject(Chooser chooser) {
  if (chooser == Chooser::User) pendingHit_.reset();
  settle();
  if (!isOpen()) return;  // what came to its end may have served events
  endGroup();
  row_ = -1;
  const platform::ReportScope scope(status_);
  Q_EMIT valuesRead(themefiles::ReadTag(state_, object(), status_));
  Q_EMIT markWanted(chooser == Chooser::User ? MarkReason::Picked : MarkReason::Listed);
  Q_EMIT objectChosen();
  Q_EMIT differencesDue();
}

void Session::toggleMember(const QString& name) {
  const auto isNamed = [&](const QString& member) { return platform::sameName(member, name); };
  const QString chosen = object();
  if (chosen.isEmpty() || isNamed(chosen) || rowOf(name) < 0) return;
  if (members_.removeIf(isNamed) == 0) members_ += name;
  Q_EMIT membersChanged();
}

void Session::endGroup() {
  if (members_.isEmpty()) return;
  members_.clear();
  Q_EMIT membersChanged();
}

void Session::goTo(const themefiles::Hit& hit) {
  pendingHit_ = hit;
  if (screen_ != hit.screen) {
    Q_EMIT screenWanted(hit.screen);
  } else if (listIsComplete()) {
    pickPendingHit();
  }
}

/// The list of the present screen is complete: picks the object and the row that are waited for.
void Session::pickPendingHit() {
  const auto hit = std::exchange(pendingHit_, std::nullopt);
  if (!hit || hit->screen != screen_ || hit->object.isEmpty()) return;
  platform::guarded(status_, FindStep.toString(), [&] {
    const int row = rowOf(hit->object);
    if (row < 0) throw platform::Failure(QStringLiteral("%1 is gone").arg(hit->object));
    pickObject(row);
    if (hit->row >= 0) Q_EMIT rowWanted(*hit);
  });
}

}  // namespace editing
