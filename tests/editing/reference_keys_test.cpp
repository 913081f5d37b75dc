#include "editing/reference_keys.h"

#include <QTest>

#include "editing/immediate_edits.h"
#include "support/editing.h"

using namespace support;
using editing::KeyAdding;
using editing::ReferenceKind;

/// Edits that don't wait for Update: the keys of texts and textures, and the names that they can have.
class ReferenceKeysTest : public QObject {
  Q_OBJECT

 private Q_SLOTS:
  void keys() {
    OpenTheme theme("[Main]|", "Plate=plate.png|", "HELLO=Hello there|");
    for (const auto& [kind, file, section, key, content] :
         {std::tuple{ReferenceKind::Text, "language", "[Text]|", u"HELLO"_s, u"Hello there"_s},
          {ReferenceKind::Texture, "skin", "[Textures]|", u"Plate"_s, u"plate.png"_s}}) {
      QCOMPARE(editing::referenceContent(theme.session, kind, key), content);
      QVERIFY(editing::addReferenceKey(theme.session, kind, u"New"_s) == KeyAdding::Done && !theme.state.Changed);
      // What the next edit makes anew counts where the copy is empty.
      theme.putCopy(file, {});
      QVERIFY(editing::addReferenceKey(theme.session, kind, u"new"_s) == KeyAdding::Exists);
      for (const int size : {32000, 32001}) {
        theme.putCopy(file, section + QByteArray("Long=") + QByteArray(size, 'w') + '|');
        QCOMPARE(editing::referenceContent(theme.session, kind, u"Long"_s).has_value(), size == 32000);
      }
      QCOMPARE(theme.report(), u"Error while reading Value [Long is too long to be edited here]"_s);
    }
    theme.state.paths.SkinFile = theme.folder.path(u"none/skin.ini.tmp"_s);
    QVERIFY(editing::addReferenceKey(theme.session, ReferenceKind::Texture, u"More"_s) == KeyAdding::Failed);
    QVERIFY(theme.report().startsWith(u"Error while writing tempfile ["));
  }

  void names() {
    for (const char* name : {"", " a", "a ", "a=b", ";a", "[a", "a\nb", "\ta", "a\t", "\xe4\xb8\xad"}) {
      QVERIFY2(!editing::isUsableName(QString::fromUtf8(name)), name);
    }
    for (const char* name : {"a", "a b", "a;[b", "#a", "\xc3\xa4"}) {
      QVERIFY2(editing::isUsableName(QString::fromUtf8(name)), name);
    }
  }
};

QTEST_GUILESS_MAIN(ReferenceKeysTest)
#include "reference_keys_test.moc"
