#pragma once

#include <QElapsedTimer>
#include <QString>

namespace themechecktool {

/// One line on a terminal that tells how far a long run has come, and goes with it. Shows nothing elsewhere.
class ProgressLine {
 public:
  ProgressLine();
  ~ProgressLine();
  Q_DISABLE_COPY_MOVE(ProgressLine)
  void show(const QString& text);

 private:
  bool onTerminal_;
  bool shown_ = false;
  QElapsedTimer sinceStart_;
};

}  // namespace themechecktool
