#include "support/windows.h"

#include <QApplication>
#include <QDirIterator>
#include <QTest>
#include <QTimer>

#include "mainwindows/main_events.h"
#include "toolbar/button_values.h"

namespace support {
namespace {

/// The row of the grid that shows the key; -1 when there is none.
int rowOf(const controls::ListView& grid, const QString& key) {
  for (int row = 0; row < grid.RowCount(); ++row) {
    if (grid.RowText(row) == key) return row;
  }
  return -1;
}

/// One section a line, "|" for the line ends in it.
constexpr const char* Alpha = R"([Theme]|Name=The Alpha theme|Creator=Ann
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
[MainTextFree]|X=500|Y=400|Font=1|Size=30|Text=HELLO
[Level]
[LevelStatic]x]|X=1|Y=2
)";

}  // namespace

GameFolder::GameFolder() {
  for (const char* folder : {"Themes", "Skins/Alpha", "Languages"}) QDir(native({})).mkpath(QLatin1StringView(folder));
  put(u"Vocora.exe"_s, "program");
  put(ThemeFile, QByteArray(Alpha).replace("|", "\n").replace("\n", "\r\n"));
  put(SkinFile, linesOf("[Skin]|Name=First|Autor=Bob|[Textures]|Back=back.png|Plate=plate.png|Other=other.png|"));
  put(u"Skins/Alpha/Two.ini"_s, linesOf("[Skin]|Name=Second|Autor=Cid|[Textures]|"));
  put(u"Languages/Deutsch.ini"_s, linesOf("[Text]|HELLO=Hallo|"));
  put(LanguageFile, linesOf("[Text]|HELLO=Hello there|GO=Go|EMPTY=|"));
  addPicture("back.png", QColor(230, 220, 210), {8, 6});
  addPicture("plate.png", QColor(0, 40, 120, 200), {10, 8});
}

void GameFolder::addPicture(const char* name, const QColor& color, const QSize& size) const {
  QImage picture(size, QImage::Format_ARGB32);
  picture.fill(color);
  if (!picture.save(native(u"Skins/Alpha/"_s + QLatin1StringView(name)))) qFatal("can't write a picture");
}

QMap<QString, QByteArray> GameFolder::files() const {
  QMap<QString, QByteArray> all;
  const QDir folder(native({}));
  QDirIterator walk(folder.path(), QDir::Files, QDirIterator::Subdirectories);
  while (walk.hasNext()) {
    const QString name = folder.relativeFilePath(walk.next());
    all[name] = get(name);
  }
  return all;
}

Program::Program(const GameFolder& game, bool storeFolder)
    : form({state, dialogs, graphics, {platform::ProgramPath(settings.path())}}) {
  if (storeFolder) form.Config.SetGameFolder(game.path());
  mainwindows::ConnectEvents(form);
  form.show();
}

Program::~Program() {
  delete form.ToolWindow;
  form.ToolWindow = nullptr;
  settle();
}

bool Program::enabled(int button) const {
  return form.ToolBar->GetButtonValue(button, toolbar::EnabledProperty).toBool();
}

QString Program::buttons() const {
  QString all;
  for (int button = 1; button <= 4; ++button) all += enabled(button) ? u'+' : u'-';
  return all;
}

void Program::click(int button) {
  QTest::mouseClick(form.ToolBar, Qt::LeftButton, {}, QPoint(32 * button - 16, 16));
}

bool Program::openDialog(const std::function<void(mainwindows::Form3&)>& act) {
  bool up = false;
  QObject life;
  QTimer::singleShot(0, &life, [&] {
    auto* dialog = qobject_cast<mainwindows::Form3*>(QApplication::activeModalWidget());
    up = dialog != nullptr;
    if (up) act(*dialog);
  });
  click(1);
  return up;
}

void Program::open(const QString& theme) {
  openDialog([&](mainwindows::Form3& dialog) {
    const auto found = dialog.List1->findItems(theme, Qt::MatchExactly);
    if (!found.isEmpty()) dialog.List1->SetListIndex(dialog.List1->row(found.first()));
    dialog.Command1->click();
    if (dialog.isVisible()) dialog.reject();
  });
  settle();
}

void Program::screen(const QString& name) {
  tools().Combo1->SetText(name);
}

void Program::tag(const QString& name) {
  const auto found = tools().List1->findItems(name, Qt::MatchExactly);
  if (found.isEmpty()) qFatal("no object %s", qPrintable(name));
  tools().List1->SetListIndex(tools().List1->row(found.first()));
}

void Program::row(const QString& key) {
  const int row = rowOf(*tools().ListView1, key);
  if (row < 0) qFatal("no row %s", qPrintable(key));
  tools().ListView1->SelectRow(row);
  Q_EMIT tools().ListView1->ItemClick(row);
}

void Program::soleRow(const QString& key, const QString& value) {
  tools().ListView1->ClearRows();
  tools().ListView1->AddRow(key, value);
  row(key);
}

void Program::update(const QString& text) {
  tools().Text1->SetText(text);
  tools().Command1->click();
}

void Program::change(const QString& key, const QString& text) {
  row(key);
  update(text);
}

void Program::edit(const QString& key, const QString& text) {
  tag(u"LoadingStaticA"_s);
  change(key, text);
}

QString Program::value(const QString& key) const {
  const int row = rowOf(*tools().ListView1, key);
  return row < 0 ? u"no row"_s : tools().ListView1->SubItem(row);
}

void ProgramTest::init() {
  game = std::make_unique<GameFolder>();
  program = std::make_unique<Program>(*game);
  program->open();
  QVERIFY(program->form.ToolWindow != nullptr);
}

void ProgramTest::cleanup() {
  program.reset();
  game.reset();
}

QStringList entries(const controls::ComboBox& list) {
  QStringList all;
  for (int i = 0; i < list.ListCount(); ++i) all += list.List(i);
  return all;
}

void settle() {
  QCoreApplication::processEvents();
  QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
  QCoreApplication::processEvents();
}

}  // namespace support
