#include "controls/native_dialogs.h"

#include <QColorDialog>
#include <QGuiApplication>
#include <QInputDialog>
#include <QLabel>
#include <QMessageBox>
#include <QScreen>

#include "controls/file_dialog.h"
#include "controls/modal.h"
#include "controls/thumbnail.h"
#include "controls/twips.h"
#include "platform/paths.h"

namespace controls {

namespace {

constexpr int InputBoxWidth = 360;

/// Keeps the buttons of a large dialog on a small screen.
void fitScreen(QDialog& dialog) {
  const QRect room = dialog.screen()->availableGeometry();
  const QSize most = room.size() - QSize(toPixels(FrameWidth), toPixels(FrameHeight));
  if (dialog.size().boundedTo(most) == dialog.size()) return;
  dialog.resize(dialog.size().boundedTo(most));
  dialog.move(room.topLeft());
}

/// The proposed file as it is called on disk.
QString proposedFile(const platform::FileRequest& request) {
  if (request.folder.isEmpty()) return request.fileName;
  return platform::nativePath(request.folder + u'\\' + request.fileName);
}

}  // namespace

platform::BoxAnswer NativeDialogs::messageBox(QWidget* parent, const QString& text, const QString& title,
                                              platform::BoxKind kind) {
  const bool question = kind == platform::BoxKind::YesNoDefaultNo;
  QMessageBox box(parent);
  box.setIcon(QMessageBox::Critical);
  box.setTextFormat(Qt::PlainText);
  box.setWindowTitle(title.isEmpty() ? QGuiApplication::applicationDisplayName() : title);
  box.setText(text);
  box.setStandardButtons(question ? QMessageBox::Yes | QMessageBox::No : QMessageBox::Ok);
  box.setDefaultButton(question ? QMessageBox::No : QMessageBox::Ok);
  box.setEscapeButton(question ? QMessageBox::No : QMessageBox::Ok);
  const int pressed = runModal(box);
  if (!question) return platform::BoxAnswer::Ok;
  return pressed == QMessageBox::Yes ? platform::BoxAnswer::Yes : platform::BoxAnswer::No;
}

QString NativeDialogs::inputBox(QWidget* parent, const QString& prompt, const QString& title) {
  QInputDialog dialog(parent);
  dialog.setInputMode(QInputDialog::TextInput);
  dialog.setWindowTitle(title);
  dialog.setLabelText(prompt);
  for (QLabel* label : dialog.findChildren<QLabel*>()) label->setTextFormat(Qt::PlainText);
  dialog.resize(InputBoxWidth, dialog.sizeHint().height());
  return runModal(dialog) == QDialog::Accepted ? dialog.textValue() : QString();
}

QString NativeDialogs::openFile(QWidget* parent, const platform::FileRequest& request) {
  FileDialog dialog(parent, request.title);
  dialog.setNameFilters(nameFilters(request.filter));
  if (!request.folder.isEmpty()) dialog.setDirectory(platform::nativePath(request.folder));
  if (request.pictures) addThumbnail(dialog);
  if (!request.fileName.isEmpty()) dialog.selectFile(proposedFile(request));
  fitScreen(dialog);
  if (runModal(dialog) != QDialog::Accepted) return {};
  const QString file = dialog.chosenFile();
  return file.isEmpty() ? QString() : platform::programPath(file);
}

std::optional<QColor> NativeDialogs::chooseColor(QWidget* parent, const QColor& present) {
  QColorDialog dialog(present, parent);
  if (runModal(dialog) != QDialog::Accepted) return std::nullopt;
  return dialog.selectedColor();
}

QStringList nameFilters(const QString& filter) {
  QStringList filters;
  const QStringList parts = filter.split(u'|');
  for (int i = 0; i + 1 < parts.size(); i += 2) {
    const QString patterns = parts[i + 1].split(u';', Qt::SkipEmptyParts).join(u' ');
    filters.append(parts[i] + QStringLiteral(" (") + patterns + u')');
  }
  return filters;
}

}  // namespace controls
