#include "toolwindow/key_editors.h"

#include <array>

#include "controls/combo_box.h"
#include "controls/shown_text.h"
#include "controls/text_box.h"
#include "platform/dialogs.h"
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
  return {row.section.toString(), row.copy,         form.services.state.paths.*row.copy,
          *(form.*row.list),      *(form.*row.box), row.newKeyTitle.toString()};
}

void fill(Form2& form, KeyEditor which, const QString& value) {
  const Editor editor = editorOf(form, which);
  editor.list.Clear();
  editor.box.SetText(QString());
  for (const QString& key : themefiles::keyNames(editor.section, editor.file)) editor.list.AddItem(key);
  editor.list.selectText(value);
}

bool writeKey(Form2& form, const Editor& editor, const QString& key, const std::optional<QString>& value) {
  return writeAtOnce(form, WriteStep, editor.copy, editor.section, key, value);
}

/// Whether the section has the key, also one that its list was too short for.
bool keyExists(const Editor& editor, const QString& key) {
  return editor.list.entryLike(key) >= 0 || themefiles::holdsKey(editor.section, key, editor.file);
}

}  // namespace

Reference shownReference(const Form2& form, KeyEditor which) {
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
  QString content;
  const bool read = platform::guarded(form.services.status, ReadStep.toString(), [&] {
    content = themefiles::wholeValue(editor.section, key, editor.file);
    if (content.size() > controls::LongestText) throw platform::Failure(tooLongText(key));
  });
  editor.box.SetText(read ? content : QString());
  // Without a selected key nothing can be written over it.
  if (!read) editor.list.SetListIndex(-1);
}

void AddKey_Click(Form2& form, KeyEditor which) {
  const Editor editor = editorOf(form, which);
  const QString name =
      form.services.dialogs.inputBox(&form, QStringLiteral("Name of the New Key:"), editor.newKeyTitle);
  if (name.isEmpty() || !acceptNewName(form, name)) return;
  bool exists = false;
  if (!platform::guarded(form.services.status, WriteStep.toString(), [&] { exists = keyExists(editor, name); })) return;
  if (exists) {
    showErrorBox(form, QStringLiteral("Key already exist!"));
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
      form.services.dialogs.messageBox(&form, QStringLiteral("Really delete this Key?") + QStringLiteral("\n\n") + key,
                                       QStringLiteral("Delete Key"), platform::BoxKind::YesNoDefaultNo);
  if (answer != platform::BoxAnswer::Yes) return;
  if (!writeKey(form, editor, key, std::nullopt)) return;
  editor.list.RemoveItem(editor.list.ListIndex());
  editor.list.SetListIndex(-1);
  editor.box.SetText(QString());
}

void Command4_Click(Form2& form) {
  const QString& skinFolder = form.services.state.paths.SkinDirectory;
  const QString path = form.services.dialogs.openFile(
      &form, {QStringLiteral("Change Filename"),
              QStringLiteral("All supported image files (*.bmp,*.gif,*.jpg,*.png)|*.bmp;*.gif;*.jpg;*.png"),
              form.Text3->Text(), skinFolder, true});
  if (path.isEmpty()) return;
  const qsizetype separator = path.lastIndexOf(u'\\');
  if (!platform::sameFolder(path.left(separator), skinFolder)) {
    showErrorBox(form, QStringLiteral("Image must be in ") + skinFolder);
    return;
  }
  form.Text3->SetText(path.mid(separator + 1));
}

}  // namespace toolwindow
