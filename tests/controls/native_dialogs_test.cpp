#include "controls/native_dialogs.h"

#include <QApplication>
#include <QFileDialog>
#include <QHeaderView>
#include <QLabel>
#include <QLineEdit>
#include <QMessageBox>
#include <QPushButton>
#include <QScreen>
#include <QScrollBar>
#include <QTest>
#include <QTimer>
#include <QTreeView>

#include "support/folder.h"
#include "support/pictures.h"

using controls::NativeDialogs;
using namespace Qt::StringLiterals;

namespace {

constexpr int Patience = 60'000;  // milliseconds, for a busy machine

/// Does something to the dialog that is about to come up, once it is there.
template <typename Dialog, typename Act>
void whenShown(Act act) {
  auto* const look = new QTimer(qApp);
  look->start(1);
  look->callOnTimeout([look, act] {
    auto* dialog = qobject_cast<Dialog*>(QApplication::activeModalWidget());
    if (dialog == nullptr || !dialog->isVisible()) return;
    look->stop();
    look->deleteLater();
    act(*dialog);
    if (QTest::currentTestFailed()) dialog->reject();
  });
}

}  // namespace

class NativeDialogsTest : public QObject {
  Q_OBJECT

 private Q_SLOTS:
  void initTestCase() { QApplication::setAttribute(Qt::AA_DontUseNativeDialogs); }

  void fileDialogOnlyReads() {
    const support::Folder folder;
    QDir(folder.native({})).mkpath(u"sub/deeper"_s);
    folder.put(u"sub/deeper/a.png"_s, "a");
    whenShown<QFileDialog>([&folder](QFileDialog& dialog) {
      auto& list = *dialog.findChild<QTreeView*>(u"treeView"_s);
      list.setFocus();
      QTRY_COMPARE_WITH_TIMEOUT(list.model()->rowCount(list.rootIndex()), 1, Patience);
      list.setCurrentIndex(list.model()->index(0, 0, list.rootIndex()));
      QTimer yes;
      yes.callOnTimeout([] {  // to what the toolkit asks before it removes something
        auto* question = qobject_cast<QMessageBox*>(QApplication::activeModalWidget());
        if (question != nullptr) question->button(QMessageBox::Yes)->click();
      });
      yes.start(1);
      QTest::keyClick(&list, Qt::Key_Delete);
      QTest::keyClick(&list, Qt::Key_F2);
      if (auto* editor = list.findChild<QLineEdit*>()) {
        QTest::keyClicks(editor, u"other"_s);
        QTest::keyClick(editor, Qt::Key_Return);
      }
      QVERIFY(folder.has(u"sub/deeper/a.png"_s));
      dialog.reject();
    });
    NativeDialogs().openFile(nullptr, {{}, u"Pictures|*.png"_s, {}, folder.path({}), true});
    QCOMPARE(QDir(folder.native({})).entryList(QDir::AllEntries | QDir::NoDotAndDotDot), QStringList{u"sub"_s});
  }

  void imageDialogShowsThePresentFile() {
    const support::Folder folder;
    for (int i = 0; i < 200; ++i) folder.put(u"p%1.png"_s.arg(i), {});
    support::plainPicture(40, 400, qRgb(200, 0, 0)).save(folder.native(u"p150.png"_s));
    QDir(folder.native({})).mkdir(u"sub"_s);
    support::plainPicture(4, 4, qRgb(0, 200, 0)).save(folder.native(u"sub/other.png"_s));
    const platform::FileRequest request{{}, u"Pictures|*.png"_s, u"P150.png"_s, folder.path({}), true};
    const auto answer = [&](const QString& typed) {
      whenShown<QFileDialog>([&typed](QFileDialog& dialog) {
        const auto& list = *dialog.findChild<QTreeView*>(u"treeView"_s);
        QTRY_COMPARE_WITH_TIMEOUT(list.model()->rowCount(list.rootIndex()), 201, Patience);
        QTRY_COMPARE_WITH_TIMEOUT(list.currentIndex().data().toString(), u"p150.png"_s, Patience);
        const auto inSight = [&] { return list.viewport()->rect().contains(list.visualRect(list.currentIndex())); };
        QTRY_VERIFY_WITH_TIMEOUT(inSight(), Patience);
        const QPixmap shown = dialog.findChild<QLabel*>(u"thumbnail"_s)->pixmap();
        const QColor color = shown.toImage().pixelColor(8, 80);
        QVERIFY(shown.size() == QSize(16, 160) && color.red() > 190 && color.green() == 0);
        const QSize room = dialog.screen()->availableGeometry().size();  // which has to hold its frame, too
        QVERIFY(dialog.width() < room.width() && dialog.height() < std::min(room.height(), dialog.width()));
        if (!typed.isEmpty()) {
          auto& line = *dialog.findChild<QLineEdit*>();
          dialog.activateWindow();
          line.setFocus();
          QTRY_VERIFY_WITH_TIMEOUT(line.hasFocus(), Patience);  // else the selection takes the line's text
          line.setText(typed);
          // As the toolkit does when the folders on the way are slow to be listed.
          list.selectionModel()->select(list.rootIndex(), QItemSelectionModel::Select | QItemSelectionModel::Rows);
        }
        QMetaObject::invokeMethod(&dialog, "accept");  // Return may belong to the list of completions
        if (dialog.isVisible()) dialog.reject();
      });
      return NativeDialogs().openFile(nullptr, request);
    };
    QCOMPARE(answer({}), folder.path(u"p150.png"_s));
    QCOMPARE(answer(folder.native(u"sub/other.png"_s)), folder.path(u"sub/other.png"_s));
    QCOMPARE(answer(folder.native(u"p7.png"_s)), folder.path(u"p7.png"_s));
    QCOMPARE(answer(folder.native(u"sub"_s)), QString());  // goes there
  }

  void cancelledColorIsNone() {
    whenShown<QDialog>([](QDialog& dialog) { dialog.reject(); });
    QVERIFY(!NativeDialogs().chooseColor(nullptr, Qt::red));
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
    QCOMPARE(narrow.join(u","_s), QString());
  }
};

QTEST_MAIN(NativeDialogsTest)
#include "native_dialogs_test.moc"
