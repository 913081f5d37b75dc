#include "sheet.h"

#include <QBuffer>
#include <QPainter>

#include "drawing/fonts.h"
#include "platform/failure.h"
#include "platform/files.h"

namespace contactsheet {
namespace {

constexpr int Columns = 4;
constexpr QSize Small(320, 240);
constexpr int Gap = 12;
constexpr int LabelHeight = 22;
constexpr int LabelPixels = 15;
constexpr QColor Paper(43, 45, 49);
constexpr QColor Ink(235, 235, 235);

}  // namespace

QImage overview(const std::vector<Screen>& screens) {
  const int cellWidth = Small.width() + Gap;
  const int cellHeight = Small.height() + LabelHeight + Gap;
  const int rows = (static_cast<int>(screens.size()) + Columns - 1) / Columns;
  QImage sheet(Columns * cellWidth + Gap, rows * cellHeight + Gap, QImage::Format_RGB32);
  sheet.fill(Paper);
  QPainter painter(&sheet);
  painter.setFont(drawing::controlFont(QStringLiteral("Arial"), LabelPixels));
  painter.setPen(Ink);
  int number = 0;
  for (const Screen& screen : screens) {
    const QPoint corner(Gap + number % Columns * cellWidth, Gap + number / Columns * cellHeight);
    painter.drawImage(corner, screen.picture.scaled(Small, Qt::IgnoreAspectRatio, Qt::SmoothTransformation));
    const QRect label(corner.x(), corner.y() + Small.height(), Small.width(), LabelHeight);
    ++number;
    painter.drawText(label, Qt::AlignCenter, QStringLiteral("%1  %2").arg(number).arg(screen.name));
  }
  return sheet;
}

void writePng(const QImage& picture, const QString& path) {
  QByteArray bytes;
  QBuffer buffer(&bytes);
  buffer.open(QIODevice::WriteOnly);
  if (!picture.save(&buffer, "PNG")) throw platform::Failure(QStringLiteral("can't make the picture ") + path);
  platform::writeFile(path, bytes, platform::AtLink::Replace);
}

}  // namespace contactsheet
