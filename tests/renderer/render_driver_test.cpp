#include "renderer/render_driver.h"

#include <QTest>

#include "support/row_name.h"
#include "support/stage.h"

using namespace support;
using namespace Qt::StringLiterals;

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
    // How many passes draw the object, and whether it counts as a button.
    for (const char* object :
         {"Main 0 0", "mainSTATICx 1 0", "mainText5 1 0", "MainStaticText 2 0", "MainTextures 0 0", "MainButton 1 1",
          "mainSelectX 1 1", "NameStatic 2 1", "MainButtonText1 0 0", "ScoreTextName1 0 0"}) {
      const RowName name(object);
      const QByteArrayList row = QByteArray(object).split(' ');
      Stage stage;
      stage.setTheme('[' + row[0] + "]|Tex=Red|Size=10|");
      stage.draw();
      QCOMPARE(stage.steps(), row[1].toInt());
      QCOMPARE(int(stage.state.ButtonCount), row[2].toInt());
    }
  }

  void buttonList() {
    Stage stage;
    stage.setTheme("[MainText]|Size=20|[MainButton1]|Tex=Red|DColor=P1Dark|W=5|H=5|[MainButton2]|[MainButton3]|");
    stage.draw();
    const QStringList rows{u"Select Button 1"_s, u"Select Button 2"_s, u"Select Button 3"_s};
    QCOMPARE(stage.host.buttons, rows);
    QVERIFY(stage.state.ButtonListFilled && stage.host.buttonsVisible);
    QCOMPARE(stage.host.selections, 1);
    QCOMPARE(int(stage.state.SelectedButton), 1);

    const std::size_t accounted = stage.account.Objects.size() + stage.account.Missing.size();
    stage.draw();
    QCOMPARE(stage.account.Objects.size() + stage.account.Missing.size(), accounted);

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
