#include <QAccessible>
#include <QHeaderView>
#include <QLineEdit>
#include <QMetaEnum>
#include <QScreen>
#include <QShortcut>

#include "controls/assets.h"
#include "controls/look.h"
#include "support/picture_results.h"
#include "support/windows.h"

using namespace support;
using mainwindows::Form3;

namespace {

/// The name of the compiled-in picture that an icon shows.
QString assetOf(const QIcon& icon) {
  constexpr QSize Size(16, 16);
  if (icon.isNull()) return {};
  for (const QString& file : QDir(u":/assets"_s).entryList({u"*.png"_s})) {
    const QIcon asset = controls::assetIcon(file.chopped(4));
    if (asset.pixmap(Size).toImage() == icon.pixmap(Size).toImage()) return u"icon "_s + file.chopped(4);
  }
  return u"another icon"_s;
}

/// What the control says: its caption, its text, or what is chosen and how many there are.
QString textOf(const QWidget& control) {
  if (const auto* combo = qobject_cast<const QComboBox*>(&control)) {
    return u"%1 (%2, %3 at a time)"_s.arg(combo->currentText()).arg(combo->count()).arg(combo->maxVisibleItems());
  }
  if (const auto* list = qobject_cast<const controls::ListBox*>(&control)) {
    return u"%1 (%2)"_s.arg(list->Text()).arg(list->ListCount());
  }
  if (const auto* grid = qobject_cast<const QTreeWidget*>(&control)) {
    QStringList columns;
    for (int i = 0; i < grid->columnCount(); ++i) {
      columns += grid->headerItem()->text(i) + u' ' + QString::number(grid->columnWidth(i));
    }
    return u"%1 (%2, from %3 on)"_s.arg(columns.join(u", "))
        .arg(grid->topLevelItemCount())
        .arg(grid->visualItemRect(grid->topLevelItem(0)).left());
  }
  if (const auto* button = qobject_cast<const QPushButton*>(&control)) {
    return button->text() + assetOf(button->icon()) + (button->isDefault() ? u" (default)"_s : QString());
  }
  if (const auto* label = qobject_cast<const QLabel*>(&control)) return label->text();
  if (const auto* edit = qobject_cast<const QLineEdit*>(&control)) return edit->text();
  if (const auto* box = qobject_cast<const QGroupBox*>(&control)) return box->title();
  return control.isWindow() ? control.windowTitle() : QString();
}

QString fontOf(const QWidget& control) {
  const QFontInfo font(control.font());
  return u"%1 %2 %3"_s.arg(font.family()).arg(font.pixelSize()).arg(font.weight());
}

/// What a screen reader says of the control: its role, its name and its description, but for its text and its tip.
QString spoken(QWidget& control, QString text) {
  const QAccessibleInterface* reader = QAccessible::queryAccessibleInterface(&control);
  if (reader == nullptr) return {};
  // The name of a list to choose from is its text on some systems only.
  const bool isChoice = reader->role() == QAccessible::ComboBox && !reader->text(QAccessible::Value).isEmpty();
  QStringList words{reader->text(isChoice ? QAccessible::Value : QAccessible::Name),
                    reader->text(QAccessible::Description)};
  words.removeAll(text.remove(u'&'));
  words.removeAll(control.toolTip());
  words.removeDuplicates();
  words.prepend(QLatin1StringView(QMetaEnum::fromType<QAccessible::Role>().valueToKey(reader->role())));
  return words.join(u' ').trimmed();
}

/// Whether what is inside the control is the toolkit's own.
bool isWhole(const QWidget& control) {
  return control.inherits("QComboBox") || control.inherits("QAbstractItemView") ||
         control.inherits("QAbstractSlider") || control.inherits("toolbar::McToolBar");
}

/// The table of a window: a line for each control, in the order in which they lie over each other. Behind its number in
/// the order of Tab a star is the focus.
class Table {
 public:
  explicit Table(QWidget& window) {
    for (QWidget* next = window.nextInFocusChain(); next != &window; next = next->nextInFocusChain()) {
      if ((next->focusPolicy() & Qt::TabFocus) != 0 && !next->objectName().startsWith(u"qt_")) tabs_ += next;
    }
    addControl(window, {});
    for (const auto* timer : window.findChildren<QTimer*>()) {
      if (!timer->objectName().isEmpty()) addLine({u"  "_s + timer->objectName(), u"%1 ms"_s.arg(timer->interval())});
    }
    for (const auto* keys : window.findChildren<QShortcut*>(Qt::FindDirectChildrenOnly)) {
      addLine({u"  keys "_s + keys->key().toString(), keys->autoRepeat() ? u"repeat"_s : u"once"_s});
    }
    const auto* bar = window.findChild<toolbar::McToolBar*>();
    for (int button = 1; bar != nullptr && button <= bar->Button_Count(); ++button) {
      const auto value = [&](int property) { return bar->GetButtonValue(button, property); };
      addLine({u"  ToolBar %1"_s.arg(button),
               {},
               {},
               {},
               {},
               state(true, value(toolbar::EnabledProperty).toBool()),
               value(toolbar::CaptionProperty).toString(),
               value(toolbar::ToolTipTextProperty).toString(),
               {}});
    }
  }

  QStringList lines;

  void addLine(const QStringList& cells) {
    constexpr int Widths[] = {26, 9, 9, 24, 5, 18, 42, 18, 0};
    const QRegularExpression time(u"\\[\\d\\d:\\d\\d:\\d\\d\\]"_s), endOfLine(u" +$"_s);
    QString line;
    for (qsizetype cell = 0; cell < cells.size(); ++cell) line += cells[cell].leftJustified(Widths[cell] - 2) + u"  "_s;
    lines += line.replace(time, u"[HH:mm:ss]"_s).remove(endOfLine);
  }

 private:
  static QString state(bool shown, bool enabled) {
    return (shown ? u"shown"_s : u"hidden"_s) + (enabled ? u""_s : u", disabled"_s);
  }
  void addControl(QWidget& control, const QString& indent) {
    const QRect place = control.geometry();
    const QString text = textOf(control);
    const QString font = fontOf(control);
    const bool isWindow = control.isWindow();
    const QString version(QStringLiteral("v." CANTORAMA_VERSION));
    const QString width = text == version ? u"*"_s : QString::number(place.width());  // it follows the text
    addLine({indent + (control.objectName().isEmpty() ? u"-"_s : control.objectName()),
             isWindow ? QString() : u"%1,%2"_s.arg(place.x()).arg(place.y()), u"%1x%2"_s.arg(width).arg(place.height()),
             isWindow || font != fontOf(*control.parentWidget()) ? font : QString(),
             (tabs_.contains(&control) ? QString::number(tabs_.indexOf(&control) + 1) : QString()) +
                 (control.window()->focusWidget() == &control ? u"*"_s : QString()),
             state(control.isVisible(), control.isEnabled()), QString(text).replace(version, u"v.X"_s),
             control.toolTip(), spoken(control, text)});
    if (isWhole(control)) return;
    for (QObject* child : control.children()) {
      const QString name = child->objectName();
      auto* inside = qobject_cast<QWidget*>(child);
      const bool isBar = name.startsWith(u"qt_scrollarea_h") || name.startsWith(u"qt_scrollarea_vc");
      if (inside != nullptr && !inside->isWindow() && !isBar) addControl(*inside, indent + u"  "_s);
    }
  }

  QWidgetList tabs_;
};

/// A window in one state after the other as a text: the whole table first, then the lines that became different.
class States {
 public:
  void add(const QString& state, QWidget& window) {
    settle();
    Table table(window);
    lines += QStringList{u""_s, u"== "_s + state};
    if (before_.isEmpty()) {
      Table head(window);
      head.lines.clear();
      head.addLine(
          {u"control"_s, u"place"_s, u"size"_s, u"font"_s, u"tab"_s, u"state"_s, u"text"_s, u"tip"_s, u"spoken"_s});
      lines += head.lines;
    }
    for (qsizetype line = 0; line < table.lines.size(); ++line) {
      if (before_.value(line) != table.lines[line]) lines += table.lines[line];
    }
    before_ = table.lines;
  }

  QStringList lines;

 private:
  QStringList before_;
};

}  // namespace

/// Every control of the three forms in all their states, against the tables kept.
class FormsTest : public ProgramTest {
  Q_OBJECT

 private Q_SLOTS:
  void initTestCase() { controls::applyLook(*qApp); }

  void mainWindow() {
    States states;
    const Program fresh(*game);
    states.add(u"at the start"_s, fresh.form);
    comparePicture(u"toolbar at the start.png"_s, fresh.form.ToolBar->grab().toImage());
    states.add(u"with a theme"_s, program->form);
    const auto compare = [this] { comparePicture(u"progress.png"_s, program->form.ProgressBar1->grab().toImage()); };
    connect(&program->form.queue(), &controls::WorkQueue::yielding, this, compare, Qt::SingleShotConnection);
    program->edit();
    states.add(u"after an edit"_s, program->form);
    comparePicture(u"toolbar after an edit.png"_s, program->form.ToolBar->grab().toImage());
    program->screen(u"Main Screen"_s);
    states.add(u"a screen without buttons"_s, program->form);
    program->click(2);
    states.add(u"saved"_s, program->form);
    program->click(3);
    states.add(u"after Close"_s, program->form);
    compareText(u"Form1.txt"_s, states.lines);
  }

  void toolWindow() {
    toolwindow::Form2& tools = program->tools();
    const QPoint place = tools.pos() - program->form.pos();
    States states;
    states.add(u"opened, at %1,%2 of the main window"_s.arg(place.x()).arg(place.y()), tools);
    program->tag(u"LoadingButtonGo"_s);
    states.add(u"a button chosen"_s, tools);
    const auto edit = [&](const QString& row, const QSize& size = {}) {
      Editors(tools).Command1->setFocus();  // what is hidden gives its focus to the grid
      program->soleRow(row.section(u'=', 0, 0), row.section(u'=', 1));
      if (!size.isEmpty()) tools.resize(size);
      if (size.isEmpty()) compareSettled(u"row "_s + row.section(u'=', 0, 0) + u".png"_s, tools);
      states.add(row + (size.isEmpty() ? u""_s : u", window made %1x%2"_s.arg(size.width()).arg(size.height())), tools);
    };
    for (const char* row : {"X=12", "Z=1.5", "Align=1", "Color=Red", "Tex=Plate", "Text=HELLO", "ColR=1"}) {
      edit(QLatin1StringView(row));
    }
    edit(u"ColR=1"_s, {459, 309});
    edit(u"Tex=Plate"_s, {550, 400});
    edit(u"Text=HELLO"_s, {325, 232});
    edit(u"X=12"_s, {325, 69});   // too low for the lists
    edit(u"X=12"_s, {252, 232});  // too narrow for the editors
    edit(u"ColR=1"_s, {40, 20});
    compareText(u"Form2.txt"_s, states.lines);
  }

  /// The window system may report a size that the window gave itself when it has given itself another one since.
  void lateSizes() {
    toolwindow::Form2& tools = program->tools();
    program->tag(u"LoadingButtonGo"_s);
    const QSize closed = tools.size();
    const int height = tools.objects().height();
    program->soleRow(u"X"_s, u"12"_s);
    const QSize opened = tools.size();
    QVERIFY(opened.height() > closed.height());
    const auto report = [&](const QSize& size) {
      QResizeEvent event(size, tools.size());
      QApplication::sendEvent(&tools, &event);
    };
    report(closed);
    program->tag(u"LoadingButtonGo"_s);
    QCOMPARE(tools.objects().height(), height);
    report(opened);
    program->soleRow(u"X"_s, u"12"_s);
    QCOMPARE(tools.objects().height(), height);
    report(opened + QSize(0, 50));
    QCOMPARE(tools.objects().height(), height + 50);
  }

  void finder() {
    toolwindow::Form2& tools = program->tools();
    tools.activateWindow();
    QVERIFY(QTest::qWaitForWindowActive(&tools));
    QTest::keyClick(&tools, Qt::Key_F, Qt::ControlModifier);
    QTRY_VERIFY(QApplication::activeWindow() != nullptr && QApplication::activeWindow() != &tools);
    QWidget& finder = *QApplication::activeWindow();
    States states;
    states.add(u"comes up"_s, finder);
    QTest::keyClicks(finder.focusWidget(), u"static"_s);
    states.add(u"with words"_s, finder);
    compareText(u"Finder.txt"_s, states.lines);
  }

  void openDialog() {
    const QByteArray creator(40, 'W');
    game->put(u"Themes/beta.1.INI"_s, "[Theme]\nName=<b>Beta</b>, without a skin\nCreator=" + creator + '\n');
    game->put(u"Themes/readme.txt"_s, "");
    program->form.move(300, 200);
    States states;
    program->openDialog([&](Form3& dialog) {
      const QPoint off = dialog.geometry().center() - dialog.screen()->availableGeometry().center();
      states.add(u"comes up, %1,%2 off the screen's middle"_s.arg(off.x()).arg(off.y()), dialog);
      dialog.skins().SetListIndex(1);
      states.add(u"the other skin"_s, dialog);
      dialog.themes().SetListIndex(1);
      states.add(u"a theme without a skin"_s, dialog);
      QTest::keyClick(&dialog, Qt::Key_Return);
      Q_EMIT dialog.themes().doubleClicked(dialog.themes().currentIndex());
      QVERIFY(dialog.isVisible());
      QShowEvent again;  // as after it was minimized
      QSpontaneKeyEvent::setSpontaneous(&again);
      QCoreApplication::instance()->notify(&dialog, &again);
      QCOMPARE(dialog.themes().ListIndex(), 1);
      dialog.themes().SetListIndex(0);
      states.add(u"the first theme again"_s, dialog);
      QTest::keyClick(&dialog, Qt::Key_Escape);
      QVERIFY(!dialog.isVisible());
    });
    const QRegularExpression folder(u"\\["_s + QRegularExpression::escape(game->path()) + u"\\] +"_s);
    compareText(u"Form3.txt"_s, states.lines.replaceInStrings(folder, u"[GAME]  "_s));
  }
};

QTEST_MAIN(FormsTest)
#include "forms_test.moc"
