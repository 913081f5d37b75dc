#include "platform/fonts.h"

#include <QFontInfo>
#include <QTest>

using namespace platform;

class FontsTest : public QObject {
  Q_OBJECT

 private Q_SLOTS:
  void facesOfTheTexts() {
    const struct {
      const char *face, *family;
      bool black;
    } rows[] = {
        {"Eurostar Regular Extended", "DejaVu Sans", false},
        {"Eurostar Black", "Lato", true},
        {"arial black", "Lato", true},
        {"Courier New", "Liberation Mono", false},
        {"No such face at all", "Liberation Sans", false},
        {"Liberation Serif", "Liberation Serif", false},
    };
    for (const auto& row : rows) {
      const QFontInfo info(FaceFont(QString::fromLatin1(row.face)));
      if (info.family().toLatin1().toLower() == QByteArray(row.face).toLower()) continue;  // the machine has the face
      QCOMPARE(info.family(), QString::fromLatin1(row.family));
      QCOMPARE(info.weight() >= QFont::Black, row.black);
    }
  }
};

QTEST_MAIN(FontsTest)
#include "fonts_test.moc"
