#include "controls/native_dialogs.h"

#include <QApplication>
#include <QColorDialog>
#include <QFileDialog>
#include <QHeaderView>
#include <QInputDialog>
#include <QLineEdit>
#include <QMessageBox>
#include <QPushButton>
#include <QScrollBar>
#include <QTest>
#include <QTimer>
#include <QTreeView>

#include "support/folder.h"

using controls::NativeDialogs;
using platform::BoxAnswer;
using platform::BoxKind;
using namespace Qt::StringLiterals;

namespace {

/// Does something to the dialog that is about to come up.
template <typename Dialog, typename Act>
void whenShown(Act act) {
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
  void boxAnswers() {
    const auto answer = [](Qt::Key key) {
      whenShown<QMessageBox>([key](QMessageBox& box) {
        QCOMPARE(box.textFormat(), Qt::PlainText);
        if (key == Qt::Key_Y) return box.button(QMessageBox::Yes)->click();
        QTest::keyClick(&box, key);
      });
      return NativeDialogs().messageBox(nullptr, u"text"_s, QString(), BoxKind::YesNoDefaultNo);
    };
    QCOMPARE(answer(Qt::Key_Return), BoxAnswer::No);
    QCOMPARE(answer(Qt::Key_Y), BoxAnswer::Yes);
  }

  void fileDialogOpensInItsFolder() {
    QApplication::setAttribute(Qt::AA_DontUseNativeDialogs);
    const support::Folder folder;
    folder.put(u"Vocora.exe"_s, {});
    const platform::FileRequest request{
        {}, u"Pictures|*.bmp;*.gif|Game|Vocora.exe"_s, u"Vocora.exe"_s, folder.path({})};
    whenShown<QFileDialog>([](QFileDialog& dialog) {
      QCOMPARE(dialog.nameFilters(), (QStringList{u"Pictures (*.bmp *.gif)"_s, u"Game (Vocora.exe)"_s}));
      QTest::keyClick(&dialog, Qt::Key_Return);
    });
    QCOMPARE(NativeDialogs().openFile(nullptr, request), folder.path(u"Vocora.exe"_s));
  }

  void imageDialogShowsItsColumnsWhole() {
    const support::Folder folder;
    folder.put(u"picture_with_a_long_name.png"_s, QByteArray(123456, 'x'));
    QStringList narrow{u"never shown"_s};
    whenShown<QFileDialog>([&narrow](QFileDialog& dialog) {
      const auto& list = *dialog.findChild<QTreeView*>(u"treeView"_s);
      const auto isWide = [&] {
        narrow.clear();
        for (int column = 0; column < list.header()->count(); ++column) {
          const QModelIndex cell = list.model()->index(0, column, list.rootIndex());
          const int needed = list.sizeHintForIndex(cell).width();
          if (list.columnWidth(column) < needed) narrow += u"%1: %2"_s.arg(column).arg(needed);
        }
        if (list.horizontalScrollBar()->maximum() > 0) narrow += u"all"_s;
        return narrow.isEmpty();
      };
      static_cast<void>(QTest::qWaitFor(isWide));
      dialog.reject();
    });
    QCOMPARE(NativeDialogs().openFile(nullptr, {{}, u"Pictures|*.png"_s, {}, folder.path({}), true}), QString());
    QCOMPARE(narrow, QStringList());
  }

  void inputBoxGivesWhatWasTyped() {
    whenShown<QInputDialog>([](QInputDialog& dialog) {
      QTest::keyClicks(dialog.findChild<QLineEdit*>(), u"  A &b "_s);
      QTest::keyClick(&dialog, Qt::Key_Return);
    });
    QCOMPARE(NativeDialogs().inputBox(nullptr, u"Name:"_s, u"Title"_s), u"  A &b "_s);
  }

  void colorOpensOnThePresentOne() {
    const QColor present(150, 20, 3);
    whenShown<QColorDialog>([present](QColorDialog& dialog) {
      QCOMPARE(dialog.currentColor(), present);
      dialog.reject();
    });
    QVERIFY(!NativeDialogs().chooseColor(nullptr, present));
  }
};

QTEST_MAIN(NativeDialogsTest)
#include "native_dialogs_test.moc"
