#pragma once

#include <deque>
#include <functional>

#include <QDialog>
#include <QObject>
#include <QString>

namespace screenshots {

/// What to do with the next dialog that comes up.
struct ModalStep {
  QString picture;                       ///< name of the picture to save; empty for none
  std::function<void(QDialog&)> answer;  ///< must close the dialog
};

/// Answers the modal dialogs that the program opens, one step each, once they have come to rest.
class ModalScript : public QObject {
 public:
  using Save = std::function<void(QWidget& window, const QString& name)>;

  explicit ModalScript(Save save) : save_(std::move(save)) {}
  /// Runs `cause`, which opens the dialogs, and comes back when all steps are done. Throws platform::Failure when a
  /// dialog doesn't come.
  void run(std::deque<ModalStep> steps, const std::function<void()>& cause);

 private:
  void timerEvent(QTimerEvent* event) override;

  Save save_;
  std::deque<ModalStep> steps_;
  QWidget* seen_ = nullptr;
};

}  // namespace screenshots
