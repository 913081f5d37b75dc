#include <cstring>
#include <memory>

#include "figures.h"
#include "plain_files.h"
#include "support/panel.h"
#include "themefiles/ini_access.h"

namespace bench {
namespace {

constexpr int SectionCount = 800;
const QString Name = QStringLiteral("theme.ini");
const QString Section = QStringLiteral("ScreenObject400");
const QString Key = QStringLiteral("W");

/// A theme of about 70 KB.
QByteArray themeOfSections() {
  QByteArray text;
  for (int i = 0; i < SectionCount; ++i) {
    text += "[ScreenObject" + QByteArray::number(i) + "]\r\n";
    for (const char* line : {"Tex=Button", "X=100", "Y=200", "W=64", "H=24", "Color=P1Dark", "Type=Font Black"}) {
      text += QByteArray(line) + "\r\n";
    }
    if (i % 10 == 0) text += "; one more object of the screen\r\n";
    text += "\r\n";
  }
  return text;
}

std::size_t countBrackets(const QByteArray& bytes) {
  std::size_t count = 0;
  const char* const end = bytes.constEnd();
  for (const char* at = bytes.constBegin(); at != end; ++at, ++count) {
    at = static_cast<const char*>(std::memchr(at, '[', std::size_t(end - at)));
    if (!at) break;
  }
  return count;
}

}  // namespace

void registerIniAccess() {
  const auto folder = std::make_shared<support::Folder>();
  folder->put(Name, themeOfSections());
  const QString native = folder->native(Name);
  registerBenchmark(
      {"GetINI", 2, Held::AtMost},
      [folder](benchmark::State& state) {
        const QString path = folder->path(Name);
        for ([[maybe_unused]] auto turn : state) {
          QString value = themefiles::GetINI(Section, Key, QString(), path);
          benchmark::DoNotOptimize(value);
        }
      },
      [native](benchmark::State& state) {
        for ([[maybe_unused]] auto turn : state) benchmark::DoNotOptimize(countBrackets(readPlainly(native)));
      });
  registerBenchmark(
      {"PutINI", 1.25, Held::AtMost},
      [folder](benchmark::State& state) {
        const QString path = folder->path(Name);
        int value = 10;
        for ([[maybe_unused]] auto turn : state) {
          value = value == 99 ? 10 : value + 1;  // an unchanged value wouldn't be written
          themefiles::PutINI(Section, Key, QString::number(value), path);
        }
      },
      [native](benchmark::State& state) {
        for ([[maybe_unused]] auto turn : state) writePlainly(native, readPlainly(native));
      });
}

}  // namespace bench
