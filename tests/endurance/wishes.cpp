#include "endurance/wishes.h"

#include "editing/commit.h"
#include "toolwindow/finder.h"
#include "toolwindow/list_window.h"

using namespace support;

namespace {

constexpr const char* Static = "LoadingStaticA";

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

}  // namespace

std::span<const Wish> wishTable() {
  return Wishes;
}

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
