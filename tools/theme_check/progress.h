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
  void write(const QString& line);

  bool onTerminal_;
  qsizetype shown_ = 0;  ///< length of the line
  QElapsedTimer sinceStart_;
};

}  // namespace themechecktool
