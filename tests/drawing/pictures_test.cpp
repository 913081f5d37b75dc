#include "drawing/pictures.h"

#include <QColorSpace>
#include <QTest>
#include <QtEndian>

#include "support/folder.h"
#include "support/pictures.h"

using namespace drawing;
using support::encoded;
using namespace Qt::StringLiterals;

namespace {

QImage sample(QImage::Format format) {
  const auto pixel = [](int x, int y) { return qRgba(x * 11, y * 15, x * y % 256, 255 - x * 5); };
  return support::pictureOf(23, 17, pixel).convertToFormat(format);
}

/// 2 x 2 pixels: red, green, blue, white; two frames, the second one all red.
const QByteArray Gif = QByteArray::fromHex(
    "474946383961 0200020081 0000 ff000000ff000000ffffffff 2c000000000200020000 02 03443405 00 21f904000a000000"
    "2c000000000200020000 02 03040005 00 3b");

/// A bitmap of 6 x 2 pixels in two colours, of 8 bits in runs.
QByteArray runs(const char* codes) {
  return QByteArray::fromHex(
             "424D 00000000 00000000 3E000000  28000000 06000000 02000000 0100 0800 01000000 00000000 00000000 00000000"
             "02000000 00000000  00000000 FFFFFF00") +
         QByteArray::fromHex(codes);
}

/// Whether the file is a picture of this program's format, and none as soon as more than the slack at its end is cut,
/// whether or not an end mark is put behind the cut.
bool onlyWhole(const QByteArray& file, int slack = 0, const QByteArray& mark = {}) {
  for (qsizetype size = 0; size < file.size() - mark.size(); ++size) {
    const bool decodes = !decodePicture(file.first(size) + mark).isNull();
    if (decodes != (size >= file.size() - slack)) return false;
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
      QVERIFY(onlyWhole(jpeg, 0, QByteArray::fromHex("FFD9")));
    }
    QVERIFY(onlyWhole(encoded(sample(QImage::Format_RGB32), "bmp")));
    QVERIFY(onlyWhole(encoded(sample(QImage::Format_Mono), "bmp")));
    QVERIFY(onlyWhole(runs("0301 0300 0000 0600 0001")));
    QVERIFY(onlyWhole(Gif, 25));  // the second frame may be cut
    // The end code in the last pixel's byte: 1 x 2 pixels.
    const QByteArray small =
        "474946383961 0100020081 0000 000000000000000000000000 2c000000000100020000 02 02040a00 3b";
    QVERIFY(onlyWhole(QByteArray::fromHex(small), 1));
    // Heads of all lengths, runs of four bits, colours that only the frame has.
    for (const QFileInfo& whole : QDir(QFINDTESTDATA("pictures/whole")).entryInfoList(QDir::Files)) {
      QFile file(whole.filePath());
      QVERIFY2(file.open(QIODevice::ReadOnly) && onlyWhole(file.readAll()), qPrintable(whole.fileName()));
    }
  }

  void pixels() {
    const QImage gif = decodePicture(Gif);
    QCOMPARE(gif.pixel(1, 1), qRgb(255, 255, 255));
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
    // A bitmap whose rows are stored from top to bottom.
    QByteArray bitmap = encoded(sample(QImage::Format_RGB32), "bmp");
    qToLittleEndian<qint32>(-17, bitmap.data() + 22);
    QCOMPARE(decodePicture(bitmap), sample(QImage::Format_RGB32).mirrored().convertToFormat(QImage::Format_ARGB32));
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
    QVERIFY(decodePicture("[Setup]\r\nEXEDirectory=\r\n").isNull());
    QVERIFY(decodePicture(encoded(sample(QImage::Format_ARGB32), "ico")).isNull());
    // Runs that leave pixels out, runs that jump, codes that stop before the last pixel of the first frame.
    for (const char* codes : {"0301 0000 0600 0001", "0600 0002 0001 0600 0001"}) {
      QVERIFY(decodePicture(runs(codes)).isNull());
    }
    QByteArray gif = Gif;
    QVERIFY(decodePicture(gif.replace(QByteArray::fromHex("03443405"), QByteArray::fromHex("024454"))).isNull());
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
