#pragma once

#include <filesystem>
#include <functional>

#include <QApplication>
#include <QDirIterator>
#include <QRegularExpression>
#include <QTest>
#include <QTimer>

#include "controls/combo_box.h"
#include "controls/list_box.h"
#include "controls/list_view.h"
#include "drawing/graphics.h"
#include "mainwindows/editor.h"
#include "mainwindows/open_theme_dialog.h"
#include "mainwindows/status_bar.h"
#include "mainwindows/workspace.h"
#include "progressbar/progress_bar.h"
#include "support/editors.h"
#include "support/mouse.h"
#include "support/panel.h"
#include "support/pictures.h"
#include "support/scripted_dialogs.h"
#include "toolbar/button_values.h"
#include "toolbar/mc_toolbar.h"
#include "toolwindow/tool_window.h"

/// What the tests of the windows share: dialogs that answer by script, a game folder, and the program on it.
namespace support {

inline const QString ThemeFile = u"Themes/Alpha.ini"_s;
inline const QString SkinFile = u"Skins/Alpha/One.ini"_s;
inline const QString LanguageFile = u"Languages/English.ini"_s;
inline const QString ThemeCopy = ThemeFile + u".tmp"_s;
inline const QString SkinCopy = SkinFile + u".tmp"_s;
inline const QString LanguageCopy = LanguageFile + u".tmp"_s;

/// One section a line, "|" for the line ends in it.
inline constexpr const char* AlphaTheme = R"([Theme]|Name=The Alpha theme|Creator=Ann
[Colors]|Red=200 40 40|Blue=30 60 200
[Loading]
[LoadingBackground]|Tex=Back
[LoadingButtonGo]|Tex=Plate|X=300|Y=200|W=80|H=40|Color=Red|DColor=Blue|INT=1|DINT=0.5|Type=Font Black|Texts=1|SelectH=60|Visible=1
[LoadingButtonGoText1]|X=10|Y=5|Font=1|Size=9|Text=GO
[LoadingButtonLast]|Tex=Plate|X=300|Y=300|W=80|H=40|Color=Blue|DColor=Red|INT=1|DINT=1|Type=Colorized
[LoadingStaticA]|Tex=Plate|X=40|Y=50|W=100|H=60|Color=Red|Type=Plain|Direction=0|ColR=0.5|Z=0.25
[LoadingTextFree]|X=400|Y=100|Font=0|Size=12|Align=1|Text=HELLO|Color=Blue
[LoadingTextLater]|X=400|Y=150|Font=2|Size=18|Text=GO
[Main]
[MainStaticA]|Tex=Plate|X=10|Y=20|W=30|H=40|Color=Blue
[MainTextFree]|X=500|Y=400|Font=1|Size=9|Text=HELLO
[Level]
[LevelStatic]x]|X=1|Y=2
)";

/// A game folder of its own in a temporary place; relative paths are written with "/".
class GameFolder : public Folder {
 public:
  /// Vocora.exe, the languages Deutsch and English, and the theme Alpha with the skins One and Two.
  GameFolder() {
    for (const char* name : {"Themes", "Skins/Alpha", "Languages"}) QDir(native({})).mkpath(QLatin1StringView(name));
    put(u"Vocora.exe"_s, "program");
    put(ThemeFile, QByteArray(AlphaTheme).replace("|", "\n").replace("\n", "\r\n"));
    put(SkinFile, linesOf("[Skin]|Name=First|Autor=Bob|[Textures]|Back=back.png|Plate=plate.png|Other=other.png|"));
    put(u"Skins/Alpha/Two.ini"_s, linesOf("[Skin]|Name=Second|Autor=Cid|[Textures]|"));
    put(u"Languages/Deutsch.ini"_s, linesOf("[Text]|HELLO=Hallo|"));
    put(LanguageFile, linesOf("[Text]|HELLO=Hello there|GO=Go|EMPTY=|"));
    addPicture("back.png", QColor(230, 220, 210), {8, 6});
    addPicture("plate.png", QColor(0, 40, 120, 200), {10, 8});
  }

  /// The program's form of it, with the separator behind it.
  QString path() const { return Folder::path({}) + u'\\'; }
  /// The files of the sample game in addition.
  void copySample() const {
    using std::filesystem::copy_options;
    const auto options = copy_options::recursive | copy_options::overwrite_existing;
    std::filesystem::copy(SAMPLE_FOLDER, native({}).toStdString(), options);
  }
  /// A picture in the folder of the theme's skins, of one colour.
  void addPicture(const char* name, const QColor& color, const QSize& size = {4, 4}) const {
    const QString file = native(u"Skins/Alpha/"_s + QLatin1StringView(name));
    if (!plainPicture(size.width(), size.height(), color.rgba()).save(file)) qFatal("can't write a picture");
  }
  /// All files with their bytes.
  QMap<QString, QByteArray> files() const {
    QMap<QString, QByteArray> all;
    const QDir folder(native({}));
    for (QDirIterator walk(folder.path(), QDir::Files, QDirIterator::Subdirectories); walk.hasNext();) {
      const QString name = folder.relativeFilePath(walk.next());
      all[name] = get(name);
    }
    return all;
  }
};

/// The entries of a list.
template <typename List>
QStringList entries(const List& list) {
  QStringList all;
  for (int i = 0; i < list.ListCount(); ++i) all += list.List(i);
  return all;
}

/// The entries of a list and the one that is chosen: "a,b: b".
inline QString listing(const controls::ComboBox& list) {
  return entries(list).join(u',') + u": "_s + list.Text();
}

/// Serves what is pending, deletions too.
inline void settle() {
  QCoreApplication::processEvents();
  QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
  QCoreApplication::processEvents();
}

/// The program's windows with their events connected.
class Program {
 public:
  /// config.ini in a folder of its own; the game folder is stored in it unless that is asked away. Dialogs answer by
  /// script, or those given.
  explicit Program(const GameFolder& game, bool storeFolder = true, platform::Dialogs* answering = nullptr)
      : whole_(
            {state, answering != nullptr ? *answering : dialogs, graphics, {platform::programPath(settings.path())}}),
        form(whole_.form) {
    if (storeFolder) form.config().setGameFolder(game.path());
    form.show();
  }
  ~Program() {
    form.unloadToolWindow();
    settle();
  }

  themefiles::ModuleState state;
  ScriptedDialogs dialogs;
  drawing::Graphics graphics;
  QTemporaryDir settings;

 private:
  mainwindows::Editor whole_;

 public:
  mainwindows::Form1& form;

  toolwindow::Form2& tools() const { return *form.toolWindow(); }
  const QImage& picture() const { return form.Workspace->surface().image(); }
  /// The colour that the preview has at a place, with all that is painted over the picture.
  QColor shownAt(const QPoint& place) const {
    return form.Workspace->grab({place, QSize(1, 1)}).toImage().pixelColor(0, 0);
  }
  /// Whether the screen has of the preview what a painting of the whole would give.
  bool isPainted() const {
    const QRect seen = form.Workspace->visibleRegion().boundingRect();
    const QPoint at = form.Workspace->mapTo(&form, seen.topLeft());
    const QPixmap shown = form.screen()->grabWindow(form.winId(), at.x(), at.y(), seen.width(), seen.height());
    const QPixmap whole = form.Workspace->grab(seen);
    return !form.isVisible() ||
           shown.toImage().convertedTo(QImage::Format_RGB32) == whole.toImage().convertedTo(QImage::Format_RGB32);
  }
  QString status() const { return form.StatusBar->panel(1).mid(11); }  ///< without the time
  bool enabled(int button) const { return form.ToolBar->GetButtonValue(button, toolbar::EnabledProperty).toBool(); }
  /// Which of the toolbar's buttons are enabled: "+--+".
  QString buttons() const {
    QString all;
    for (int button = 1; button <= 4; ++button) all += enabled(button) ? u'+' : u'-';
    return all;
  }

  /// The rows of the grid, and those of the theme's colours: "name=value".
  QStringList rows() const {
    QStringList all;
    const controls::ListView& grid = tools().values();
    for (int row = 0; row < grid.rowCount(); ++row) all += grid.rowText(row) + u'=' + grid.subItem(row);
    return all;
  }
  QStringList colors() const {
    QStringList all;
    for (const themefiles::NamedColor& color : state.ThemeColors) all += color.Name + u'=' + color.Value;
    return all;
  }

  /// A click of the mouse on a button of the toolbar.
  void click(int button) { QTest::mouseClick(form.ToolBar, Qt::LeftButton, {}, QPoint(32 * button - 16, 16)); }
  /// Clicks Open, or asks otherwise for it, and runs `act` on the Open Theme dialog; gives whether it came up. `act`
  /// has to end it.
  bool openDialog(const std::function<void(mainwindows::Form3&)>& act, const std::function<void()>& ask = {}) {
    bool up = false;
    QTimer watch;
    watch.callOnTimeout([&] {
      auto* dialog = qobject_cast<mainwindows::Form3*>(QApplication::activeModalWidget());
      if (dialog == nullptr || std::exchange(up, true)) return;
      act(*dialog);
    });
    watch.start(1);
    ask ? ask() : click(1);
    return up;
  }
  /// Opens the first theme, Alpha, with its first skin and English.
  void open() {
    openDialog([](mainwindows::Form3& dialog) {
      dialog.openButton().click();
      if (dialog.isVisible()) dialog.reject();
    });
    settle();
  }
  /// Chooses a screen, or an object, by name.
  void screen(const QString& name) { tools().screens().SetText(name); }
  void tag(const QString& name) {
    const auto found = tools().objects().findItems(name, Qt::MatchExactly);
    if (found.isEmpty()) qFatal("no object %s", qPrintable(name));
    tools().objects().SetListIndex(tools().objects().row(found.first()));
  }
  /// A click on the row of the grid that shows the key.
  void row(const QString& key) {
    const int row = rowOf(key);
    if (row < 0) qFatal("no row %s", qPrintable(key));
    tools().values().selectRow(row);
    Q_EMIT tools().values().ItemClick(row);
  }
  /// A grid of this one row, and a click on it.
  void soleRow(const QString& key, const QString& value) {
    tools().values().clearRows();
    tools().values().addRow(key, value);
    row(key);
  }
  /// Enters a number for a key, or changes one of LoadingStaticA.
  void change(const QString& key, const QString& text) {
    row(key);
    Editors(tools()).Text1->SetText(text);
    Editors(tools()).Command1->click();
  }
  void edit(const QString& key = u"X"_s, const QString& text = u"77"_s) {
    tag(u"LoadingStaticA"_s);
    change(key, text);
  }
  /// The value that the grid shows for the key.
  QString value(const QString& key) const {
    return rowOf(key) < 0 ? u"no row"_s : tools().values().subItem(rowOf(key));
  }

 private:
  /// The row of the grid that shows the key; -1 when there is none.
  int rowOf(const QString& key) const {
    return static_cast<int>(rows().lastIndexOf(QRegularExpression(QRegularExpression::escape(key) + u"=.*"_s)));
  }
};

/// A test whose functions each get the program on a game folder of its own, with the theme open.
class ProgramTest : public QObject {
  Q_OBJECT

 protected:
  std::unique_ptr<GameFolder> game;
  std::unique_ptr<Program> program;

 protected Q_SLOTS:
  virtual void init() {
    game = std::make_unique<GameFolder>();
    program = std::make_unique<Program>(*game);
    program->open();
    QVERIFY(program->form.toolWindow() != nullptr);
  }
  void cleanup() { program.reset(); }
};

}  // namespace support
