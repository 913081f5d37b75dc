#pragma once

#include <functional>

#include <QDialog>
#include <QPushButton>

#include "controls/combo_box.h"
#include "controls/cut_label.h"
#include "controls/list_box.h"
#include "themefiles/module_state.h"

namespace mainwindows {

/// The Open Theme dialog: chooses a theme, one of its skins, and a language. Its result is their paths; it changes
/// nothing else in the program.
class Form3 : public QDialog {
  Q_OBJECT

 public:
  /// `themes` are those of the game folder, at least one. `open` makes the working copies of the choice; false keeps
  /// the dialog up.
  Form3(QString gameFolder, const QStringList& themes, std::function<bool(const themefiles::ThemePaths&)> open,
        QWidget* owner);

  controls::ListBox& themes() const { return *List1; }
  controls::ListBox& skins() const { return *List2; }
  controls::ComboBox& languages() const { return *Combo1; }
  QPushButton& openButton() const { return *Command1; }

 protected:
  void showEvent(QShowEvent* event) override;

 private:
  controls::CutLabel* label(const QString& text, double left, double top, double width);
  void Form_Load();
  void Form_Activate();
  void List1_Click();
  void List2_Click();
  void Command1_Click();
  themefiles::ThemePaths chosen() const;

  controls::ListBox* const List1;     ///< the themes
  controls::ListBox* const List2;     ///< the skins of the theme
  controls::CutLabel* const Label4;   ///< name of the theme
  controls::CutLabel* const Label5;   ///< creator of the theme
  controls::CutLabel* const Label9;   ///< name of the skin
  controls::CutLabel* const Label10;  ///< author of the skin
  controls::ComboBox* const Combo1;   ///< the languages
  QPushButton* const Command1;        ///< Open
  QPushButton* const Command2;        ///< Cancel

  QString gameFolder_;
  std::function<bool(const themefiles::ThemePaths&)> open_;
};

}  // namespace mainwindows
