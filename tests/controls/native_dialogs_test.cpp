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
using namespace Qt::StringLiterals;

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
    QApplication::setApplicationName(u"Cantorama Theme Edit"_s);
    QApplication::setAttribute(Qt::AA_DontUseNativeDialogs);
  }

  void boxAnswers() {
    const auto answer = [](BoxKind kind, Qt::Key key) {
      WhenShown<QMessageBox>([key](QMessageBox& box) {
        QCOMPARE(box.windowTitle(), u"Cantorama Theme Edit"_s);
        QCOMPARE(box.textFormat(), Qt::PlainText);
        if (key == Qt::Key_Y) return box.button(QMessageBox::Yes)->click();
        QTest::keyClick(&box, key);
      });
      return NativeDialogs().MessageBox(nullptr, u"text"_s, QString(), kind);
    };
    QCOMPARE(answer(BoxKind::Error, Qt::Key_Return), BoxAnswer::Ok);
    QCOMPARE(answer(BoxKind::YesNoDefaultNo, Qt::Key_Return), BoxAnswer::No);
    QCOMPARE(answer(BoxKind::YesNoDefaultNo, Qt::Key_Escape), BoxAnswer::No);
    QCOMPARE(answer(BoxKind::YesNoDefaultNo, Qt::Key_Y), BoxAnswer::Yes);
  }

  void inputIsTakenAsTyped() {
    WhenShown<QInputDialog>([](QInputDialog& dialog) {
      QCOMPARE(dialog.findChild<QLabel*>()->textFormat(), Qt::PlainText);
      QTest::keyClicks(dialog.findChild<QLineEdit*>(), u" My=Color "_s);
      QTest::keyClick(&dialog, Qt::Key_Return);
    });
    QCOMPARE(NativeDialogs().InputBox(nullptr, u"Name of the New Color:"_s, QString()), u" My=Color "_s);
  }

  void fileDialogOpensInItsFolder() {
    QTemporaryDir folder;
    QFile file(folder.filePath(u"Vocora.exe"_s));
    QVERIFY(file.open(QIODevice::WriteOnly));
    platform::FileRequest request{u"Game"_s, u"Cantorama (Vocora.exe)|Vocora.exe"_s, u"Vocora.exe"_s,
                                  folder.path().replace(u'/', u'\\')};
    WhenShown<QFileDialog>([](QFileDialog& dialog) { QTest::keyClick(&dialog, Qt::Key_Return); });
    QCOMPARE(NativeDialogs().OpenFile(nullptr, request), file.fileName().replace(u'/', u'\\'));
    WhenShown<QFileDialog>([](QFileDialog& dialog) { dialog.reject(); });
    QCOMPARE(NativeDialogs().OpenFile(nullptr, request), QString());
  }

  void filters() {
    QCOMPARE(controls::NameFilters(u"Pictures (*.bmp,*.gif)|*.bmp;*.gif|Program|Vocora.exe"_s),
             (QStringList{u"Pictures (*.bmp,*.gif) (*.bmp *.gif)"_s, u"Program (Vocora.exe)"_s}));
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
