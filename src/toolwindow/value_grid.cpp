#include "toolwindow/value_grid.h"

#include "controls/combo_box.h"
#include "controls/list_view.h"
#include "controls/shown_text.h"
#include "controls/text_box.h"
#include "platform/failure.h"
#include "platform/numbers.h"
#include "toolwindow/colour_editor.h"
#include "toolwindow/edit_reports.h"
#include "toolwindow/key_editors.h"
#include "toolwindow/tool_window.h"

namespace toolwindow {
namespace {

void fillSelection(Form2& form, const themefiles::GroupRow& group) {
  form.Combo2->Clear();
  for (const QStringView entry : group.entries) form.Combo2->AddItem(entry.toString());
}

/// Selects the entry whose number is the value.
void selectNumbered(Form2& form, const QString& value) {
  const auto index = platform::roundToInt16(platform::numberOf(value));
  if (!index) throw platform::Failure(QStringLiteral("%1 is outside the list").arg(value));
  form.Combo2->SetListIndex(*index);
}

void loadEditor(Form2& form, const themefiles::GroupRow& group, const QString& value) {
  switch (group.frame) {
    case themefiles::EditorFrame::Numbers:
      form.Text1->SetText(value);
      break;
    case themefiles::EditorFrame::FloatNumbers:
      form.Text4->SetText(value);
      break;
    case themefiles::EditorFrame::Selection:
      fillSelection(form, group);
      if (group.group != themefiles::KeyGroup::Type) {
        selectNumbered(form, value);
      } else {
        form.Combo2->selectText(value);  // a value outside the list selects nothing
      }
      break;
    case themefiles::EditorFrame::Color:
      FillColorEditor(form, value);
      break;
    case themefiles::EditorFrame::Texture:
      FillTextureKeys(form, value);
      break;
    case themefiles::EditorFrame::Texts:
      FillTextKeys(form, value);
      break;
  }
}

}  // namespace

void ListView1_ItemClick(Form2& form, int row) {
  platform::guarded(form.services.status, ReadStep.toString(), [&] {
    form.HideEditorFrames();
    const auto group = themefiles::groupOf(themefiles::keyIdentity(form.ListView1->rowText(row)));
    if (group) {
      const QString value = form.ListView1->subItem(row);
      if (value.size() > controls::LongestText) throw platform::Failure(tooLongText(form.ListView1->rowText(row)));
      loadEditor(form, themefiles::rowOf(*group), value);
      form.ShowEditorFrame(themefiles::rowOf(*group).frame);
    } else if (form.services.state.EditorShown) {
      form.closeEditorFrame();
    }
  });
}

}  // namespace toolwindow
