#include "mainwindows/arranging.h"

#include "mainwindows/commands.h"
#include "support/group.h"
#include "support/results.h"

using namespace support;

/// How several objects are brought to the first one, or to equal gaps.
class ArrangingTest : public GroupTest {
  Q_OBJECT

 private Q_SLOTS:
  void arrangements() {
    const auto rows = mainwindows::commandRows();
    const auto first = std::ranges::find(rows, mainwindows::Command::AlignLeftEdges, &mainwindows::CommandRow::command);
    compareRows(u"arrangements.txt"_s, [&](const QString& row) {
      openCrowded();
      const QStringList words = row.split(u": "_s);
      const QStringList group = words.at(1).split(u' ');
      program->tag(u"Loading"_s + group.front());
      for (const QString& name : group.mid(1)) program->form.session().toggleMember(u"Loading"_s + name);
      const QByteArray before = game->get(ThemeCopy);
      const auto named = std::find_if(first, rows.end(), [&](const auto& entry) { return entry.menu == words[0]; });
      mainwindows::arrange(program->form, static_cast<mainwindows::Arrangement>(named - first));
      const QString told = program->status();
      return newLines(before).join(u' ') + (told.isEmpty() ? told : u"; "_s + told);
    });
  }
};

QTEST_MAIN(ArrangingTest)
#include "arranging_test.moc"
