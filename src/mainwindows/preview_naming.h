#pragma once

#include <QPoint>
#include <QTimer>

namespace mainwindows {

class Form1;
class PreviewPicking;

/// Names what a click on the preview would take, once the pointer has rested there.
class PreviewNaming {
 public:
  PreviewNaming(Form1& form, const PreviewPicking& picking);

  /// The free pointer has come to a place of the preview.
  void pointerAt(const QPoint& place);
  /// The pointer has left, or something else goes on.
  void stop();

 private:
  void name();

  Form1& form_;
  const PreviewPicking& picking_;
  QPoint place_;
  QTimer rest_;
  bool shown_ = false;
};

}  // namespace mainwindows
