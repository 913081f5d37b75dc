#pragma once

#include "drawing/graphics.h"
#include "drawing/surface.h"
#include "platform/code_page.h"
#include "renderer/highlight_cursor.h"
#include "renderer/render_driver.h"
#include "renderer/render_host.h"
#include "support/panel.h"
#include "support/pictures.h"
#include "support/scripted_dialogs.h"
#include "themefiles/colour_tables.h"
#include "themefiles/screen_table.h"
#include "themefiles/tag_listing.h"

namespace support {

/// A window that a render shows itself in: keeps what it is told, and runs `yielded` at each yield.
class Host : public renderer::RenderHost {
 public:
  int progressValue() const override { return progress; }
  void setProgressValue(int value) override { progress = qBound(0, value, 100); }
  void setProgressText(const QString& text) override { percents += text; }
  void setProgressVisible(bool visible) override { barVisible = visible; }
  void Refresh() override { ++refreshes; }
  void yield() override {
    if (yielded) yielded();
  }
  void fillButtonList(const QStringList& rows) override { buttons = rows; }
  void selectFirstButton() override { ++selections; }
  void setButtonListVisible(bool visible) override { buttonsVisible = visible; }
  QString screenName() const override { return screen; }
  QString schemeName() const override { return QStringLiteral("Blue"); }

  QString screen = QStringLiteral("Main Screen");
  std::function<void()> yielded;
  QStringList percents, buttons;
  int progress = 50, refreshes = 0, selections = 0;
  bool barVisible = false, buttonsVisible = true;
};

/// Keeps what is set, in order: "L10 T20 ...".
struct Mark : renderer::CursorMark {
  void SetLeft(double left) override { note("L", left); }
  void SetTop(double top) override { note("T", top); }
  void SetWidth(double width) override { note("W", width); }
  void SetHeight(double height) override { note("H", height); }
  void SetVisible(bool visible) override { calls += visible ? "shown " : "hidden "; }
  void setBlinking(bool blinking) override { calls += blinking ? "blinks " : "still "; }
  void note(const char* side, double value) { calls += side + QByteArray::number(value) + ' '; }
  QByteArray calls;
};

/// A theme that a test writes, with a skin of textures of 8 x 4 pixels, and all that a render of it needs.
class Stage {
 public:
  Stage() {
    themefiles::InitScreenTable(state);
    state.paths.ThemeFile = folder.path(QStringLiteral("theme.ini"));
    state.paths.SkinFile = folder.path(QStringLiteral("skin.ini"));
    state.paths.LanguageFile = folder.path(QStringLiteral("language.ini"));
    state.paths.SkinDirectory = folder.path({});
    for (const auto& [name, color] : {std::pair{"Red", 0xFFFF0000U}, {"Blue", 0xFF0000FFU}, {"Half", 0x80000000U}}) {
      folder.put(QString::fromLatin1(name) + QStringLiteral(".png"), encoded(plainPicture(8, 4, color), "png"));
      skin += QByteArray(name) + '=' + name + ".png|";
    }
    folder.put(QStringLiteral("Torn.png"), "no picture");
    skin += "Torn=torn.PNG|";
  }

  /// Writes the theme ("|" ends a line) and lists all of its sections but the one of colours and the background's.
  void setTheme(const QByteArray& theme) {
    folder.put(QStringLiteral("skin.ini"), linesOf("[Textures]|" + skin));
    folder.put(QStringLiteral("theme.ini"), linesOf(theme));
    themefiles::ReadColors(state, panel);
    tags.Clear();
    for (const QByteArray& line : theme.split('|')) {
      if (!line.startsWith('[') || line == "[Colors]" || line.endsWith("Background]")) continue;
      tags.AddItem(platform::fromAnsi(line.mid(1, line.size() - 2)));
    }
  }

  /// Adds sections that stand in no tag list.
  void addToTheme(const QByteArray& sections) {
    folder.put(QStringLiteral("theme.ini"), folder.get(QStringLiteral("theme.ini")) + linesOf(sections));
  }

  renderer::RenderContext context(drawing::Graphics& by) {
    return {.state = state,
            .tags = tags,
            .Workspace = surface,
            .host = host,
            .status = panel,
            .dialogs = dialogs,
            .graphics = by,
            .account = account,
            .pictures = pictures};
  }
  renderer::RenderContext context() { return context(graphics); }
  void draw() {
    renderer::RenderContext context = this->context();
    renderer::DrawScreen(context);
  }

  QRgb pixel(int x, int y) const { return surface.image().pixel(x, y); }

  Folder folder;
  QByteArray skin;
  themefiles::ModuleState state;
  themefiles::SortedTags tags;
  drawing::Surface surface;
  Host host;
  Panel panel;
  ScriptedDialogs dialogs;
  drawing::Graphics graphics;
  renderer::RenderAccount account;
  renderer::PreparedPictures* pictures = nullptr;
};

}  // namespace support
