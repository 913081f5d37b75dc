#include "mainwindows/group_frames.h"

#include <algorithm>
#include <vector>

#include "mainwindows/main_window.h"
#include "mainwindows/selected_object.h"
#include "mainwindows/workspace.h"
#include "platform/code_page.h"

namespace mainwindows {

void showGroupFrames(Form1& form, const renderer::RenderAccount& account) {
  std::vector<QRect> frames;
  for (const renderer::DrawnObject& object : account.objects) {
    const QStringList& members = form.session().members();
    const bool isMember = std::any_of(members.begin(), members.end(), [&](const QString& member) {
      return platform::sameName(member, object.section);
    });
    if (isMember) frames.push_back(object.place);
  }
  form.Workspace->setGroupFrames(frames);
}

void GroupReport::tell() {
  if (!told_.isEmpty()) form_.withdraw(told_);
  told_.clear();
  const editing::Session& session = form_.session();
  if (session.members().isEmpty()) return;
  told_ = QStringLiteral("together: ") + groupOf(session).join(QStringLiteral(", "));
  form_.ShowStatus(told_);
}

}  // namespace mainwindows
