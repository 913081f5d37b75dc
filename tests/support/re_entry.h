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

/// What a user has of the program. Of a theme that is gone only that it is.
inline QVariantMap shown(const Program& program) {
  const mainwindows::Form1& form = program.form;
  const themefiles::ModuleState& state = program.state;
  QVariantMap all{{u"opened"_s, state.ThemeOpened},
                  {u"changed"_s, state.Changed},
                  {u"shown"_s, form.isVisible()},
                  {u"busy"_s, form.Queue.Busy() || form.ProgressBar1->isVisible()},
                  {u"windows"_s, form.findChildren<toolwindow::Form2*>().size()}};
  if (!form.isVisible()) return all;
  all.insert({{u"scheme shown"_s, form.Combo1->isVisible()},
              {u"buttons shown"_s, form.Combo2->isVisible()},
              {u"mark shown"_s, form.Workspace->MarkVisible()},
              {u"blinking"_s, form.Workspace->Blinking()},
              {u"enabled"_s, program.buttons()},
              {u"picture"_s, program.picture()}});
  if (!state.ThemeOpened || form.ToolWindow == nullptr) return all;
  const toolwindow::Form2& tools = program.tools();
  QStringList lists = entries(*form.Combo2);
  for (int i = 0; i < tools.List1->ListCount(); ++i) lists += tools.List1->List(i);
  for (int i = 0; i < tools.ListView1->RowCount(); ++i) {
    lists += tools.ListView1->RowText(i) + u'=' + tools.ListView1->SubItem(i);
  }
  for (const int row : {form.Combo2->ListIndex(), tools.List1->ListIndex(), tools.ListView1->SelectedRow()}) {
    lists += QString::number(row);
  }
  all.insert(
      {{u"lists"_s, lists},
       {u"mark"_s, form.Workspace->Mark()},
       {u"flags"_s, QVariantList{state.EditorShown, state.ButtonListFilled, state.SelectedButton, state.ButtonCount,
                                 state.Filter.OnlyTags + state.Filter.SkipTags, state.ProgressStep}},
       {u"screen"_s, tools.Combo1->Text()},
       {u"height"_s, tools.height()},
       {u"pen"_s, form.Workspace->Surface().FontName() + QString::number(form.Workspace->Surface().FontSize())}});
  return all;
}

/// What must not depend on the moment of a wish: what is shown, and the game's files.
inline QVariantMap outcome(const Program& program, const GameFolder& game) {
  QVariantMap all = shown(program);
  for (const auto& [name, bytes] : game.files().asKeyValueRange()) all[name] = bytes;
  return all;
}

}  // namespace support
