#include "support/windows.h"

#include <QApplication>
#include <QDirIterator>
#include <QTest>
#include <QTimer>

#include "mainwindows/main_events.h"
#include "platform/paths.h"
#include "toolbar/button_values.h"

namespace support {
namespace {

template <typename Answer>
Answer next(std::deque<Answer>& answers, Answer without) {
  if (answers.empty()) return without;
  const Answer answer = answers.front();
  answers.pop_front();
  return answer;
}

QImage plain(int width, int height, QRgb color) {
  QImage picture(width, height, QImage::Format_ARGB32);
  picture.fill(color);
  return picture;
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

platform::BoxAnswer ScriptedDialogs::MessageBox(QWidget* /*parent*/, const QString& text, const QString& title,
                                                platform::BoxKind kind) {
  asked += title + u": "_s + text;
  const bool question = kind == platform::BoxKind::YesNoDefaultNo;
  return question ? next(boxes, platform::BoxAnswer::No) : platform::BoxAnswer::Ok;
}

QString ScriptedDialogs::InputBox(QWidget* /*parent*/, const QString& prompt, const QString& title) {
  asked += title + u": "_s + prompt;
  return next(inputs, QString());
}

QString ScriptedDialogs::OpenFile(QWidget* /*parent*/, const platform::FileRequest& request) {
  asked += request.title + u": "_s + request.folder;
  return next(files, QString());
}

std::optional<QColor> ScriptedDialogs::ChooseColor(QWidget* /*parent*/, const QColor& present) {
  asked += u"colour: "_s + present.name();
  return next(colors, std::optional<QColor>());
}

GameFolder::GameFolder() {
  for (const char* folder : {"Themes", "Skins/Alpha", "Languages"}) QDir(dir_.path()).mkpath(QLatin1StringView(folder));
  write(u"Vocora.exe"_s, "program");
  write(u"Themes/Alpha.ini"_s, QByteArray(Alpha).replace("|", "\n").replace("\n", "\r\n"));
  write(u"Skins/Alpha/One.ini"_s,
        "[Skin]\r\nName=First\r\nAutor=Bob\r\n[Textures]\r\nBack=back.png\r\nPlate=plate.png\r\nOther=other.png\r\n");
  write(u"Skins/Alpha/Two.ini"_s, "[Skin]\r\nName=Second\r\nAutor=Cid\r\n[Textures]\r\n");
  write(u"Languages/Deutsch.ini"_s, "[Text]\r\nHELLO=Hallo\r\n");
  write(u"Languages/English.ini"_s, "[Text]\r\nHELLO=Hello there\r\nGO=Go\r\nEMPTY=\r\n");
  plain(8, 6, qRgb(230, 220, 210)).save(native(u"Skins/Alpha/back.png"_s));
  plain(10, 8, qRgba(0, 40, 120, 200)).save(native(u"Skins/Alpha/plate.png"_s));
}

QString GameFolder::path() const {
  return platform::ProgramPath(dir_.path()) + u'\\';
}

void GameFolder::write(const QString& relative, const QByteArray& bytes) const {
  QFile file(native(relative));
  if (!file.open(QIODevice::WriteOnly) || file.write(bytes) != bytes.size()) qFatal("%s", qPrintable(relative));
}

QByteArray GameFolder::read(const QString& relative) const {
  QFile file(native(relative));
  return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray("no file");
}

bool GameFolder::has(const QString& relative) const {
  return QFileInfo::exists(native(relative));
}

void GameFolder::setWritable(const QString& relative, bool writable) const {
  const auto readable = QFileDevice::ReadOwner;
  QFile::setPermissions(native(relative), writable ? readable | QFileDevice::WriteOwner : readable);
}

QMap<QString, QByteArray> GameFolder::files() const {
  QMap<QString, QByteArray> all;
  QDirIterator walk(dir_.path(), QDir::Files, QDirIterator::Subdirectories);
  while (walk.hasNext()) {
    const QString name = QDir(dir_.path()).relativeFilePath(walk.next());
    all[name] = read(name);
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
  for (int i = 0; i < tools().List1->ListCount(); ++i) {
    if (tools().List1->List(i) != name) continue;
    tools().List1->SetListIndex(i);
    return;
  }
  qFatal("no object %s", qPrintable(name));
}

void Program::row(const QString& key) {
  controls::ListView& grid = *tools().ListView1;
  for (int i = 0; i < grid.RowCount(); ++i) {
    if (grid.RowText(i) != key) continue;
    grid.SelectRow(i);
    Q_EMIT grid.ItemClick(i);
    return;
  }
  qFatal("no row %s", qPrintable(key));
}

void Program::soleRow(const QString& key, const QString& value) {
  tools().ListView1->ClearRows();
  tools().ListView1->AddRow(key, value);
  row(key);
}

QString Program::value(const QString& key) {
  for (int i = 0; i < tools().ListView1->RowCount(); ++i) {
    if (tools().ListView1->RowText(i) == key) return tools().ListView1->SubItem(i);
  }
  return u"no row"_s;
}

void settle() {
  QCoreApplication::processEvents();
  QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
  QCoreApplication::processEvents();
}

}  // namespace support
