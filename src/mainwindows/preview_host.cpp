#include "mainwindows/preview_host.h"

#include "mainwindows/main_window.h"

namespace mainwindows {

int PreviewHost::ProgressValue() const {
  return form_.ProgressBar1->Value();
}

void PreviewHost::SetProgressValue(int value) {
  form_.ProgressBar1->SetValue(value);
}

void PreviewHost::SetProgressText(const QString& text) {
  form_.ProgressBar1->SetText(text);
}

void PreviewHost::SetProgressVisible(bool visible) {
  form_.ProgressBar1->setVisible(visible);
}

void PreviewHost::Refresh() {
  form_.Workspace->Refresh();
}

void PreviewHost::Yield() {
  form_.Workspace->Invalidate();
  form_.Queue.Yield();
}

void PreviewHost::FillButtonList(const QStringList& rows) {
  form_.Combo2->Clear();
  for (const QString& row : rows) form_.Combo2->AddItem(row);
}

void PreviewHost::SelectFirstButton() {
  form_.Combo2->SetListIndex(0);
}

void PreviewHost::SetButtonListVisible(bool visible) {
  form_.Combo2->setVisible(visible);
}

QString PreviewHost::ScreenName() const {
  return form_.ToolWindow->Combo1->Text();
}

QString PreviewHost::SchemeName() const {
  return form_.Combo1->Text();
}

}  // namespace mainwindows
