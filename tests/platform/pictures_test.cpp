#include "platform/pictures.h"

#include <QBuffer>
#include <QColorSpace>
#include <QImageWriter>
#include <QTest>
#include <QtEndian>

#include "support/folder.h"

using namespace platform;
using namespace Qt::StringLiterals;

namespace {

QImage sample(QImage::Format format) {
  QImage image(23, 17, QImage::Format_ARGB32);
  for (int y = 0; y < image.height(); ++y) {
    for (int x = 0; x < image.width(); ++x) image.setPixel(x, y, qRgba(x * 11, y * 15, x * y % 256, 255 - x * 5));
  }
  return image.convertToFormat(format);
}

QByteArray encoded(const QImage& image, const char* format, bool progressive = false) {
  QByteArray bytes;
  QBuffer buffer(&bytes);
  QImageWriter writer(&buffer, format);
  writer.setProgressiveScanWrite(progressive);
  writer.write(image);
  return bytes;
}

/// 2 x 2 pixels: red, green, blue, white; two frames, the second one all red.
const QByteArray Gif = QByteArray::fromHex(
    "474946383961 0200020081 0000 ff000000ff000000ffffffff 2c000000000200020000 02 03443405 00 21f904000a000000"
    "2c000000000200020000 02 03040005 00 3b");

/// A file header, a header of 40 bytes and a grey palette in front of the pixels' bytes.
QByteArray bmp(int width, int height, int bits, int compression, const char* pixels) {
  QByteArray bytes = "BM" + QByteArray(52, '\0');
  const int colors = 1 << bits;
  const auto put = [&](int at, quint32 number) { qToLittleEndian(number, bytes.data() + at); };
  put(10, quint32(bytes.size() + colors * 4));
  put(14, 40);
  put(18, quint32(width));
  put(22, quint32(height));
  put(26, 1 | quint32(bits) << 16);
  put(30, quint32(compression));
  for (int i = 0; i < colors; ++i) bytes.append(3, static_cast<char>(i)).append('\0');
  return bytes + QByteArray::fromHex(pixels);
}

/// Whether the file is a picture of this program's format, and none as soon as more than the slack at its end is cut.
bool onlyWhole(const QByteArray& file, int slack = 0) {
  for (qsizetype size = 0; size < file.size(); ++size) {
    const bool decodes = !DecodePicture(QByteArrayView(file).first(size)).isNull();
    if (decodes != (size >= file.size() - slack)) return false;
  }
  return DecodePicture(file).format() == QImage::Format_ARGB32;
}

}  // namespace

class PicturesTest : public QObject {
  Q_OBJECT

 private Q_SLOTS:
  void wholeAndCut() {
    QVERIFY(onlyWhole(encoded(sample(QImage::Format_ARGB32), "png")));
    QVERIFY(onlyWhole(encoded(sample(QImage::Format_Indexed8), "png")));
    QVERIFY(onlyWhole(encoded(sample(QImage::Format_RGBA64), "png")));
    QVERIFY(onlyWhole(encoded(sample(QImage::Format_RGB32), "jpeg")));
    QVERIFY(onlyWhole(encoded(sample(QImage::Format_RGB32), "jpeg", true)));
    QVERIFY(onlyWhole(encoded(sample(QImage::Format_Grayscale8), "jpeg")));
    QVERIFY(onlyWhole(encoded(sample(QImage::Format_RGB32), "bmp")));
    QVERIFY(onlyWhole(encoded(sample(QImage::Format_Indexed8), "bmp")));
    QVERIFY(onlyWhole(encoded(sample(QImage::Format_Mono), "bmp")));
    QVERIFY(onlyWhole(bmp(3, -2, 8, 0, "0102030004050600")));
    QVERIFY(onlyWhole(bmp(6, 2, 8, 1, "0307000301020300 0000 0609 0001")));
    QVERIFY(onlyWhole(Gif, 25));  // the second frame may be cut
  }

  void pixels() {
    const QImage gif = DecodePicture(Gif);
    QCOMPARE(gif.pixel(0, 0), qRgb(255, 0, 0));
    QCOMPARE(gif.pixel(1, 1), qRgb(255, 255, 255));
    const QImage down = DecodePicture(bmp(3, -2, 8, 0, "0102030004050600"));
    QCOMPARE(down.pixel(2, 0), qRgb(3, 3, 3));
    QCOMPARE(down.pixel(0, 1), qRgb(4, 4, 4));
    // No turning and no colour space; the format is told by the content.
    QImage image = sample(QImage::Format_ARGB32);
    image.setColorSpace(QColorSpace(QColorSpace::AdobeRgb));
    const support::Folder folder;
    folder.put(u"Picture.jpg"_s, encoded(image, "png"));
    QCOMPARE(LoadPicture(folder.path(u"Picture.jpg"_s)), sample(QImage::Format_ARGB32));
    QByteArray jpeg = encoded(image, "jpeg");
    // Camera data that asks for a quarter turn.
    jpeg.insert(2, QByteArray::fromHex("FFE10022457869660000 4D4D002A000000080001011200030000000100060000 00000000"));
    QCOMPARE(DecodePicture(jpeg).size(), image.size());
  }

  void refused() {
    QVERIFY(LoadPicture(u"\\None.png"_s).isNull());
    QVERIFY(DecodePicture({}).isNull());
    QVERIFY(DecodePicture("[Setup]\r\nEXEDirectory=\r\n").isNull());
    QVERIFY(DecodePicture("<svg xmlns='http://www.w3.org/2000/svg' width='9' height='9'/>").isNull());
    QVERIFY(DecodePicture(encoded(sample(QImage::Format_RGB32), "ppm")).isNull());
    QVERIFY(DecodePicture(encoded(sample(QImage::Format_ARGB32), "ico")).isNull());
    // Runs that leave pixels out, runs that jump, and codes that stop before the last pixel of the first frame.
    QVERIFY(DecodePicture(bmp(6, 2, 8, 1, "0307 0000 0609 0001")).isNull());
    QVERIFY(DecodePicture(bmp(6, 1, 8, 1, "0609 0002 0001")).isNull());
    QByteArray gif = Gif;
    QVERIFY(DecodePicture(gif.replace(QByteArray::fromHex("03443405"), QByteArray::fromHex("024454"))).isNull());
    // A picture inside the picture has an end marker of its own.
    QByteArray jpeg = encoded(sample(QImage::Format_RGB32), "jpeg");
    jpeg.insert(2, QByteArray::fromHex("FFE10006FFD8FFD9"));
    QVERIFY(DecodePicture(jpeg.chopped(2)).isNull());
    QImage wide(9000, 9000, QImage::Format_Mono);
    wide.fill(0);
    QVERIFY(DecodePicture(encoded(wide, "png")).isNull());
    // A head that claims 100000 x 100000 pixels, with its checksum.
    QByteArray png = encoded(sample(QImage::Format_ARGB32), "png");
    png.replace(16, 8, QByteArray::fromHex("000186A0000186A0")).replace(29, 4, QByteArray::fromHex("A8520BC8"));
    QVERIFY(DecodePicture(png).isNull());
  }
};

QTEST_GUILESS_MAIN(PicturesTest)
#include "pictures_test.moc"
