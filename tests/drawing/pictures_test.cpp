#include "drawing/pictures.h"

#include <QColorSpace>
#include <QTest>
#include <QtEndian>

#include "support/folder.h"
#include "support/pictures.h"
#include "support/results.h"

using namespace drawing;
using support::encoded;
using namespace Qt::StringLiterals;

namespace {

QImage sample(QImage::Format format) {
  const auto pixel = [](int x, int y) { return qRgba(x * 11, y * 15, x * y % 256, 255 - x * 5); };
  return support::pictureOf(23, 17, pixel).convertToFormat(format);
}

/// Whether the file is a picture of this program's format, and none as soon as more than the slack at its end is cut,
/// whether or not an end mark is put behind the cut.
bool onlyWhole(const QByteArray& file, const QByteArray& mark = {}) {
  for (qsizetype size = 0; size < file.size() - mark.size(); ++size) {
    const bool decodes = !decodePicture(file.first(size) + mark).isNull();
    if (decodes) return false;
  }
  return decodePicture(file).format() == QImage::Format_ARGB32;
}

}  // namespace

class PicturesTest : public QObject {
  Q_OBJECT

 private Q_SLOTS:
  void wholeAndCut() {
    QVERIFY(onlyWhole(encoded(sample(QImage::Format_ARGB32), "png")));
    QVERIFY(onlyWhole(encoded(sample(QImage::Format_RGBA64), "png")));
    for (const bool inPasses : {false, true}) {
      const QByteArray jpeg = encoded(sample(QImage::Format_RGB32), "jpeg", inPasses);
      QVERIFY(onlyWhole(jpeg));
      QVERIFY(onlyWhole(jpeg, QByteArray::fromHex("FFD9")));
    }
    QVERIFY(onlyWhole(encoded(sample(QImage::Format_RGB32), "bmp")));
  }

  /// Files in hex: the picture's size, of how many cuts of the file it is one, and the sum of its pixels.
  void bytesOfFiles() {
    support::compareRows(u"files.txt"_s, [](const QString& row) {
      const QByteArray file = QByteArray::fromHex(row.section(u": "_s, 1).toLatin1());
      int enough = 0;
      for (qsizetype size = 0; size < file.size(); ++size) enough += decodePicture(file.first(size)).isNull() ? 0 : 1;
      const QImage picture = decodePicture(file);
      const auto sum = qChecksum({picture.constBits(), picture.sizeInBytes()});
      return picture.isNull()
                 ? u"none, %1"_s.arg(enough)
                 : u"%1x%2, %3, %4"_s.arg(picture.width()).arg(picture.height()).arg(enough).arg(sum, 0, 16);
    });
  }

  void pixels() {
    // No turning and no colour space; the format is told by the content.
    QImage image = sample(QImage::Format_ARGB32);
    image.setColorSpace(QColorSpace(QColorSpace::AdobeRgb));
    const support::Folder folder;
    folder.put(u"Picture.jpg"_s, encoded(image, "png"));
    QCOMPARE(LoadPicture(folder.path(u"Picture.jpg"_s)), sample(QImage::Format_ARGB32));
    QByteArray jpeg = encoded(image, "jpeg");
    // Camera data that asks for a quarter turn, and bytes of no use behind it.
    jpeg.insert(2,
                QByteArray::fromHex("FFE10022457869660000 4D4D002A000000080001011200030000000100060000 00000000 4711"));
    QCOMPARE(decodePicture(jpeg).size(), image.size());
    for (const auto format : {QImage::Format_RGB32, QImage::Format_Grayscale8}) {
      for (const bool inPasses : {false, true}) {
        QByteArray file = encoded(sample(format), "jpeg", inPasses);
        QCOMPARE(decodePicture(file), QImage::fromData(file).convertToFormat(QImage::Format_ARGB32));
      }
    }
  }

  /// A full table of codes, and the inks of print.
  void picturesOfOtherPrograms() {
    const auto decoded = [](const char* name) {
      QFile file(QFINDTESTDATA("pictures") + u'/' + QLatin1StringView(name));
      return file.open(QIODevice::ReadOnly) ? decodePicture(file.readAll()) : QImage();
    };
    QCOMPARE(decoded("noise.gif").size(), QSize(96, 96));
    const QColor print = decoded("print.jpg").pixelColor(4, 4);
    QVERIFY(qAbs(print.red() - 200) < 4 && qAbs(print.green() - 50) < 4 && qAbs(print.blue() - 30) < 4);
  }

  void refused() {
    QVERIFY(LoadPicture(u"\\None.png"_s).isNull());
    // A picture inside the picture has an end marker of its own.
    QByteArray jpeg = encoded(sample(QImage::Format_RGB32), "jpeg");
    jpeg.insert(2, QByteArray::fromHex("FFE10006FFD8FFD9"));
    QVERIFY(decodePicture(jpeg.chopped(2)).isNull());
    // A head that claims 8000 x 8000 pixels, with the data of 23 x 17.
    jpeg.replace(QByteArray::fromHex("00110017 03"), QByteArray::fromHex("1F401F40 03"));
    QVERIFY(decodePicture(jpeg).isNull());
    // A picture with a long tail is one, up to 256 MB.
    const support::Folder folder;
    folder.put(u"Long.png"_s, encoded(sample(QImage::Format_ARGB32), "png"));
    for (const bool fits : {true, false}) {
      QVERIFY(QFile::resize(folder.native(u"Long.png"_s), fits ? 1 << 20 : (256 << 20) + 1));
      QCOMPARE(!LoadPicture(folder.path(u"Long.png"_s)).isNull(), fits);
    }
    // A head that claims 100000 x 100000 pixels, with its checksum.
    QByteArray png = encoded(sample(QImage::Format_ARGB32), "png");
    png.replace(16, 8, QByteArray::fromHex("000186A0000186A0")).replace(29, 4, QByteArray::fromHex("A8520BC8"));
    QVERIFY(decodePicture(png).isNull());
  }
};

QTEST_GUILESS_MAIN(PicturesTest)
#include "pictures_test.moc"
