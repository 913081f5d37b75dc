#include "renderer/render_driver.h"

#include <QTest>

#include "support/stage.h"

using namespace support;

namespace {

struct GivenUp {};

const QByteArray Screen =
    "[MainBackground]|Tex=Blue|[MainStatic]|Tex=Half|Color=P1Dark|X=9|Y=9|W=300|H=200|[MainText]|Size=20|"
    "[MainButton1]|Tex=Red|Color=P1Dark|DColor=P1Dark|X=100|Y=100|W=50|H=20|SelectH=40|[MainButton2]|Tex=Red|"
    "Color=P1Dark|DColor=P1Dark|X=200|Y=100|W=50|H=20|TEXTS=1|[MainButton3]|[Colors]|a=1 2 3|";

/// The screen, with a child text that stands in no tag list.
void setScreen(Stage& stage) {
  stage.setTheme(Screen);
  const QString theme = QStringLiteral("theme.ini");
  stage.folder.put(theme, stage.folder.get(theme) + linesOf("[MainButton2Text1]|X=1|Y=1|Size=10|Font=1|"));
}

}  // namespace

class RenderDriverTest : public QObject {
  Q_OBJECT

 private Q_SLOTS:
  void progress_data() {
    QTest::addColumn<int>("tags");
    QTest::addColumn<QString>("percents");  // the first ones
    const auto row = [](int tags, const char* percents) {
      QTest::addRow("%d tags", tags) << tags << QString::fromLatin1(percents);
    };
    row(0, "0%");
    row(3, "33% 66% 99% 100%");
    row(8, "12% 24% 36% 48%");
    row(40, "2% 4% 6%");
    row(200, "0% 0% 0%");
  }

  void progress() {
    QFETCH(int, tags);
    QFETCH(QString, percents);
    Stage stage;
    QByteArray theme;
    for (int i = 0; i < tags; ++i) theme += "[MainText" + QByteArray::number(i) + "]|";
    stage.setTheme(theme);
    bool visible = false;
    stage.host.yielded = [&] { visible = stage.host.barVisible; };
    stage.draw();
    QCOMPARE(stage.steps(), tags);
    QVERIFY(stage.host.percents.join(u' ').startsWith(percents));
    QVERIFY(visible && !stage.host.barVisible);
  }

  void passesByTheWordsOfAName_data() {
    QTest::addColumn<int>("steps");
    QTest::addColumn<int>("buttons");
    const auto row = [](const char* name, int steps, int buttons) { QTest::newRow(name) << steps << buttons; };
    row("Main", 0, 0);
    row("mainSTATICx", 1, 0);
    row("mainText5", 1, 0);
    row("MainStaticText", 2, 0);
    row("MainTextures", 0, 0);
    row("MainButton", 1, 1);
    row("mainSelectX", 1, 1);
    row("NameStatic", 2, 1);
    row("MainButtonText1", 0, 0);
    row("ScoreTextName1", 0, 0);
  }

  void passesByTheWordsOfAName() {
    QFETCH(int, steps);
    QFETCH(int, buttons);
    Stage stage;
    stage.setTheme(QByteArray("[") + QTest::currentDataTag() + "]|Tex=Red|Size=10|");
    stage.draw();
    QCOMPARE(stage.steps(), steps);
    QCOMPARE(int(stage.state.ButtonCount), buttons);
  }

  void buttonList() {
    Stage stage;
    setScreen(stage);
    stage.draw();
    const QString head = QStringLiteral("Select Button ");
    const QStringList rows{head + u'1', head + u'2', head + u'3'};
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

  void aRenderGivenUpLeavesNothingBehind() {
    Stage whole;
    setScreen(whole);
    whole.draw();
    QVERIFY(whole.host.yields > 10);
    for (int k = 1; k <= whole.host.yields; ++k) {
      Stage stage;
      setScreen(stage);
      stage.host.yielded = [&] {
        if (stage.host.yields == k) throw GivenUp();
      };
      QVERIFY_THROWS_EXCEPTION(GivenUp, stage.draw());
      stage.host.yielded = nullptr;
      stage.draw();
      QCOMPARE(stage.surface.image(), whole.surface.image());
      QCOMPARE(stage.host.buttons, whole.host.buttons);
      QCOMPARE(stage.state.ButtonCount, whole.state.ButtonCount);
      QCOMPARE(stage.account.Objects.size(), whole.account.Objects.size());
      QCOMPARE(stage.account.Missing.size(), whole.account.Missing.size());
    }
  }
};

QTEST_MAIN(RenderDriverTest)
#include "render_driver_test.moc"
