#pragma once

#include "support/windows.h"

// Wishes that come while a render or the choice of a screen is running.

namespace support {

/// The user's choice of an entry; nothing where the list isn't on show or has no such entry.
inline void choose(controls::ComboBox& list, int index) {
  if (list.isHidden() || list.ListCount() <= index) return;
  list.setCurrentIndex(index);
  Q_EMIT list.Click(controls::Cause::User);
}

/// What must not depend on the moment of a wish. Of a theme that is gone only that it is.
inline QVariantMap outcome(Program& program, const GameFolder& game) {
  const mainwindows::Form1& form = program.form;
  const themefiles::ModuleState& state = program.state;
  QVariantMap all;
  const auto note = [&](const char* name, const QVariant& value) { all[QLatin1StringView(name)] = value; };
  note("opened", state.ThemeOpened);
  note("changed", state.Changed);
  note("shown", form.isVisible());
  note("busy", form.Queue.Busy() || form.ProgressBar1->isVisible());
  note("windows", form.findChildren<toolwindow::Form2*>().size());
  for (const auto& [name, bytes] : game.files().asKeyValueRange()) all[name] = bytes;
  if (!form.isVisible()) return all;
  note("scheme shown", form.Combo1->isVisible());
  note("buttons shown", form.Combo2->isVisible());
  note("mark shown", form.Workspace->MarkVisible());
  note("blinking", form.Workspace->Blinking());
  for (int button = 1; button <= 4; ++button) all[QString::number(button)] = program.enabled(button);
  note("picture", form.Workspace->Surface().image());
  if (!state.ThemeOpened || form.ToolWindow == nullptr) return all;
  QStringList lists;
  const toolwindow::Form2& tools = program.tools();
  for (int i = 0; i < tools.List1->ListCount(); ++i) lists += tools.List1->List(i);
  lists += QString::number(tools.List1->ListIndex());
  for (int i = 0; i < tools.ListView1->RowCount(); ++i) {
    lists += tools.ListView1->RowText(i) + u'=' + tools.ListView1->SubItem(i);
  }
  lists += QString::number(tools.ListView1->SelectedRow());
  for (int i = 0; i < form.Combo2->ListCount(); ++i) lists += form.Combo2->List(i);
  lists += QString::number(form.Combo2->ListIndex());
  note("lists", lists);
  note("mark", form.Workspace->Mark());
  note("flags", QVariantList{state.EditorShown, state.ButtonListFilled, state.SelectedButton, state.ButtonCount,
                             state.Filter.OnlyTags + state.Filter.SkipTags, state.ProgressStep});
  note("screen", tools.Combo1->Text());
  note("height", tools.height());
  note("pen", form.Workspace->Surface().FontName() + QString::number(form.Workspace->Surface().FontSize()));
  return all;
}

}  // namespace support
