#pragma once

#include "support/windows.h"

/// For tests that compare what the program has come to, one way and another.
namespace support {

inline QVariantList account(const renderer::RenderAccount& account) {
  QVariantList all;
  for (const auto& object : account.objects) all += QVariantList{object.section, object.place, object.heightKey};
  for (const auto& entry : account.missing) all += renderer::reasonText(entry);
  return all;
}

/// What a user has of the program and the game's files, by name; what isn't there is left out.
inline QVariantMap snapshot(const Program& program, const GameFolder& game) {
  const mainwindows::Form1& form = program.form;
  const themefiles::ModuleState& state = program.state;
  const themefiles::ThemePaths& files = state.paths;
  QStringList paths{files.ExeDirectory, files.LanguagesDirectory, files.ThemeFile,
                    files.SkinFile,     files.SkinDirectory,      files.LanguageFile};
  QVariantMap all{{u"state"_s, QVariantList{state.ThemeOpened, state.Changed, form.isVisible()}},
                  {u"paths"_s, paths.replaceInStrings(game.path().chopped(1), u"game"_s)},
                  {u"colours"_s, program.colors()},
                  {u"busy"_s, form.queue().busy() || form.ProgressBar1->isVisible()},
                  {u"windows"_s, form.findChildren<toolwindow::Form2*>().size()},
                  {u"files"_s, QVariant::fromValue(game.files())}};
  if (!form.isVisible()) return all;
  mainwindows::Workspace& preview = *form.Workspace;
  all.insert({{u"lists shown"_s, QVariantList{form.schemes().isVisible(), form.buttons().isVisible()}},
              {u"scheme"_s, form.schemes().Text()},
              {u"blinking"_s, preview.blinking()},
              {u"mark"_s, preview.markVisible() ? preview.mark() : QRectF()},
              {u"enabled"_s, program.buttons()},
              {u"picture"_s, program.picture()}});
  if (!state.ThemeOpened || form.toolWindow() == nullptr) return all;
  const toolwindow::Form2& tools = program.tools();
  all.insert(
      {{u"lists"_s, entries(form.buttons()) + entries(tools.objects()) + program.rows()},
       {u"editors"_s, QStringList{listing(*Editors(tools).Combo3), listing(*Editors(tools).Combo5),
                                  listing(*Editors(tools).Combo6), Editors(tools).Text2->Text(),
                                  Editors(tools).Text3->Text(), Editors(tools).Command2->BackColor().name()}},
       {u"chosen"_s, QVariantList{form.buttons().ListIndex(), tools.screens().Text(), tools.objects().ListIndex(),
                                  tools.values().selectedRow()}},
       {u"editor"_s, state.EditorShown},
       {u"flags"_s, QVariantList{state.ButtonListFilled, state.SelectedButton, state.ButtonCount, state.ProgressStep,
                                 state.Filter.OnlyTags + state.Filter.SkipTags}},
       {u"record"_s, QStringList{state.CursorRect.X, state.CursorRect.Y, state.CursorRect.W, state.CursorRect.H}},
       {u"account"_s, account(form.account())},
       {u"pen"_s, preview.surface().FontName() + QString::number(preview.surface().FontSize())},
       {u"height"_s, tools.height()}});
  return all;
}

/// The names of the parts in which two snapshots differ.
inline QStringList differences(const QVariantMap& a, const QVariantMap& b) {
  QStringList names = a.keys() + b.keys();
  names.removeDuplicates();
  names.removeIf([&](const QString& name) { return a[name] == b[name]; });
  return names;
}

}  // namespace support
