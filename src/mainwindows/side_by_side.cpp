#include "mainwindows/side_by_side.h"

#include <algorithm>

#include <QKeyEvent>
#include <QLabel>
#include <QListWidget>
#include <QScrollArea>
#include <QStackedWidget>
#include <QVBoxLayout>

#include "controls/combo_box.h"
#include "controls/look.h"
#include "controls/work_queue.h"
#include "drawing/surface.h"
#include "mainwindows/main_window.h"
#include "mainwindows/open_files.h"
#include "mainwindows/variant_drawing.h"
#include "themefiles/module_state.h"
#include "toolwindow/tool_window.h"

namespace mainwindows {
namespace {

constexpr QSize Whole(drawing::Surface::Width, drawing::Surface::Height);
constexpr QSize Small(240, 180);
constexpr int PictureGap = 8;
constexpr int LabelHeight = 20;

QIcon smallPicture(const QImage& picture, qreal scale) {
  QImage small = picture.scaled(Small * scale, Qt::IgnoreAspectRatio, Qt::SmoothTransformation);
  small.setDevicePixelRatio(scale);
  const QPixmap shown = QPixmap::fromImage(small);
  QIcon icon(shown);
  icon.addPixmap(shown, QIcon::Selected);  // the toolkit would tint it
  return icon;
}

}  // namespace

SideBySide::SideBySide(Form1& form)
    : ThemeWindow(*form.toolWindow()),
      form_(form),
      pages_(new QStackedWidget(this)),
      list_(new QListWidget(this)),
      area_(new QScrollArea(this)),
      large_(new QLabel(this)),
      prepared_(WholeThemePictures),
      steps_(
          form.queue(), [this] { return step(); }, QuietTime) {
  setObjectName(QStringLiteral("SideBySide"));
  list_->setObjectName(QStringLiteral("List"));
  list_->setAccessibleName(QStringLiteral("The screen in each skin and language"));
  list_->setViewMode(QListView::IconMode);
  list_->setMovement(QListView::Static);
  list_->setResizeMode(QListView::Adjust);
  list_->setIconSize(Small);
  list_->setGridSize(Small + QSize(PictureGap, PictureGap + LabelHeight));
  large_->setObjectName(QStringLiteral("Large"));
  large_->setAlignment(Qt::AlignCenter);
  area_->setWidget(large_);
  area_->setFocusPolicy(Qt::StrongFocus);
  area_->setFrameShape(QFrame::NoFrame);
  pages_->addWidget(list_);
  pages_->addWidget(area_);
  auto* column = new QVBoxLayout(this);
  column->setContentsMargins(0, 0, 0, 0);
  column->addWidget(pages_);
  const QRect room = this->room();
  resize(Whole.boundedTo(room.size()));
  move(room.topLeft());
  connect(list_, &QListWidget::itemClicked, this, [this](QListWidgetItem* item) { enlarge(list_->row(item)); });
  large_->installEventFilter(this);
}

SideBySide::~SideBySide() = default;

void SideBySide::open() {
  bringUp();
  showSmall();
  renew();
}

/// The skins with the open language first, then the other languages with the open skin.
void SideBySide::listVariants() {
  const OpenFiles files(form_.services.state.paths);
  std::vector<Variant> variants;
  for (const themecheck::CheckedFile& skin : files.skins) {
    variants.push_back({skin.name + QStringLiteral(", ") + files.language.name, skin.path, files.language.path});
  }
  for (const themecheck::CheckedFile& language : files.languages) {
    if (language.path == files.language.path) continue;
    variants.push_back({files.skin.name + QStringLiteral(", ") + language.name, files.skin.path, language.path});
  }
  const auto same = [](const Variant& a, const Variant& b) {
    return a.name == b.name && a.skinFile == b.skinFile && a.languageFile == b.languageFile;
  };
  if (std::equal(variants.begin(), variants.end(), variants_.begin(), variants_.end(), same)) return;
  if (enlarged_ >= 0) showSmall();
  variants_ = std::move(variants);
  pictures_.assign(variants_.size(), {});
  list_->clear();
  for (const Variant& variant : variants_) {
    auto* item = new QListWidgetItem(variant.name, list_);
    item->setSizeHint(list_->gridSize());
    item->setToolTip(controls::plainToolTip(variant.name));
  }
  list_->setCurrentRow(0);
}

void SideBySide::renew() {
  if (!isVisible() || form_.toolWindow() == nullptr) return;
  listVariants();  // another program may have added some, or taken some away
  tell();
  drawing_.reset();
  waiting_.clear();
  for (int variant = 0; variant < static_cast<int>(variants_.size()); ++variant) waiting_.push_back(variant);
  drawFirst(enlarged_);
  steps_.begin();
}

/// Has the picture drawn before all others that wait.
void SideBySide::drawFirst(int variant) {
  const auto found = std::find(waiting_.begin(), waiting_.end(), variant);
  if (found == waiting_.begin() || found == waiting_.end()) return;
  drawing_.reset();
  waiting_.erase(found);
  waiting_.push_front(variant);
}

bool SideBySide::step() {
  if (waiting_.empty() || !form_.session().isOpen()) return false;
  const int number = waiting_.front();
  if (!drawing_) {
    const Variant& variant = variants_.at(static_cast<size_t>(number));
    themefiles::ModuleState state = form_.services.state;
    state.paths.SkinFile = variant.skinFile;
    state.paths.LanguageFile = variant.languageFile;
    drawing_ =
        std::make_unique<VariantDrawing>(std::move(state), form_.session().screen(), form_.schemes().Text(), prepared_);
  } else if (!drawing_->step()) {
    pictures_.at(static_cast<size_t>(number)) = drawing_->picture().copy();
    drawing_.reset();
    waiting_.pop_front();
    show(number);
  }
  return true;
}

/// Brings a picture that was drawn into the window.
void SideBySide::show(int variant) {
  const QImage& picture = pictures_.at(static_cast<size_t>(variant));
  list_->item(variant)->setIcon(smallPicture(picture, devicePixelRatioF()));
  if (variant == enlarged_) large_->setPixmap(QPixmap::fromImage(picture));
}

/// Shows a picture at its own size. One that isn't drawn yet is the next that is.
void SideBySide::enlarge(int variant) {
  if (variant < 0) return;
  enlarged_ = variant;
  const QImage& picture = pictures_.at(static_cast<size_t>(variant));
  large_->setText(QStringLiteral("Not drawn yet"));
  if (!picture.isNull()) large_->setPixmap(QPixmap::fromImage(picture));
  drawFirst(variant);
  large_->resize(Whole);
  large_->setAccessibleName(variants_.at(static_cast<size_t>(variant)).name);
  area_->setAccessibleName(large_->accessibleName());
  pages_->setCurrentWidget(area_);
  area_->setFocus();
  tell();
}

void SideBySide::showSmall() {
  enlarged_ = -1;
  pages_->setCurrentWidget(list_);
  list_->setFocus();
  tell();
}

/// Tells in the title what is seen.
void SideBySide::tell() {
  const QString& screen = form_.session().screen();
  setWindowTitle(enlarged_ < 0 ? screen + QStringLiteral(" in each skin and language")
                               : screen + QStringLiteral(": ") + variants_.at(static_cast<size_t>(enlarged_)).name);
}

void SideBySide::keyPressEvent(QKeyEvent* event) {
  const bool isEnter = event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter;
  if (isEnter && !event->isAutoRepeat()) {
    enlarged_ < 0 ? enlarge(list_->currentRow()) : showSmall();
  } else if (event->key() == Qt::Key_Escape) {
    enlarged_ < 0 ? goBack() : showSmall();
  } else {
    QWidget::keyPressEvent(event);
  }
}

void SideBySide::left() {
  steps_.stop();
  drawing_.reset();
  waiting_.clear();
}

bool SideBySide::eventFilter(QObject* watched, QEvent* event) {
  if (watched == large_ && event->type() == QEvent::MouseButtonPress) {
    showSmall();
    return true;
  }
  return ThemeWindow::eventFilter(watched, event);
}

void showSideBySide(Form1& form) {
  auto* window = form.toolWindow()->findChild<SideBySide*>(QString(), Qt::FindDirectChildrenOnly);
  if (window == nullptr) window = new SideBySide(form);
  window->open();
}

void renewSideBySide(const Form1& form) {
  if (form.toolWindow() == nullptr) return;
  auto* window = form.toolWindow()->findChild<SideBySide*>(QString(), Qt::FindDirectChildrenOnly);
  if (window != nullptr) window->renew();
}

}  // namespace mainwindows
