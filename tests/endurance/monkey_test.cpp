#include "endurance/monkey.h"

#include <QTest>

class MonkeyTest : public QObject {
  Q_OBJECT

 private Q_SLOTS:
  /// The seed is that of the environment variable MONKEY_SEED, if given.
  void randomEvents() {
    constexpr int LeastEvents = 5000;
    constexpr int MostEvents = 160000;
    constexpr int LeastCount = 10;
    bool given = false;
    const int environment = qEnvironmentVariableIntValue("MONKEY_SEED", &given);
    const quint32 seed = given ? static_cast<quint32>(environment) : 1;
    qInfo("seed %u", seed);
    endurance::Monkey monkey(seed);
    QStringList rare;
    do {
      monkey.step();
      rare.clear();
      for (const auto& [name, count] : monkey.counts().asKeyValueRange()) {
        if (count < LeastCount) rare += name + QStringLiteral(" %1").arg(count);
      }
    } while (monkey.fault().isEmpty() &&
             (monkey.events() < LeastEvents || (!rare.isEmpty() && monkey.events() < MostEvents)));
    qInfo("%d events, %d yields", monkey.events(), monkey.yields());
    for (const auto& [name, count] : monkey.counts().asKeyValueRange()) qInfo("%6d %s", count, qPrintable(name));
    QVERIFY2(monkey.fault().isEmpty(), qPrintable(monkey.fault()));
    QVERIFY2(rare.isEmpty(), qPrintable(rare.join(QStringLiteral("; "))));
  }
};

QTEST_MAIN(MonkeyTest)
#include "monkey_test.moc"
