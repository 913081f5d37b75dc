#pragma once

#include <QFileDialog>

namespace controls {

/// The choice of an existing file. Where it is the toolkit's own dialog, it only reads: keys and menus of the toolkit
/// would rename files and remove whole folders. A file that is typed with its whole path is taken, and the file that
/// is selected at first is in sight.
class FileDialog : public QFileDialog {
 public:
  FileDialog(QWidget* parent, const QString& title);

  /// The file that was chosen, as the system names it; empty before that.
  QString chosenFile() const;

 protected:
  void accept() override;

 private:
  void bringSelectionIntoSight() const;

  QString typed_;
};

}  // namespace controls
