#pragma once

#include <QString>

#include "renderer/render_account.h"

namespace mainwindows {

class Form1;

/// Puts a thin frame round each further object of the group, where the account has it drawn.
void showGroupFrames(Form1& form, const renderer::RenderAccount& account);

/// Tells in the status bar which objects are in the group.
class GroupReport {
 public:
  explicit GroupReport(Form1& form) : form_(form) {}

  /// The group is another one.
  void tell();

 private:
  Form1& form_;
  QString told_;
};

}  // namespace mainwindows
