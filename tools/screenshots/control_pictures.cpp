#include "control_pictures.h"

#include <QApplication>
#include <QMouseEvent>
#include <QPainter>

#include "platform/failure.h"
#include "progressbar/progress_bar.h"
#include "toolbar/mc_toolbar.h"
#include "waiting.h"

namespace screenshots {
namespace {

constexpr int Buttons = 4;
constexpr int ButtonWidth = 32;
constexpr QRect Strip(0, 0, 800, 32);
constexpr QRect ButtonsOfStrip(0, 0, 160, 32);
constexpr QRect ProgressArea(0, 0, 800, 80);
constexpr QPoint Outside(400, 300);
constexpr int FirstYield = 3;  // something of the screen is drawn by then
constexpr int FrameTime = 40;  // ms, enough for the screen to show what has changed

void send(QWidget& widget, QEvent::Type type, const QPoint& place, Qt::MouseButtons held) {
  const Qt::MouseButton button = type == QEvent::MouseMove ? Qt::NoButton : Qt::LeftButton;
  QMouseEvent event(type, place, widget.mapToGlobal(place), button, held, Qt::NoModifier);
  QApplication::sendEvent(&widget, &event);
}

void sendKey(QWidget& widget, Qt::Key key) {
  QKeyEvent event(QEvent::KeyPress, key, Qt::NoModifier);
  QApplication::sendEvent(&widget, &event);
}

void sendFocus(QWidget& widget, QEvent::Type type) {
  QFocusEvent event(type, Qt::TabFocusReason);
  QApplication::sendEvent(&widget, &event);
}

QPoint middleOf(int button) {
  return {(button - 1) * ButtonWidth + ButtonWidth / 2, ButtonWidth / 2};
}

}  // namespace

void ControlPictures::showToolBar(const QString& name) const {
  save_(form_.client->grab(Strip), name);
}

void ControlPictures::pointAt(int button) const {
  send(*form_.ToolBar, QEvent::MouseMove, middleOf(button), Qt::NoButton);
}

/// The pointer goes away with its button down, and lets it go where nothing is clicked.
void ControlPictures::leave() const {
  send(*form_.ToolBar, QEvent::MouseMove, Outside, Qt::LeftButton);
  send(*form_.ToolBar, QEvent::MouseButtonRelease, Outside, Qt::NoButton);
}

void ControlPictures::stack(const QString& name, const std::function<void(int button)>& reach) const {
  QPixmap all;
  for (int button = 1; button <= Buttons; ++button) {
    reach(button);
    const QPixmap strip = form_.client->grab(ButtonsOfStrip);
    if (all.isNull()) {
      all = QPixmap(strip.width(), strip.height() * Buttons);
      all.setDevicePixelRatio(strip.devicePixelRatio());
    }
    QPainter(&all).drawPixmap(0, (button - 1) * ButtonsOfStrip.height(), strip);
  }
  save_(all, name);
}

void ControlPictures::showToolBarStates() const {
  form_.enableCommand(mainwindows::Command::Save, true);
  showToolBar(QStringLiteral("toolbar-normal"));
  stack(QStringLiteral("toolbar-hover"), [this](int button) { pointAt(button); });
  leave();
  stack(QStringLiteral("toolbar-pressed"), [this](int button) {
    pointAt(button);
    send(*form_.ToolBar, QEvent::MouseButtonPress, middleOf(button), Qt::LeftButton);
  });
  leave();
  stack(QStringLiteral("toolbar-focus"), [this](int button) {
    if (button == 1) sendFocus(*form_.ToolBar, QEvent::FocusIn);
    sendKey(*form_.ToolBar, button == 1 ? Qt::Key_Home : Qt::Key_Right);
  });
  sendFocus(*form_.ToolBar, QEvent::FocusOut);
  form_.enableCommand(mainwindows::Command::Save, false);
}

void ControlPictures::showProgress(const std::function<void()>& render) const {
  progressbar::ProgressBar& bar = *form_.ProgressBar1;
  QList<int> waiting = {0, 1, 50, 99, 100};
  int yields = 0;
  const auto show = [&] {
    if (++yields < FirstYield || waiting.isEmpty() || !bar.isVisible()) return;
    const int percent = waiting.takeFirst();
    const int present = bar.Value();
    bar.SetValue(percent);
    bar.set(&progressbar::Properties::Text, QStringLiteral("%1%").arg(percent));
    waitFor(FrameTime, QEventLoop::ExcludeUserInputEvents);
    save_(form_.client->grab(ProgressArea), QStringLiteral("progress-%1").arg(percent));
    bar.SetValue(present);
    bar.set(&progressbar::Properties::Text, QStringLiteral("%1%").arg(present));
  };
  const auto watched = QObject::connect(&form_.queue(), &controls::WorkQueue::yielding, show);
  render();
  QObject::disconnect(watched);
  if (!waiting.isEmpty()) throw platform::Failure(QStringLiteral("the render yields too seldom"));
}

}  // namespace screenshots
