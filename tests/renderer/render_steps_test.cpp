#include "renderer/trial_drawing.h"
#include "support/row_name.h"
#include "support/stage.h"
#include "themefiles/ini_access.h"

using namespace support;

namespace {

/// A button of the size of its texture.
QByteArray button(const QByteArray& name, int x, const QByteArray& keys = {}) {
  return '[' + name + "]|" + keys + "Tex=Red|Color=P1Dark|DColor=P1Dark|W=8|H=4|Y=100|X=" + QByteArray::number(x) + '|';
}

/// The tops of the child texts drawn, in order, less the button's top. The keys are those of the selected button.
QList<int> topsOfTexts(const QByteArray& keys, const QByteArray& tag = "MainButton1") {
  Stage stage;
  stage.setTheme('[' + tag + "]|" + keys + "Tex=Red|X=100|Y=50|H=40|[MainButtonZ]|Tex=Red|Y=50|TEXTS=1|");
  stage.addToTheme('[' + tag + "text1]|X=5|Y=10|Size=10|[" + tag + "TEXT2]|Y=20|Size=10|[" + tag +
                   "Text3]|X=5|Y=30|Size=10|[MainButtonZTEXT1]|X=5|Y=2000|Size=10|");
  QList<int> tops;
  stage.host.yielded = [&] {
    if (stage.account.objects.size() == std::size_t(tops.size())) return;
    tops += qRound(double(stage.surface.CurrentY) - stage.surface.TextHeight({}) / 5 - 50);
  };
  stage.draw();
  return tops;
}

/// A screen of all kinds of objects; a text without a face of its own begins with the pen that it finds.
constexpr const char* AllKinds =
    "[MainBackground]|Tex=Blue|[MainStatic]|Tex=Red|Color=P1Dark|X=10|Y=20|W=30|H=40|X=99|"
    "[MainButton1]|Tex=Half|Color=P1Dark|DColor=P1Dark|X=100|Y=50|W=60|H=20|SelectH=30|TEXTS=1|"
    "[MainButton2]|Tex=Torn|Color=P1Dark|DColor=P1Dark|X=40000|[MainText]|Font=7|X=300|Y=300|";

}  // namespace

class RenderStepsTest : public QObject {
  Q_OBJECT

 private Q_SLOTS:
  void progress() {
    for (const auto& [tags, percents] : {std::pair(0, u"0%"_s), {3, u"33% 66% 99% 100%"_s}, {8, u"12% 24% 36%"_s}}) {
      Stage stage;
      stage.setTheme(QByteArray("[MainText]|").repeated(tags));
      stage.host.yielded = [&] { QVERIFY(stage.host.barVisible); };
      stage.draw();
      QCOMPARE(stage.steps(), tags);
      QVERIFY(stage.host.percents.join(u' ').startsWith(percents) && !stage.host.barVisible);
    }
  }

  void passesByTheWordsOfAName() {
    // How many passes draw the object, and whether it counts as a button.
    for (const char* object : {"Main 0 0", "mainSTATICx 1 0", "MainStaticText 2 0", "MainTextures 0 0",
                               "mainSelectX 1 1", "NameStatic 2 1", "MainButtonText1 0 0", "ScoreTextName1 0 0"}) {
      const QByteArrayList row = QByteArray(object).split(' ');
      Stage stage;
      stage.setTheme('[' + row[0] + "]|Tex=Red|Size=10|");
      stage.draw();
      QVERIFY2(stage.steps() == row[1].toInt() && stage.state.ButtonCount == row[2].toInt(), object);
    }
  }

  void buttonList() {
    Stage stage;
    stage.setTheme("[MainText]|Size=20|[MainButton1]|Tex=Red|DColor=P1Dark|W=5|H=5|[MainButton2]|[MainButton3]|");
    stage.draw();
    const QStringList rows{u"Select Button 1"_s, u"Select Button 2"_s, u"Select Button 3"_s};
    QCOMPARE(stage.host.buttons, rows);
    QVERIFY(stage.state.ButtonListFilled && stage.host.buttonsVisible && stage.state.SelectedButton == 1);
    // The pick of the user stands through later drawings, however many buttons there are then.
    stage.state.SelectedButton = 3;
    stage.tags.Clear();
    stage.tags.AddItem(u"MainButton1"_s);
    stage.draw();
    QCOMPARE(stage.host.buttons, rows);
    QVERIFY(stage.host.selections == 1 && stage.state.SelectedButton == 3);
    // Another screen, without buttons.
    stage.state.ButtonListFilled = false;
    stage.setTheme("[MainText]|");
    stage.draw();
    QVERIFY(stage.host.buttons.isEmpty() && !stage.host.buttonsVisible && !stage.state.ButtonListFilled);
  }

  void looksOfAButton() {
    const QRect place(50, 100, 8, 4);
    for (const char* keys : {"Visible=False|", "TYPE=Font Black|Tex=Black|DINT=9|"}) compare(keys, place);
    compare("SelectH=9.5|", QRect(50, 100, 8, 10));
    compare("SelectH=-1|X=40|W=5|", QRect(40, 100, 8, 4));
    for (const char* keys : {"Color=|", "TYPE=Font Black|Tex=Black|INT=9|"}) compare(keys, {});
    compare("Visible=0|", {}, 2, 2);
    for (const char* keys : {"Tex=|", "H=40000|", "SelectH=40000|"}) compare(keys, {}, 3, 2);
  }

  void childTexts() {
    // The last button has a text of its own where the first one has fewer than three.
    QCOMPARE(topsOfTexts("TEXTS=3|"), (QList<int>{10, 30, 2000}));
    QCOMPARE(topsOfTexts("TEXTS=40000|"), (QList<int>{2000}));
    // A grown button shifts the next text that is drawn, its own or another's.
    QCOMPARE(topsOfTexts("TEXTS=3|SelectH=60|"), (QList<int>{30, 30, 2000}));
    QCOMPARE(topsOfTexts("SelectH=60|"), (QList<int>{2020}));
    QCOMPARE(topsOfTexts("TEXTS=1|SelectH=60|", "MainButtonCollection"), (QList<int>{10, 2000}));
  }

  /// A frame with values on trial shows what a drawing shows once they are written, and leaves all else as found.
  void trialFrames() {
    for (const auto& [section, values] :
         {std::pair(u"MainStatic"_s, std::vector<std::pair<QString, QString>>{{u"X"_s, u"50"_s}, {u"Y"_s, u"70"_s}}),
          {u"mainStatic"_s, {{u"w"_s, u"77"_s}, {u"H"_s, u"5"_s}}},
          {u"MainStatic"_s, {{u"X"_s, u"790"_s}, {u"W"_s, u"900"_s}}},
          {u"MainButton1"_s, {{u"X"_s, u"400"_s}, {u"SelectH"_s, u"90"_s}}},
          {u"MainButton1TEXT1"_s, {{u"X"_s, u"30"_s}, {u"Y"_s, u"8"_s}}},
          {u"MainText"_s, {{u"X"_s, u"0"_s}}}}) {
      const RowName name(section.toLatin1() + ' ' + values[0].first.toLatin1());
      Stage stage;
      renderer::PreparedPictures pictures;
      stage.pictures = &pictures;
      stage.setTheme(AllKinds);
      stage.addToTheme("[MainButton1Text1]|X=5|Y=5|Size=12|");
      stage.tags.SetListIndex(int(stage.tags.rows().indexOf(u"MainText"_s)));
      stage.state.CursorRect = {u"300"_s, u"300"_s, {}, {}, {}, 9, 0};
      stage.draw();
      const QImage before = stage.surface.image();
      const drawing::Pen start = *stage.account.startPen;
      stage.surface.setPen({1, 2, Qt::red, u"Arial Black"_s, 33});
      stage.host.yielded = [] { QFAIL("a frame on trial served events"); };
      const QStringList shown = stage.host.percents + stage.host.buttons + stage.panel.texts + stage.dialogs.asked;
      const QByteArray theme = stage.folder.get(u"theme.ini"_s);
      Mark tried, real;
      renderer::TrialFiles files;
      const renderer::RenderAccount account = renderer::drawTrial(stage.context(), {section, values}, files);
      renderer::drawTrialCursor(stage.state, stage.tags, stage.surface, tried, {section, values});
      const QImage trial = stage.surface.image();
      QVERIFY(trial != before && stage.folder.get(u"theme.ini"_s) == theme);
      QCOMPARE(stage.host.percents + stage.host.buttons + stage.panel.texts + stage.dialogs.asked, shown);
      QVERIFY(stage.host.refreshes == 2 && stage.host.selections == 1 && !stage.host.barVisible);
      QVERIFY(stage.surface.CurrentX == 1 && stage.surface.CurrentY == 2 && stage.surface.ForeColor == Qt::red);
      QVERIFY(stage.surface.FontName() == u"Arial Black" && stage.surface.FontSize() == 33);
      QCOMPARE(renderer::drawTrial(stage.context(), {}, files).objects.size(), stage.account.objects.size());
      QCOMPARE(stage.surface.image(), before);
      stage.host.yielded = nullptr;
      for (const auto& [key, value] : values) {
        themefiles::PutINI(section, key, value, stage.state.paths.ThemeFile);
        if (key == u"X") stage.state.CursorRect.X = value;
        if (key == u"Y") stage.state.CursorRect.Y = value;
        if (key == u"W" || key == u"w") stage.state.CursorRect.W = value;
        if (key == u"H") stage.state.CursorRect.H = value;
      }
      stage.surface.setPen(start);
      stage.draw();
      QCOMPARE(trial, stage.surface.image());
      renderer::drawTrial(stage.context(), {}, files);
      QCOMPARE(stage.surface.image(), trial);  // a frame sees what was written since the one before
      renderer::DrawCursor(stage.state, stage.tags, stage.surface, real, stage.panel);
      QCOMPARE(tried.calls, real.calls);
      QVERIFY(std::equal(account.objects.begin(), account.objects.end(), stage.account.objects.begin(),
                         stage.account.objects.end(),
                         [](const auto& a, const auto& b) { return a.section == b.section && a.place == b.place; }));
    }
  }

  void moreThanAByteOfButtons() {
    Stage stage;
    QByteArray theme;
    for (int i = 0; i < 260; ++i) theme += "[MainButton" + QByteArray::number(1000 + i) + "]|";
    stage.setTheme(theme);
    stage.draw();
    QCOMPARE(int(stage.state.ButtonCount), 255);
    QCOMPARE(stage.host.buttons.size(), 255);
  }

 private:
  /// Draws three buttons of which the second one has the keys and is the selected one.
  static void compare(const QByteArray& keys, const QRect& ink, int count = 3, int steps = 3) {
    const RowName name(keys);
    Stage stage;
    stage.setTheme(button("MainButton1", 0) + button("MainButton2", 50, keys) +
                   button("MainButton3", 90, "SelectH=9|"));
    stage.state.ButtonListFilled = true;
    stage.state.SelectedButton = 2;
    stage.draw();
    const QImage& shown = stage.surface.image();
    QCOMPARE(inkOf(shown.copy(0, 0, 20, 600)), QRect(0, 100, 8, 4));
    QCOMPARE(inkOf(shown.copy(20, 0, 70, 600)), ink.translated(ink.isEmpty() ? 0 : -20, 0));
    QCOMPARE(inkOf(shown.copy(90, 0, 10, 600)).height(), count == 2 ? 9 : 4);
    QCOMPARE(int(stage.state.ButtonCount), count);
    QCOMPARE(stage.steps(), steps);
    const QString head = u"Error while Draw Screen [MainButton2: "_s;
    QCOMPARE(stage.panel.texts.filter(head).size(), keys.contains("40000") ? 1 : 0);
  }
};

QTEST_MAIN(RenderStepsTest)
#include "render_steps_test.moc"
