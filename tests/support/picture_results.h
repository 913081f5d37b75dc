#pragma once

#include <QDir>
#include <QFileInfo>
#include <QImage>
#include <QPainter>

#include "support/results.h"

namespace support {

/// The expected picture, the one that came, and that one pale with the pixels that differ in magenta and framed.
inline QImage markedDifference(const QImage& expected, const QImage& got, const QRect& place) {
  constexpr int Gap = 8;
  QImage all(got.width() * 2 + expected.width() + 2 * Gap, std::max(got.height(), expected.height()),
             QImage::Format_RGB32);
  all.fill(Qt::black);
  QPainter painter(&all);
  painter.drawImage(0, 0, expected);
  painter.drawImage(expected.width() + Gap, 0, got);
  painter.translate(expected.width() + got.width() + 2 * Gap, 0);
  painter.drawImage(0, 0, got);
  painter.fillRect(got.rect(), QColor(255, 255, 255, 160));
  for (int y = place.top(); y <= place.bottom(); ++y) {
    for (int x = place.left(); x <= place.right(); ++x) {
      const bool both = expected.rect().contains(x, y) && got.rect().contains(x, y);
      if (!both || expected.pixel(x, y) != got.pixel(x, y)) painter.fillRect(x, y, 1, 1, Qt::magenta);
    }
  }
  painter.setPen(Qt::red);
  painter.drawRect(place.adjusted(-4, -4, 3, 3));
  return all;
}

/// Compares a picture, pixel by pixel, with the PNG of that name. One that differs is written, with the difference
/// marked, into the folder `differences` where the test runs.
inline void comparePicture(const QString& name, const QImage& given) {
  const QString path = resultFile(name);
  const QImage got = given.convertToFormat(QImage::Format_ARGB32);
  const QImage expected = QImage(path).convertToFormat(QImage::Format_ARGB32);
  if (got == expected) return;
  QRect place;
  int count = 0;
  QPoint first;
  const QSize all = got.size().expandedTo(expected.size());
  for (int y = 0; y < all.height(); ++y) {
    for (int x = 0; x < all.width(); ++x) {
      const bool both = expected.rect().contains(x, y) && got.rect().contains(x, y);
      if (both && expected.pixel(x, y) == got.pixel(x, y)) continue;
      if (count++ == 0) first = {x, y};
      place |= QRect(x, y, 1, 1);
    }
  }
  const QString folder = QDir::current().filePath(QStringLiteral("differences"));
  const QString marked = folder + u'/' + QFileInfo(QStringLiteral(RESULTS)).fileName() + u' ' + name;
  QDir().mkpath(folder);
  if (!markedDifference(expected, got, place).save(marked)) qFatal("can't write");
  if (renewsResults()) {
    if (!given.save(path, "PNG", 0)) qFatal("can't write");
    qInfo("look at %s", qPrintable(marked));
    return;
  }
  const auto colorAt = [&](const QImage& image) {
    return image.rect().contains(first) ? image.pixelColor(first).name(QColor::HexArgb) : QStringLiteral("nothing");
  };
  failResult(path, 1,
             QStringLiteral("%1 pixels differ within %2,%3 %4x%5, the first at %6,%7: expected %8, got %9\nlook at ")
                     .arg(count)
                     .arg(place.x())
                     .arg(place.y())
                     .arg(place.width())
                     .arg(place.height())
                     .arg(first.x())
                     .arg(first.y())
                     .arg(colorAt(expected), colorAt(got)) +
                 marked);
}

/// The same of a window or a control, once it has laid out all, its lists have shown their rows in the next frame, and
/// what blinks is in the phase that was kept.
template <typename Window>
void compareSettled(const QString& name, Window& window) {
  const QImage kept = QImage(resultFile(name)).convertToFormat(QImage::Format_ARGB32);
  const auto grabbed = [&] { return window.grab().toImage().convertToFormat(QImage::Format_ARGB32); };
  if (!QTest::qWaitFor([&] { return grabbed() == kept; })) comparePicture(name, grabbed());
}

}  // namespace support
