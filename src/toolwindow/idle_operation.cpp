#include "toolwindow/idle_operation.h"

#include <QPointer>
#include <QWidget>

#include "controls/work_queue.h"

namespace toolwindow {

void whenIdle(QWidget& control, controls::WorkQueue& queue, const std::function<bool()>& stillMeant,
              const std::function<void()>& operation) {
  queue.runOutside([open = QPointer<QWidget>(&control), stillMeant, operation] {
    if (open && open->window()->isVisible() && stillMeant()) operation();
  });
}

}  // namespace toolwindow
