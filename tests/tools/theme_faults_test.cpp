#include <utility>

#include <QDir>
#include <QDirIterator>
#include <QTemporaryDir>
#include <QTest>

#include "arguments.h"
#include "ignored.h"
#include "output.h"
#include "platform/failure.h"
#include "platform/files.h"
#include "support/pictures.h"
#include "support/results.h"

using platform::readFile;
using platform::writeFile;
using namespace Qt::StringLiterals;

namespace {

const QString Right = QStringLiteral(RESULTS "/right_game");

/// A copy of the theme that is right in every way, with its pictures.
class RightGame {
 public:
  RightGame() {
    QDirIterator files(Right, QDir::Files, QDirIterator::Subdirectories);
    while (files.hasNext()) {
      const QString from = files.next();
      const QString to = path(from.sliced(Right.size() + 1));
      QDir().mkpath(QFileInfo(to).path());
      writeFile(to, readFile(from));
    }
    for (const auto& [name, color] :
         {std::pair("ground", 0xFF204060U), {"plate", 0xFF3060C0U}, {"mask", 0xFF000000U}}) {
      if (!support::plainPicture(4, 4, color).save(path(u"Skins/Right/%1.png"_s.arg(QLatin1StringView(name))))) {
        qFatal("can't write a picture");
      }
    }
  }
  QString path(const QString& name) const { return folder_.filePath(name); }
  QString folder() const { return folder_.path(); }

 private:
  QTemporaryDir folder_;
};

QByteArray changed(const QByteArray& verb, const QByteArray& bytes, const QByteArray& told) {
  if (verb == "append") return bytes + support::bytesOf(told);
  if (verb == "mark") return "\xEF\xBB\xBF" + bytes;
  if (verb == "cut") return bytes.chopped(bytes.size() / 2);
  if (verb == "wide") {
    QByteArray wide("\xFF\xFE");
    for (const char byte : bytes) wide.append(byte).append('\0');
    return wide;
  }
  const qsizetype arrow = told.indexOf(" ->");
  const QByteArray old = support::bytesOf(told.first(arrow));
  if (verb != "change" || !bytes.contains(old)) qFatal("can't %s %s", verb.constData(), told.constData());
  return QByteArray(bytes).replace(old, support::bytesOf(told.sliced(arrow + 3).mid(1)));
}

/// Makes a change that a line of the table tells; gives the options of a call.
QStringList make(const QByteArray& line, const RightGame& game) {
  const QByteArray verb = line.left(line.indexOf(' '));
  const QByteArray rest = line.sliced(verb.size() + 1);
  if (verb == "calls") return QString::fromLatin1(rest).split(u' ');
  const qsizetype colon = rest.indexOf(':');
  const QString file = game.path(QString::fromLatin1(colon < 0 ? rest : rest.first(colon)));
  const QByteArray told = colon < 0 ? QByteArray() : rest.mid(colon + 2);
  const QString other = QString::fromLatin1(told);
  bool done = true;
  if (verb == "remove") {
    done = QFile::remove(file) || QDir().rmdir(file);
  } else if (verb == "link") {
    done = QFile::link(other, file);
  } else if (verb == "rename") {
    done = QFile::rename(file, game.path(other));
  } else if (verb == "copy") {
    done = QFile::copy(game.path(other), file);
  } else {
    writeFile(file, verb == "write" ? support::bytesOf(told) : changed(verb, readFile(file), told));
  }
  if (!done) qFatal("can't %s", line.constData());
  return {};
}

/// What the check prints of the game, without the path of its folder.
QStringList outputOf(const RightGame& game, const QStringList& options) {
  QStringList words{u"check"_s, game.folder()};
  for (const QString& option : options) words += QString(option).replace(u"GAME"_s, game.folder());
  const auto arguments = themechecktool::parseArguments(words);
  QStringList lines;
  try {
    auto findings = themecheck::checkGame(arguments.request, [](auto&&...) {});
    const auto ignored =
        arguments.ignored.isEmpty() ? themechecktool::Ignored() : themechecktool::Ignored(arguments.ignored);
    const int takenOut = ignored.takeOut(findings);
    for (const auto& finding : findings) lines += themechecktool::lineOf(finding).remove(game.folder() + u'/');
    themechecktool::Counts counts = themechecktool::countsOf(findings);
    counts.ignored = takenOut;
    lines += themechecktool::countsText(counts);
  } catch (const platform::Failure& failure) {
    lines += QString(failure.description()).remove(game.folder());
  }
  return lines;
}

}  // namespace

class ThemeFaultsTest : public QObject {
  Q_OBJECT

 private Q_SLOTS:
  void tellsEachFault_data() {
    QTest::addColumn<QByteArrayList>("lines");
    QByteArrayList block;
    const auto add = [&] { QTest::newRow(block.first().constData()) << std::exchange(block, {}); };
    for (const QByteArray& line : readFile(QStringLiteral(RESULTS "/theme_faults.txt")).chopped(1).split('\n')) {
      if (line.startsWith("== ")) add();
      block += line;
    }
    add();
  }
  /// One fault, and what stands behind it in the table.
  void tellsEachFault() {
    QFETCH(const QByteArrayList, lines);
    const RightGame game;
    QStringList options;
    QStringList behind;
    for (const QByteArray& line : lines) {
      const bool isChange = line.startsWith("- ");
      if (isChange) options += make(line.sliced(2), game);
      if (!line.startsWith('>')) (isChange || line.startsWith("== ") ? got_ : behind) += QString::fromUtf8(line);
    }
    if (lines.first().startsWith("== ")) {
      for (const QString& line : outputOf(game, options)) got_ += u"> "_s + line;
    }
    got_ += behind;
  }
  void isAsTheTableTells() { support::compareText(u"theme_faults.txt"_s, got_); }

 private:
  QStringList got_;
};

QTEST_MAIN(ThemeFaultsTest)
#include "theme_faults_test.moc"
