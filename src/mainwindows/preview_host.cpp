#include "mainwindows/preview_host.h"

namespace mainwindows {

int PreviewHost::ProgressValue() const {
  return controls_.ProgressBar1.Value();
}

void PreviewHost::SetProgressValue(int value) {
  controls_.ProgressBar1.SetValue(value);
}

void PreviewHost::SetProgressText(const QString& text) {
  controls_.ProgressBar1.SetText(text);
}

void PreviewHost::SetProgressVisible(bool visible) {
  controls_.ProgressBar1.setVisible(visible);
}

void PreviewHost::Refresh() {
  controls_.Workspace.RefreshPaced();
}

void PreviewHost::Yield() {
  controls_.Workspace.RefreshPaced();
  controls_.Queue.Yield();
}

void PreviewHost::FillButtonList(const QStringList& rows) {
  controls_.Buttons.Clear();
  for (const QString& row : rows) controls_.Buttons.AddItem(row);
}

void PreviewHost::SelectFirstButton() {
  controls_.Buttons.SetListIndex(0);
}

void PreviewHost::SetButtonListVisible(bool visible) {
  controls_.Buttons.setVisible(visible);
}

QString PreviewHost::ScreenName() const {
  return controls_.ScreenName();
}

QString PreviewHost::SchemeName() const {
  return controls_.Schemes.Text();
}

}  // namespace mainwindows
