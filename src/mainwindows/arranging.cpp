#include "mainwindows/arranging.h"

#include <algorithm>
#include <cmath>
#include <vector>

#include "editing/commit.h"
#include "editing/held_numbers.h"
#include "mainwindows/main_window.h"
#include "mainwindows/selected_object.h"
#include "platform/code_page.h"
#include "platform/failure.h"
#include "renderer/object_passes.h"

namespace mainwindows {
namespace {

constexpr editing::Grip SizingGrip{1, 1};
constexpr int FewestForGaps = 3;

/// One of the group: where it is drawn, and what it is to become.
struct Arranged {
  QString name;
  SelectedObject object;
  QRect place;
  QRect wanted;
};

/// A place along one axis.
struct Side {
  int first;
  int length;
};
Side sideOf(const QRect& place, bool across) {
  return across ? Side{place.left(), place.width()} : Side{place.top(), place.height()};
}
void moveSide(QRect& place, bool across, int first) {
  if (across) {
    place.moveLeft(first);
  } else {
    place.moveTop(first);
  }
}

/// How an end or the centre of `place` is brought to that of `first`: 0 the lower end, 1 the centre, 2 the upper end.
void align(const QRect& first, Arranged& one, bool across, int part) {
  const Side to = sideOf(first, across);
  const Side own = sideOf(one.place, across);
  moveSide(one.wanted, across, to.first + (to.length - own.length) * part / 2);
}

void spread(std::vector<Arranged>& group, bool across) {
  if (group.size() < FewestForGaps) throw platform::Failure(QStringLiteral("equal gaps need three objects"));
  std::vector<Arranged*> inOrder;
  inOrder.reserve(group.size());
  for (Arranged& one : group) inOrder.push_back(&one);
  std::stable_sort(inOrder.begin(), inOrder.end(), [&](const Arranged* a, const Arranged* b) {
    const Side one = sideOf(a->place, across);
    const Side other = sideOf(b->place, across);
    return 2 * one.first + one.length < 2 * other.first + other.length;
  });
  const Side lowest = sideOf(inOrder.front()->place, across);
  const Side highest = sideOf(inOrder.back()->place, across);
  int room = highest.first - lowest.first - lowest.length;
  for (size_t i = 1; i + 1 < inOrder.size(); ++i) room -= sideOf(inOrder[i]->place, across).length;
  const double gap = static_cast<double>(room) / static_cast<double>(inOrder.size() - 1);
  double next = lowest.first + lowest.length + gap;
  for (size_t i = 1; i + 1 < inOrder.size(); ++i) {
    moveSide(inOrder[i]->wanted, across, static_cast<int>(std::floor(next + 0.5)));
    next += sideOf(inOrder[i]->place, across).length + gap;
  }
}

bool spreads(Arrangement arrangement) {
  return arrangement == Arrangement::GapsAcross || arrangement == Arrangement::GapsDown;
}

bool sizes(Arrangement arrangement) {
  return arrangement == Arrangement::Widths || arrangement == Arrangement::Heights;
}

void setWanted(std::vector<Arranged>& group, Arrangement arrangement) {
  if (spreads(arrangement)) return spread(group, arrangement == Arrangement::GapsAcross);
  const QRect first = group.front().place;
  for (Arranged& one : group) {
    switch (arrangement) {
      case Arrangement::LeftEdges:
      case Arrangement::CentresAcross:
      case Arrangement::RightEdges:
        align(first, one, true, static_cast<int>(arrangement) - static_cast<int>(Arrangement::LeftEdges));
        break;
      case Arrangement::UpperEdges:
      case Arrangement::CentresDown:
      case Arrangement::LowerEdges:
        align(first, one, false, static_cast<int>(arrangement) - static_cast<int>(Arrangement::UpperEdges));
        break;
      case Arrangement::Widths:
        one.wanted.setWidth(first.width());
        break;
      default:
        one.wanted.setHeight(first.height());
        break;
    }
  }
}

/// The keys of an object that change on the way to its wanted place.
std::vector<std::pair<QString, QString>> valuesOf(const QByteArray& theme, const Arranged& one) {
  const bool isSized = one.wanted.size() != one.place.size();
  if (!isSized && one.wanted == one.place) return {};
  const editing::Grip grip = isSized ? SizingGrip : editing::Grip();
  const auto start = editing::heldIn(theme, one.object.section, grip, one.object.heightKey);
  const QSize more = one.wanted.size() - one.place.size();
  const QPoint by = isSized ? QPoint(more.width(), more.height()) : one.wanted.topLeft() - one.place.topLeft();
  return editing::changedValues(start, editing::moved(start, grip, by));
}

/// Leaves out the button whose text the selected object is, since that would be moved along.
void leaveOutItsButton(Form1& form, std::vector<Arranged>& group) {
  const QString button = renderer::buttonOfText(group.front().object.section);
  std::erase_if(group, [&](const Arranged& one) {
    if (!platform::sameName(one.object.section, button)) return false;
    noteStays(form, one.name, QStringLiteral("the first one is its text"));
    return true;
  });
}

/// Leaves out the texts of buttons that can be moved or sized: they go along. The selected object stays where the
/// others are brought to it, and its texts are among these.
void leaveOutTexts(const Form1& form, const QByteArray& theme, Arrangement arrangement, std::vector<Arranged>& group) {
  const auto others = group.begin() + (spreads(arrangement) ? 0 : 1);
  QStringList movable;
  std::for_each(others, group.end(), [&](const Arranged& one) {
    const auto cause = platform::failureIn([&] {
      editing::heldIn(theme, one.object.section, sizes(arrangement) ? SizingGrip : editing::Grip(),
                      one.object.heightKey);
    });
    if (!cause) movable += one.name;
  });
  const auto goes = [&](const Arranged& one) { return goesAlong(form, one.name, movable); };
  group.erase(std::remove_if(others, group.end(), goes), group.end());
}

}  // namespace

void arrange(Form1& form, Arrangement arrangement) {
  editing::Session& session = form.session();
  if (!session.isOpen() || session.members().isEmpty()) return;
  const platform::ReportScope scope(form);
  std::vector<Arranged> group;
  for (const QString& name : groupOf(session)) {
    const auto place = drawnPlace(form, name);
    // Nothing of it shows: a text without words, or outside the picture.
    if (place && !place->isEmpty()) {
      group.push_back({name, objectNamed(form, name), *place, *place});
    } else {
      noteStays(form, name, QStringLiteral("it isn't drawn"));
      if (name == session.object()) return;
    }
  }
  std::vector<renderer::TrialValues> changes;
  platform::guarded(form, QStringLiteral("All stays as it is"), [&] {
    const QByteArray theme = editing::readTheme(session);
    if (!spreads(arrangement) && !sizes(arrangement)) leaveOutItsButton(form, group);
    leaveOutTexts(form, theme, arrangement, group);
    setWanted(group, arrangement);
    for (const Arranged& one : group) {
      std::vector<std::pair<QString, QString>> values;
      const auto cause = platform::failureIn([&] { values = valuesOf(theme, one); });
      if (cause) noteStays(form, one.name, *cause);
      if (!values.empty()) changes.push_back({one.object.section, values});
    }
  });
  if (!changes.empty()) editing::commitValues(session, changes);
}

}  // namespace mainwindows
