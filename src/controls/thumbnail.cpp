#include "controls/thumbnail.h"

#include <QFileDialog>
#include <QGridLayout>
#include <QHeaderView>
#include <QLabel>
#include <QTreeView>

#include "drawing/pictures.h"

namespace controls {
namespace {

constexpr int Side = 160;        // pixels
constexpr int WideEnough = 860;  // of the dialog, with its four columns and the thumbnail

QPixmap thumbnailOf(const QString& path) {
  const QImage picture = drawing::LoadPicture(path);
  if (picture.isNull()) return {};
  const bool fits = picture.width() <= Side && picture.height() <= Side;
  return QPixmap::fromImage(fits ? picture : picture.scaled(Side, Side, Qt::KeepAspectRatio, Qt::SmoothTransformation));
}

/// Fits the list's columns to their contents, the names to what is left, and widens the dialog for them.
void widen(QFileDialog& dialog, const QTreeView& list) {
  list.header()->setStretchLastSection(false);
  list.header()->setSectionResizeMode(0, QHeaderView::Stretch);
  for (int column = 1; column < list.header()->count(); ++column) {
    list.header()->setSectionResizeMode(column, QHeaderView::ResizeToContents);
  }
  dialog.resize(WideEnough, dialog.height());
}

}  // namespace

void addThumbnail(QFileDialog& dialog) {
  auto* grid = qobject_cast<QGridLayout*>(dialog.layout());
  const auto* list = dialog.findChild<QTreeView*>(QStringLiteral("treeView"));
  if (grid == nullptr || list == nullptr) return;
  auto* label = new QLabel(&dialog);
  label->setObjectName(QStringLiteral("thumbnail"));
  label->setFixedSize(Side, Side);
  label->setAlignment(Qt::AlignCenter);
  label->setFrameStyle(static_cast<int>(QFrame::Panel) | static_cast<int>(QFrame::Sunken));
  grid->addWidget(label, 1, grid->columnCount(), Qt::AlignTop);
  widen(dialog, *list);
  QObject::connect(list->selectionModel(), &QItemSelectionModel::selectionChanged, label,
                   [label, &dialog] { label->setPixmap(thumbnailOf(dialog.selectedFiles().value(0))); });
}

}  // namespace controls
