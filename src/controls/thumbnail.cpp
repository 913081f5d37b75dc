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

/// Fits the list's columns to their contents and widens the dialog for them.
void widen(QFileDialog& dialog) {
  const auto* list = dialog.findChild<QTreeView*>(QStringLiteral("treeView"));
  if (list != nullptr) {
    for (int column = 1; column < list->header()->count(); ++column) {
      list->header()->setSectionResizeMode(column, QHeaderView::ResizeToContents);
    }
  }
  dialog.resize(WideEnough, dialog.height());
}

}  // namespace

void addThumbnail(QFileDialog& dialog) {
  auto* grid = qobject_cast<QGridLayout*>(dialog.layout());
  if (grid == nullptr) return;
  auto* label = new QLabel(&dialog);
  label->setObjectName(QStringLiteral("thumbnail"));
  label->setFixedSize(Side, Side);
  label->setAlignment(Qt::AlignCenter);
  label->setFrameStyle(static_cast<int>(QFrame::Panel) | static_cast<int>(QFrame::Sunken));
  grid->addWidget(label, 1, grid->columnCount(), Qt::AlignTop);
  widen(dialog);
  QObject::connect(&dialog, &QFileDialog::currentChanged, label,
                   [label](const QString& path) { label->setPixmap(thumbnailOf(path)); });
}

}  // namespace controls
