#include <atomic>

#include <QThread>

#include "platform/failure.h"
#include "platform/ini_writing.h"
#include "support/windows.h"
#include "themefiles/working_copies.h"

using namespace support;
using platform::BoxAnswer;

namespace {

const QString Kept = ThemeCopy + u".old"_s;

/// A theme whose first screen has something to report when it is drawn, which must not hide a word about kept files.
void spoil(const GameFolder& game) {
  const QByteArray beyond = "[LoadingStaticBeyond]\r\nTex=Plate\r\nColor=Red\r\nX=40000\r\n[Main]\r\n";
  game.put(ThemeFile, game.get(ThemeFile).replace("[Main]\r\n", beyond));
}

}  // namespace

/// Two programs on one theme, or one whose working copies are meddled with: no edit goes without a word.
class SecondEditorTest : public QObject {
  Q_OBJECT

 private Q_SLOTS:
  void theSecondOpens() {
    const GameFolder game;
    spoil(game);
    Program a(game);
    Program b(game);
    a.open();
    a.edit();
    const QByteArray edited = game.get(ThemeCopy);
    b.open();
    QCOMPARE(game.get(Kept), edited);
    QVERIFY2(b.status().contains(u".tmp.old"), qPrintable(b.status()));
    b.edit(u"W"_s, u"55"_s);
    b.dialogs.boxes = {BoxAnswer::Yes};
    b.open();
    QVERIFY(game.get(Kept) == edited && game.get(Kept + u".2"_s).contains("W=55"));

    a.edit(u"Y"_s, u"88"_s);
    QVERIFY2(a.status().contains(u"another program") && a.status().contains(u".tmp.old"), qPrintable(a.status()));
    QCOMPARE(game.get(Kept), edited);
    QVERIFY(game.get(ThemeCopy).contains("Y=88") && !game.get(ThemeCopy).contains("X=77"));
    a.edit(u"Y"_s, u"89"_s);
    QVERIFY2(!a.status().contains(u"another program"), qPrintable(a.status()));
    // No edit of the two vanishes.
    b.edit(u"H"_s, u"33"_s);
    a.edit(u"Y"_s, u"90"_s);
    const QByteArray all = game.files().values().join();
    for (const char* edit : {"X=77", "W=55", "Y=89", "H=33", "Y=90"}) QVERIFY2(all.contains(edit), edit);
  }

  /// The neighbour deletes the working copy and makes it anew all the time, as it was at first. Each edit goes into
  /// what this program left, or what it left is kept and the user told so.
  void theNeighbourRewritesWithoutEnd() {
    const GameFolder game;
    Program program(game);
    program.open();
    const QByteArray first = game.get(ThemeCopy);
    const QString name = game.native(ThemeCopy);
    std::atomic<bool> over = false;
    std::atomic<int> turns = 0;
    const auto neighbour = std::unique_ptr<QThread>(QThread::create([&] {
      for (; !over; ++turns) {
        QFile::remove(name);
        QThread::usleep(turns % 3 * 20);
        QFile file(name);
        if (file.open(QIODevice::WriteOnly | QIODevice::Unbuffered)) file.write(first);
        file.close();
        QThread::usleep(turns % 50 == 0 ? 2000 : 20);
      }
    }));
    neighbour->start();
    int told = 0;
    QString lost;
    for (int edit = 0; lost.isEmpty() && (edit < 1000 || (turns < 1000 && edit < 30'000)); ++edit) {
      const QByteArray before = program.state.ownCopies[0];
      const auto expected = platform::setIniValue(before, "LoadingStaticA", "X", QByteArray::number(edit));
      support::Panel notes;
      QString failure;
      try {
        themefiles::putInCopy(program.state, &themefiles::ThemePaths::ThemeFile, u"LoadingStaticA"_s, u"X"_s,
                              QString::number(edit), notes);
      } catch (const platform::Failure& thrown) {
        failure = thrown.description();
      }
      const QString note = notes.texts.join(u' ');
      told += !note.isEmpty() || !failure.isEmpty();
      const QByteArray& after = program.state.ownCopies[0];
      if (after == expected || (after == before && !failure.isEmpty())) continue;
      if (before == first && after.size() >= first.size()) continue;
      bool kept = game.get(Kept) == before;
      for (int number = 2; number <= 9; ++number) kept |= game.get(Kept + u".%1"_s.arg(number)) == before;
      if (!kept || (note + failure).isEmpty()) lost = u"%1: %2 %3"_s.arg(edit).arg(note, failure);
    }
    over = true;
    neighbour->wait();
    QVERIFY2(lost.isEmpty(), qPrintable(lost));
    QVERIFY2(turns >= 1000 && told > 20, qPrintable(u"%1 %2"_s.arg(turns).arg(told)));
  }
};

QTEST_MAIN(SecondEditorTest)
#include "second_editor_test.moc"
