#pragma once

#include "platform/dialogs.h"

namespace controls {

/// The dialogs of the toolkit and the desktop. All texts are shown as plain text. When the main window is closed, an
/// open dialog is cancelled: the active modal window is rejected.
class NativeDialogs : public platform::Dialogs {
 public:
  platform::BoxAnswer messageBox(QWidget* parent, const QString& text, const QString& title,
                                 platform::BoxKind kind) override;
  QString inputBox(QWidget* parent, const QString& prompt, const QString& title) override;
  QString openFile(QWidget* parent, const platform::FileRequest& request) override;
  std::optional<QColor> chooseColor(QWidget* parent, const QColor& present) override;
};

/// The name filters of a file dialog, from pairs "description|*.a;*.b" separated by "|".
QStringList nameFilters(const QString& filter);

}  // namespace controls
