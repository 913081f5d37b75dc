#include "editing/held_numbers.h"

#include <algorithm>
#include <cstdlib>

#include "platform/failure.h"
#include "platform/files.h"
#include "platform/ini_reading.h"
#include "platform/numbers.h"
#include "themefiles/ini_access.h"
#include "themefiles/working_copies.h"

namespace editing {
namespace {

constexpr int GripWidth = 4;  // pixels, and at most a quarter of the side
constexpr int Most = 10000;
constexpr int Own = -1;  // one of X, Y, W, H: a texture is drawn at its own place and size

/// -1 near the lower end of a side, 1 near the upper one, 0 between and outside.
int endAt(int first, int length, int pixel) {
  const int from = pixel - first;
  const int zone = std::min(GripWidth, length / 4);
  if (from < 0 || from >= length) return 0;
  if (from < zone) return -1;
  return from >= length - zone ? 1 : 0;
}

int readNumber(const themefiles::SectionReader& section, const QString& key, bool isText) {
  const QString value = section.Value(key);
  if (value.isEmpty()) throw platform::Failure(QStringLiteral("%1 is missing").arg(key));
  if (!platform::isNumber(value)) throw platform::Failure(QStringLiteral("%1: %2 is no number").arg(key, value));
  const auto number = platform::roundToInt16(platform::numberOf(value));
  if (!number || std::abs(*number) > Most) {
    throw platform::Failure(QStringLiteral("%1: %2 is too large").arg(key, value));
  }
  if (*number == Own && !isText) throw platform::Failure(QStringLiteral("%1 is -1").arg(key));
  return *number;
}

void checkSizable(const themefiles::SectionReader& section, const QString& heightKey) {
  if (heightKey.isEmpty()) throw platform::Failure(QStringLiteral("a text can't be sized"));
  for (const QString& key : {QStringLiteral("X"), QStringLiteral("Y"), QStringLiteral("W"), heightKey}) {
    if (platform::roundToInt16(platform::numberOf(section.Value(key))) == Own) {
      throw platform::Failure(QStringLiteral("a texture drawn at its own size can't be sized"));
    }
  }
}

/// The bounds of a number.
struct Range {
  int least;
  int most;
  bool holds(int number) const { return least <= number && number <= most; }
};

/// A number moved on within its range. One that is outside stays until it has been moved into it.
int movedWithin(const Range& range, int number, int by) {
  if (range.holds(number)) return std::clamp(number + by, range.least, range.most);
  return range.holds(number + by) ? number + by : number;
}

/// One axis: its place and size after a movement of one end of it, or of both (0).
struct Axis {
  int& place;
  int& size;
  bool isText;
  bool passedOver = false;

  void move(int end, bool sizes, int by) {
    if (by == 0) return;
    if (!sizes) {
      movePlace({-Most, Most}, by);
    } else if (end > 0) {
      size = movedWithin({1, Most}, size, by);
    } else if (end < 0) {
      const int opposite = place + size;
      const Range range{std::max(-Most, opposite - Most), std::min(Most, opposite - 1)};
      if (range.least > range.most) return;
      movePlace(range, by);
      size = opposite - place;
    }
  }

 private:
  void movePlace(const Range& range, int by) {
    place = movedWithin(range, place, by);
    passedOver = place == Own && !isText;
    if (!passedOver) return;
    const int before = Own - 1;
    const int behind = Own + 1;
    place = by > 0 ? behind : before;
    if (!range.holds(place)) place = by > 0 ? before : behind;
  }
};

}  // namespace

Grip gripAt(const QRect& place, const QPoint& pixel) {
  if (!place.contains(pixel)) return {};
  return {endAt(place.left(), place.width(), pixel.x()), endAt(place.top(), place.height(), pixel.y())};
}

Qt::CursorShape shapeOf(Grip grip) {
  if (!grip.sizes()) return Qt::SizeAllCursor;
  if (grip.down == 0) return Qt::SizeHorCursor;
  if (grip.across == 0) return Qt::SizeVerCursor;
  return grip.across == grip.down ? Qt::SizeFDiagCursor : Qt::SizeBDiagCursor;
}

QPoint straight(const QPoint& movement) {
  return std::abs(movement.x()) >= std::abs(movement.y()) ? QPoint(movement.x(), 0) : QPoint(0, movement.y());
}

QByteArray readTheme(const Session& session) {
  themefiles::restoreCopy(session.state(), &themefiles::ThemePaths::ThemeFile, session.status());
  return platform::readFile(session.state().paths.ThemeFile);
}

HeldNumbers heldIn(const QByteArray& theme, const QString& object, Grip grip, const QString& heightKey) {
  const themefiles::SectionReader section(object, platform::IniText(theme));
  if (!section.isThere()) throw platform::Failure(QStringLiteral("its section is gone"));
  HeldNumbers numbers;
  numbers.heightKey = heightKey;
  if (grip.sizes()) {
    checkSizable(section, heightKey);
    numbers.W = readNumber(section, QStringLiteral("W"), false);
    numbers.H = readNumber(section, heightKey, false);
  }
  const bool isText = heightKey.isEmpty();
  if (!grip.sizes() || grip.across < 0) numbers.X = readNumber(section, QStringLiteral("X"), isText);
  if (!grip.sizes() || grip.down < 0) numbers.Y = readNumber(section, QStringLiteral("Y"), isText);
  return numbers;
}

HeldNumbers moved(const HeldNumbers& start, Grip grip, const QPoint& movement) {
  HeldNumbers now = start;
  const bool isText = start.heightKey.isEmpty();
  Axis across{now.X, now.W, isText};
  Axis down{now.Y, now.H, isText};
  across.move(grip.across, grip.sizes(), movement.x());
  down.move(grip.down, grip.sizes(), movement.y());
  now.passedOver = across.passedOver || down.passedOver;
  return now;
}

std::vector<std::pair<QString, QString>> changedValues(const HeldNumbers& start, const HeldNumbers& now) {
  std::vector<std::pair<QString, QString>> values;
  const auto compare = [&](const QString& key, int HeldNumbers::*number) {
    if (now.*number != start.*number) values.emplace_back(key, QString::number(now.*number));
  };
  compare(QStringLiteral("X"), &HeldNumbers::X);
  compare(QStringLiteral("Y"), &HeldNumbers::Y);
  compare(QStringLiteral("W"), &HeldNumbers::W);
  compare(start.heightKey, &HeldNumbers::H);
  return values;
}

QString labelOf(const HeldNumbers& numbers, Grip grip) {
  QStringList parts;
  const auto add = [&](const QString& key, int number) { parts += key + u' ' + QString::number(number); };
  if (!grip.sizes() || grip.across < 0) add(QStringLiteral("X"), numbers.X);
  if (!grip.sizes() || grip.down < 0) add(QStringLiteral("Y"), numbers.Y);
  if (grip.sizes()) {
    add(QStringLiteral("W"), numbers.W);
    add(numbers.heightKey, numbers.H);
  }
  const QString label = parts.join(QStringLiteral(", "));
  return numbers.passedOver ? label + QStringLiteral(" (-1 would be its own place)") : label;
}

}  // namespace editing
