#include "mainwindows/commands.h"

#include <array>

#include "controls/work_queue.h"
#include "mainwindows/arranging.h"
#include "mainwindows/fault_list.h"
#include "mainwindows/loupe.h"
#include "mainwindows/main_window.h"
#include "mainwindows/preview_hand.h"
#include "mainwindows/screen_refresh.h"
#include "mainwindows/side_by_side.h"
#include "mainwindows/theme_review.h"
#include "mainwindows/theme_session.h"
#include "platform/row_order.h"
#include "themefiles/module_state.h"
#include "toolwindow/changes.h"
#include "toolwindow/finder.h"
#include "toolwindow/tool_window.h"

namespace mainwindows {
namespace {

using Targets = CommandTargets;

void goToOtherWindow(Form1& form) {
  QWidget* other = &form;
  if (form.toolWindow() != nullptr && form.isActiveWindow()) other = form.toolWindow();
  other->activateWindow();
  other->raise();
}

void refresh(const Targets& to) {
  to.refresh.refresh();
  to.review.renew();
}

template <Arrangement How>
void arrangeGroup(const Targets& to) {
  arrange(to.form, How);
}

constexpr auto Waits = CommandTime::Waits;
constexpr auto AtOnce = CommandTime::AtOnce;
constexpr auto Beside = CommandTime::Beside;

constexpr bool NeedsTheme = true;
constexpr bool Always = false;

constexpr auto Rows = std::to_array<CommandRow>({
    {Command::Open, [](const Targets& to) { OpenTheme(to.form); }, Waits, Always, u"Ctrl+O", u"", 1, u"open", u"Open"},
    {Command::Save, [](const Targets& to) { SaveTheme(to.form); }, AtOnce, Always, u"Ctrl+S", u"", 2, u"save", u"Save"},
    {Command::Close, [](const Targets& to) { CloseTheme(to.form); }, Waits, Always, u"Ctrl+W", u"", 3, u"close",
     u"Close"},
    {Command::BackgroundColor, [](const Targets& to) { ChooseBackgroundColor(to.form); }, Waits, Always, u"", u"", 4,
     u"background", u"Background Color"},
    {Command::AnotherFolder, [](const Targets& to) { openAnotherFolder(to.form); }, Waits, Always, u"Ctrl+Shift+O",
     u"Another game folder..."},
    {Command::Refresh, [](const Targets& to) { refresh(to); }, AtOnce, Always, u"F5"},
    {Command::OtherWindow, [](const Targets& to) { goToOtherWindow(to.form); }, AtOnce, Always, u"F6"},
    {Command::Find, [](const Targets& to) { toolwindow::showFinder(*to.form.toolWindow()); }, AtOnce, NeedsTheme,
     u"Ctrl+F", u"Find..."},
    {Command::Loupe, [](const Targets& to) { to.loupe.toggle(); }, Beside, Always, u"F7", u"Loupe"},
    {Command::LargerLoupe, [](const Targets& to) { to.loupe.enlarge(); }, Beside, Always, u"Shift+F7"},
    {Command::Changes, [](const Targets& to) { toolwindow::showChanges(*to.form.toolWindow()); }, AtOnce, NeedsTheme,
     u"Ctrl+Shift+E", u"What differs..."},
    {Command::Faults, [](const Targets& to) { showFaults(*to.form.toolWindow(), to.review); }, AtOnce, NeedsTheme,
     u"Ctrl+Shift+K", u"What is wrong..."},
    {Command::NextFault, [](const Targets& to) { to.review.goToNext(); }, AtOnce, NeedsTheme, u"F8",
     u"Next that is wrong"},
    {Command::SideBySide, [](const Targets& to) { showSideBySide(to.form); }, AtOnce, NeedsTheme, u"Ctrl+B",
     u"Side by side..."},
    {Command::Guides, [](const Targets& to) { to.hand.switchGuides(); }, AtOnce, Always, u"", u"Meet guides"},
    {Command::AlignLeftEdges, arrangeGroup<Arrangement::LeftEdges>, Waits, NeedsTheme, u"", u"Align left edges"},
    {Command::AlignCentresAcross, arrangeGroup<Arrangement::CentresAcross>, Waits, NeedsTheme, u"",
     u"Align centres across"},
    {Command::AlignRightEdges, arrangeGroup<Arrangement::RightEdges>, Waits, NeedsTheme, u"", u"Align right edges"},
    {Command::AlignUpperEdges, arrangeGroup<Arrangement::UpperEdges>, Waits, NeedsTheme, u"", u"Align upper edges"},
    {Command::AlignCentresDown, arrangeGroup<Arrangement::CentresDown>, Waits, NeedsTheme, u"", u"Align centres down"},
    {Command::AlignLowerEdges, arrangeGroup<Arrangement::LowerEdges>, Waits, NeedsTheme, u"", u"Align lower edges"},
    {Command::SpaceAcross, arrangeGroup<Arrangement::GapsAcross>, Waits, NeedsTheme, u"", u"Equal gaps across"},
    {Command::SpaceDown, arrangeGroup<Arrangement::GapsDown>, Waits, NeedsTheme, u"", u"Equal gaps down"},
    {Command::SameWidths, arrangeGroup<Arrangement::Widths>, Waits, NeedsTheme, u"", u"Same width"},
    {Command::SameHeights, arrangeGroup<Arrangement::Heights>, Waits, NeedsTheme, u"", u"Same height"},
});
static_assert(platform::inOrder(Rows, &CommandRow::command, Command::SameHeights));

/// A theme without changes closes without a question: the running work is given up for it.
bool endsWork(const Form1& form, Command command) {
  return command == Command::Close && !form.services.state.Changed;
}

}  // namespace

CommandRows commandRows() {
  return Rows;
}

bool canRun(const Form1& form, const CommandRow& row) {
  return form.commandEnabled(row.command) && (!row.needsTheme || form.toolWindow() != nullptr);
}

void runCommand(const CommandTargets& targets, const CommandRow& row) {
  const auto ifEnabled = [targets, &row] {
    if (!targets.form.isVisible()) return;  // the program has ended while the command waited
    if (row.time != Beside) targets.form.session().settle();
    if (canRun(targets.form, row)) row.run(targets);
  };
  if (row.time != Waits) return ifEnabled();
  targets.form.session().settle();
  if (!canRun(targets.form, row)) return;
  using controls::RunningWork;
  targets.form.queue().runOutside(ifEnabled,
                                  endsWork(targets.form, row.command) ? RunningWork::GivesWay : RunningWork::Finishes);
}

}  // namespace mainwindows
