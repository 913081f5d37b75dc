#include <QColor>
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
  void defaultsAreNotStored() {
    PropertyBag bag = support::bagOf(QStringLiteral("Key=5, KEY=6"));
    QCOMPARE(bag.ReadProperty(QStringLiteral("key"), 7).toInt(), 6);
    bag.WriteProperty(QStringLiteral("key"), 7, 7);
    QCOMPARE(bag.ReadProperty(QStringLiteral("Key"), 9).toInt(), 9);
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
      return (as("short", qint16()) + as("int", int()) + as("colour", quint32()) + as("bool", bool()) +
              as("text", QString()))
          .chopped(2);
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

  // Bytes of an icon, and the pixels that are read from them.
  void iconsOfAnyDepth() {
    support::compareRows(QStringLiteral("icons.txt"), [](const QString& row) {
      const auto icon = drawing::readIcon(QByteArray::fromHex(row.toLatin1()));
      QString pixels = icon ? QString() : QStringLiteral("refused");
      for (int i = 0; icon && i < icon->Color.width() * icon->Color.height(); ++i) {
        const QPoint at(i % icon->Color.width(), i / icon->Color.width());
        pixels +=
            QColor(icon->Color.pixel(at)).name() + QLatin1StringView(icon->mask.pixel(at) == 0xFF000000U ? " " : "- ");
      }
      return pixels.trimmed();
    });
  }
};

QTEST_MAIN(PropertyBagTest)
#include "property_bag_test.moc"
