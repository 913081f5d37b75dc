#include "mainwindows/arrow_keys.h"

#include <algorithm>
#include <array>
#include <chrono>

#include <QKeyEvent>

namespace mainwindows {
namespace {

using namespace std::chrono_literals;

constexpr auto KeysRestTime = 333ms;
constexpr int LongStep = 10;
constexpr editing::Grip SizingKeys{1, 1};

struct Arrow {
  int key;
  QPoint step;
};
constexpr auto Arrows = std::to_array<Arrow>(
    {{Qt::Key_Left, {-1, 0}}, {Qt::Key_Right, {1, 0}}, {Qt::Key_Up, {0, -1}}, {Qt::Key_Down, {0, 1}}});

}  // namespace

ArrowKeys::ArrowKeys(QObject* owner, const std::function<void()>& rested) : rest_(owner) {
  rest_.setObjectName(QStringLiteral("KeysAtRest"));
  rest_.setSingleShot(true);
  rest_.setInterval(KeysRestTime);
  rest_.callOnTimeout([this, rested] {
    if (down_.isEmpty()) rested();
  });
}

std::optional<ArrowStep> ArrowKeys::stepOf(const QKeyEvent& event) {
  const auto* const found =
      std::find_if(Arrows.begin(), Arrows.end(), [&](const Arrow& arrow) { return arrow.key == event.key(); });
  if (found == Arrows.end() || (event.modifiers() & (Qt::AltModifier | Qt::MetaModifier)) != 0) return std::nullopt;
  const bool sizes = (event.modifiers() & Qt::ControlModifier) != 0;
  const bool isFar = (event.modifiers() & Qt::ShiftModifier) != 0;
  return ArrowStep{sizes ? SizingKeys : editing::Grip(), isFar ? found->step * LongStep : found->step};
}

void ArrowKeys::press(int key) {
  down_.insert(key);
  rest_.start();
}

}  // namespace mainwindows
