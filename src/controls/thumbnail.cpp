#include "controls/thumbnail.h"

#include <QFileDialog>
#include <QGridLayout>
#include <QLabel>

#include "platform/pictures.h"

namespace controls {
namespace {

constexpr int Side = 160;  // pixels

QPixmap thumbnailOf(const QString& path) {
  const QImage picture = platform::LoadPicture(path);
  if (picture.isNull()) return {};
  const bool fits = picture.width() <= Side && picture.height() <= Side;
  return QPixmap::fromImage(fits ? picture : picture.scaled(Side, Side, Qt::KeepAspectRatio, Qt::SmoothTransformation));
}

}  // namespace

void AddThumbnail(QFileDialog& dialog) {
  auto* grid = qobject_cast<QGridLayout*>(dialog.layout());
  if (grid == nullptr) return;
  auto* label = new QLabel(&dialog);
  label->setObjectName(QStringLiteral("thumbnail"));
  label->setFixedSize(Side, Side);
  label->setAlignment(Qt::AlignCenter);
  label->setFrameStyle(static_cast<int>(QFrame::Panel) | static_cast<int>(QFrame::Sunken));
  grid->addWidget(label, 1, grid->columnCount(), Qt::AlignTop);
  QObject::connect(&dialog, &QFileDialog::currentChanged, label,
                   [label](const QString& path) { label->setPixmap(thumbnailOf(path)); });
}

}  // namespace controls
