#pragma once

#include <QString>
#include <QStringList>

namespace renderer {

/// What a render needs of the window in which it shows. PlainHost serves without a window.
class RenderHost {
 public:
  virtual ~RenderHost() = default;

  /// The value of the progress bar in per cent. The bar keeps it from 0 to 100.
  virtual int progressValue() const = 0;
  virtual void setProgressValue(int value) = 0;
  virtual void setProgressText(const QString& text) = 0;
  virtual void setProgressVisible(bool visible) = 0;

  /// Shows what is drawn on the surface so far.
  virtual void Refresh() = 0;
  /// Serves pending events. May throw to end the render, which then leaves everything as it is.
  virtual void yield() = 0;

  /// Replaces the rows of the button list.
  virtual void fillButtonList(const QStringList& rows) = 0;
  /// Selects the list's first row. It isn't a choice of the user.
  virtual void selectFirstButton() = 0;
  virtual void setButtonListVisible(bool visible) = 0;

  /// The name of the chosen screen, as the user sees it.
  virtual QString screenName() const = 0;
  /// The name of the current colour scheme.
  virtual QString schemeName() const = 0;
};

}  // namespace renderer
