#pragma once

#include "mainwindows/workspace.h"
#include "support/mouse.h"
#include "support/snapshot.h"
#include "themefiles/ini_access.h"

namespace support {

/// A test of objects that are moved by hand.
class HandTest : public ProgramTest {
 protected:
  mainwindows::Workspace& preview() const { return *program->form.Workspace; }

  /// Presses at a place and moves the mouse on, by pixels, with Shift, which meets no guides; the button stays down.
  void hold(const QPoint& from, const QPoint& by, Qt::KeyboardModifiers keys = {}) const {
    QTest::mousePress(&preview(), Qt::LeftButton, keys, from);
    moveMouse(preview(), from + by / 2, Qt::LeftButton, keys | Qt::ShiftModifier);
    moveMouse(preview(), from + by, Qt::LeftButton, keys | Qt::ShiftModifier);
  }
  void drop(const QPoint& place, Qt::KeyboardModifiers keys = {}) const {
    QTest::mouseRelease(&preview(), Qt::LeftButton, keys | Qt::ShiftModifier, place);
    settle();
    QTRY_VERIFY(program->isPainted());
  }
  void drag(const QPoint& from, const QPoint& by, Qt::KeyboardModifiers keys = {}) const {
    hold(from, by, keys);
    drop(from + by, keys);
  }
  void put(const char* key, const char* value) const {
    themefiles::PutINI(u"LoadingStaticA"_s, QLatin1StringView(key), QLatin1StringView(value),
                       program->state.paths.ThemeFile);
  }
  /// Lines of the working copy that aren't those of `before`.
  QStringList newLines(const QByteArray& before) const {
    QStringList lines = QString::fromLatin1(game->get(ThemeCopy)).split(u"\r\n"_s);
    const QStringList old = QString::fromLatin1(before).split(u"\r\n"_s);
    for (qsizetype line = lines.size() - 1; line >= 0; --line) {
      if (line < old.size() && lines[line] == old[line]) lines.removeAt(line);
    }
    return lines;
  }
};

}  // namespace support
