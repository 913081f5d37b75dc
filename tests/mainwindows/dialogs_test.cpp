#include <QColorDialog>
#include <QFileDialog>
#include <QInputDialog>
#include <QMessageBox>

#include "controls/native_dialogs.h"
#include "support/results.h"
#include "support/windows.h"

using namespace support;

namespace {

/// Writes down each dialog that comes up, and answers it: an input with the next name, a question with Yes and the Open
/// dialog with Open if told so, all else with Cancel.
class Watch {
 public:
  Watch() {
    timer_.callOnTimeout([this] {
      auto* dialog = qobject_cast<QDialog*>(QApplication::activeModalWidget());
      if (dialog == nullptr || dialog->property("answered").toBool()) return;
      dialog->setProperty("answered", true);
      answer(*dialog);
    });
    timer_.start(1);
  }
  /// Tells what comes up when `act` runs.
  void when(const QString& what, const std::function<void()>& act) {
    lines += QStringList{u""_s, u"== "_s + what};
    act();
    settle();
  }

  QStringList lines, names;
  bool saysYes = false;

 private:
  void answer(QDialog& dialog) {
    const QWidget* parent = dialog.parentWidget();
    const QString head = QString::fromLatin1(dialog.metaObject()->className()).section(u':', -1) + u" over "_s +
                         (parent == nullptr ? u"nothing"_s : parent->objectName()) + u": "_s + dialog.windowTitle();
    lines += head;
    if (auto* box = qobject_cast<QMessageBox*>(&dialog)) return answerBox(*box);
    if (auto* input = qobject_cast<QInputDialog*>(&dialog)) {
      lines += u"  "_s + input->labelText() + u" ["_s + input->textValue() + u']';
      input->setTextValue(names.isEmpty() ? QString() : names.takeFirst());
      return input->accept();
    }
    if (auto* colors = qobject_cast<QColorDialog*>(&dialog)) lines += u"  "_s + colors->currentColor().name();
    if (auto* files = qobject_cast<QFileDialog*>(&dialog)) {
      QStringList chosen{files->selectedFiles()};
      chosen.removeAll(files->directory().path());
      lines += u"  in "_s + files->directory().path();
      lines += u"  chosen "_s + chosen.join(u", ");
      lines += u"  filters "_s + files->nameFilters().join(u", ");
      lines += u"  mode %1, opens %2, read-only %3"_s.arg(files->fileMode())
                   .arg(files->acceptMode() == QFileDialog::AcceptOpen)
                   .arg(files->testOption(QFileDialog::ReadOnly));
    }
    auto* open = qobject_cast<mainwindows::Form3*>(&dialog);
    open != nullptr&& saysYes ? open->openButton().click() : dialog.reject();
  }
  void answerBox(QMessageBox& box) {
    const QStringList icons{u"no icon"_s, u"information"_s, u"warning"_s, u"critical"_s, u"question"_s};
    QStringList buttons;
    for (const QAbstractButton* button : box.buttons()) {
      buttons += button->text() + (button == box.defaultButton() ? u" (default)"_s : u""_s) +
                 (button == box.escapeButton() ? u" (Escape)"_s : u""_s);
    }
    lines += u"  %1: %2"_s.arg(icons.value(box.icon()), box.text().replace(u'\n', u'|'));
    lines += u"  %1%2"_s.arg(buttons.join(u", "), box.textFormat() == Qt::PlainText ? u""_s : u", not plain"_s);
    QAbstractButton* yes = saysYes ? box.button(QMessageBox::Yes) : nullptr;
    yes != nullptr ? yes->click() : box.reject();
  }

  QTimer timer_;
};

}  // namespace

/// All messages and dialogs of the program, as the toolkit shows them, against the list kept.
class DialogsTest : public QObject {
  Q_OBJECT

 private Q_SLOTS:
  void dialogs() {
    QApplication::setAttribute(Qt::AA_DontUseNativeDialogs);
    const GameFolder game, empty;
    QFile::remove(empty.native(ThemeFile));
    QDir::setCurrent(game.native({}));  // where a file dialog begins that is told no folder
    controls::NativeDialogs native;
    Watch watch;
    {
      Program program(game, false, &native);
      watch.when(u"Open, no game folder known"_s, [&] { program.click(1); });
    }
    {
      Program program(empty, true, &native);
      watch.when(u"Open, no themes there"_s, [&] { program.click(1); });
    }
    Program program(game, true, &native);
    watch.when(u"Open"_s, [&] { program.click(1); });
    program.form.activateWindow();
    QVERIFY(QTest::qWaitForWindowActive(&program.form));
    watch.when(u"another game folder"_s,
               [&] { QTest::keyClick(&program.form, Qt::Key_O, Qt::ControlModifier | Qt::ShiftModifier); });
    watch.saysYes = true;
    watch.when(u"Open, taken"_s, [&] { program.click(1); });
    const toolwindow::Form2& tools = program.tools();
    watch.when(u"background colour"_s, [&] { program.click(4); });
    program.soleRow(u"Color"_s, u"Red"_s);
    watch.when(u"change a colour"_s, [&] { Editors(tools).Command2->click(); });
    watch.names = QStringList{u"red"_s, u" a "_s};
    watch.when(u"add a colour that is there"_s, [&] { Editors(tools).Command3->click(); });
    watch.when(u"add a colour of a name that no file holds"_s, [&] { Editors(tools).Command3->click(); });
    watch.when(u"remove a colour"_s, [&] { Editors(tools).Command5->click(); });
    QVERIFY(program.colors().filter(u"Red"_s).isEmpty());
    program.soleRow(u"Tex"_s, u"Plate"_s);
    watch.when(u"choose an image"_s, [&] { Editors(tools).Command4->click(); });
    watch.names = QStringList{u"plate"_s, u"[x"_s};
    watch.when(u"add a texture that is there"_s, [&] { Editors(tools).Command8->click(); });
    watch.when(u"add a texture of a name that no file holds"_s, [&] { Editors(tools).Command8->click(); });
    watch.when(u"remove a texture"_s, [&] { Editors(tools).Command9->click(); });
    program.soleRow(u"Text"_s, u"HELLO"_s);
    watch.names = QStringList{u"hello"_s};
    watch.when(u"add a text that is there"_s, [&] { Editors(tools).Command6->click(); });
    watch.when(u"remove a text"_s, [&] { Editors(tools).Command7->click(); });
    program.edit();
    watch.saysYes = false;
    watch.when(u"Open with changes"_s, [&] { program.click(1); });
    watch.when(u"Close with changes"_s, [&] { program.click(3); });
    QDir::setCurrent(QDir::rootPath());
    watch.when(u"without a title or a window"_s,
               [&] { native.messageBox(nullptr, u"<b>told</b>"_s, {}, platform::BoxKind::Error); });
    watch.lines.replaceInStrings(game.native({}), u"GAME"_s).replaceInStrings(game.path(), u"GAME\\"_s);
    compareText(u"dialogs.txt"_s, watch.lines);
  }
};

QTEST_MAIN(DialogsTest)
#include "dialogs_test.moc"
