#include "mainwindows/preview_host.h"

namespace mainwindows {

int PreviewHost::progressValue() const {
  return controls_.ProgressBar1.Value();
}

void PreviewHost::setProgressValue(int value) {
  controls_.ProgressBar1.SetValue(value);
}

void PreviewHost::setProgressText(const QString& text) {
  controls_.ProgressBar1.set(&progressbar::Properties::Text, text);
}

void PreviewHost::setProgressVisible(bool visible) {
  controls_.ProgressBar1.setVisible(visible);
}

void PreviewHost::Refresh() {
  controls_.Workspace.refreshPaced();
}

void PreviewHost::yield() {
  controls_.Workspace.refreshPaced();
  controls_.queue.yield();
}

void PreviewHost::fillButtonList(const QStringList& rows) {
  controls_.buttons.Clear();
  for (const QString& row : rows) controls_.buttons.AddItem(row);
}

void PreviewHost::selectFirstButton() {
  controls_.buttons.SetListIndex(0);
}

void PreviewHost::setButtonListVisible(bool visible) {
  controls_.buttons.setVisible(visible);
}

QString PreviewHost::screenName() const {
  return controls_.screenName();
}

QString PreviewHost::schemeName() const {
  return controls_.schemes.Text();
}

}  // namespace mainwindows
