#include "mainwindows/open_theme_dialog.h"

#include <algorithm>
#include <utility>

#include <QFontInfo>
#include <QShowEvent>

#include "controls/spoken_name.h"
#include "controls/twips.h"
#include "drawing/fonts.h"
#include "themefiles/ini_access.h"
#include "themefiles/theme_paths.h"

namespace mainwindows {
namespace {

QString iniValue(const QString& section, const QString& key, const QString& file) {
  return themefiles::GetINI(section, key, QString(), file);
}

}  // namespace

Form3::Form3(QString gameFolder, const QStringList& themes, std::function<bool(const themefiles::ThemePaths&)> open,
             QWidget* owner)
    : QDialog(owner, Qt::Dialog | Qt::CustomizeWindowHint | Qt::MSWindowsFixedSizeDialogHint | Qt::WindowTitleHint |
                         Qt::WindowSystemMenuHint | Qt::WindowCloseButtonHint),
      List1(new controls::ListBox(controls::ListBox::Order::AsAdded, this)),
      List2(new controls::ListBox(controls::ListBox::Order::AsAdded, this)),
      Label4(label(QString(), 840, 2880, 1695)),
      Label5(label(QString(), 840, 3120, 1695)),
      Label9(label(QString(), 3480, 2880, 1695)),
      Label10(label(QString(), 3480, 3120, 1695)),
      Combo1(new controls::ComboBox(this)),
      Command1(new QPushButton(QStringLiteral("&Open"), this)),
      Command2(new QPushButton(QStringLiteral("&Cancel"), this)),
      gameFolder_(std::move(gameFolder)),
      open_(std::move(open)) {
  setObjectName(QStringLiteral("Form3"));
  const struct {
    QWidget* control;
    const char* name;
  } names[] = {{List1, "List1"},   {List2, "List2"},       {Label4, "Label4"},
               {Label5, "Label5"}, {Label9, "Label9"},     {Label10, "Label10"},
               {Combo1, "Combo1"}, {Command1, "Command1"}, {Command2, "Command2"}};
  for (const auto& [control, name] : names) control->setObjectName(QLatin1StringView(name));
  label(QStringLiteral("Choose your Theme:"), 120, 120, 2295);
  label(QStringLiteral("Name:"), 120, 2880, 615);
  label(QStringLiteral("Creator:"), 120, 3120, 615);
  label(QStringLiteral("Choose your Skin:"), 2760, 120, 2415);
  List1->setAccessibleName(QStringLiteral("Theme"));
  List2->setAccessibleName(QStringLiteral("Skin"));
  controls::setSpokenName(*Combo1, QStringLiteral("Language"));
  label(QStringLiteral("Name:"), 2760, 2880, 615);
  label(QStringLiteral("Autor:"), 2760, 3120, 615);
  controls::place(*List1, {120, 360, 2415, 2400});
  controls::place(*List2, {2760, 360, 2415, 2400});
  controls::place(*Combo1, {120, 3480, 2535, 315});
  controls::place(*Command1, {2880, 3480, 1095, 375});
  controls::place(*Command2, {4080, 3480, 1095, 375});
  setFixedSize(controls::toPixels(5325), controls::toPixels(3990));
  controls::centreOnScreen(*this);
  const int pixels = QFontInfo(font()).pixelSize();  // the font itself may tell its size in points
  for (controls::CutLabel* label : {Label4, Label5}) {
    label->setFont(drawing::controlFont(QStringLiteral("Arial"), pixels));
  }
  Command1->setDefault(true);
  connect(List1, &controls::ListBox::Click, this, &Form3::List1_Click);
  connect(List2, &controls::ListBox::Click, this, &Form3::List2_Click);
  for (controls::ListBox* list : {List1, List2}) {
    connect(list, &QAbstractItemView::doubleClicked, Command1, &QPushButton::click);
  }
  connect(Command1, &QPushButton::clicked, this, &Form3::Command1_Click);
  connect(Command2, &QPushButton::clicked, this, &QDialog::reject);
  Form_Load();
  for (const QString& theme : themes) List1->AddItem(theme);
}

controls::CutLabel* Form3::label(const QString& text, double left, double top, double width) {
  auto* label = new controls::CutLabel(this);
  label->setAlignment(Qt::AlignLeft | Qt::AlignTop);
  controls::place(*label, {left, top, width, 255});
  label->setWhole(text);
  return label;
}

void Form3::Form_Load() {
  for (const QString& name : themefiles::languagesOf(gameFolder_)) Combo1->AddItem(name);
  const QString english = QStringLiteral("English");
  if (Combo1->selectText(english) || Combo1->ListCount() == 0) return;
  Combo1->SetListIndex(std::max(0, Combo1->entryLike(english)));
}

void Form3::Form_Activate() {
  List1->SetListIndex(0);
  setWindowTitle(QStringLiteral("Open Theme [") + gameFolder_ + u']');
}

void Form3::showEvent(QShowEvent* event) {
  QDialog::showEvent(event);
  if (!event->spontaneous()) Form_Activate();
}

void Form3::List1_Click() {
  const QString theme = chosen().ThemeFile;
  Label4->setWhole(iniValue(QStringLiteral("Theme"), QStringLiteral("Name"), theme));
  Label5->setWhole(iniValue(QStringLiteral("Theme"), QStringLiteral("Creator"), theme));
  List2->Clear();
  for (const QString& name : themefiles::skinsOf(gameFolder_, List1->Text())) List2->AddItem(name);
  Command1->setEnabled(List2->ListCount() > 0);
  if (List2->ListCount() > 0) {
    List2->SetListIndex(0);
  } else {
    Label9->setWhole({});
    Label10->setWhole({});
  }
}

void Form3::List2_Click() {
  const QString skin = chosen().SkinFile;
  Label9->setWhole(iniValue(QStringLiteral("Skin"), QStringLiteral("Name"), skin));
  Label10->setWhole(iniValue(QStringLiteral("Skin"), QStringLiteral("Autor"), skin));
}

void Form3::Command1_Click() {
  if (open_(chosen())) accept();
}

themefiles::ThemePaths Form3::chosen() const {
  return themefiles::pathsOf(gameFolder_, List1->Text(), List2->Text(), Combo1->Text());
}

}  // namespace mainwindows
