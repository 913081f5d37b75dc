#include "controls/native_dialogs.h"

#include <QApplication>
#include <QColorDialog>
#include <QFileDialog>
#include <QInputDialog>
#include <QLabel>
#include <QLineEdit>
#include <QMessageBox>
#include <QPushButton>
#include <QTemporaryDir>
#include <QTest>
#include <QTimer>

using controls::NativeDialogs;
using platform::BoxAnswer;
using platform::BoxKind;

namespace {

/// Does something to the dialog that is about to come up.
template <typename Dialog, typename Act>
void WhenShown(Act act) {
  QTimer::singleShot(50, [act] {
    auto* dialog = qobject_cast<Dialog*>(QApplication::activeModalWidget());
    if (dialog == nullptr) qFatal("another dialog than expected");
    act(*dialog);
  });
}

}  // namespace

class NativeDialogsTest : public QObject {
  Q_OBJECT

 private Q_SLOTS:
  void initTestCase() {
    QApplication::setApplicationName(QStringLiteral("Cantorama Theme Edit"));
    QApplication::setAttribute(Qt::AA_DontUseNativeDialogs);
  }

  void boxAnswers_data() {
    QTest::addColumn<BoxKind>("kind");
    QTest::addColumn<int>("key");
    QTest::addColumn<BoxAnswer>("answer");
    QTest::newRow("error, Enter") << BoxKind::Error << int(Qt::Key_Return) << BoxAnswer::Ok;
    QTest::newRow("question, Enter") << BoxKind::YesNoDefaultNo << int(Qt::Key_Return) << BoxAnswer::No;
    QTest::newRow("question, Escape") << BoxKind::YesNoDefaultNo << int(Qt::Key_Escape) << BoxAnswer::No;
    QTest::newRow("question, Yes") << BoxKind::YesNoDefaultNo << int(Qt::Key_Y) << BoxAnswer::Yes;
  }
  void boxAnswers() {
    QFETCH(BoxKind, kind);
    QFETCH(int, key);
    WhenShown<QMessageBox>([key](QMessageBox& box) {
      QCOMPARE(box.windowTitle(), QStringLiteral("Cantorama Theme Edit"));
      QCOMPARE(box.textFormat(), Qt::PlainText);
      if (key == Qt::Key_Y) {
        QTest::mouseClick(box.button(QMessageBox::Yes), Qt::LeftButton);
      } else {
        QTest::keyClick(&box, Qt::Key(key));
      }
    });
    QTEST(NativeDialogs().MessageBox(nullptr, QStringLiteral("text"), QString(), kind), "answer");
  }

  void inputIsTakenAsTyped() {
    WhenShown<QInputDialog>([](QInputDialog& dialog) {
      QCOMPARE(dialog.findChild<QLabel*>()->textFormat(), Qt::PlainText);
      QTest::keyClicks(dialog.findChild<QLineEdit*>(), QStringLiteral(" My=Color "));
      QTest::keyClick(&dialog, Qt::Key_Return);
    });
    QCOMPARE(NativeDialogs().InputBox(nullptr, QStringLiteral("Name of the New Color:"), QString()),
             QStringLiteral(" My=Color "));
  }

  void fileDialogOpensInItsFolder() {
    QTemporaryDir folder;
    QFile file(folder.filePath(QStringLiteral("Vocora.exe")));
    QVERIFY(file.open(QIODevice::WriteOnly));
    platform::FileRequest request{QStringLiteral("Game"), QStringLiteral("Cantorama (Vocora.exe)|Vocora.exe"),
                                  QStringLiteral("Vocora.exe"), folder.path().replace(u'/', u'\\')};
    WhenShown<QFileDialog>([](QFileDialog& dialog) { QTest::keyClick(&dialog, Qt::Key_Return); });
    QCOMPARE(NativeDialogs().OpenFile(nullptr, request), file.fileName().replace(u'/', u'\\'));
    WhenShown<QFileDialog>([](QFileDialog& dialog) { dialog.reject(); });
    QCOMPARE(NativeDialogs().OpenFile(nullptr, request), QString());
  }

  void filters() {
    const QString filter = QStringLiteral("Pictures (*.bmp,*.gif)|*.bmp;*.gif|Program|Vocora.exe");
    const QStringList expected = {QStringLiteral("Pictures (*.bmp,*.gif) (*.bmp *.gif)"),
                                  QStringLiteral("Program (Vocora.exe)")};
    QCOMPARE(controls::NameFilters(filter), expected);
    QCOMPARE(controls::NameFilters(QString()), QStringList());
  }

  void colorOpensOnThePresentOne() {
    const QColor present(150, 20, 3);
    WhenShown<QColorDialog>([present](QColorDialog& dialog) {
      QCOMPARE(dialog.currentColor(), present);
      dialog.accept();
    });
    QCOMPARE(NativeDialogs().ChooseColor(nullptr, present), std::optional(present));
    WhenShown<QColorDialog>([](QColorDialog& dialog) { dialog.reject(); });
    QVERIFY(!NativeDialogs().ChooseColor(nullptr, present));
  }
};

QTEST_MAIN(NativeDialogsTest)
#include "native_dialogs_test.moc"
