#include "toolwindow/reference_frame.h"

#include <QPushButton>

#include "controls/combo_box.h"
#include "controls/text_box.h"
#include "editing/session.h"
#include "platform/dialogs.h"
#include "platform/paths.h"

namespace toolwindow {
namespace {

using editing::ReferenceKind;

struct Control {
  const char* name;
  controls::TwipsRect ToolLayout::*place;
  const char* spoken;
};

/// In what the two frames differ.
struct Parts {
  ReferenceKind kind;
  const char* frame;
  controls::TwipsRect ToolLayout::*place;
  Control list, add, remove, box;
  QStringView addTip, removeTip;
  QStringView newKeyTitle;
};

using TL = ToolLayout;
constexpr Parts Texts{
    .kind = ReferenceKind::Text,
    .frame = "Texts",
    .place = &TL::Texts,
    .list = {"Combo5", &TL::Combo5, "Text key"},
    .add = {"Command6", &TL::Command6, "Add New Key"},
    .remove = {"Command7", &TL::Command7, "Remove Key"},
    .box = {"Text2", &TL::Text2, "Words"},
    .addTip = u"Add New Key",
    .removeTip = u"Remove Key",
    .newKeyTitle = u"New TextKey",
};
constexpr Parts Texture{
    .kind = ReferenceKind::Texture,
    .frame = "Texture",
    .place = &TL::Texture,
    .list = {"Combo6", &TL::Combo6, "Texture key"},
    .add = {"Command8", &TL::Command8, "Add New Key"},
    .remove = {"Command9", &TL::Command9, "Remove Key"},
    .box = {"Text3", &TL::Text3, "Image file"},
    .addTip = u"",
    .removeTip = u"",
    .newKeyTitle = u"New TextureKey",
};

const Parts& partsOf(ReferenceKind kind) {
  return kind == ReferenceKind::Text ? Texts : Texture;
}

}  // namespace

ReferenceFrame::ReferenceFrame(ReferenceKind kind, const ToolServices& services, PlacedControls& placed,
                               QWidget* parent)
    : ValueFrame(services, parent),
      kind_(kind),
      list_(new controls::ComboBox(this)),
      add_(iconButton(QStringLiteral("plus"), partsOf(kind).addTip.toString())),
      remove_(iconButton(QStringLiteral("minus"), partsOf(kind).removeTip.toString())),
      box_(new controls::TextBox(this)),
      Command4(kind == ReferenceKind::Texture ? iconButton(QStringLiteral("folder"), QStringLiteral("Change Filename"))
                                              : nullptr) {
  const Parts& parts = partsOf(kind);
  placed.add(*this, parts.place, parts.frame);
  const auto add = [&](QWidget& control, const Control& as) { placed.add(control, as.place, as.name, as.spoken); };
  add(*list_, parts.list);
  add(*add_, parts.add);
  add(*remove_, parts.remove);
  add(*box_, parts.box);
  watch(*list_);
  watch(*box_);
  connect(list_, &controls::ComboBox::Click, this, &ReferenceFrame::keyChosen);
  onClick(add_, [this] { addKey(); });
  onClick(
      remove_, [this] { removeKey(); }, list_);
  if (Command4 == nullptr) return;
  box_->setEnabled(false);
  placed.add(*Command4, &TL::Command4, "Command4", "Change Filename");
  onClick(
      Command4, [this] { Command4_Click(); }, list_);
}

/// Lists the keys anew and selects the one that equals the value, if any.
void ReferenceFrame::load(const themefiles::GroupRow& /*group*/, const QString& value) {
  list_->Clear();
  box_->SetText(QString());
  for (const QString& key : editing::referenceKeys(services.session.state(), kind_)) list_->AddItem(key);
  list_->selectText(value);
}

/// The words, once there is a key for them.
QWidget* ReferenceFrame::entrance() const {
  const bool writes = box_->isEnabled() && list_->ListIndex() >= 0;
  return writes ? static_cast<QWidget*>(box_) : list_;
}

editing::Proposal ReferenceFrame::proposal() const {
  if (list_->Text().isEmpty()) return {};
  return {list_->Text(), box_->Text()};
}

/// Shows what the selected key stands for. Without that no key stays selected, so that nothing can be written over it.
void ReferenceFrame::keyChosen() {
  const auto content = editing::referenceContent(services.session, kind_, list_->Text());
  box_->SetText(content.value_or(QString()));
  if (!content) list_->SetListIndex(-1);
  contentShown();
}

void ReferenceFrame::addKey() {
  const QString name = services.dialogs.inputBox(window(), QStringLiteral("Name of the New Key:"),
                                                 partsOf(kind_).newKeyTitle.toString());
  if (name.isEmpty() || !acceptNewName(name)) return;
  using editing::KeyAdding;
  const bool isListed = list_->entryLike(name) >= 0;  // also one that is no longer in the file
  const KeyAdding adding = isListed ? KeyAdding::Exists : editing::addReferenceKey(services.session, kind_, name);
  if (adding == KeyAdding::Exists) showErrorBox(QStringLiteral("Key already exist!"));
  if (adding != KeyAdding::Done) return;
  list_->AddItem(name);
  list_->SetListIndex(list_->ListCount() - 1);
}

void ReferenceFrame::removeKey() {
  const QString key = list_->Text();
  if (key.isEmpty()) return;
  const QString question = QStringLiteral("Really delete this Key?");
  if (!confirmsRemoval(question, key, QStringLiteral("Delete Key"))) return;
  if (!editing::removeReferenceKey(services.session, kind_, key)) return;
  list_->RemoveItem(list_->ListIndex());
  list_->SetListIndex(-1);
  box_->SetText(QString());
}

/// Proposes another image for the texture key; it must lie in the skin's own folder.
void ReferenceFrame::Command4_Click() {
  const QString& skinFolder = services.session.state().paths.SkinDirectory;
  // Any other name would lead the dialog into another folder.
  const bool isInFolder = !box_->Text().contains(u'/') && !box_->Text().contains(u'\\');
  const QString path = services.dialogs.openFile(
      window(),
      {.title = QStringLiteral("Change Filename"),
       .filter = QStringLiteral("All supported image files (*.bmp,*.gif,*.jpg,*.png)|*.bmp;*.gif;*.jpg;*.png"),
       .fileName = isInFolder ? box_->Text() : QString(),
       .folder = skinFolder,
       .pictures = true});
  if (path.isEmpty()) return;
  const qsizetype separator = path.lastIndexOf(u'\\');
  if (!platform::sameFolder(path.left(separator), skinFolder)) {
    showErrorBox(QStringLiteral("Image must be in ") + skinFolder);
    return;
  }
  box_->SetText(path.mid(separator + 1));
}

}  // namespace toolwindow
