#include "endurance/monkey.h"

#include <QScopeGuard>
#include <QShortcut>

#include "mainwindows/main_events.h"
#include "platform/paths.h"
#include "themefiles/colour_tables.h"
#include "themefiles/ini_access.h"
#include "toolwindow/object_selection.h"

namespace endurance {
namespace {

/// The refusals and failures that have to occur, by a piece of their words.
constexpr std::array<const char*, 13> Refusals{"Color already exist!",
                                               "This name can't be used!",
                                               "Key already exist!",
                                               "Image must be in",
                                               "No Themes Found",
                                               "[nothing is selected]",
                                               "[no object is selected]",
                                               "can't be found again]",
                                               "a letter outside the code page",
                                               "Error while reading Value [",
                                               "Error while adding colors []",
                                               "Error while saving files [",
                                               "Error while saving temporary files ["};
constexpr std::array<const char*, 11> Answers{"yes",  "no",     "ok",        "a name",  "a file", "a colour",
                                              "open", "cancel", "no colour", "no name", "no file"};
constexpr std::array<const char*, 5> Commands{"Open", "Save", "Close", "Background", "end"};
constexpr std::array<const char*, 6> Frames{"Numbers", "FloatNumbers", "Selection", "Color", "Texture", "Texts"};

/// A theme with as many colours as the table takes, but for one, and with a section that can't be found again.
QByteArray crowdedTheme() {
  QByteArray theme = "[Theme]\r\nName=Crowded\r\n[Colors]\r\n";
  for (int i = 0; i < 99; ++i) theme += "C" + QByteArray::number(i) + "=1 2 3\r\n";
  const QByteArray object = "StaticA]\r\nTex=Plate\r\nX=1\r\nY=2\r\nW=30\r\nH=40\r\nColor=C5\r\n";
  return theme + "[Loading]\r\n[Loading" + object + "[Main]\r\n[Main" + object + "[MainStatic]x]\r\nX=1\r\nFont=1\r\n";
}

}  // namespace

bool RandomDialogs::cancelled(const char* dialog) {
  if (chance_.one(4)) QCoreApplication::processEvents();
  if (!chance_.one(3)) return false;
  ++counts_[u"no "_s + QLatin1StringView(dialog)];
  return true;
}

platform::BoxAnswer RandomDialogs::MessageBox(QWidget* /*parent*/, const QString& text, const QString& /*title*/,
                                              platform::BoxKind kind) {
  for (const char* refusal : Refusals) counts_[QLatin1StringView(refusal)] += text.contains(QLatin1StringView(refusal));
  if (chance_.one(4)) QCoreApplication::processEvents();
  if (kind == platform::BoxKind::Error) {
    ++counts_[u"ok"_s];
    return platform::BoxAnswer::Ok;
  }
  const bool yes = !chance_.one(3);
  ++counts_[yes ? u"yes"_s : u"no"_s];
  return yes ? platform::BoxAnswer::Yes : platform::BoxAnswer::No;
}

QString RandomDialogs::InputBox(QWidget* /*parent*/, const QString& /*prompt*/, const QString& /*title*/) {
  if (cancelled("name")) return {};
  ++counts_[u"a name"_s];
  return chance_.one(2) ? u"New"_s + QString::number(chance_.below(10000)) : chance_.of(names);
}

QString RandomDialogs::OpenFile(QWidget* /*parent*/, const platform::FileRequest& request) {
  if (cancelled("file")) return {};
  ++counts_[u"a file"_s];
  const QString folder = request.folder.isEmpty() ? u"C:\\nowhere"_s : request.folder;
  return folder +
         chance_.of(QStringList{u"\\plate.png"_s, u"\\..\\outside.png"_s, u"\\sub\\p.png"_s, u"\\\u0416.png"_s});
}

std::optional<QColor> RandomDialogs::ChooseColor(QWidget* /*parent*/, const QColor& /*present*/) {
  if (cancelled("colour")) return {};
  ++counts_[u"a colour"_s];
  return QColor(chance_.below(256), chance_.below(256), chance_.below(256));
}

Monkey::Monkey(quint32 seed) : chance_(seed), dialogs_(chance_, counts_) {
  for (const char* name : Refusals) counts_[QLatin1StringView(name)] = 0;
  for (const char* name : Answers) counts_[QLatin1StringView(name)] = 0;
  for (const char* name : Commands) counts_[QLatin1StringView(name)] = 0;
  for (const char* name : Frames) counts_[QLatin1StringView(name)] = 0;
  dialogs_.names =
      QStringList{u"Steel"_s, u"C7"_s, u"steel"_s, u"Plate"_s, u"OKAY"_s, u" odd "_s, u"a=b"_s, u"\u0416"_s};
  game_.copySample();
  game_.put(u"Themes/Crowded.ini"_s, crowdedTheme());
  QDir(game_.native(u"Skins"_s)).mkdir(u"Crowded"_s);
  game_.put(u"Skins/Crowded/One.ini"_s, "[Skin]\r\n[Textures]\r\nPlate=plate.png\r\n");
  QFile(noThemes_.filePath(u"Vocora.exe"_s)).open(QIODevice::WriteOnly);
  expected_ = game_.files();
  dialogDriver_.callOnTimeout([this] { answerOpenDialog(); });
  dialogDriver_.start(1);
  start();
}

Monkey::~Monkey() {
  delete form_->ToolWindow;
  form_->ToolWindow = nullptr;
}

void Monkey::start() {
  state_ = {};
  form_ = std::make_unique<mainwindows::Form1>(
      mainwindows::MainServices{state_, dialogs_, graphics_, {platform::ProgramPath(settings_.path())}});
  form_->Config.SetGameFolder(game_.path());
  mainwindows::ConnectEvents(*form_);
  const auto counted = [this](void (*work)(mainwindows::Form1&)) {
    return [this, work] {
      require(++works_ == 1, u"a pass runs inside a pass"_s);
      const auto done = qScopeGuard([this] { --works_; });
      work(*form_);
    };
  };
  form_->Queue.SetWorks(counted([](mainwindows::Form1& form) {
                          if (form.ToolWindow != nullptr) toolwindow::ListScreen(*form.ToolWindow);
                        }),
                        counted([](mainwindows::Form1& form) { form.DrawScreen(); }));
  QObject::connect(&form_->Queue, &controls::WorkQueue::Yielding, form_.get(), [this] { checkYield(); });
  // Both are told behind the program itself.
  QObject::connect(form_->ToolBar, &toolbar::McToolBar::Click, form_.get(), [this](int button) {
    ++counts_[QLatin1StringView(Commands.at(static_cast<size_t>(button - 1)))];
    noteSave();
  });
  for (auto* shortcut : form_->findChildren<QShortcut*>()) {
    QObject::connect(shortcut, &QShortcut::activated, form_.get(), [this] { noteSave(); });
  }
  form_->show();
}

void Monkey::require(bool holds, const QString& what) {
  if (!holds && fault_.isEmpty()) fault_ = what + u" at event "_s + QString::number(events_);
}

/// A Save may just have run: from now on the files of the game have to be what the working copies were then.
void Monkey::noteSave() {
  readStatus();
  if (!state_.ThemeOpened) return;
  for (const QString& copy : {state_.Paths.ThemeFile, state_.Paths.SkinFile, state_.Paths.LanguageFile}) {
    const QString native = platform::NativePath(copy).chopped(4);
    const QString name = QDir(game_.native(QString())).relativeFilePath(native);
    const QByteArray bytes = game_.get(name);
    if (bytes == expected_[name]) continue;
    require(bytes == game_.get(name + u".tmp"_s), name + u" isn't its working copy"_s);
    expected_[name] = bytes;
  }
}

void Monkey::readStatus() {
  const QString status = form_->StatusBar->Panel(1);
  if (status == lastStatus_) return;
  lastStatus_ = status;
  for (const char* refusal : Refusals)
    counts_[QLatin1StringView(refusal)] += status.contains(QLatin1StringView(refusal));
}

void Monkey::checkYield() {
  ++yields_;
  require(works_ == 1, u"a yield without a pass"_s);
  checkTheme();
  if (nested_ > 0 || !chance_.one(25)) return;
  QMetaObject::invokeMethod(
      form_.get(),
      [this] {
        ++nested_;
        act();
        --nested_;
      },
      Qt::QueuedConnection);
}

/// What holds at any moment.
void Monkey::checkTheme() {
  require(form_->findChildren<toolwindow::Form2*>().contains(form_->ToolWindow) == (form_->ToolWindow != nullptr),
          u"the tool window dangles"_s);
  require(state_.Changed == form_->ToolBar->GetButtonValue(2, 2).toBool(), u"Changed and Save disagree"_s);
  for (const QString& path : {state_.Paths.ThemeFile, state_.Paths.SkinFile, state_.Paths.LanguageFile}) {
    require(state_.ThemeOpened ? path.endsWith(u".tmp") : path.isEmpty(), u"path "_s + path);
  }
}

void Monkey::checkColors() {
  const QString& file = state_.Paths.ThemeFile;
  QStringList table;
  QStringList section = themefiles::KeyNames(u"Colors"_s, file);
  for (const themefiles::NamedColor& row : state_.ThemeColors) {
    if (row.Name.isEmpty()) continue;
    table += row.Name;
    require(row.Value == themefiles::GetINI(u"Colors"_s, row.Name, u"0 0 0"_s, file), u"colour "_s + row.Name);
  }
  table.sort();
  section.sort();
  require(table == section || section.size() > 100, u"the names of the colours"_s);
}

/// What holds when all is at rest.
void Monkey::check() {
  readStatus();
  require(!form_->Queue.Busy() && works_ == 0 && nested_ == 0, u"a pass is left"_s);
  require(form_->ProgressBar1->isHidden(), u"the progress bar is left"_s);
  checkTheme();
  const bool opened = state_.ThemeOpened;
  require(opened == (form_->ToolWindow != nullptr), u"open without a tool window"_s);
  require(form_->findChildren<toolwindow::Form2*>().size() == (opened ? 1 : 0), u"tool windows"_s);
  require(QApplication::activeModalWidget() == nullptr, u"a dialog is left"_s);
  for (const int button : {3, 4}) {
    require(opened == form_->ToolBar->GetButtonValue(button, 2).toBool(), u"buttons of an open theme"_s);
  }
  for (const auto& [name, bytes] : expected_.asKeyValueRange()) {
    if (name.endsWith(u".ini")) require(game_.get(name) == bytes, name + u" has changed without a Save"_s);
  }
  if (!opened) return;
  checkColors();
  const toolwindow::Form2& form = *tools();
  int shown = 0;
  for (QWidget* frame : {form.Numbers, form.FloatNumbers, form.Selection, form.Color, form.Texture, form.Texts}) {
    if (frame->isHidden()) continue;
    ++shown;
  }
  require(shown <= 1 && (shown == 0 || state_.EditorShown), u"editor frames"_s);
}

void Monkey::step() {
  act();
  support::settle();
  if (form_->isHidden()) {
    // The program has ended: an event loop takes the wish to quit, which would end every later one at once.
    ++counts_[u"end"_s];
    require(form_->ToolWindow == nullptr, u"the tool window outlives the program"_s);
    QMetaObject::invokeMethod(
        QCoreApplication::instance(), [] { QCoreApplication::exit(); }, Qt::QueuedConnection);
    QCoreApplication::exec();
    start();
  }
  check();
}

}  // namespace endurance
