#include "controls/file_dialog.h"

#include <QFileInfo>
#include <QFileSystemModel>
#include <QLineEdit>
#include <QTreeView>

namespace controls {
namespace {

/// The toolkit's list of files; none in a dialog of the desktop.
QTreeView* listIn(const QFileDialog& dialog) {
  return dialog.findChild<QTreeView*>(QStringLiteral("treeView"));
}

}  // namespace

FileDialog::FileDialog(QWidget* parent, const QString& title) : QFileDialog(parent, title) {
  setAcceptMode(QFileDialog::AcceptOpen);
  setFileMode(QFileDialog::ExistingFile);
  setOption(QFileDialog::HideNameFilterDetails);
  setOption(QFileDialog::ReadOnly);
  const auto* files = findChild<QFileSystemModel*>();
  // Files are sorted after they were listed.
  if (files != nullptr) connect(files, &QAbstractItemModel::layoutChanged, this, &FileDialog::bringSelectionIntoSight);
}

void FileDialog::bringSelectionIntoSight() const {
  QTreeView* list = listIn(*this);
  if (list == nullptr) return;
  const QModelIndexList selected = list->selectionModel()->selectedRows();
  if (selected.isEmpty()) return;
  list->selectionModel()->setCurrentIndex(selected.constFirst(), QItemSelectionModel::NoUpdate);
  list->scrollTo(selected.constFirst());
}

void FileDialog::accept() {
  const auto* line = findChild<QLineEdit*>(QStringLiteral("fileNameEdit"));
  const QTreeView* list = listIn(*this);
  if (line != nullptr && list != nullptr) {
    const QFileInfo typed(line->text());
    // While the path was typed, the toolkit has selected the folders on the way, and would open one of them.
    if (typed.isAbsolute() && typed.isFile()) {
      typed_ = typed.filePath();
      return done(QDialog::Accepted);
    }
  }
  QFileDialog::accept();
}

QString FileDialog::chosenFile() const {
  return typed_.isEmpty() ? selectedFiles().value(0) : typed_;
}

}  // namespace controls
