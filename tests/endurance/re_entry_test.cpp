#include <map>
#include <random>
#include <tuple>

#include "editing/commit.h"
#include "support/snapshot.h"
#include "toolwindow/finder.h"
#include "toolwindow/list_window.h"

using namespace support;
using platform::BoxAnswer;

/// What a user may want at any moment: a button of the tool window for a key of an object, or anything else.
struct Wish {
  const char* name;
  bool (*other)(Program& program);  ///< false when the windows don't allow it at the moment
  const char* tag = nullptr;
  const char* key = nullptr;
  const char* button = nullptr;
  char frame = 0;      ///< whose entry it is about: colours, texts, images
  bool waits = false;  ///< until no work is running; and what it changes shows with the next render
};

namespace {

constexpr const char* Static = "LoadingStaticA";
constexpr const char* Ahead = "[LoadingTextAhead]\r\nX=400\r\nY=30\r\nFont=2\r\nText=HELLO\r\n[LoadingTextF";

bool pickTag(Program& program, const char* tag) {
  controls::ListBox& list = program.tools().objects();
  if (list.findItems(QLatin1StringView(tag), Qt::MatchExactly).isEmpty()) return false;  // it is still filling
  {
    const QSignalBlocker quiet(list);
    program.tag(QLatin1StringView(tag));
  }
  Q_EMIT list.Click(controls::Cause::User);
  return true;
}

bool choose(controls::ComboBox& list, int index, bool filled = true) {
  if (!filled || list.isHidden()) return false;
  list.setCurrentIndex(index);
  Q_EMIT list.Click(controls::Cause::User);
  return true;
}

template <int Button>
bool click(Program& program) {
  const bool enabled = program.enabled(Button);
  program.click(Button);
  return enabled;
}

bool update(Program& program) {
  Editors(program.tools()).Text1->SetText(u"88"_s);
  Editors(program.tools()).Command1->click();
  return true;
}

bool screen(Program& program, const QString& name = u"Main Screen"_s) {
  if (program.form.toolWindow() == nullptr) return false;
  program.screen(name);
  return true;
}

/// A press on a text of the preview; during a render the drag that follows it is none.
bool pressOn(Program& program) {
  QWidget& preview = *program.form.Workspace;
  const QPoint place(410, 110);
  QTest::mousePress(&preview, Qt::LeftButton, {}, place);
  if (program.form.queue().busy()) moveMouse(preview, place * 2);
  QTest::mouseRelease(&preview, Qt::LeftButton, {}, place);
  return program.tools().objects().Text() == u"LoadingTextFree";
}

bool arrowKeys(Program& program) {
  if (program.tools().objects().ListIndex() < 0) return false;
  for (const auto key : {Qt::Key_Right, Qt::Key_Down}) QTest::keyClick(program.form.Workspace, key);
  program.form.session().settle();
  return true;
}

/// Two objects that are moved together.
bool moveGroup(Program& program) {
  if (program.tools().objects().ListIndex() < 0 || !pickTag(program, "LoadingTextFree")) return false;
  program.form.session().toggleMember(u"LoadingStaticA"_s);
  QTest::keyClick(program.form.Workspace, Qt::Key_Right);
  program.form.session().settle();
  return true;
}

/// Digits typed on the row of a number, and Enter.
bool typeInGrid(Program& program) {
  if (program.tools().objects().ListIndex() < 0 || !pickTag(program, Static)) return false;
  program.row(u"X"_s);
  QTest::keyClicks(&program.tools().values(), u"7"_s);
  QTest::keyClick(Editors(program.tools()).Text1, Qt::Key_Return);
  return true;
}

/// Goes to what the finder finds.
bool find(Program& program, const QString& words) {
  if (program.form.toolWindow() == nullptr) return false;
  toolwindow::showFinder(program.tools());
  auto& finder = *program.tools().findChild<toolwindow::ListWindow*>();
  QTest::keyClicks(finder.Line, words);
  QTest::keyClick(finder.Line, Qt::Key_Return);
  return !finder.isVisible();
}

constexpr Wish Wishes[] = {
    {"a number", nullptr, Static, "Y", "Command1"},
    {"a text", nullptr, "LoadingTextFree", "Text", "Command1", 't'},
    {"a texture", nullptr, "LoadingButtonGo", "Tex", "Command1", 'i'},
    {"a new colour", nullptr, Static, "Color", "Command3", 'c', true},
    {"another colour", nullptr, "LoadingButtonLast", "Color", "Command2", 'c', true},
    {"no such colour", nullptr, Static, "Color", "Command5", 'c', true},
    {"a new key", nullptr, "LoadingButtonGoText1", "Text", "Command6", 't', true},
    {"no such key", nullptr, Static, "Tex", "Command9", 'i', true},
    {"another screen", [](Program& p) { return screen(p); }},
    {"another scheme", [](Program& p) { return choose(p.form.schemes(), 3); }},
    {"another button", [](Program& p) { return choose(p.form.buttons(), 1, p.state.ButtonListFilled); }},
    {"a background colour", click<4>},
    {"Save", click<2>},
    {"Close", click<3>},
    // From here on not in pairs.
    {"another object", [](Program& p) { return pickTag(p, "LoadingTextFree"); }},
    {"a press on the preview", pressOn},
    {"arrow keys", arrowKeys},
    {"typed in the grid", typeInGrid},
    {"a group", moveGroup},
    {"Update", update},
    {"Update, another screen", [](Program& p) { return update(p) && screen(p); }},
    {"another screen and back", [](Program& p) { return screen(p) && screen(p, u"Loading Screen"_s); }},
    {"a hit", [](Program& p) { return find(p, u"loadingtextlater size=18"_s); }},
    {"a hit elsewhere", [](Program& p) { return find(p, u"mainstatica x=10"_s); }},
    {"a hit, another screen",
     [](Program& p) { return find(p, u"mainstatica x=10"_s) && screen(p, u"Level Screen"_s); }},
    {"a value put back",
     [](Program& p) {
       const editing::KeyPlace place{&themefiles::ThemePaths::ThemeFile, QString::fromLatin1(Static), u"X"_s};
       if (p.form.toolWindow() == nullptr) return false;
       p.form.queue().runOutside([&p, place] { editing::putBack(p.form.session(), {place}); });
       return true;
     }},
    {"Save, Close", [](Program& p) { return click<2>(p) && click<3>(p); }},
    {"Close, No", [](Program& p) { return p.dialogs.boxes.clear(), click<3>(p); }},
    {"the window's end", [](Program& p) { return p.form.close(), true; }},
};
constexpr int Paired = 14;

/// False when the windows don't allow the wish at the moment.
bool make(const Wish& wish, Program& program) {
  if (wish.other != nullptr) return wish.other(program);
  if (program.form.toolWindow() == nullptr || !program.tools().isVisible()) return false;
  // While the list fills nothing is selected, and what is picked then ends with its editor closed.
  if (program.tools().objects().ListIndex() < 0 || !pickTag(program, wish.tag)) return false;
  program.row(QLatin1StringView(wish.key));
  toolwindow::Form2& form = program.tools();
  // What Update takes: from the editor that the key has opened.
  Editors(form).Text1->SetText(u"88"_s);
  Editors(form).Text2->SetText(u"Go on"_s);
  if (wish.frame == 'i' && !wish.waits) Editors(form).Combo6->SetText(u"Back"_s);
  form.findChild<QPushButton*>(QLatin1StringView(wish.button))->click();
  return true;
}

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
    if (make(Wishes[wish], program)) result.done.push_back(wish);
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
  const bool mayLag = order.size() > 1 && Wishes[order.front()].waits;
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
  const Wish& one = Wishes[first];
  const Wish& other = Wishes[second];
  if (one.frame == 0 || one.frame != other.frame || !(one.waits || other.waits)) return false;
  for (const int kept : {first, second}) {
    if (!difference(run, {kept}, choice).contains(u"files")) return true;
  }
  return false;
}

void addWishes(int count) {
  QTest::addColumn<int>("first");
  for (int i = 0; i < count; ++i) QTest::newRow(Wishes[i].name) << i;
}

}  // namespace

/// Wishes that come while a render or the choice of a screen is running.
class ReEntryTest : public QObject {
  Q_OBJECT

 private Q_SLOTS:
  /// At whatever yield a wish comes, it leaves what it leaves behind the work.
  void eachAtEveryYield_data() { addWishes(std::size(Wishes)); }
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
                             .arg(QLatin1StringView(Wishes[second].name))
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
