#include "themecheck/skins.h"

#include <algorithm>
#include <array>

#include <QDir>
#include <QSet>

#include "platform/code_page.h"
#include "platform/failure.h"
#include "platform/file_bytes.h"
#include "platform/files.h"
#include "platform/paths.h"

namespace themecheck {
namespace {

using platform::upperCase;

constexpr auto PictureEndings = std::to_array<QStringView>({u".bmp", u".gif", u".jpg", u".jpeg", u".png"});

/// Where a picture is looked for, and where it is found without regard to case. Empty without a picture.
struct Picture {
  QString wanted;
  QString found;
};

bool hasFile(const IniFile& skin, const QString& texture) {
  const IniSection* const textures = skin.find(Textures);
  return textures && !textures->value(texture).isEmpty();
}

/// All textures, each at its place in the first skin that has it.
void checkLacking(const CheckedTheme& theme, Findings& findings) {
  QSet<QString> seen;
  for (const IniFile& skin : theme.skins) {
    for (const IniKey* key : skin.keysOf(Textures)) {
      if (key->value.isEmpty() || seen.contains(upperCase(key->name))) continue;
      seen += upperCase(key->name);
      for (const IniFile& other : theme.skins) {
        if (!other.isChecked() || hasFile(other, key->name) || theme.lostSkins.contains(other.name())) continue;
        findings.add(Kind::LackingTexture, skin.placeOf(*skin.find(Textures), *key), {}, {other.name(), {}, {}});
      }
    }
  }
}

/// The folder as it is called on the disk.
QString folderOf(const CheckedTheme& theme) {
  return platform::nativePath(theme.files.pictures);
}

bool isThere(const QString& file) {
  const auto look = platform::lookAt(file, platform::AtLink::Follow);
  return look && look->isFile;
}

Picture pictureOf(const QString& folder, const QString& value) {
  if (value.isEmpty()) return {};
  const QString wanted = platform::plainPath(folder + u'/' + value);
  QString found = wanted;
  // What can't be looked at is a finding of the drawing.
  if (!isThere(wanted)) platform::guardedSilently([&] { found = platform::findPath(wanted); });
  return {wanted, found};
}

/// A skin without any of the textures in use is one fault, and so is one without any of its pictures.
void checkWhole(CheckedTheme& theme, const IniFile& skin, const QSet<QString>& used, Findings& findings) {
  const bool hasTable = skin.find(Textures);
  const bool hasSome =
      std::any_of(used.begin(), used.end(), [&](const QString& name) { return skin.has(Textures, name); });
  if (!hasSome && used.size() >= (hasTable ? 2 : 1)) {
    theme.lostSkins += skin.name();
    if (hasTable) {
      findings.add(Kind::EmptyTable, skin.place(Textures), {QString::number(used.size())});
    } else if (!platform::sameName(skin.sectionBehindMark(), Textures)) {
      findings.add(Kind::NoTable, skin.wholeFile(), {Textures, namesOfTheme(used.size())});
    }
  }
  QSet<QString> files;
  for (const IniKey* key : skin.keysOf(Textures)) {
    const Picture picture = pictureOf(folderOf(theme), key->value);
    if (!picture.found.isEmpty()) files += picture.found;
  }
  if (files.size() < 2 || std::any_of(files.begin(), files.end(), isThere)) return;
  theme.picturelessSkins += skin.name();
  findings.add(Kind::NoPictures, skin.place(Textures), {QString::number(files.size())});
}

void checkTextures(const CheckedTheme& theme, const IniFile& skin, const QSet<QString>& used, Findings& findings) {
  const QString folder = folderOf(theme);
  for (const IniKey* key : skin.keysOf(Textures)) {
    if (!used.contains(upperCase(key->name))) {
      findings.add(Kind::UnusedTexture, skin.placeOf(*skin.find(Textures), *key));
    }
    const Picture picture = pictureOf(folder, key->value);
    if (picture.found == picture.wanted || !isThere(picture.found)) continue;
    findings.add(Kind::OtherCase, skin.valueOf(Textures, key->name),
                 {key->value, picture.found.sliced(folder.size() + 1)});
  }
}

void checkPictures(const CheckedTheme& theme, Findings& findings) {
  const QString folder = folderOf(theme);
  QSet<QString> named;
  for (const IniFile& skin : theme.skins) {
    for (const IniKey* key : skin.keysOf(Textures)) named += QDir::cleanPath(pictureOf(folder, key->value).found);
  }
  try {
    for (const QStringView ending : PictureEndings) {
      for (const QString& picture : platform::listFiles(theme.files.pictures, ending.toString())) {
        if (named.contains(QDir::cleanPath(folder + u'/' + picture))) continue;
        findings.add(Kind::UnusedPicture, {theme.files.shownPictures + u'/' + picture, 1, 0, {}, {}});
      }
    }
  } catch (const platform::Failure& failure) {
    findings.add(Kind::CantBeRead, {theme.files.shownPictures, 1, 0, {}, {}}, {failure.description()});
  }
}

QSet<QString> upperCase(const QSet<QString>& names) {
  QSet<QString> upper;
  for (const QString& name : names) upper += upperCase(name);
  return upper;
}

}  // namespace

void checkSkins(CheckedTheme& theme, Findings& findings) {
  const QSet<QString> used = upperCase(valuesOf(theme.theme(), themefiles::KeyGroup::Texture));
  for (const IniFile& skin : theme.skins) {
    if (!skin.isChecked()) continue;
    checkWhole(theme, skin, used, findings);
    checkTextures(theme, skin, used, findings);
  }
  if (!theme.allSkins) return;
  checkLacking(theme, findings);
  checkPictures(theme, findings);
}

}  // namespace themecheck
