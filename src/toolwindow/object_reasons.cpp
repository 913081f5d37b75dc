#include "toolwindow/object_reasons.h"

#include <map>

#include <QSet>
#include <QStringList>

#include "controls/list_box.h"
#include "platform/code_page.h"

namespace toolwindow {

void showReasons(controls::ListBox& objects, const renderer::RenderAccount& account) {
  std::map<QString, QStringList> reasons;
  for (const renderer::LeftOut& entry : account.missing) {
    QStringList& texts = reasons[platform::upperCase(entry.section)];
    const QString text = renderer::reasonText(entry);
    if (!texts.contains(text)) texts += text;
  }
  const QSet<QString> drawn = renderer::drawnSections(account);
  for (int row = 0; row < objects.ListCount(); ++row) {
    const QString name = platform::upperCase(objects.List(row));
    const auto found = reasons.find(name);
    objects.setGrey(row, found != reasons.end() && !drawn.contains(name));
    objects.setRowToolTip(row, found == reasons.end() ? QString() : found->second.join(u'\n'));
  }
}

}  // namespace toolwindow
