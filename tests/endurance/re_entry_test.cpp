#include <map>
#include <random>
#include <tuple>

#include "endurance/wishes.h"
#include "support/snapshot.h"

using namespace support;
using platform::BoxAnswer;

namespace {

constexpr const char* Ahead = "[LoadingTextAhead]\r\nX=400\r\nY=30\r\nFont=2\r\nText=HELLO\r\n[LoadingTextF";

/// Equal but for the smoothed edges of letters, which the toolkit varies with the texts that it drew before.
bool looksAlike(const QImage& a, const QImage& b) {
  constexpr int Smoothing = 16;
  return std::equal(a.constBits(), a.constBits() + a.sizeInBytes(), b.constBits(), b.constBits() + b.sizeInBytes(),
                    [](int one, int other) { return std::abs(one - other) <= Smoothing; });
}

using Order = std::vector<int>;  ///< rows of the table of wishes

struct Run {
  QVariantMap outcome;
  Order done;           ///< wishes that were allowed
  bool reached = true;  ///< all came at a yield
  bool single = true;
};

/// A theme with an edit and a screen that is drawn or, with `choice`, chosen anew; the wishes come at the yields of
/// those numbers (from 1) or, without any, one after another behind all. With `single` a text in front takes the pen as
/// it finds it, which shows what each render began with; of two wishes at once only the last leaves its own.
Run run(const Order& wishes, bool choice, bool single, const std::vector<int>& at = {}) {
  const GameFolder game;
  if (single) game.put(ThemeFile, game.get(ThemeFile).replace("[LoadingTextF", Ahead));
  Program program(game);
  program.open();
  program.edit();
  program.row(u"Y"_s);
  program.dialogs.boxes.assign(4, BoxAnswer::Yes);
  program.dialogs.inputs = {u"Fresh"_s, u"Fresher"_s};
  program.dialogs.colors.assign(2, QColor(1, 2, 3));
  Run result;
  size_t made = 0;
  const auto makeOne = [&](int wish) {
    ++made;
    if (make(wishTable()[wish], program)) result.done.push_back(wish);
  };
  QObject life;
  int yields = 0;
  QObject::connect(&program.form.queue(), &controls::WorkQueue::yielding, &life, [&] {
    ++yields;
    for (size_t i = 0; i < at.size(); ++i) {
      if (at[i] != yields) continue;
      QMetaObject::invokeMethod(
          &life, [&makeOne, wish = wishes[i]] { makeOne(wish); }, Qt::QueuedConnection);
    }
  });
  if (choice) {
    program.screen(u"Loading Screen"_s);
  } else {
    program.form.queue().draw();
  }
  settle();
  result.reached = made == wishes.size();
  result.single = single;
  for (const int wish : at.empty() ? wishes : Order()) {
    makeOne(wish);
    settle();
  }
  result.outcome = snapshot(program, game);
  return result;
}

const QVariantMap& oneAfterAnother(const Order& wishes, bool choice, bool single) {
  static std::map<std::tuple<Order, bool, bool>, QVariantMap> known;
  const auto [found, isNew] = known.try_emplace({wishes, choice, single});
  if (isNew) found->second = run(wishes, choice, single).outcome;
  return found->second;
}

/// What the wishes left otherwise than one after another in that order.
QStringList difference(const Run& run, const Order& order, bool choice) {
  const QVariantMap& expected = oneAfterAnother(order, choice, run.single);
  // What the second one has drawn may not show yet what the first one waited with.
  const bool mayLag = order.size() > 1 && wishTable()[order.front()].waits;
  QStringList names = differences(run.outcome, expected);
  names.removeIf([&](const QString& name) {
    // The next render's own business, and what the second wish finds chosen or types.
    if (name == u"pen" || name == u"editors") return !run.single;
    if (name == u"account") return mayLag;
    if (name != u"picture" || !run.outcome.contains(name) || !expected.contains(name)) return false;
    return mayLag || looksAlike(run.outcome[name].value<QImage>(), expected[name].value<QImage>());
  });
  return names;
}

/// A wish that waited may find another entry on show than the one that was clicked, and is dropped.
bool droppedOne(const Run& run, int first, int second, bool choice) {
  const Wish& one = wishTable()[first];
  const Wish& other = wishTable()[second];
  if (one.frame == 0 || one.frame != other.frame || !(one.waits || other.waits)) return false;
  for (const int kept : {first, second}) {
    if (!difference(run, {kept}, choice).contains(u"files")) return true;
  }
  return false;
}

void addWishes(int count) {
  QTest::addColumn<int>("first");
  for (int i = 0; i < count; ++i) QTest::newRow(wishTable()[i].name) << i;
}

}  // namespace

/// Wishes that come while a render or the choice of a screen is running.
class ReEntryTest : public QObject {
  Q_OBJECT

 private Q_SLOTS:
  /// At whatever yield a wish comes, it leaves what it leaves behind the work.
  void eachAtEveryYield_data() { addWishes(wishTable().size()); }
  void eachAtEveryYield() {
    QFETCH(int, first);
    for (const bool choice : {false, true}) {
      int at = 1;
      for (;; ++at) {
        const Run between = run({first}, choice, true, {at});
        if (!between.reached) break;
        const QStringList found = difference(between, between.done, choice);
        QVERIFY2(found.isEmpty(),
                 qPrintable(u"%1 at yield %2, choice %3"_s.arg(found.join(u", "_s)).arg(at).arg(choice)));
      }
      QVERIFY(at > (choice ? 15 : 10));
    }
  }

  /// Two wishes that come in the middle leave what they leave one after another, in the one order or the other.
  void pairs_data() { addWishes(Paired); }
  void pairs() {
    QFETCH(int, first);
    constexpr int Samples = 4;
    constexpr int LastYield = 16;
    std::mt19937 chance(static_cast<unsigned>(first));
    int tried = 0;
    for (int second = 0; second < Paired; ++second) {
      for (int sample = 0; sample < Samples; ++sample) {
        const bool choice = chance() % 2 == 0;
        const int at = 1 + static_cast<int>(chance() % LastYield);
        const int later = at + static_cast<int>(chance() % 6);
        const Run between = run({first, second}, choice, false, {at, later});
        if (!between.reached) continue;
        ++tried;
        const QStringList forth = difference(between, between.done, choice);
        if (forth.isEmpty()) continue;
        const QStringList back = difference(between, Order(between.done.rbegin(), between.done.rend()), choice);
        if (back.isEmpty() || droppedOne(between, first, second, choice)) continue;
        QFAIL(qPrintable(u"at yield %1, %2 at %3, choice %4: %5; the other way round %6"_s.arg(at)
                             .arg(QLatin1StringView(wishTable()[second].name))
                             .arg(later)
                             .arg(choice)
                             .arg(forth.join(u", "_s), back.join(u", "_s))));
      }
    }
    QVERIFY2(tried > 2 * Paired, qPrintable(QString::number(tried)));
  }
};

QTEST_MAIN(ReEntryTest)
#include "re_entry_test.moc"
