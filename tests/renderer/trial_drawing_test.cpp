#include "renderer/trial_drawing.h"

#include <QTest>
#include <QtGlobal>

#ifdef Q_OS_UNIX
#include <sys/resource.h>
#endif

#include "platform/paths.h"
#include "support/stage.h"
#include "themefiles/ini_access.h"

using namespace support;

namespace {

/// A screen of all kinds of objects; a text without a face of its own begins with the pen that it finds.
constexpr const char* AllKinds =
    "[MainBackground]|Tex=Blue|[MainStatic]|Tex=Red|Color=P1Dark|X=10|Y=20|W=30|H=40|X=99|"
    "[MainButton1]|Tex=Half|Color=P1Dark|DColor=P1Dark|X=100|Y=50|W=60|H=20|SelectH=30|TEXTS=1|"
    "[MainButton2]|Tex=Torn|Color=P1Dark|DColor=P1Dark|X=40000|[MainText ]|Font=7|X=300|Y=300|";

}  // namespace

class TrialDrawingTest : public QObject {
  Q_OBJECT

 private Q_SLOTS:
  void trialFrames_data() {
    QTest::addColumn<QString>("section");
    QTest::addColumn<QString>("values");
    QTest::addColumn<QString>("selected");
    QTest::addRow("static moved") << u"MainStatic"_s << u"X=50|Y=70"_s << u"MainStatic"_s;
    QTest::addRow("static sized, names in another case") << u"mainStatic"_s << u"w=77|H=5"_s << u"MainStatic"_s;
    QTest::addRow("over the edge") << u"MainStatic"_s << u"X=790|W=900"_s << u"MainStatic"_s;
    QTest::addRow("selected button, its text has the mark")
        << u"MainButton1"_s << u"X=400|SelectH=90"_s << u"MainButton1Text1"_s;
    QTest::addRow("child text") << u"MainButton1TEXT1"_s << u"X=30|Y=8"_s << u"MainButton1Text1"_s;
    QTest::addRow("text without a face, a blank behind its name") << u"MainText"_s << u"X=0"_s << u"MainText "_s;
  }

  /// A frame with values on trial shows what a drawing shows once they are written, and leaves all else as found.
  void trialFrames() {
    QFETCH(QString, section);
    QFETCH(QString, values);
    QFETCH(QString, selected);
    renderer::TrialValues tried{section, {}};
    for (const QString& value : values.split(u'|')) {
      tried.values.emplace_back(value.section(u'=', 0, 0), value.section(u'=', 1));
    }
    Stage stage;
    renderer::PreparedPictures pictures;
    stage.pictures = &pictures;
    stage.setTheme(AllKinds);
    stage.addToTheme("[MainButton1Text1]|X=5|Y=5|Size=12|");
    stage.tags.AddItem(u"MainButton1Text1"_s);
    stage.tags.SetListIndex(int(stage.tags.rows().indexOf(selected)));
    stage.state.CursorRect = {u"300"_s, u"300"_s, {}, {}, {}, 9, 0};
    stage.draw();
    const QImage before = stage.surface.image();
    const drawing::Pen start = *stage.account.startPen;
    stage.surface.setPen({1, 2, Qt::red, u"Arial Black"_s, 33});
    stage.host.yielded = [] { QFAIL("a frame on trial served events"); };
    const QStringList shown = stage.host.percents + stage.host.buttons + stage.panel.texts + stage.dialogs.asked;
    const QByteArray theme = stage.folder.get(u"theme.ini"_s);
    Mark inTrial, real;
    renderer::TrialFiles files;
    const renderer::RenderAccount account = renderer::drawTrial(stage.context(), {tried}, files);
    renderer::drawTrialCursor(stage.state, stage.tags, stage.surface, inTrial, {tried});
    const QImage trial = stage.surface.image();
    QVERIFY(trial != before && stage.folder.get(u"theme.ini"_s) == theme);
    QCOMPARE(stage.host.percents + stage.host.buttons + stage.panel.texts + stage.dialogs.asked, shown);
    QVERIFY(stage.host.refreshes == 2 && stage.host.selections == 1 && !stage.host.barVisible);
    QVERIFY(stage.surface.CurrentX == 1 && stage.surface.CurrentY == 2 && stage.surface.ForeColor == Qt::red);
    QVERIFY(stage.surface.FontName() == u"Arial Black" && stage.surface.FontSize() == 33);
    QCOMPARE(renderer::drawTrial(stage.context(), {}, files).objects.size(), stage.account.objects.size());
    QCOMPARE(stage.surface.image(), before);
    stage.host.yielded = nullptr;
    for (const auto& [key, value] : tried.values) {
      themefiles::PutINI(section, key, value, stage.state.paths.ThemeFile);
      if (renderer::valuesOf(selected, {tried}) == nullptr) continue;
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
    QCOMPARE(inTrial.calls, real.calls);
    QVERIFY(std::equal(account.objects.begin(), account.objects.end(), stage.account.objects.begin(),
                       stage.account.objects.end(),
                       [](const auto& a, const auto& b) { return a.section == b.section && a.place == b.place; }));
    QVERIFY(QFile::remove(stage.folder.native(u"theme.ini"_s)));  // however short a time ago it was written
    QVERIFY(renderer::drawTrial(stage.context(), {}, files).objects.empty());
  }

#ifdef Q_OS_UNIX
  /// A file that one frame can't read, for a want of descriptors, is read by the next, though it is the same. So is a
  /// picture.
  void unreadForAFrame() {
    const QString theme = platform::programPath(QStringLiteral(SAMPLE_FOLDER "/Themes/Stagelight.ini"));
    const QString picture = platform::programPath(QStringLiteral(SAMPLE_FOLDER "/Skins/Stagelight/dusk_cap.png"));
    for (const QString& file : {theme, picture}) QTRY_VERIFY(platform::isSettled(*platform::identityOf(file)));
    renderer::TrialFiles files;
    renderer::PreparedPictures pictures;
    rlimit usual{};
    QVERIFY(::getrlimit(RLIMIT_NOFILE, &usual) == 0);
    for (const rlim_t most : {rlim_t(0), usual.rlim_cur}) {
      const rlimit now{most, usual.rlim_max};
      QVERIFY(::setrlimit(RLIMIT_NOFILE, &now) == 0);
      files.beginFrame();
      QCOMPARE(files.section(u"Colors"_s, theme).isThere(), most != 0);
      QCOMPARE(pictures.get({picture, {}, QRect(0, 0, 9, 9)}, false).picture.isNull(), most == 0);
    }
  }
#endif
};

QTEST_MAIN(TrialDrawingTest)
#include "trial_drawing_test.moc"
