#include "endurance/monkey.h"

#include <QScopeGuard>
#include <QShortcut>

#include "mainwindows/commands.h"
#include "mainwindows/editor.h"
#include "platform/paths.h"
#include "themefiles/colour_tables.h"
#include "themefiles/ini_access.h"

namespace endurance {
namespace {

/// The refusals and failures that have to occur, by a piece of their words.
const QStringList Refusals =
    u"Color already exist!|This name can't be used!|Key already exist!|Image must be in|No Themes Found|"
    "[nothing is selected]|[no object is selected]|can't be found again]|a letter outside the code page|"
    "stays as it is [|Error while reading Value [|Error while adding colors []|Error while saving files [|"
    "Error while saving temporary files ["_s.split(u'|');
/// Commands, answers of dialogs, editor frames, and what the hand on the preview did.
const QStringList Others =
    u"Open|Save|Close|Background|end|a yes|no yes|ok|a name|no name|a file|no file|a colour|no colour|open|cancel|"
    "Color|Numbers|Selection|Texts|Texture|FloatNumbers|moved|sized|given up"_s.split(u'|');

const QString Crowd = u"Themes/A crowd.ini"_s;

/// A theme that fills the table of colours, with sections that can't be found again.
QByteArray crowdedTheme() {
  QByteArray theme = "[Theme]|Name=A crowd|" + support::manyColors(100);
  for (const QByteArray screen : {"Loading", "Main"}) {
    theme += "[" + screen + "]|[" + screen + "Static]x]|X=1|Font=40000|[" + screen +
             "StaticA]|Tex=Plate|X=1|Y=1|W=90|H=60|Z=0.5|Color=C5|DColor=C6|TColor=C7|[" + screen +
             "TextA]|X=1|Align=1|Text=OKAY|Color=C8|";
  }
  return support::linesOf(theme);
}

}  // namespace

QString commandName(const mainwindows::CommandRow& row) {
  return (row.menu.isEmpty() ? row.keys : row.menu).toString();
}

/// Whether the dialog gets an answer other than No or Cancel.
bool RandomDialogs::answered(const char* answer) {
  if (chance_.one(4)) QCoreApplication::processEvents();
  const bool given = !chance_.one(3);
  ++counts_[(given ? u"a "_s : u"no "_s) + QLatin1StringView(answer)];
  return given;
}

platform::BoxAnswer RandomDialogs::messageBox(QWidget* /*parent*/, const QString& text, const QString& /*title*/,
                                              platform::BoxKind kind) {
  for (const QString& refusal : Refusals) counts_[refusal] += text.contains(refusal);
  if (kind == platform::BoxKind::YesNoDefaultNo) {
    return answered("yes") ? platform::BoxAnswer::Yes : platform::BoxAnswer::No;
  }
  if (chance_.one(4)) QCoreApplication::processEvents();
  ++counts_[u"ok"_s];
  return platform::BoxAnswer::Ok;
}

QString RandomDialogs::inputBox(QWidget* /*parent*/, const QString& /*prompt*/, const QString& /*title*/) {
  if (!answered("name")) return {};
  const QString fresh = u"New"_s + QString::number(chance_.below(20));
  // Behind it: colours of each theme, keys, and what can't be a name.
  return chance_.of(QStringList{fresh, u"c7"_s, u"c8"_s, u"c9"_s, u"Accent"_s, u"Ink"_s, u"red"_s, u"Plate"_s,
                                u"OKAY"_s, u" odd "_s, u"a=b"_s});
}

QString RandomDialogs::openFile(QWidget* /*parent*/, const platform::FileRequest& request) {
  if (!answered("file")) return {};
  const QString folder = request.folder.isEmpty() ? u"C:\\nowhere"_s : request.folder;
  return folder +
         chance_.of(QStringList{u"\\plate.png"_s, u"\\..\\outside.png"_s, u"\\sub\\p.png"_s, u"\\\u0416.png"_s});
}

std::optional<QColor> RandomDialogs::chooseColor(QWidget* /*parent*/, const QColor& /*present*/) {
  if (!answered("colour")) return {};
  return QColor(chance_.below(256), chance_.below(256), chance_.below(256));
}

Monkey::Monkey(quint32 seed) : chance_(seed), dialogs_(chance_, counts_) {
  for (const QString& name : Refusals + Others) counts_[name] = 0;
  for (const mainwindows::CommandRow& row : mainwindows::commandRows()) {
    if (row.button == 0) counts_[commandName(row)] = 0;
  }
  game_.copySample();
  QDir(game_.native(u"Skins"_s)).mkdir(u"A crowd"_s);
  game_.put(u"Skins/A crowd/One.ini"_s, "[Skin]\r\n[Textures]\r\nPlate=plate.png\r\n");
  QFile(noThemes_.filePath(u"Vocora.exe"_s)).open(QIODevice::WriteOnly);
  expected_ = game_.files();
  dialogDriver_.callOnTimeout([this] { answerOpenDialog(); });
  dialogDriver_.start(1);
  start();
}

void Monkey::start() {
  program_.reset();
  game_.put(Crowd, expected_[Crowd] = crowdedTheme());
  program_ = std::make_unique<support::Program>(game_, true, &dialogs_);
  const auto counted = [this](const controls::WorkQueue::Work& work) {
    return [this, work] {
      require(++works_ == 1, u"a pass runs inside a pass"_s);
      const auto done = qScopeGuard([this] { --works_; });
      work();
    };
  };
  controls::WorkQueue& queue = form().queue();
  queue.setOperations({counted(queue.operations().choose), counted(queue.operations().draw)});
  QObject::connect(&form().queue(), &controls::WorkQueue::yielding, &form(), [this] { checkYield(); });
  // Both are told behind the program itself.
  QObject::connect(form().ToolBar, &toolbar::McToolBar::Click, &form(), [this](int button) {
    ++counts_[Others.at(button - 1)];
    noteSave();
  });
  for (auto* shortcut : form().findChildren<QShortcut*>()) {
    QObject::connect(shortcut, &QShortcut::activated, &form(), [this] { noteSave(); });
  }
}

void Monkey::require(bool holds, const QString& what) {
  if (!holds && fault_.isEmpty()) fault_ = what + u" at event "_s + QString::number(events_);
}

/// A Save may just have run: from now on the files of the game have to be what the working copies were then.
void Monkey::noteSave() {
  readStatus();
  if (!state().ThemeOpened) return;
  for (const QString& copy : {state().paths.ThemeFile, state().paths.SkinFile, state().paths.LanguageFile}) {
    const QString native = platform::nativePath(copy).chopped(4);
    const QString name = QDir(game_.native(QString())).relativeFilePath(native);
    const QByteArray bytes = game_.get(name);
    if (bytes == expected_[name]) continue;
    require(bytes == game_.get(name + u".tmp"_s), name + u" isn't its working copy"_s);
    expected_[name] = bytes;
  }
}

void Monkey::readStatus() {
  const QString status = form().StatusBar->panel(1);
  if (status == lastStatus_) return;
  lastStatus_ = status;
  for (const QString& refusal : Refusals) counts_[refusal] += status.contains(refusal);
}

void Monkey::checkYield() {
  ++yields_;
  require(works_ == 1, u"a yield without a pass"_s);
  checkTheme();
  if (nested_ > 0 || !chance_.one(25)) return;
  QMetaObject::invokeMethod(
      &form(),
      [this] {
        ++nested_;
        act();
        --nested_;
      },
      Qt::QueuedConnection);
}

/// What holds at any moment.
void Monkey::checkTheme() {
  require(form().findChildren<toolwindow::Form2*>().contains(form().toolWindow()) == (form().toolWindow() != nullptr),
          u"the tool window dangles"_s);
  require(state().Changed == program_->enabled(2), u"Changed and Save disagree"_s);
  for (const QString& path : {state().paths.ThemeFile, state().paths.SkinFile, state().paths.LanguageFile}) {
    require(state().ThemeOpened ? path.endsWith(u".tmp") : path.isEmpty(), u"path "_s + path);
  }
}

void Monkey::checkColors() {
  const QString& file = state().paths.ThemeFile;
  QStringList table;
  QStringList section = themefiles::keyNames(u"Colors"_s, file);
  for (const themefiles::NamedColor& row : state().ThemeColors) {
    if (row.Name.isEmpty()) continue;
    table += row.Name;
    require(row.Value == themefiles::GetINI(u"Colors"_s, row.Name, u"0 0 0"_s, file), u"colour "_s + row.Name);
  }
  table.sort();
  section.sort();
  require(table == section || section.size() > 100,
          u"the colours are "_s + table.join(u' ') + u", those of the file "_s + section.join(u' '));
}

/// What holds when all is at rest.
void Monkey::check() {
  readStatus();
  require(!form().queue().busy() && works_ == 0 && nested_ == 0, u"a pass is left"_s);
  require(form().ProgressBar1->isHidden(), u"the progress bar is left"_s);
  checkTheme();
  const bool opened = state().ThemeOpened;
  require(opened == (form().toolWindow() != nullptr), u"open without a tool window"_s);
  require(form().findChildren<toolwindow::Form2*>().size() == (opened ? 1 : 0), u"tool windows"_s);
  require(QApplication::activeModalWidget() == nullptr, u"a dialog is left"_s);
  require(program_->enabled(3) == opened && program_->enabled(4) == opened, u"buttons of an open theme"_s);
  for (const auto& [name, bytes] : expected_.asKeyValueRange()) {
    if (name.endsWith(u".ini")) require(game_.get(name) == bytes, name + u" has changed without a Save"_s);
  }
  if (!opened) return;
  checkColors();
  const toolwindow::Form2& tools = *form().toolWindow();
  int shown = 0;
  for (const char* frame : {"Numbers", "FloatNumbers", "Selection", "Color", "Texture", "Texts"}) {
    shown += support::named<QWidget>(tools, frame)->isHidden() ? 0 : 1;
  }
  require(shown <= 1 && (shown == 0 || state().EditorShown), u"editor frames"_s);
}

void Monkey::step() {
  act();
  support::settle();
  if (form().isHidden()) {
    // The program has ended: an event loop takes the wish to quit, which would end every later one at once.
    ++counts_[u"end"_s];
    require(form().toolWindow() == nullptr, u"the tool window outlives the program"_s);
    QMetaObject::invokeMethod(
        QCoreApplication::instance(), [] { QCoreApplication::exit(); }, Qt::QueuedConnection);
    QCoreApplication::exec();
    start();
  }
  check();
}

}  // namespace endurance
