#pragma once

#include "renderer/render_host.h"

namespace mainwindows {

class Form1;

/// The main window as a render sees it.
class PreviewHost : public renderer::RenderHost {
 public:
  explicit PreviewHost(Form1& form) : form_(form) {}

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
  Form1& form_;
};

}  // namespace mainwindows
