#include <algorithm>

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
#include "support/row_name.h"

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

/// The bytes that a line of the table tells: "|" ends a line, \x and two digits is a byte.
QByteArray bytesOf(QByteArray told) {
  told.replace('|', '\n');
  for (qsizetype at = told.indexOf("\\x"); at >= 0; at = told.indexOf("\\x", at + 1)) {
    told.replace(at, 4, QByteArray::fromHex(told.mid(at + 2, 2)));
  }
  return told;
}

QByteArray changed(const QByteArray& verb, const QByteArray& bytes, const QByteArray& told) {
  if (verb == "write") return bytesOf(told);
  if (verb == "append") return bytes + bytesOf(told);
  if (verb == "mark") return "\xEF\xBB\xBF" + bytes;
  if (verb == "cut") return bytes.chopped(bytes.size() / 2);
  if (verb == "wide") {
    QByteArray wide("\xFF\xFE");
    for (const char byte : bytes) wide.append(byte).append('\0');
    return wide;
  }
  const qsizetype arrow = told.indexOf(" ->");
  const QByteArray old = bytesOf(told.first(arrow));
  if (verb != "change" || !bytes.contains(old)) qFatal("can't %s %s", verb.constData(), told.constData());
  return QByteArray(bytes).replace(old, bytesOf(told.sliced(arrow + 3).mid(1)));
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
    writeFile(file, changed(verb, readFile(file), told));
  }
  if (!done) qFatal("can't %s", line.constData());
  return {};
}

/// What the check prints of the game, without the path of its folder.
QStringList outputOf(const RightGame& game, const QStringList& options) {
  const auto arguments = themechecktool::parseArguments(QStringList{u"check"_s, game.folder()} + options);
  QStringList lines;
  try {
    auto findings = themecheck::checkGame(arguments.request, [](auto&&...) {});
    for (const auto& finding : findings) lines += themechecktool::lineOf(finding).remove(game.folder() + u'/');
    lines += themechecktool::countsText(themechecktool::countsOf(findings));
  } catch (const platform::Failure& failure) {
    lines += QString(failure.description()).remove(game.folder());
  }
  return lines;
}

}  // namespace

class ThemeFaultsTest : public QObject {
  Q_OBJECT

 private Q_SLOTS:
  void tellsEachFault() {
    const QByteArrayList table = readFile(QStringLiteral(RESULTS "/theme_faults.txt")).chopped(1).split('\n');
    QStringList got;
    for (qsizetype at = 0; at < table.size();) {
      const support::RowName row(table[at]);
      got += QString::fromUtf8(table[at]);
      if (!table[at++].startsWith("== ")) continue;
      const RightGame game;
      QStringList options;
      for (; at < table.size() && table[at].startsWith("- "); ++at) {
        options += make(table[at].sliced(2), game);
        got += QString::fromUtf8(table[at]);
      }
      for (const QString& line : outputOf(game, options)) got += u"> "_s + line;
      while (at < table.size() && table[at].startsWith('>')) ++at;
    }
    support::compareText(u"theme_faults.txt"_s, got);
  }
};

QTEST_MAIN(ThemeFaultsTest)
#include "theme_faults_test.moc"
