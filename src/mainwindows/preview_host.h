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
  controls::ComboBox& Schemes;
  controls::ComboBox& Buttons;
  controls::WorkQueue& Queue;
  std::function<QString()> ScreenName;
};

/// The main window as a render sees it.
class PreviewHost : public renderer::RenderHost {
 public:
  explicit PreviewHost(PreviewControls controls) : controls_(std::move(controls)) {}

  int ProgressValue() const override;
  void SetProgressValue(int value) override;
  void SetProgressText(const QString& text) override;
  void SetProgressVisible(bool visible) override;
  void Refresh() override;
  void Yield() override;
  void FillButtonList(const QStringList& rows) override;
  void SelectFirstButton() override;
  void SetButtonListVisible(bool visible) override;
  QString ScreenName() const override;
  QString SchemeName() const override;

 private:
  PreviewControls controls_;
};

}  // namespace mainwindows
