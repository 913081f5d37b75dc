#include "platform/pictures.h"

#include <QBuffer>
#include <QColorSpace>
#include <QImageWriter>
#include <QTest>
#include <QtEndian>

#include "support/folder.h"
#include "support/row_name.h"

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
QByteArray bmp(int width, int height, int bits, int compression, const QByteArray& pixels) {
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
  return bytes + pixels;
}

}  // namespace

class PicturesTest : public QObject {
  Q_OBJECT

 private Q_SLOTS:
  void wholeAndCut() {
    const auto png = [](QImage::Format format) { return encoded(sample(format), "png"); };
    const auto windows = [](QImage::Format format) { return encoded(sample(format), "bmp"); };
    const struct {
      const char* name;
      QByteArray file;
      int slack = 0;  // bytes behind the last pixel that may be cut
    } rows[] = {
        {"png", png(QImage::Format_ARGB32)},
        {"png, palette", png(QImage::Format_Indexed8)},
        {"png, 16 bits a channel", png(QImage::Format_RGBA64)},
        {"jpeg", encoded(sample(QImage::Format_RGB32), "jpeg")},
        {"jpeg, progressive", encoded(sample(QImage::Format_RGB32), "jpeg", true)},
        {"jpeg, grey", encoded(sample(QImage::Format_Grayscale8), "jpeg")},
        {"bmp, 24 bits", windows(QImage::Format_RGB32)},
        {"bmp, 8 bits", windows(QImage::Format_Indexed8)},
        {"bmp, 1 bit", windows(QImage::Format_Mono)},
        {"bmp, from top down", bmp(3, -2, 8, 0, QByteArray::fromHex("0102030004050600"))},
        {"bmp, runs", bmp(6, 2, 8, 1, QByteArray::fromHex("0307000301020300 0000 0609 0001"))},
        {"gif, second frame cut", Gif, 25},
    };
    for (const auto& row : rows) {
      const support::RowName name(row.name);
      QCOMPARE(DecodePicture(row.file).format(), QImage::Format_ARGB32);
      for (qsizetype size = 0; size < row.file.size(); ++size) {
        const bool decodes = !DecodePicture(QByteArrayView(row.file).first(size)).isNull();
        QVERIFY2(decodes == (size >= row.file.size() - row.slack), QByteArray::number(size));
      }
    }
  }

  void pixels() {
    const QImage gif = DecodePicture(Gif);
    QCOMPARE(gif.pixel(0, 0), qRgb(255, 0, 0));
    QCOMPARE(gif.pixel(1, 1), qRgb(255, 255, 255));
    const QImage down = DecodePicture(bmp(3, -2, 8, 0, QByteArray::fromHex("0102030004050600")));
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
    QByteArray jpeg = encoded(sample(QImage::Format_RGB32), "jpeg");
    // A picture inside the picture has an end marker of its own.
    jpeg.insert(2, QByteArray::fromHex("FFE10006FFD8FFD9"));
    // A head that claims 100000 x 100000 pixels, with its checksum.
    QByteArray claim = encoded(sample(QImage::Format_ARGB32), "png");
    qToBigEndian(quint32(100'000), claim.data() + 16);
    qToBigEndian(quint32(100'000), claim.data() + 20);
    qToBigEndian(quint32(0xA8520BC8), claim.data() + 29);
    QImage wide(9000, 9000, QImage::Format_Mono);
    wide.fill(0);
    // The codes of the first frame stop before its last pixel.
    const QByteArray shortGif = QByteArray(Gif).replace(QByteArray::fromHex("03443405"), QByteArray::fromHex("024454"));
    const struct {
      const char* name;
      QByteArray file;
    } rows[] = {
        {"empty", {}},
        {"text", "[Setup]\r\nEXEDirectory=\r\n"},
        {"another format", encoded(sample(QImage::Format_RGB32), "ppm")},
        {"icon", encoded(sample(QImage::Format_ARGB32), "ico")},
        {"vector", "<svg xmlns='http://www.w3.org/2000/svg' width='9' height='9'/>"},
        {"gif with an early end", shortGif},
        {"bmp runs that leave pixels out", bmp(6, 2, 8, 1, QByteArray::fromHex("0307 0000 0609 0001"))},
        {"bmp runs that jump", bmp(6, 1, 8, 1, QByteArray::fromHex("00020300 0609 0001"))},
        {"jpeg with an inner picture, cut", jpeg.chopped(2)},
        {"enormous", encoded(wide, "png")},
        {"enormous by its own account", claim},
    };
    for (const auto& row : rows) {
      const support::RowName name(row.name);
      QVERIFY(DecodePicture(row.file).isNull());
    }
  }
};

QTEST_GUILESS_MAIN(PicturesTest)
#include "pictures_test.moc"
