#include <QFont>
#include <QTest>

#include "drawing/icons.h"
#include "platform/failure.h"
#include "propertybag/stored_bytes.h"
#include "propertybag/stored_values.h"
#include "support/bags.h"
#include "support/results.h"

using propertybag::bagOfBytes;
using propertybag::PropertyBag;
using propertybag::storedBytes;

namespace {

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
    // They keep the order in which they came first.
    write("Size", 1);
    write("Another", 1);
    write("size", 2);
    QString keys;
    for (const PropertyBag::Record& record : bag.records()) keys += record.key + u' ';
    QCOMPARE(keys, QStringLiteral("Size Another "));
  }

  // A value as each of the types of a control's members.
  void valuesByTheirTypes() {
    support::compareRows(QStringLiteral("types.txt"), [](const QString& told) {
      const QVariant value = support::bagOf(QStringLiteral("a=") + told).ReadProperty(QStringLiteral("a"), {});
      const auto as = [&]<typename T>(const char* name, T) {
        const std::optional<T> stored = propertybag::storedAs<T>(value);
        return QLatin1StringView(name) + (stored ? u' ' + QVariant::fromValue(*stored).toString() : QString()) +
               QStringLiteral(", ");
      };
      return as("short", qint16()) + as("int", int()) + as("colour", quint32()) + as("bool", bool()) +
             as("text", QString());
    });
  }

  // A size in pixels, as it is stored and as it is read again; a bag, and the size in it.
  void sizes() {
    support::compareRows(QStringLiteral("sizes.txt"), [](const QString& row) {
      const QStringList pixels = row.split(u' ');
      PropertyBag bag = support::bagOf(row.contains(u'=') ? row : QString());
      if (!row.contains(u'=')) propertybag::storeSize(bag, QSize(pixels[0].toInt(), pixels.at(1).toInt()));
      const auto size = propertybag::storedSize(bag);
      return support::toldOf(bag) +
             (size ? QStringLiteral(": %1 %2").arg(size->width()).arg(size->height()) : QString());
    });
  }

  // The bytes of a bag, and how many of them are passed over; a font's character set and flags are. Whatever other byte
  // is wrong, nothing of the bag is taken, or the bag says what the bytes say.
  void bytesSoundAndDamaged() {
    support::compareRows(QStringLiteral("bytes.txt"), [](const QString& row) {
      const QByteArray bytes = storedBytes(support::bagOf(row));
      return QString::fromLatin1(bytes.toHex()) + QStringLiteral(" %1").arg(passedOver(bytes));
    });
  }

  // What is in these bytes.
  void damagedBytes() {
    support::compareRows(QStringLiteral("damaged.txt"), [](const QString& row) {
      const auto bag = bagOfBytes(QByteArray::fromHex(row.toLatin1()));
      return bag ? support::toldOf(*bag) : QStringLiteral("refused");
    });
  }

  void whatCantBeStored() {
    for (const auto& [key, value] : {std::pair(QStringLiteral("key"), QVariant(QFont(QString(300, u'a')))),
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
