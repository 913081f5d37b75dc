#include <QFont>
#include <QTest>

#include "platform/failure.h"
#include "platform/icons.h"
#include "platform/property_bag_bytes.h"

using platform::BagOfBytes;
using platform::PropertyBag;
using platform::StoredBytes;

namespace {

QByteArray bytesOf(const QByteArray& hex) {
  return QByteArray::fromHex(hex);
}

QVariant fontOf(const QString& face, double points) {
  QFont font;
  font.setFamilies({face});
  font.setPointSizeF(points);
  return font;
}

/// A bag with a value of each type.
QByteArray everyType() {
  PropertyBag bag;
  bag.WriteProperty(QStringLiteral("Small"), QVariant::fromValue(qint16(-2)), {});
  bag.WriteProperty(QStringLiteral("Colour"), 0x8000000FU, {});
  bag.WriteProperty(QStringLiteral("Words"), QStringLiteral("a\u20ac\n"), {});
  bag.WriteProperty(QStringLiteral("No"), false, {});
  bag.WriteProperty(QStringLiteral("Face"), fontOf(QStringLiteral("A, \u20ac"), 8.25), {});
  bag.WriteProperty(QStringLiteral("Shape"), QVariant::fromValue(platform::StoredPicture{"picture"}), {});
  bag.WriteProperty(QStringLiteral("Empty"), QString(), {});
  return StoredBytes(bag);
}

}  // namespace

class PropertyBagTest : public QObject {
  Q_OBJECT

 private Q_SLOTS:
  void bytes() {
    const QByteArray font =
        QByteArrayLiteral("0352e30b918fce119de300aa004bb851 01 0000 00 9001 44420100 02 4162 000000");
    const QByteArray picture = QByteArrayLiteral("0452e30b918fce119de300aa004bb851 6c740000 03000000 78797a 00");
    const struct {
      QVariant value;
      const char* tag;
      QByteArray stored;  // behind the head of a record with the key "aB"
    } rows[] = {
        {QVariant::fromValue(qint16(-2)), "0200", "feff0000"},
        {4, "0300", "04000000"},
        {0x8000000FU, "0300", "0f000080"},
        {true, "0b00", "ffff0000"},
        {QStringLiteral("\u20ac"), "0800", "01000000 ac200000"},
        {fontOf(QStringLiteral("Ab"), 8.25), "0d00", font},
        {QVariant::fromValue(platform::StoredPicture{"xyz"}), "0d00", picture},
    };
    for (const auto& [value, tag, stored] : rows) {
      PropertyBag bag;
      bag.WriteProperty(QStringLiteral("aB"), value, {});
      const QByteArray record = bytesOf(tag) + bytesOf("0200 62200c00 00000000 61006200") + bytesOf(stored);
      const QByteArray count = QByteArray(1, char(record.size() + 8)) + QByteArray(3, '\0');
      const QByteArray bytes = bytesOf("2d4c420900") + count + bytesOf("93b20000") + count + record;
      QCOMPARE(StoredBytes(bag).toHex(' '), bytes.toHex(' '));
      QCOMPARE(StoredBytes(*BagOfBytes(bytes)), bytes);
    }
  }

  void distancesAndOrder() {
    PropertyBag bag;
    for (const QString& key : {QStringLiteral("b"), QStringLiteral("a"), QStringLiteral("c")})
      bag.WriteProperty(key, 1, {});
    bag.WriteProperty(QStringLiteral("B"), 2, {});
    bag.WriteProperty(QStringLiteral("A"), 3, 3);
    QCOMPARE(StoredBytes(bag).sliced(17).toHex(), bytesOf("0300 0100 62000000 14000000 6200 02000000 0000"
                                                          "0300 0100 63000000 ecffffff 6300 01000000 0000")
                                                      .toHex());
    QCOMPARE(StoredBytes(PropertyBag()).toHex(), bytesOf("2d4c420900 08000000 93b20000 08000000").toHex());
  }

  // Whatever single byte is wrong, nothing of the bag is taken, or the bag says what the bytes say.
  void damageIsNeverTakenInPart() {
    const QByteArray sound = everyType();
    QCOMPARE(StoredBytes(*BagOfBytes(sound)), sound);
    for (qsizetype i = 0; i < sound.size(); ++i) {
      QVERIFY(!BagOfBytes(sound.first(i)));
      QByteArray damaged = sound;
      damaged[i] = char(damaged[i] ^ 0x41);
      const auto bag = BagOfBytes(damaged);
      if (!bag) continue;
      const QByteArray again = StoredBytes(*bag);
      // A font's character set and flags are passed over.
      if (again != damaged) QCOMPARE(again, sound);
    }
    QVERIFY(!BagOfBytes(sound + '\0') && !BagOfBytes({}));
  }

  void whatCantBeStored() {
    for (const QVariant& value : {QVariant(1.5), fontOf(QStringLiteral("\u4e00"), 8), fontOf(QString(300, u'a'), 8)}) {
      PropertyBag bag;
      bag.WriteProperty(QStringLiteral("key"), value, {});
      QVERIFY_THROWS_EXCEPTION(platform::Failure, StoredBytes(bag));
    }
  }

  void iconsGoRound() {
    QImage picture(16, 16, QImage::Format_ARGB32);
    for (int i = 0; i < 256; ++i) picture.setPixel(i % 16, i / 16, qRgba(i, 255 - i, i / 2, i % 3 == 0 ? 127 : 128));
    const auto file = platform::WriteIcon(picture);
    QCOMPARE(file->size(), 1406);
    const auto icon = platform::ReadIcon(*file);
    for (int i = 0; i < 256; ++i) {
      const bool isClear = i % 3 == 0;
      QCOMPARE(icon->Mask.pixel(i % 16, i / 16), isClear ? 0xFFFFFFFFU : 0xFF000000U);
      QCOMPARE(icon->Color.pixel(i % 16, i / 16), isClear ? 0xFF000000U : qRgb(i, 255 - i, i / 2));
    }
    for (qsizetype i = 0; i < file->size(); ++i) QVERIFY(!platform::ReadIcon(file->first(i)));
  }

  // Red, green and a clear pixel.
  void iconDepths() {
    const std::pair<const char*, const char*> rows[] = {
        {"0100", "00000000 00000000 0000ff00 00ff0000 40000000 20000000"},
        {"0400", "03000000 00000000 00000000 0000ff00 00ff0000 12100000 20000000"},
        {"1800", "00000000 00000000 0000ff 00ff00 0000ff 000000 20000000"},
        {"2000", "00000000 00000000 0000ff00 00ff0000 0000ff00 20000000"},
    };
    for (const auto& [depth, behind] : rows) {
      const auto icon = platform::ReadIcon(bytesOf("0000 0100 0100 03010000 0100 0000 00000000 16000000") +
                                           bytesOf("28000000 03000000 02000000 0100") + bytesOf(depth) +
                                           bytesOf("00000000 00000000 00000000 00000000") + bytesOf(behind));
      QVERIFY2(icon, depth);
      QCOMPARE(icon->Color.pixel(0, 0), qRgb(255, 0, 0));
      QCOMPARE(icon->Color.pixel(1, 0), qRgb(0, 255, 0));
      QCOMPARE(icon->Color.pixel(2, 0), qRgb(0, 0, 0));  // under the mask
      QCOMPARE(icon->Mask.pixel(2, 0), 0xFFFFFFFFU);
    }
  }
};

QTEST_MAIN(PropertyBagTest)
#include "property_bag_test.moc"
