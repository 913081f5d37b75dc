#include "mainwindows/picture_watch.h"

#include <QSignalSpy>

#include "mainwindows/preview_hand.h"
#include "support/windows.h"

using namespace support;
using mainwindows::PictureWatch;

namespace {

const QString Plate = u"Skins/Alpha/plate.png"_s;

/// A system that has no watches left.
class WithoutWatches : public PictureWatch {
 public:
  using PictureWatch::PictureWatch;
  QStringList wanted;

 protected:
  QStringList watch(const QStringList& paths) override { return wanted = paths; }
};

}  // namespace

/// What another program does to a picture shows by itself; what this one writes draws nothing.
class PictureWatchTest : public ProgramTest {
  Q_OBJECT

 private:
  int draws_ = 0;

  mainwindows::Form1& form() const { return program->form; }
  PictureWatch& watch() const { return *form().findChild<PictureWatch*>(); }
  /// Gives the texture of LoadingStaticA another file, and counts the drawings from there on.
  void use(const char* file) {
    game->put(SkinCopy, game->get(SkinCopy).replace("plate.png", file));
    controls::WorkQueue& queue = form().queue();
    queue.setOperations({queue.operations().choose, [this, draw = queue.operations().draw] {
                           ++draws_;
                           draw();
                         }});
    queue.draw();
    draws_ = 0;
  }
  bool shows(Qt::GlobalColor color) const { return program->picture().pixelColor(90, 80) == QColor(color); }
  /// Writes a picture of one colour.
  void put(const QString& name, Qt::GlobalColor color) const {
    game->put(name, encoded(plainPicture(4, 4, QColor(color).rgba()), "png"));
  }
  /// Does something that the watch is told of, and waits until it has come to rest.
  void rested(const std::function<void()>& act) const {
    const QSignalSpy rests(form().findChild<QTimer*>(u"PicturesAtRest"_s), &QTimer::timeout);
    act();
    QTRY_VERIFY(!rests.isEmpty());
  }
  /// Moves the skin's folder away, and makes it anew with the files that are named, one after the other.
  void makeFolderAnew(const QStringList& names, const std::function<void()>& gone) const {
    const QString folder = game->native(u"Skins/Alpha"_s);
    QVERIFY(QDir().rename(folder, game->native(u"away"_s)));
    gone();
    QDir().mkpath(folder);
    for (const QString& name : names) {
      rested([&] {
        QFile::copy(game->native(u"away/"_s + name), folder + u'/' + name);
        if (name == u"plate.png") put(Plate, Qt::green);
      });
    }
  }
  void renameOver(const QString& name, Qt::GlobalColor color) const {
    put(u"new"_s, color);
    std::filesystem::rename(game->native(u"new"_s).toStdString(), game->native(name).toStdString());
  }

 private Q_SLOTS:
  void changes_data() {
    using Change = std::function<void()>;
    QTest::addColumn<QByteArray>("file");
    QTest::addColumn<Change>("change");
    QTest::newRow("written in place") << "plate.png"_ba << Change([this] { put(Plate, Qt::green); });
    QTest::newRow("renamed over") << "plate.png"_ba << Change([this] { renameOver(Plate, Qt::green); });
    QTest::newRow("deleted and written anew") << "plate.png"_ba << Change([this] {
      QFile::remove(game->native(Plate));
      QTRY_VERIFY(!shows(Qt::blue));
      put(Plate, Qt::green);
    });
    QTest::newRow("appears") << "none.png"_ba << Change([this] { put(u"Skins/Alpha/None.PNG"_s, Qt::green); });
    QTest::newRow("its folder appears") << "deep\\er\\a.png"_ba << Change([this] {
      for (const QString& folder : {u"Skins/Alpha/deep"_s, u"Skins/Alpha/deep/er"_s}) {
        rested([&] { QDir().mkdir(game->native(folder)); });
      }
      put(u"Skins/Alpha/deep/er/a.png"_s, Qt::green);
    });
    const QStringList copyFirst{u"One.ini.tmp"_s, u"plate.png"_s};
    const QStringList copyLast{u"plate.png"_s, u"One.ini.tmp"_s};
    const auto seen = [this] { QTRY_VERIFY(!shows(Qt::blue)); };
    QTest::newRow("its folder made anew") << "plate.png"_ba << Change([=, this] { makeFolderAnew(copyLast, [] {}); });
    QTest::newRow("its folder comes back") << "plate.png"_ba << Change([=, this] { makeFolderAnew(copyLast, seen); });
    QTest::newRow("behind the working copy")
        << "plate.png"_ba << Change([=, this] { makeFolderAnew(copyFirst, seen); });
  }
  /// Twice: the watch goes on with the file that is there now.
  void changes() {
    QFETCH(QByteArray, file);
    QFETCH(std::function<void()>, change);
    put(Plate, Qt::blue);
    use(file);
    change();
    QTRY_VERIFY(shows(Qt::green));
    const QString now = u"Skins/Alpha/"_s + QLatin1StringView(file == "none.png" ? "None.PNG"_ba : file);
    put(platform::nativePath(now), Qt::red);
    QTRY_VERIFY(shows(Qt::red));
  }

  void burst() {
    use("plate.png");
    QElapsedTimer clock;
    clock.start();
    for (int i = 0; i < 100; ++i) {
      put(Plate, i < 99 ? Qt::blue : Qt::green);
      QCoreApplication::processEvents();
    }
    const qint64 rests = clock.elapsed() / 100;  // on a machine that halts now and then
    QTRY_VERIFY(shows(Qt::green));
    QVERIFY2(draws_ <= 2 + rests, QByteArray::number(draws_));
  }

  /// Changes that never rest are shown all the same, after two seconds.
  void changesWithoutEnd() {
    use("plate.png");
    QElapsedTimer clock, gap;
    qint64 longestGap = 0;
    clock.start();
    gap.start();
    for (int i = 0; draws_ == 0 && clock.elapsed() < 30'000; ++i) {
      put(Plate, i % 2 == 0 ? Qt::blue : Qt::green);
      longestGap = std::max(longestGap, gap.restart());
      QTest::qWait(5);
    }
    QVERIFY2(clock.elapsed() < 2500 + 5 * longestGap, QByteArray::number(clock.elapsed()));
#ifndef Q_OS_WIN  // Wine tells of several changes at once, and so late that the file seems to rest
    QVERIFY2(clock.elapsed() >= 1900 || longestGap > 90, QByteArray::number(clock.elapsed()));
#endif
  }

  void ownWrites() {
    use("plate.png");
    program->edit();
    QCOMPARE(draws_, 1);
    program->row(u"Tex"_s);
    Editors(program->tools()).Combo6->selectText(u"Plate"_s);
    Editors(program->tools()).Text3->SetText(u"back.png"_s);
    Editors(program->tools()).Command1->click();
    program->click(2);
    QCOMPARE(draws_, 2);
    // The skin's folder tells of the writes; a look after them finds nothing.
    QCoreApplication::processEvents();
    watch().look();
    QCOMPARE(draws_, 2);
  }

  void waits() {
    use("plate.png");
    program->tag(u"LoadingStaticA"_s);
    QTest::mousePress(form().Workspace, Qt::LeftButton, {}, {60, 60});
    put(Plate, Qt::green);
    watch().look();
    QCOMPARE(draws_, 0);
    QTest::mouseRelease(form().Workspace, Qt::LeftButton, {}, {60, 60});
    QTRY_VERIFY(shows(Qt::green));
    program->openDialog([&](mainwindows::Form3& dialog) {
      put(Plate, Qt::blue);
      watch().look();
      QVERIFY(shows(Qt::green));
      dialog.reject();
    });
    QTRY_VERIFY(shows(Qt::blue));
    program->click(3);
    put(Plate, Qt::green);
    watch().look();
    QCOMPARE(draws_, 2);
  }

  /// A change behind the drawing's look at the file, before the file is watched, or told in the midst of the drawing.
  void whileDrawing() {
    put(Plate, Qt::blue);
    use("plate.png");
    for (const bool told : {false, true}) {
      const auto color = told ? Qt::blue : Qt::green;
      draws_ = 0;
      watch().letGo();
      QObject life;
      connect(&form().queue(), &controls::WorkQueue::yielding, &life, [&] {
        if (draws_ > 1 || form().account().pictures.size() < 2 || shows(color)) return;
        put(Plate, color);
        if (told) watch().look();
      });
      form().queue().draw();
      QVERIFY2(draws_ == 1, "nothing nests, and the running one isn't begun again");
      QVERIFY(form().findChild<QTimer*>(u"PicturesAtRest"_s)->isActive());
      QTRY_COMPARE(draws_, 2);
      QVERIFY(shows(color));
    }
  }

  void noWatchesLeft() {
    const mainwindows::PreviewHand hand(form());
    WithoutWatches lacking(form(), hand);
    lacking.drawn();
    QVERIFY2(program->status().startsWith(u"The system can't watch"), qPrintable(program->status()));
    program->edit();
    lacking.drawn();
    QCOMPARE(program->status(), u"LoadingStaticA: X = 77"_s);  // told once
    put(Plate, Qt::green);
    QTest::keyClick(&form(), Qt::Key_F5);
    QVERIFY(shows(Qt::green));
#ifdef Q_OS_UNIX
    // Where a link's target may come back (a signal of /tmp would make the program look, too).
    QDir().mkpath(game->native(u"store"_s));
    QFile::link(game->native(u"store/a.png"_s), game->native(u"Skins/Alpha/link.png"_s));
    use("link.png");
    lacking.drawn();
    QVERIFY(lacking.wanted.contains(game->native(u"store"_s)));
#endif
  }
};

QTEST_MAIN(PictureWatchTest)
#include "picture_watch_test.moc"
