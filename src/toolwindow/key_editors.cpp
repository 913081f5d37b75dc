#include "toolwindow/key_editors.h"

#include <array>

#include "controls/shown_text.h"
#include "platform/failure.h"
#include "platform/paths.h"
#include "themefiles/ini_access.h"
#include "toolwindow/edit_reports.h"
#include "toolwindow/tool_window.h"

namespace toolwindow {
namespace {

/// The names in which the two frames differ.
struct KeyEditorRow {
  QStringView section;
  QString themefiles::ThemePaths::*copy;
  controls::ComboBox* Form2::*list;
  controls::TextBox* Form2::*box;
  QStringView newKeyTitle;
};

// In the order of KeyEditor.
constexpr std::array<KeyEditorRow, 2> Rows{{
    {u"Text", &themefiles::ThemePaths::LanguageFile, &Form2::Combo5, &Form2::Text2, u"New TextKey"},
    {u"Textures", &themefiles::ThemePaths::SkinFile, &Form2::Combo6, &Form2::Text3, u"New TextureKey"},
}};

/// One of the two frames of a form.
struct Editor {
  QString section;
  QString themefiles::ThemePaths::*copy;
  QString file;
  controls::ComboBox& list;
  controls::TextBox& box;
  QString newKeyTitle;
};

Editor editorOf(const Form2& form, KeyEditor which) {
  const KeyEditorRow& row = Rows.at(static_cast<size_t>(which));
  return {row.section.toString(), row.copy,         form.Services.State.Paths.*row.copy,
          *(form.*row.list),      *(form.*row.box), row.newKeyTitle.toString()};
}

void fill(Form2& form, KeyEditor which, const QString& value) {
  const Editor editor = editorOf(form, which);
  editor.list.Clear();
  editor.box.SetText(QString());
  for (const QString& key : themefiles::KeyNames(editor.section, editor.file)) editor.list.AddItem(key);
  editor.list.SelectText(value);
}

bool writeKey(Form2& form, const Editor& editor, const QString& key, const std::optional<QString>& value) {
  return WriteAtOnce(form, WriteStep, editor.copy, editor.section, key, value);
}

/// Whether the section has the key, also one that its list was too short for.
bool keyExists(const Editor& editor, const QString& key) {
  return editor.list.EntryLike(key) >= 0 || themefiles::HoldsKey(editor.section, key, editor.file);
}

}  // namespace

Reference ShownReference(const Form2& form, KeyEditor which) {
  const Editor editor = editorOf(form, which);
  return {editor.copy, editor.section, editor.list.Text(), editor.box.Text()};
}

void FillTextKeys(Form2& form, const QString& Value) {
  fill(form, KeyEditor::Text, Value);
}

void FillTextureKeys(Form2& form, const QString& Value) {
  fill(form, KeyEditor::Texture, Value);
}

void KeyList_Click(Form2& form, KeyEditor which) {
  const Editor editor = editorOf(form, which);
  const QString key = editor.list.Text();
  constexpr qint16 LetterMore = controls::LongestText + 2;
  const QString content = themefiles::GetINI(editor.section, key, QString(), editor.file, LetterMore);
  const bool fits = content.size() <= controls::LongestText;
  editor.box.SetText(fits ? content : QString());
  if (fits) return;
  // Without a selected key nothing can be written over it.
  editor.list.SetListIndex(-1);
  form.Services.Status.ShowStatus(platform::ReportText(ReadStep.toString(), tooLongText(key)));
}

void AddKey_Click(Form2& form, KeyEditor which) {
  const Editor editor = editorOf(form, which);
  const QString name =
      form.Services.Dialogs.InputBox(&form, QStringLiteral("Name of the New Key:"), editor.newKeyTitle);
  if (name.isEmpty() || !AcceptNewName(form, name)) return;
  bool exists = false;
  if (!platform::Guarded(form.Services.Status, WriteStep.toString(), [&] { exists = keyExists(editor, name); })) return;
  if (exists) {
    ShowErrorBox(form, QStringLiteral("Key already exist!"));
    return;
  }
  if (!writeKey(form, editor, name, QString())) return;
  editor.list.AddItem(name);
  editor.list.SetListIndex(editor.list.ListCount() - 1);
}

void RemoveKey_Click(Form2& form, KeyEditor which) {
  const Editor editor = editorOf(form, which);
  const QString key = editor.list.Text();
  if (key.isEmpty()) return;
  const auto answer =
      form.Services.Dialogs.MessageBox(&form, QStringLiteral("Really delete this Key?") + QStringLiteral("\n\n") + key,
                                       QStringLiteral("Delete Key"), platform::BoxKind::YesNoDefaultNo);
  if (answer != platform::BoxAnswer::Yes) return;
  if (!writeKey(form, editor, key, std::nullopt)) return;
  editor.list.RemoveItem(editor.list.ListIndex());
  editor.list.SetListIndex(-1);
  editor.box.SetText(QString());
}

void Command4_Click(Form2& form) {
  const QString& skinFolder = form.Services.State.Paths.SkinDirectory;
  const QString path = form.Services.Dialogs.OpenFile(
      &form, {QStringLiteral("Change Filename"),
              QStringLiteral("All supported image files (*.bmp,*.gif,*.jpg,*.png)|*.bmp;*.gif;*.jpg;*.png"), QString(),
              skinFolder, true});
  if (path.isEmpty()) return;
  const qsizetype separator = path.lastIndexOf(u'\\');
  if (!platform::SameFolder(path.left(separator), skinFolder)) {
    ShowErrorBox(form, QStringLiteral("Image must be in ") + skinFolder);
    return;
  }
  form.Text3->SetText(path.mid(separator + 1));
}

}  // namespace toolwindow
