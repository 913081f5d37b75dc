#include "mainwindows/hand_geometry.h"

#include <algorithm>

#include "platform/code_page.h"
#include "platform/failure.h"
#include "platform/files.h"
#include "platform/numbers.h"
#include "platform/profile_reading.h"
#include "themefiles/ini_access.h"

namespace mainwindows {
namespace {

constexpr int GripWidth = 4;  // pixels, and at most a quarter of the side
constexpr int Most = 10000;
constexpr int OwnSize = -1;  // one of X, Y, W, H: a texture is drawn at its own size

/// -1 near the lower end of a side, 1 near the upper one, 0 between and outside.
int endAt(int first, int length, int pixel) {
  const int from = pixel - first;
  const int zone = std::min(GripWidth, length / 4);
  if (from < 0 || from >= length) return 0;
  if (from < zone) return -1;
  return from >= length - zone ? 1 : 0;
}

int readNumber(const themefiles::SectionReader& section, const QString& key) {
  const QString value = section.Value(key);
  if (value.isEmpty()) throw platform::Failure(QStringLiteral("%1 is missing").arg(key));
  if (!platform::isNumber(value)) throw platform::Failure(QStringLiteral("%1: %2 is no number").arg(key, value));
  const auto number = platform::roundToInt16(platform::numberOf(value));
  if (!number) throw platform::Failure(QStringLiteral("%1: %2 is too large").arg(key, value));
  if (*number == OwnSize) throw platform::Failure(QStringLiteral("%1 is -1").arg(key));
  return *number;
}

void checkSizable(const themefiles::SectionReader& section, const QString& heightKey) {
  if (heightKey.isEmpty()) throw platform::Failure(QStringLiteral("a text can't be sized"));
  for (const QString& key : {QStringLiteral("X"), QStringLiteral("Y"), QStringLiteral("W"), heightKey}) {
    if (platform::roundToInt16(platform::numberOf(section.Value(key))) == OwnSize) {
      throw platform::Failure(QStringLiteral("a texture drawn at its own size can't be sized"));
    }
  }
}

/// One axis: its place and size after a movement of one end of it, or of both (0).
void move(int& place, int& size, int end, bool sizes, int by) {
  if (by == 0) return;
  if (!sizes) {
    place = std::clamp(place + by, 0, Most);
  } else if (end > 0) {
    size = std::clamp(size + by, 1, Most);
  } else if (end < 0) {
    const int opposite = place + size;
    const int least = std::max(0, opposite - Most);
    const int most = std::min(Most, opposite - 1);
    if (least > most) return;
    place = std::clamp(place + by, least, most);
    size = opposite - place;
  }
}

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

HeldNumbers readHeld(const QString& name, const QString& fileName, Grip grip, const QString& heightKey) {
  const QByteArray file = platform::readFile(fileName);
  const themefiles::SectionReader section(
      file, platform::findProfileSection(file, platform::toAnsi(name).value_or(QByteArray())));
  if (!section.isThere()) throw platform::Failure(QStringLiteral("its section is gone"));
  HeldNumbers numbers;
  numbers.heightKey = heightKey;
  if (grip.sizes()) {
    checkSizable(section, heightKey);
    numbers.W = readNumber(section, QStringLiteral("W"));
    numbers.H = readNumber(section, heightKey);
  }
  if (!grip.sizes() || grip.across < 0) numbers.X = readNumber(section, QStringLiteral("X"));
  if (!grip.sizes() || grip.down < 0) numbers.Y = readNumber(section, QStringLiteral("Y"));
  return numbers;
}

HeldNumbers moved(const HeldNumbers& start, Grip grip, const QPoint& movement) {
  HeldNumbers now = start;
  move(now.X, now.W, grip.across, grip.sizes(), movement.x());
  move(now.Y, now.H, grip.down, grip.sizes(), movement.y());
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
  return grip.sizes() ? QStringLiteral("W %1, H %2").arg(numbers.W).arg(numbers.H)
                      : QStringLiteral("X %1, Y %2").arg(numbers.X).arg(numbers.Y);
}

}  // namespace mainwindows
