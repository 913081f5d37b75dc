#pragma once

#include <functional>

#include "controls/combo_box.h"
#include "controls/work_queue.h"
#include "mainwindows/workspace.h"
#include "progressbar/progress_bar.h"
#include "renderer/render_host.h"

namespace mainwindows {

/// What a render uses of the main window.
struct PreviewControls {
  mainwindows::Workspace& Workspace;
  progressbar::ProgressBar& ProgressBar1;
  controls::ComboBox& schemes;
  controls::ComboBox& buttons;
  controls::WorkQueue& queue;
  std::function<QString()> screenName;
};

/// The main window as a render sees it.
class PreviewHost : public renderer::RenderHost {
 public:
  explicit PreviewHost(PreviewControls controls) : controls_(std::move(controls)) {}

  int progressValue() const override;
  void setProgressValue(int value) override;
  void setProgressText(const QString& text) override;
  void setProgressVisible(bool visible) override;
  void Refresh() override;
  void yield() override;
  void fillButtonList(const QStringList& rows) override;
  void selectFirstButton() override;
  void setButtonListVisible(bool visible) override;
  QString screenName() const override;
  QString schemeName() const override;

 private:
  PreviewControls controls_;
};

}  // namespace mainwindows
