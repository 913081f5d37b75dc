#include "renderer/render_driver.h"

#include <QTest>

#include "support/row_name.h"
#include "support/stage.h"

using namespace support;
using namespace Qt::StringLiterals;

namespace {

const QByteArray Screen =
    "[MainBackground]|Tex=Blue|[MainStatic]|Tex=Half|Color=P1Dark|X=9|Y=9|W=300|H=200|[MainText]|Size=20|"
    "[MainButton1]|Tex=Red|Color=P1Dark|DColor=P1Dark|X=100|Y=100|W=50|H=20|SelectH=40|[MainButton2]|Tex=Red|"
    "Color=P1Dark|DColor=P1Dark|X=200|Y=100|W=50|H=20|TEXTS=1|[MainButton3]|[Colors]|a=1 2 3|";

void setScreen(Stage& stage) {
  stage.setTheme(Screen);
  stage.addToTheme("[MainButton2Text1]|X=1|Y=1|Size=10|Font=1|");
}

}  // namespace

class RenderDriverTest : public QObject {
  Q_OBJECT

 private Q_SLOTS:
  void progress() {
    for (const auto& [tags, percents] :
         {std::pair(0, u"0%"_s), std::pair(3, u"33% 66% 99% 100%"_s), std::pair(8, u"12% 24% 36% 48%"_s),
          std::pair(40, u"2% 4% 6%"_s), std::pair(200, u"0% 0% 0%"_s)}) {
      Stage stage;
      QByteArray theme;
      for (int i = 0; i < tags; ++i) theme += "[MainText" + QByteArray::number(i) + "]|";
      stage.setTheme(theme);
      bool visible = false;
      stage.host.yielded = [&] { visible = stage.host.barVisible; };
      stage.draw();
      QCOMPARE(stage.steps(), tags);
      const QString shown = stage.host.percents.join(u' ');
      QCOMPARE(shown.first(qMin(shown.size(), percents.size())), percents);
      QVERIFY(visible && !stage.host.barVisible);
    }
  }

  void passesByTheWordsOfAName() {
    const struct {
      const char* name;
      int steps, buttons;
    } rows[] = {
        {"Main", 0, 0},           {"mainSTATICx", 1, 0},  {"mainText5", 1, 0},
        {"MainStaticText", 2, 0}, {"MainTextures", 0, 0}, {"MainButton", 1, 1},
        {"mainSelectX", 1, 1},    {"NameStatic", 2, 1},   {"MainButtonText1", 0, 0},
        {"ScoreTextName1", 0, 0},
    };
    for (const auto& row : rows) {
      const RowName name(row.name);
      Stage stage;
      stage.setTheme(QByteArray("[") + row.name + "]|Tex=Red|Size=10|");
      stage.draw();
      QCOMPARE(stage.steps(), row.steps);
      QCOMPARE(int(stage.state.ButtonCount), row.buttons);
    }
  }

  void buttonList() {
    Stage stage;
    setScreen(stage);
    stage.draw();
    const QStringList rows{u"Select Button 1"_s, u"Select Button 2"_s, u"Select Button 3"_s};
    QCOMPARE(stage.host.buttons, rows);
    QVERIFY(stage.state.ButtonListFilled && stage.host.buttonsVisible);
    QCOMPARE(stage.host.selections, 1);
    QCOMPARE(int(stage.state.SelectedButton), 1);

    // The pick of the user stands through later drawings, however many buttons there are then.
    stage.state.SelectedButton = 3;
    stage.tags.rows.removeLast();
    stage.draw();
    QCOMPARE(stage.host.buttons, rows);
    QCOMPARE(stage.host.selections, 1);
    QCOMPARE(int(stage.state.SelectedButton), 3);

    // Another screen, without buttons.
    stage.state.ButtonListFilled = false;
    stage.setTheme("[MainText]|");
    stage.draw();
    QVERIFY(stage.host.buttons.isEmpty() && !stage.host.buttonsVisible && !stage.state.ButtonListFilled);
    QCOMPARE(int(stage.state.SelectedButton), 1);
  }
};

QTEST_MAIN(RenderDriverTest)
#include "render_driver_test.moc"
