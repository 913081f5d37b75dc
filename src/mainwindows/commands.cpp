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
constexpr CommandRow arranging(Command command, QStringView menu) {
  return {
      .command = command,
      .run = [](const Targets& to) { arrange(to.form, How); },
      .needsTheme = true,
      .menu = menu,
  };
}

constexpr auto Rows = std::to_array<CommandRow>({
    {.command = Command::Open,
     .run = [](const Targets& to) { OpenTheme(to.form); },
     .keys = u"Ctrl+O",
     .button = 1,
     .icon = u"open",
     .toolTip = u"Open"},
    {.command = Command::Save,
     .run = [](const Targets& to) { SaveTheme(to.form); },
     .time = CommandTime::AtOnce,
     .keys = u"Ctrl+S",
     .button = 2,
     .icon = u"save",
     .toolTip = u"Save"},
    {.command = Command::Close,
     .run = [](const Targets& to) { CloseTheme(to.form); },
     .keys = u"Ctrl+W",
     .button = 3,
     .icon = u"close",
     .toolTip = u"Close"},
    {.command = Command::BackgroundColor,
     .run = [](const Targets& to) { ChooseBackgroundColor(to.form); },
     .button = 4,
     .icon = u"background",
     .toolTip = u"Background Color"},
    {.command = Command::AnotherFolder,
     .run = [](const Targets& to) { openAnotherFolder(to.form); },
     .keys = u"Ctrl+Shift+O",
     .menu = u"Another game folder..."},
    {.command = Command::Refresh,
     .run = [](const Targets& to) { refresh(to); },
     .time = CommandTime::AtOnce,
     .keys = u"F5"},
    {.command = Command::OtherWindow,
     .run = [](const Targets& to) { goToOtherWindow(to.form); },
     .time = CommandTime::AtOnce,
     .keys = u"F6"},
    {.command = Command::Find,
     .run = [](const Targets& to) { toolwindow::showFinder(*to.form.toolWindow()); },
     .time = CommandTime::AtOnce,
     .needsTheme = true,
     .keys = u"Ctrl+F",
     .menu = u"Find..."},
    {.command = Command::Loupe,
     .run = [](const Targets& to) { to.loupe.toggle(); },
     .time = CommandTime::Beside,
     .keys = u"F7",
     .menu = u"Loupe"},
    {.command = Command::LargerLoupe,
     .run = [](const Targets& to) { to.loupe.enlarge(); },
     .time = CommandTime::Beside,
     .keys = u"Shift+F7"},
    {.command = Command::Changes,
     .run = [](const Targets& to) { toolwindow::showChanges(*to.form.toolWindow()); },
     .time = CommandTime::AtOnce,
     .needsTheme = true,
     .keys = u"Ctrl+Shift+E",
     .menu = u"What differs..."},
    {.command = Command::Faults,
     .run = [](const Targets& to) { showFaults(*to.form.toolWindow(), to.review); },
     .time = CommandTime::AtOnce,
     .needsTheme = true,
     .keys = u"Ctrl+Shift+K",
     .menu = u"What is wrong..."},
    {.command = Command::NextFault,
     .run = [](const Targets& to) { to.review.goToNext(); },
     .time = CommandTime::AtOnce,
     .needsTheme = true,
     .keys = u"F8",
     .menu = u"Next that is wrong"},
    {.command = Command::SideBySide,
     .run = [](const Targets& to) { showSideBySide(to.form); },
     .time = CommandTime::AtOnce,
     .needsTheme = true,
     .keys = u"Ctrl+B",
     .menu = u"Side by side..."},
    {.command = Command::Guides,
     .run = [](const Targets& to) { to.hand.switchGuides(); },
     .time = CommandTime::AtOnce,
     .menu = u"Meet guides"},
    arranging<Arrangement::LeftEdges>(Command::AlignLeftEdges, u"Align left edges"),
    arranging<Arrangement::CentresAcross>(Command::AlignCentresAcross, u"Align centres across"),
    arranging<Arrangement::RightEdges>(Command::AlignRightEdges, u"Align right edges"),
    arranging<Arrangement::UpperEdges>(Command::AlignUpperEdges, u"Align upper edges"),
    arranging<Arrangement::CentresDown>(Command::AlignCentresDown, u"Align centres down"),
    arranging<Arrangement::LowerEdges>(Command::AlignLowerEdges, u"Align lower edges"),
    arranging<Arrangement::GapsAcross>(Command::SpaceAcross, u"Equal gaps across"),
    arranging<Arrangement::GapsDown>(Command::SpaceDown, u"Equal gaps down"),
    arranging<Arrangement::Widths>(Command::SameWidths, u"Same width"),
    arranging<Arrangement::Heights>(Command::SameHeights, u"Same height"),
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
    if (row.time != CommandTime::Beside) targets.form.session().settle();
    if (canRun(targets.form, row)) row.run(targets);
  };
  if (row.time != CommandTime::Waits) return ifEnabled();
  targets.form.session().settle();
  if (!canRun(targets.form, row)) return;
  using controls::RunningWork;
  targets.form.queue().runOutside(ifEnabled,
                                  endsWork(targets.form, row.command) ? RunningWork::GivesWay : RunningWork::Finishes);
}

}  // namespace mainwindows
