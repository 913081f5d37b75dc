#pragma once

#include <optional>

#include <QString>

class QColor;
class QWidget;

namespace platform {

enum class BoxKind {
  Error,           ///< critical icon, OK
  YesNoDefaultNo,  ///< critical icon, Yes and No, No is the default button
};

enum class BoxAnswer { Ok, Yes, No };

struct FileRequest {
  QString title;
  QString filter;         ///< pairs "description|pattern;pattern", separated by "|"
  QString fileName;       ///< the proposed name; may be empty
  QString folder;         ///< where the dialog opens; may be empty
  bool pictures = false;  ///< show a thumbnail of the chosen file, where the toolkit can
};

/// The modal dialogs of the program. Tests script the answers. `parent` is the form whose control was used, or null.
class Dialogs {
 public:
  virtual ~Dialogs() = default;
  /// Shows a message. An empty title stands for the program's name.
  virtual BoxAnswer messageBox(QWidget* parent, const QString& text, const QString& title, BoxKind kind) = 0;
  /// Asks for a line of text. Cancel gives an empty one.
  virtual QString inputBox(QWidget* parent, const QString& prompt, const QString& title) = 0;
  /// Asks for an existing file and returns its path with backslashes. Cancel gives an empty path.
  virtual QString openFile(QWidget* parent, const FileRequest& request) = 0;
  /// Asks for a colour, starting from `present`. Cancel gives none.
  virtual std::optional<QColor> chooseColor(QWidget* parent, const QColor& present) = 0;
};

}  // namespace platform
