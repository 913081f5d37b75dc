#include "session.h"

#include <array>

#include <QApplication>
#include <QDir>
#include <QInputDialog>
#include <QLineEdit>
#include <QListWidget>
#include <QMouseEvent>
#include <QScreen>
#include <QShortcut>

#include "controls/list_view.h"
#include "controls/swatch_button.h"
#include "editing/commit.h"
#include "editing/theme_colours.h"
#include "mainwindows/open_theme_dialog.h"
#include "mainwindows/workspace.h"
#include "platform/failure.h"
#include "platform/paths.h"
#include "toolbar/mc_toolbar.h"
#include "toolwindow/tool_window.h"
#include "waiting.h"

namespace screenshots {
namespace {

constexpr int OpenButton = 1;
constexpr int CloseButton = 3;
constexpr int SettleTime = 300;  // ms

/// An object of the main screen and one of its keys.
struct Row {
  QStringView tag;
  QStringView key;
};

constexpr QStringView DraggedTag = u"MainStaticEqualizer";
constexpr QStringView GroupTag = u"MainButtonCollectionTools";
constexpr QStringView MemberTag = u"MainButtonExit";
constexpr Row ColorRow{u"MainStaticIcon", u"Color"};
constexpr Row ThemeColorRow{u"MainTextTitle", u"Color"};
constexpr Row TextRow{u"MainTextTitle", u"Text"};
constexpr Row TextureRow{u"MainStaticIcon", u"Tex"};
constexpr Row NumberRow{u"MainStaticIcon", u"X"};

/// One editor frame: what brings it up, and its picture.
struct EditorRow {
  Row row;
  QStringView picture;
};

constexpr auto Editors = std::to_array<EditorRow>({
    {NumberRow, u"tool-numbers"},
    {{u"MainStaticIcon", u"Z"}, u"tool-floatnumbers"},
    {{u"MainStaticIcon", u"Type"}, u"tool-selection"},
    {ColorRow, u"tool-color"},
    {TextRow, u"tool-texts"},
    {TextureRow, u"tool-texture"},
});

/// Lets the windows come to rest.
void settle() {
  waitFor(SettleTime);
}

template <typename List>
int rowOf(const List& list, const QString& text) {
  for (int row = 0; row < list.ListCount(); ++row) {
    if (list.List(row) == text) return row;
  }
  throw platform::Failure(QStringLiteral("no row '%1'").arg(text));
}

/// Picks the object and clicks the key's row in the grid.
void openEditor(toolwindow::Form2& tools, const Row& wanted) {
  tools.objects().SetListIndex(rowOf(tools.objects(), wanted.tag.toString()));
  for (int row = 0; row < tools.values().rowCount(); ++row) {
    if (tools.values().rowText(row) != wanted.key) continue;
    tools.values().selectRow(row);
    Q_EMIT tools.values().ItemClick(row);
    settle();
    return;
  }
  throw platform::Failure(QStringLiteral("no key '%1'").arg(wanted.key));
}

/// A button of the tool window by its object name.
QPushButton& button(const toolwindow::Form2& tools, const char* name) {
  return *tools.findChild<QPushButton*>(QLatin1StringView(name));
}

void cancel(QDialog& dialog) {
  dialog.reject();
}

void accept(QDialog& dialog) {
  dialog.accept();
}

/// Answers an input box.
std::function<void(QDialog&)> entering(const QString& text) {
  return [text](QDialog& dialog) {
    dynamic_cast<QInputDialog&>(dialog).setTextValue(text);
    dialog.accept();
  };
}

/// Answers a file dialog.
std::function<void(QDialog&)> choosing(const QString& path) {
  return [path](QDialog& dialog) {
    dialog.findChild<QLineEdit*>(QStringLiteral("fileNameEdit"))->setText(path);
    dialog.accept();
  };
}

}  // namespace

Session::Session(mainwindows::Form1& form, QString outputFolder)
    : form_(form),
      folder_(std::move(outputFolder)),
      dialogs_([this](QWidget& window, const QString& name) { save(window, name); }),
      controls_(form, [this](const QPixmap& picture, const QString& name) { savePicture(picture, name); }) {}

void Session::run() {
  form_.show();
  settle();
  save(form_, QStringLiteral("start"));
  controls_.showToolBar(QStringLiteral("toolbar-start"));
  openTheme();
  showScreen(QStringLiteral("Main Screen"));
  save(form_, QStringLiteral("main-window"));
  controls_.showToolBarStates();
  controls_.showProgress([this] { form_.queue().draw(); });
  showDrags();
  showLoupe();
  showEditors();
  saveScreen(QStringLiteral("editor"));
  showColorBoxes();
  showKeyBoxes();
  showLists();
  showCloseQuestion();
}

void Session::openTheme() {
  const auto open = [](QDialog& dialog) { dynamic_cast<mainwindows::Form3&>(dialog).openButton().click(); };
  dialogs_.run({{QStringLiteral("box-game-folder"), choosing(QDir::current().filePath(QStringLiteral("Vocora.exe")))},
                {QStringLiteral("open-theme"), open}},
               [this] { Q_EMIT form_.ToolBar->Click(OpenButton); });
  if (form_.toolWindow() == nullptr) throw platform::Failure(QStringLiteral("no theme was opened"));
}

void Session::showScreen(const QString& name) {
  controls::ComboBox& screens = form_.toolWindow()->screens();
  screens.SetListIndex(rowOf(screens, name));
  settle();
}

void Session::showDrags() {
  constexpr QPoint Equalizer(200, 500);
  constexpr QPoint Tools(470, 465);
  controls::ListBox& objects = form_.toolWindow()->objects();
  objects.SetListIndex(rowOf(objects, DraggedTag.toString()));
  showDrag(Equalizer, {226, 18}, QStringLiteral("drag"));
  objects.SetListIndex(rowOf(objects, GroupTag.toString()));
  form_.session().toggleMember(MemberTag.toString());
  showDrag(Tools, {-14, 40}, QStringLiteral("group"));
  form_.session().endGroup();
}

/// A drag in flight; it is given up then.
void Session::showDrag(const QPoint& from, const QPoint& by, const QString& name) {
  mainwindows::Workspace& preview = *form_.Workspace;
  const auto send = [&preview](QEvent::Type type, const QPoint& place) {
    const auto button = type == QEvent::MouseMove ? Qt::NoButton : Qt::LeftButton;
    QMouseEvent event(type, place, preview.mapToGlobal(place), button, Qt::LeftButton, Qt::NoModifier);
    QApplication::sendEvent(&preview, &event);
  };
  send(QEvent::MouseButtonPress, from);
  send(QEvent::MouseMove, from + by);
  settle();
  save(form_, name);
  form_.session().settle();
}

/// The loupe at an edge in the picture.
void Session::showLoupe() {
  constexpr QPoint Edge(166, 330);
  auto& loupe = *form_.findChild<QWidget*>(QStringLiteral("Loupe"));
  loupe.show();
  Q_EMIT form_.Workspace->watched(Edge);
  settle();
  save(loupe, QStringLiteral("loupe"));
  loupe.hide();
}

void Session::showEditors() {
  for (const EditorRow& editor : Editors) {
    openEditor(*form_.toolWindow(), editor.row);
    save(*form_.toolWindow(), editor.picture.toString());
  }
}

void Session::showColorBoxes() {
  toolwindow::Form2& tools = *form_.toolWindow();
  openEditor(tools, ThemeColorRow);
  const QString present = tools.findChild<controls::ComboBox*>(QStringLiteral("Combo3"))->Text();
  const auto add = [&tools] { button(tools, "Command3").click(); };
  dialogs_.run({{QStringLiteral("box-color-dialog"), cancel}}, [&tools] { button(tools, "Command2").click(); });
  dialogs_.run({{QStringLiteral("box-new-color"), entering(present)}, {QStringLiteral("box-color-exists"), accept}},
               add);
  dialogs_.run({{QString(), entering(QStringLiteral("a=b"))}, {QStringLiteral("box-name-unusable"), accept}}, add);
  dialogs_.run({{QStringLiteral("box-delete-color"), cancel}}, [&tools] { button(tools, "Command5").click(); });
}

void Session::showKeyBoxes() {
  toolwindow::Form2& tools = *form_.toolWindow();
  openEditor(tools, TextRow);
  const QString present = tools.findChild<controls::ComboBox*>(QStringLiteral("Combo5"))->Text();
  dialogs_.run({{QStringLiteral("box-new-textkey"), entering(present)}, {QStringLiteral("box-key-exists"), accept}},
               [&tools] { button(tools, "Command6").click(); });
  dialogs_.run({{QStringLiteral("box-delete-key"), cancel}}, [&tools] { button(tools, "Command7").click(); });
  openEditor(tools, TextureRow);
  dialogs_.run({{QStringLiteral("box-new-texturekey"), cancel}}, [&tools] { button(tools, "Command8").click(); });
  const auto changeImage = [&tools] { button(tools, "Command4").click(); };
  dialogs_.run({{QStringLiteral("box-image-dialog"), cancel}}, changeImage);
  const QString elsewhere =
      platform::nativePath(form_.services.state.paths.SkinDirectory + QStringLiteral("\\..\\Workbench\\plate.png"));
  dialogs_.run({{QString(), choosing(elsewhere)}, {QStringLiteral("box-image-elsewhere"), accept}}, changeImage);
}

/// The windows that answer a question about the whole theme, after a few edits.
void Session::showLists() {
  editing::Session& session = form_.session();
  editing::commitValues(session,
                        {{QStringLiteral("MainStaticIcon"), {{QStringLiteral("X"), QStringLiteral("24")}}},
                         {QStringLiteral("MainTextMotto"), {{QStringLiteral("Size"), QStringLiteral("0")}}},
                         {QStringLiteral("SongStaticBar"), {{QStringLiteral("Tex"), QStringLiteral("Bars")}}}});
  editing::changeColor(session, QStringLiteral("Gold"), QStringLiteral("255 190 60"));
  for (const auto& [keys, picture] : {std::pair{QStringLiteral("Ctrl+Shift+E"), QStringLiteral("list-changes")},
                                      {QStringLiteral("Ctrl+Shift+K"), QStringLiteral("list-faults")},
                                      {QStringLiteral("Ctrl+B"), QStringLiteral("side-by-side")}}) {
    for (QShortcut* shortcut : form_.findChildren<QShortcut*>()) {
      if (shortcut->key() == QKeySequence(keys)) Q_EMIT shortcut->activated();
    }
    settle();
    QWidget& window = *QApplication::activeWindow();
    const auto& list = *window.findChild<QListWidget*>();
    // What is there last: rows, or the picture of the last one.
    const bool hasPictures = list.viewMode() == QListView::IconMode;
    while (list.count() == 0 || (hasPictures && list.item(list.count() - 1)->icon().isNull())) settle();
    settle();
    save(window, picture);
    window.hide();
  }
}

void Session::showCloseQuestion() {
  openEditor(*form_.toolWindow(), NumberRow);
  button(*form_.toolWindow(), "Command1").click();
  settle();
  dialogs_.run({{QStringLiteral("box-close"), cancel}}, [this] { Q_EMIT form_.ToolBar->Click(CloseButton); });
}

void Session::save(QWidget& window, const QString& name) const {
  savePicture(window.grab(), name);
}

void Session::savePicture(const QPixmap& picture, const QString& name) const {
  if (!picture.save(folder_ + u'/' + name + QStringLiteral(".png"))) {
    throw platform::Failure(QStringLiteral("can't write %1").arg(name));
  }
}

/// The main window with what lies over it, as the screen shows them.
void Session::saveScreen(const QString& name) const {
  const QRect place = form_.frameGeometry().united(form_.toolWindow()->frameGeometry());
  savePicture(form_.screen()->grabWindow(0, place.x(), place.y(), place.width(), place.height()), name);
}

}  // namespace screenshots
