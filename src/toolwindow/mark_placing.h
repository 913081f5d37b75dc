#pragma once

#include <QObject>

#include "editing/session.h"
#include "toolwindow/tool_services.h"

namespace toolwindow {

/// Places the mark on the chosen object when the session wants it. A mark that can't be placed is reported, or noted
/// behind what a commit has told, until the next choice. Measuring a text sets the surface's pen: the work that runs
/// gets its own back, unless the mark is a step of it, and the mark is placed again at its end.
class MarkPlacing : public QObject {
  Q_OBJECT

 public:
  explicit MarkPlacing(const ToolServices& services);

 private:
  void place(editing::MarkReason reason);
  void draw(editing::MarkReason reason);

  const ToolServices& services_;
  editing::MarkReason reason_{};  ///< why it was placed last
  QString report_;                ///< of the mark that couldn't be placed
};

}  // namespace toolwindow
