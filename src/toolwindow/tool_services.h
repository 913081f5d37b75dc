#pragma once

#include <functional>

#include <QString>

namespace controls {
class WorkQueue;
}
namespace drawing {
class Surface;
}
namespace editing {
class Session;
}
namespace platform {
class Dialogs;
}
namespace renderer {
class CursorMark;
}

namespace toolwindow {

/// What the tool window uses of the rest of the program.
struct ToolServices {
  editing::Session& session;
  platform::Dialogs& dialogs;
  drawing::Surface& Workspace;
  renderer::CursorMark& mark;
  controls::WorkQueue& queue;
  std::function<QString()> schemeName;  ///< the colour scheme in force
};

}  // namespace toolwindow
