#pragma once

#include <QString>
#include <QStringList>

namespace renderer {

/// What a render asks of the window it shows itself in; without a window a plain implementation serves.
class RenderHost {
 public:
  virtual ~RenderHost() = default;

  /// Value of the progress bar in percent, as the bar keeps it between 0 and 100.
  virtual int progressValue() const = 0;
  virtual void setProgressValue(int value) = 0;
  virtual void setProgressText(const QString& text) = 0;
  virtual void setProgressVisible(bool visible) = 0;

  /// Shows the surface's present state.
  virtual void Refresh() = 0;
  /// Serves pending events. May throw to give the render up; the render then leaves everything as it stands.
  virtual void yield() = 0;

  /// Replaces the rows of the button list.
  virtual void fillButtonList(const QStringList& rows) = 0;
  /// Selects the list's first row, as code.
  virtual void selectFirstButton() = 0;
  virtual void setButtonListVisible(bool visible) = 0;

  /// Display name of the chosen screen.
  virtual QString screenName() const = 0;
  /// Name of the colour scheme in force.
  virtual QString schemeName() const = 0;
};

}  // namespace renderer
