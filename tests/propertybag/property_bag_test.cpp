#include <QFont>
#include <QTest>

#include "drawing/icons.h"
#include "platform/failure.h"
#include "propertybag/stored_bytes.h"
#include "propertybag/stored_values.h"

using propertybag::bagOfBytes;
using propertybag::PropertyBag;
using propertybag::storedBytes;

namespace {

QVariant fontOf(const QString& face, bool inPixels = false) {
  QFont font;
  font.setFamilies({face});
  inPixels ? font.setPixelSize(11) : font.setPointSizeF(8.25);
  return font;
}

/// What stands before the first of so many bytes of records.
QByteArray head(qsizetype records) {
  const QByteArray count = QByteArray(1, static_cast<char>(records + 8)) + QByteArray(3, '\0');
  return QByteArray::fromHex("2d4c420900") + count + QByteArray::fromHex("93b20000") + count;
}

/// How many of the bytes may be any: the bag is taken all the same, and has the same values.
int passedOver(const QByteArray& bytes) {
  int count = 0;
  for (qsizetype i = 0; i < bytes.size(); ++i) {
    QByteArray damaged = bytes;
    damaged[i] = static_cast<char>(damaged[i] ^ 0x41);
    const auto read = bagOfBytes(damaged);
    if (read && storedBytes(*read) == bytes) ++count;
    if (bagOfBytes(bytes.first(i)) || (read && storedBytes(*read) != bytes && storedBytes(*read) != damaged)) return -1;
  }
  return count;
}

}  // namespace

class PropertyBagTest : public QObject {
  Q_OBJECT

 private Q_SLOTS:
  void valuesByTheirKeys() {
    PropertyBag bag;
    const auto write = [&](const char* key, int value) { bag.WriteProperty(QLatin1StringView(key), value, 7); };
    write("Key", 5);
    write("KEY", 6);
    QCOMPARE(bag.ReadProperty(QStringLiteral("key"), 7).toInt(), 6);
    write("key", 7);  // the default, which isn't stored
    QCOMPARE(bag.ReadProperty(QStringLiteral("Key"), 9).toInt(), 9);
    propertybag::storeSize(bag, QSize(800, 32));
    QCOMPARE(propertybag::storedSize(bag), QSize(800, 32));
    write("_ExtentY", 7);
    QVERIFY(!propertybag::storedSize(bag));
    // They keep the order in which they came first.
    write("Size", 1);
    write("Another", 1);
    write("size", 2);
    QString keys;
    for (const PropertyBag::Record& record : bag.records()) keys += record.key + u' ';
    QCOMPARE(keys, QStringLiteral("_extentx Size Another "));
  }

  // Whatever single byte is wrong, nothing of the bag is taken, or the bag says what the bytes say. A font's character
  // set and flags are passed over.
  void bytesSoundAndDamaged() {
    const auto fromHex = &QByteArray::fromHex;
    const struct {
      QVariant value;
      const char* tag;
      const char* stored;  // behind the head of a record with the key "aB"
    } rows[] = {
        {QVariant::fromValue(static_cast<qint16>(-2)), "0200", "feff0000"},
        {0x8000000FU, "0300", "0f000080"},
        {true, "0b00", "ffff0000"},
        {QStringLiteral("\u20ac"), "0800", "01000000 ac200000"},
        {fontOf(QStringLiteral("Ab")), "0d00",
         "0352e30b918fce119de300aa004bb851 01 0000 00 9001 44420100 02 4162 000000"},
        {fontOf(QStringLiteral("Ab"), true), "0d00",
         "0352e30b918fce119de300aa004bb851 01 0000 00 9001 44420100 02 4162 000000"},
        {QVariant::fromValue(propertybag::StoredPicture{"xyz"}), "0d00",
         "0452e30b918fce119de300aa004bb851 6c740000 03000000 78797a 00"},
    };
    for (const auto& [value, tag, stored] : rows) {
      PropertyBag bag;
      bag.WriteProperty(QStringLiteral("aB"), value, {});
      const QByteArray record = fromHex(tag) + fromHex("0200 62200c00 00000000 61006200") + fromHex(stored);
      const QByteArray bytes = head(record.size()) + record;
      QCOMPARE(storedBytes(bag).toHex(' '), bytes.toHex(' '));
      QCOMPARE(storedBytes(*bagOfBytes(bytes)), bytes);
      QCOMPARE(passedOver(bytes), value.typeId() == QMetaType::QFont ? 3 : 0);
    }
  }

  void severalRecords() {
    const auto records = [](const char* firstKey, const char* last) {
      return QByteArray::fromHex(QByteArray("0200 0100 ") + firstKey + "000000 10000000 " + firstKey + "00 0500" +
                                 "0200 0100 61000000 " + last + " 6100 0700");
    };
    const QByteArray sound = records("62", "f0ffffff");
    QCOMPARE(storedBytes(*bagOfBytes(head(32) + sound)).toHex(' '), (head(32) + sound).toHex(' '));
    QCOMPARE(passedOver(head(32) + sound), 0);
    QVERIFY(bagOfBytes(head(0)));
    QVERIFY(!bagOfBytes(head(32) + records("61", "f0ffffff")));  // one key twice
    QVERIFY(!bagOfBytes(head(36) + sound + QByteArray(4, '\0')));
    QVERIFY(!bagOfBytes(head(32) + records("62", "00000000")));
  }

  void whatCantBeStored() {
    for (const auto& [key, value] : {std::pair(QStringLiteral("key"), fontOf(QString(300, u'a'))),
                                     {QString(0x10000, u'a'), QVariant(1)},
                                     {QString(), QVariant(1)},
                                     {QStringLiteral("key"), QVariant(0.5)}}) {
      PropertyBag bag;
      bag.WriteProperty(key, value, {});
      QVERIFY_THROWS_EXCEPTION(platform::Failure, storedBytes(bag));
    }
  }

  void iconsGoRound() {
    QImage picture(16, 16, QImage::Format_ARGB32);
    for (int i = 0; i < 256; ++i) picture.setPixel(i % 16, i / 16, qRgba(i, 255 - i, i / 2, i % 3 == 0 ? 127 : 128));
    const auto file = drawing::writeIcon(picture);
    QCOMPARE(file->size(), 1406);
    const auto icon = drawing::readIcon(*file);
    for (int i = 0; i < 256; ++i) {
      const bool isClear = i % 3 == 0;
      QCOMPARE(icon->mask.pixel(i % 16, i / 16), isClear ? 0xFFFFFFFFU : 0xFF000000U);
      QCOMPARE(icon->Color.pixel(i % 16, i / 16), isClear ? 0xFF000000U : qRgb(i, 255 - i, i / 2));
    }
    for (qsizetype i = 0; i < file->size(); ++i) QVERIFY(!drawing::readIcon(file->first(i)));
  }

  // Red, green and a clear pixel; the directory has a second image.
  void iconDepths() {
    const std::pair<const char*, const char*> rows[] = {
        {"0100", "00000000 00000000 0000ff00 00ff0000 40000000 20000000"},
        {"1800", "00000000 00000000 0000ff 00ff00 0000ff 000000 20000000"},
        {"0400", "03000000 00000000 00000000 0000ff00 00ff0000 12100000 20000000"},
        {"2000", "00000000 00000000 0000ff00 00ff0000 0000ff00 20000000"},
    };
    for (const auto& [depth, behind] : rows) {
      const auto icon = drawing::readIcon(QByteArray::fromHex(
          QByteArray("0000 0100 0200 03010000 0100 0000 00000000 26000000 00000000 00000000 00000000 00000000"
                     "28000000 03000000 02000000 0100") +
          depth + "00000000 00000000 00000000 00000000" + behind));
      QVERIFY2(icon, depth);
      QCOMPARE(icon->Color.pixel(1, 0), qRgb(0, 255, 0));
      QCOMPARE(icon->Color.pixel(2, 0), qRgb(0, 0, 0));  // under the mask
      QCOMPARE(icon->mask.pixel(2, 0), 0xFFFFFFFFU);
    }
  }
};

QTEST_MAIN(PropertyBagTest)
#include "property_bag_test.moc"
