#pragma once

#include <functional>

class QWidget;

namespace controls {
class WorkQueue;
}

namespace toolwindow {

/// Runs an operation that opens a dialog or changes colours and keys, when no work is running. It is dropped if by then
/// the window of `control` is closed, or the operation isn't `stillMeant`.
void whenIdle(QWidget& control, controls::WorkQueue& queue, const std::function<bool()>& stillMeant,
              const std::function<void()>& operation);

}  // namespace toolwindow
