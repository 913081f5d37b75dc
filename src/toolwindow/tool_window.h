#pragma once

#include <memory>

#include <QWidget>

#include "editing/commit.h"
#include "editing/session.h"
#include "themefiles/key_table.h"
#include "toolwindow/editor_area.h"
#include "toolwindow/listed_tags.h"
#include "toolwindow/mark_placing.h"
#include "toolwindow/own_sizes.h"
#include "toolwindow/placed_controls.h"
#include "toolwindow/tool_layout.h"
#include "toolwindow/tool_services.h"

namespace controls {
class ComboBox;
class ListBox;
class ListView;
}  // namespace controls

namespace toolwindow {

class SavedMarking;

/// The tool window: the choice of screen and object, the values of the object, and the editor of one value. It shows
/// what the session tells and passes on what the user does. It floats over the main window while a theme is open; its
/// user can't close it by itself.
class Form2 : public QWidget {
  Q_OBJECT

 public:
  /// The window isn't shown yet. It belongs to its owner.
  Form2(ToolServices given, QWidget* owner);
  ~Form2() override;

  const ToolServices services;

  /// The lists of the screens, of the screen's objects, and of the object's keys and values.
  controls::ComboBox& screens() const { return *Combo1; }
  controls::ListBox& objects() const { return *List1; }
  controls::ListView& values() const { return *ListView1; }

  /// The theme has been read: lets the user choose, and chooses the first screen.
  void start();
  /// Goes to a search hit, with the focus on what it has found.
  void goTo(const themefiles::Hit& hit);
  /// What the user has changed in an editor and not taken over: "not taken over: X = 450"; empty for nothing.
  QString pendingChanges() const { return area_.pendingChanges(); }

  const ToolLayout& layout() const { return layout_; }

 protected:
  void resizeEvent(QResizeEvent* event) override;
  void closeEvent(QCloseEvent* event) override;
  void keyPressEvent(QKeyEvent* event) override;

 private:
  void build();
  void connectLists();
  void connectSession();
  void connectMenus();

  void Command1_Click();
  void ListView1_ItemClick(int row);
  void enterEditor(int row, const QString& typed);
  editing::EditedRow editedRow(int row) const;
  void showValues(const std::vector<themefiles::ValueRow>& rows);
  void showWritten(int row, const QString& key, const QString& value);
  void showMembers();
  void chooseRow(const themefiles::Hit& hit);
  void showPutBack(int row);

  void ShowEditorFrame(themefiles::EditorFrame frame);
  void closeEditorFrame();
  void HideEditorFrames();
  void applyLayout() { placed_.place(layout_); }
  void fitWindow();

  controls::ComboBox* const Combo1;     ///< the screens
  controls::ListBox* const List1;       ///< the screen's objects
  controls::ListView* const ListView1;  ///< the object's keys and values

  PlacedControls placed_;
  EditorArea area_;
  ListedTags tags_;  ///< List1, as the session and the renderer see it
  MarkPlacing markPlacing_;
  std::unique_ptr<SavedMarking> marking_;
  ToolLayout layout_ = loadedLayout();
  ToolLayout fitted_;  ///< the layout of the size that the window last gave itself
  OwnSizes ownSizes_;
};

}  // namespace toolwindow
