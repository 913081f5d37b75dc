#include <QTest>

#include "support/stage.h"

using namespace support;
using namespace Qt::StringLiterals;

namespace {

const char* const Regular = "Eurostar Regular Extended";
const char* const Black = "Eurostar Black";

/// What a text should look like: words, face, points, anchor less the fifth of a height, colour.
struct Look {
  const char* words;
  const char* face = Regular;
  float points = 14;
  double x = 100;
  double y = 50;
  QRgb color = qRgb(0, 0, 0);
  double widths = 0;  ///< how many widths of the words it stands further left
};

QImage pictureOf(const Look& look) {
  platform::Surface surface;
  surface.Wipe(Qt::white);
  surface.SetFontName(QString::fromLatin1(look.face));
  surface.SetFontSize(look.points);
  surface.ForeColor = QColor(look.color);
  const QString words = QString::fromLatin1(look.words);
  surface.CurrentX = float(look.x - look.widths * surface.TextWidth(words));
  surface.CurrentY = float(look.y + surface.TextHeight(words) / 5);
  surface.Print(words);
  return surface.image();
}

/// A text of these keys, in front of X=100, Y=50 and Size=10; no picture unless it takes one step.
QImage drawn(const QByteArray& keys) {
  Stage stage;
  stage.folder.put(u"language.ini"_s, "[Text]\nknown=Hello\nMainText=Own name\n");
  stage.setTheme("[MainText]|" + keys + "|X=100|Y=50|Size=10|[Colors]|Own=200 100 50|");
  stage.draw();
  return stage.steps() == 1 && stage.host.refreshes == 0 ? stage.surface.image() : QImage();
}

}  // namespace

class TextObjectsTest : public QObject {
  Q_OBJECT

 private Q_SLOTS:
  void texts() {
    QCOMPARE(drawn("Text=Known|"), pictureOf({"Hello"}));
    QCOMPARE(drawn("Text=Unknown|"), pictureOf({"Unknown"}));
    QCOMPARE(drawn("Text=|"), pictureOf({"MainText"}));
    QCOMPARE(drawn(""), pictureOf({"Own name"}));
    QCOMPARE(drawn("Text=Known|Font=1|"), pictureOf({"Hello", Black, 20}));
    QCOMPARE(drawn("Text=Known|Font=0.5|Size=0|"), pictureOf({"Hello", "MS Sans Serif", 8.25}));
    QCOMPARE(drawn("Text=Known|Size=12.25|"), pictureOf({"Hello", Regular, 17.15F}));
    QCOMPARE(drawn("Text=Known|Align=1|X=400|"), pictureOf({"Hello", Regular, 14, 400, 50, 0, 0.5}));
    QCOMPARE(drawn("Text=Known|Align=2|X=400|"), pictureOf({"Hello", Regular, 14, 400, 50, 0, 1}));
    QCOMPARE(drawn("Text=Known|X=20.75|Y=-3.25|"), pictureOf({"Hello", Regular, 14, 20.75, -3.25}));
    QCOMPARE(drawn("Text=Known|Color=Own|ColR=1|"), pictureOf({"Hello", Regular, 14, 100, 50, qRgb(200, 100, 50)}));
    QCOMPARE(drawn("Text=Known|Color=Unknown|ColR=1|"), pictureOf({"Hello"}));
    QCOMPARE(drawn("Text=Known|ColR=9999|ColG=0.5|ColB=-1|"),
             pictureOf({"Hello", Regular, 14, 100, 50, qRgb(255, 128, 0)}));
    QCOMPARE(drawn("Text=Known|Size=-5|"), pictureOf({""}));
    QCOMPARE(drawn("Text=Known|X=99999999999999|"), pictureOf({""}));
  }

  void aFontThatChangesNothingKeepsWhatWasLeft() {
    Stage stage;
    stage.setTheme("[MainText1]|Text=A|Font=1|Size=20|X=-900|[MainText2]|Text=B|Font=2|Size=5|X=100|Y=50|");
    stage.draw();
    QCOMPARE(stage.surface.image(), pictureOf({"B", Black, 40}));
  }
};

QTEST_MAIN(TextObjectsTest)
#include "text_objects_test.moc"
