#include <QListWidget>

#include "editing/theme_colours.h"
#include "mainwindows/side_by_side.h"
#include "support/real_input.h"
#include "toolwindow/list_window.h"

using namespace support;

/// What is done over the whole theme when the program is idle: the check and the pictures side by side.
class WholeThemeTest : public ProgramTest {
  Q_OBJECT

 private:
  toolwindow::ListWindow& list(Qt::Key letter, const QString& name) const {
    key(program->tools(), letter, Qt::ControlModifier | Qt::ShiftModifier);
    return *program->tools().findChild<toolwindow::ListWindow*>(name);
  }
  toolwindow::ListWindow& faults() const { return list(Qt::Key_K, u"Faults"_s); }
  mainwindows::SideBySide& sideBySide() const {
    key(program->tools(), Qt::Key_B, Qt::ControlModifier);
    return *program->tools().findChild<mainwindows::SideBySide*>();
  }
  /// The rows of the list that have the word.
  static QStringList rowsWith(const toolwindow::ListWindow& window, const QString& word) {
    return entries(*window.List).filter(word);
  }
  QString place() const {
    const toolwindow::Form2& tools = program->tools();
    const QString row = tools.values().rowText(tools.values().selectedRow());
    return QStringList{tools.screens().Text(), tools.objects().Text(), row}.join(u'/');
  }
  static QImage picture(const QWidget& window) {
    return named<QLabel>(window, "Large")->pixmap().toImage().convertToFormat(QImage::Format_RGB32);
  }

 private Q_SLOTS:
  void mendsFromTheList() {
    program->edit(u"W"_s, u"0"_s);
    const auto before = game->files();
    key(program->form, Qt::Key_F8);
    QTRY_VERIFY_WITH_TIMEOUT(program->status().contains(u" of "_s), 20000);
    toolwindow::ListWindow& window = faults();
    const QString fault = u"error: Loading Screen, LoadingStaticA, W x H: '0 x 60' leaves no area"_s;
    QTRY_COMPARE_WITH_TIMEOUT(rowsWith(window, u"no area"_s), QStringList(fault), 20000);
    QCOMPARE(window.windowTitle(), u"What is wrong: %1"_s.arg(window.List->ListCount()));
    const QStringList worstFirst =
        rowsWith(window, u"error:"_s) + rowsWith(window, u"warning:"_s) + rowsWith(window, u"note:"_s);
    QCOMPARE(entries(*window.List), worstFirst);
    QVERIFY(!rowsWith(window, u"note:"_s).isEmpty());
    program->screen(u"Main Screen"_s);
    window.Line->SetText(u"area error"_s);
    QVERIFY2(window.windowTitle().startsWith(u"What is wrong: 1 of "), qPrintable(window.windowTitle()));
    key(window, Qt::Key_Return);
    QCOMPARE(place(), u"Loading Screen/LoadingStaticA/W"_s);
    QCOMPARE(game->files(), before);
    // Behind it comes the next one; the edit's own check follows by itself.
    program->change(u"W"_s, u"100"_s);
    window.open();
    window.Line->SetText({});
    QTRY_COMPARE_WITH_TIMEOUT(rowsWith(window, u"no area"_s), QStringList(), 20000);
    QVERIFY(window.List->ListCount() > 0);
    // That of a colour, too, which is written at once.
    QVERIFY(editing::changeColor(program->form.session(), u"Red"_s, u"1"_s));
    QTRY_VERIFY_WITH_TIMEOUT(!rowsWith(window, u"Colors, Red"_s).isEmpty(), 20000);
    QCOMPARE(place(), u"Loading Screen/LoadingStaticA/W"_s);  // only a key goes on
    window.hide();
    program->screen(u"Main Screen"_s);
    key(program->form, Qt::Key_F8);
    const QString red = u" of %1: error: Themes/Alpha.ini:5, Colors, Red"_s.arg(window.List->ListCount());
    QVERIFY2(program->status().contains(red), qPrintable(program->status()));
    // What the list went to counts as the last one.
    const int present = program->status().section(u' ', 0, 0).toInt();
    key(program->form, Qt::Key_F8);
    const QString next = program->status();
    faults().List->SetListIndex(present - 1);
    key(window, Qt::Key_Return);
    key(program->form, Qt::Key_F8);
    QCOMPARE(program->status(), next);
    // What it drops stands first.
    program->screen(u"Loading Screen"_s);
    program->tag(u"LoadingStaticA"_s);
    program->row(u"X"_s);
    QTest::keyClicks(Editors(program->tools()).Text1, u"5"_s);
    key(program->form, Qt::Key_F8);
    QVERIFY2(program->status().startsWith(u"not taken over: X = "), qPrintable(program->status()));
    QVERIFY2(program->status().contains(u" of %1: "_s.arg(faults().List->ListCount())), qPrintable(program->status()));
  }

  /// The first F8 waits for the check. Close and another Open end it, wherever it is.
  void goesWithTheTheme() {
    program->edit(u"W"_s, u"0"_s);
    key(program->form, Qt::Key_F8);
    QCOMPARE(program->status(), u"The theme is being checked"_s);
    QTRY_VERIFY_WITH_TIMEOUT(program->status().contains(u" of "_s), 20000);
    program->dialogs.boxes.assign(9, platform::BoxAnswer::Yes);
    // One that still waits ends with its theme.
    for (int times = 0; times < 2; ++times) {
      program->click(3);
      program->open();
      if (times == 0) key(program->form, Qt::Key_F8);
    }
    const QString opened = place();
    const toolwindow::ListWindow& next = faults();
    QTRY_VERIFY_WITH_TIMEOUT(next.List->ListCount() > 0, 20000);
    settle();
    QCOMPARE(place(), opened);
    for (const int wait : {350, 400, 600}) {
      faults();
      sideBySide();
      QTest::qWait(wait);
      program->click(3);
      settle();
      QVERIFY(program->form.toolWindow() == nullptr);
      key(program->form, Qt::Key_F8);
      program->open();
      QVERIFY(faults().List->ListCount() == 0);
    }
    // Nothing is chosen under a dialog.
    toolwindow::ListWindow& window = faults();
    key(program->form, Qt::Key_F8);
    const QString before = place();
    program->openDialog([&](mainwindows::Form3& dialog) {
      const auto cancel = qScopeGuard([&] { dialog.reject(); });
      QTRY_VERIFY_WITH_TIMEOUT(window.List->ListCount() > 0, 20000);
      settle();
      QCOMPARE(place(), before);
    });
    QVERIFY2(program->status().contains(u" of "_s), qPrintable(program->status()));
  }

  /// What is minimized comes back as it was, and a close box is like Esc. A working copy that is gone is a finding.
  void comesBackAsItWas() {
    program->tools().values().setFocus();
    toolwindow::ListWindow& changes = list(Qt::Key_E, u"Changes"_s);
    changes.showMinimized();
    changes.showNormal();
    program->edit(u"W"_s, u"0"_s);
    QTRY_COMPARE(changes.List->ListCount(), 1);
    // What is new has nothing to put back.
    auto& putBack = *named<QPushButton>(changes, "Action");
    QVERIFY(putBack.isEnabled() && putBack.text() == u"Put back 1 value");
    game->put(ThemeCopy,
              game->get(ThemeCopy).replace("[LoadingStaticA]\r\n", "[LoadingStaticA]\r\nNew=1\r\nW=100\r\n"));
    program->tag(u"LoadingTextFree"_s);
    QTRY_COMPARE(rowsWith(changes, u"New"_s), QStringList(u"Loading Screen, LoadingStaticA: New = 1 (new)"_s));
    QVERIFY(!putBack.isEnabled() && putBack.text() == u"Put back");
    program->tools().activateWindow();
    list(Qt::Key_E, u"Changes"_s).close();
    QVERIFY(QTest::qWaitForWindowActive(&program->tools()) && program->tools().values().hasFocus());
    toolwindow::ListWindow& window = faults();
    QTRY_VERIFY_WITH_TIMEOUT(window.List->ListCount() > 1, 20000);
    // F5 checks what another program has done. Behind a mended finding comes the one in its place, behind the only one
    // that leads anywhere that one again.
    for (const auto& [values, found] : {std::pair("X=a|", 3), {"X=a|Size=9|", 2}, {"X=1|Size=9|", 1}}) {
      game->put(ThemeCopy, linesOf("[Colors]|Red=1 2 3|[Main]|[MainTextA]|Y=1|Text=HELLO|Color=No|"_ba + values));
      key(program->form, Qt::Key_F5);
      QTRY_VERIFY2_WITH_TIMEOUT(rowsWith(window, u"MainTextA"_s).size() == found,
                                qPrintable(entries(*window.List).join(u'\n')), 20000);
      key(program->form, Qt::Key_F8);
      QVERIFY2(program->status().startsWith(u"1 of "), qPrintable(program->status()));
    }
    QFile::remove(game->native(ThemeCopy));
    faults();
    QTRY_COMPARE_WITH_TIMEOUT(window.windowTitle(), u"What is wrong: 1"_s, 20000);
    QVERIFY2(window.List->List(0).contains(u"can't be read"_s), qPrintable(window.List->List(0)));
  }

  /// Each picture is what the preview would draw; the open one as it stands now.
  void drawsEachSkinAndLanguage() {
    const auto before = game->files();
    mainwindows::SideBySide& window = sideBySide();
    auto& list = *named<QListWidget>(window, "List");
    const auto names = [&] {
      QStringList all;
      for (int i = 0; i < list.count(); ++i) all += list.item(i)->text();
      return all.join(u'|');
    };
    QCOMPARE(list.accessibleName(), u"The screen in each skin and language"_s);
    QCOMPARE(names(), u"One, English|Two, English|One, Deutsch"_s);
    QTRY_VERIFY_WITH_TIMEOUT(!list.item(2)->icon().isNull(), 20000);
    key(window, Qt::Key_Return);
    QCOMPARE(window.windowTitle(), u"Loading Screen: One, English"_s);
    QCOMPARE(picture(window), program->picture().convertToFormat(QImage::Format_RGB32));
    QCOMPARE(game->files(), before);
    program->tag(u"LoadingStaticA"_s);
    program->change(u"Y"_s, u"200"_s);
    QTRY_COMPARE_WITH_TIMEOUT(picture(window), program->picture().convertToFormat(QImage::Format_RGB32), 20000);
    key(window, Qt::Key_Escape);
    QVERIFY(window.isVisible() && list.hasFocus());
    clickAt(*list.viewport(), list.visualItemRect(list.item(2)).center());
    QVERIFY(picture(window) != program->picture().convertToFormat(QImage::Format_RGB32));
    game->put(u"Skins/Alpha/Three.ini"_s, "[Textures]");  // by another program
    key(program->form, Qt::Key_F5);
    QCOMPARE(names(), u"One, English|Three, English|Two, English|One, Deutsch"_s);
    QVERIFY(list.hasFocus());
    // What is wanted before it is drawn comes before the others.
    QList<int> drawn;
    connect(list.model(), &QAbstractItemModel::dataChanged, this,
            [&](const QModelIndex& item) { drawn += item.row(); });
    list.setCurrentRow(3);
    key(window, Qt::Key_Return);
    QVERIFY(picture(window).isNull() && window.windowTitle() == u"Loading Screen: One, Deutsch"_s);
    QTRY_VERIFY_WITH_TIMEOUT(!picture(window).isNull(), 20000);
    QCOMPARE(drawn.first(), 3);
    press(*named<QLabel>(window, "Large"));
    QVERIFY(list.hasFocus());
    QFile::remove(game->native(SkinFile));  // what is open is there all the same
    key(program->form, Qt::Key_F5);
    QCOMPARE(names(), u"Three, English|Two, English|One, English|One, Deutsch"_s);
    key(window, Qt::Key_Escape);
    QVERIFY(!window.isVisible());
  }

  /// In the chosen scheme, and with the texts that a selected button without a text leaves to the next one to move.
  void drawsAsThePreviewStands() {
    const QByteArray moved = game->get(ThemeFile)
                                 .replace("Texts=1\r\n", "")
                                 .replace("[LoadingButtonLast]\r\n", "[LoadingButtonLast]\r\nTexts=1\r\n")
                                 .replace("GoText1", "LastText1")
                                 .replace("X=40\r\nY=50\r\nW=100\r\nH=60", "X=0\r\nY=0\r\nW=800\r\nH=600")
                                 .replace("Color=Blue", "Color=ColorDark");
    game->put(ThemeFile, moved);
    program->click(3);
    program->open();
    program->form.schemes().SetListIndex(3);
    program->form.queue().draw();
    mainwindows::SideBySide& window = sideBySide();
    const QListWidgetItem& first = *named<QListWidget>(window, "List")->item(0);
    QTRY_VERIFY_WITH_TIMEOUT(!first.icon().isNull(), 20000);
    QKeyEvent held(QEvent::KeyPress, Qt::Key_Return, Qt::NoModifier, u"\r"_s, true);
    QApplication::sendEvent(&window, &held);
    QCOMPARE(window.windowTitle(), u"Loading Screen in each skin and language"_s);
    key(window, Qt::Key_Return);
    QCOMPARE(picture(window), program->picture().convertToFormat(QImage::Format_RGB32));
  }
};

QTEST_MAIN(WholeThemeTest)
#include "whole_theme_test.moc"
