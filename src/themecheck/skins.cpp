#include "themecheck/skins.h"

#include <algorithm>
#include <array>
#include <functional>
#include <memory>
#include <vector>

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
using themefiles::TexturesSection;

constexpr auto PictureEndings = std::to_array<QStringView>({u".bmp", u".gif", u".jpg", u".jpeg", u".png"});

bool isThere(const QString& file) {
  const auto look = platform::lookAt(file, platform::AtLink::Follow);
  return look && look->isFile;
}

bool hasFile(const IniFile& skin, const QString& texture) {
  const IniSection* const textures = skin.find(TexturesSection);
  return textures && !textures->value(texture).isEmpty();
}

QSet<QString> upperCase(const QSet<QString>& names) {
  QSet<QString> upper;
  for (const QString& name : names) upper += upperCase(name);
  return upper;
}

/// The check of all skins of a theme. Each texture is looked for on the disk once.
class SkinCheck {
 public:
  SkinCheck(CheckedTheme& theme, Findings& findings);

  size_t count(size_t skin) const { return textures_[skin].size(); }
  void look(size_t skin, size_t texture);
  void checkWhole(size_t number);
  void checkTexture(size_t number, size_t texture);
  void checkLacking(size_t number, size_t texture);
  void checkPictures();

 private:
  /// A key of a skin's Textures. Its picture is looked for in one place, and found in another if case is left out of
  /// account. Both are empty without a picture.
  struct Texture {
    const IniKey* key = nullptr;
    QString wanted;
    QString found;
    bool isThere = false;
  };

  CheckedTheme& theme_;
  Findings& findings_;
  QString folder_;  ///< of the pictures, as it is called on the disk
  QSet<QString> used_;
  std::vector<std::vector<Texture>> textures_;  ///< by skin
  QSet<QString> seen_;                          ///< names of the textures that were compared with all skins
};

SkinCheck::SkinCheck(CheckedTheme& theme, Findings& findings)
    : theme_(theme),
      findings_(findings),
      folder_(platform::nativePath(theme.files.pictures)),
      used_(upperCase(valuesOf(theme.theme(), themefiles::KeyGroup::Texture))) {
  for (const IniFile& skin : theme.skins) {
    std::vector<Texture>& textures = textures_.emplace_back();
    for (const IniKey* key : skin.keysOf(TexturesSection)) textures.push_back({key, {}, {}, false});
  }
}

void SkinCheck::look(size_t skin, size_t texture) {
  Texture& present = textures_[skin][texture];
  if (present.key->value.isEmpty()) return;
  present.wanted = platform::plainPath(folder_ + u'/' + present.key->value);
  present.found = present.wanted;
  present.isThere = isThere(present.wanted);
  if (present.isThere) return;
  // What can't be looked at is a finding of the drawing.
  platform::guardedSilently([&] { present.found = platform::findPath(present.wanted); });
  present.isThere = present.found != present.wanted && isThere(present.found);
}

/// A skin without any of the textures in use is one fault, and so is one without any of its pictures.
void SkinCheck::checkWhole(size_t number) {
  const IniFile& skin = theme_.skins[number];
  const bool hasTable = skin.find(TexturesSection);
  const bool hasSome =
      std::any_of(used_.begin(), used_.end(), [&](const QString& name) { return skin.has(TexturesSection, name); });
  if (!hasSome && used_.size() >= (hasTable ? 2 : 1)) {
    theme_.lostSkins += skin.name();
    if (hasTable) {
      findings_.add(Kind::EmptyTable, skin.place(TexturesSection), {QString::number(used_.size())});
    } else if (!platform::sameName(skin.sectionBehindMark(), TexturesSection)) {
      findings_.add(Kind::NoTable, skin.wholeFile(), {TexturesSection, namesOfTheme(used_.size())});
    }
  }
  QSet<QString> files;
  for (const Texture& texture : textures_[number]) {
    if (texture.isThere) return;
    if (!texture.found.isEmpty()) files += texture.found;
  }
  if (files.size() < 2) return;
  theme_.picturelessSkins += skin.name();
  findings_.add(Kind::NoPictures, skin.place(TexturesSection), {QString::number(files.size())});
}

void SkinCheck::checkTexture(size_t number, size_t texture) {
  const IniFile& skin = theme_.skins[number];
  const Texture& present = textures_[number][texture];
  const IniKey& key = *present.key;
  if (!used_.contains(upperCase(key.name))) {
    findings_.add(Kind::UnusedTexture, skin.placeOf(*skin.find(TexturesSection), key));
  }
  if (present.found == present.wanted || !present.isThere) return;
  findings_.add(Kind::OtherCase, skin.valueOf(TexturesSection, key.name),
                {key.value, present.found.sliced(folder_.size() + 1)});
}

/// Each texture stands at its place in the first skin that has it.
void SkinCheck::checkLacking(size_t number, size_t texture) {
  const IniFile& skin = theme_.skins[number];
  const IniKey& key = *textures_[number][texture].key;
  const QString name = upperCase(key.name);
  if (key.value.isEmpty() || seen_.contains(name)) return;
  seen_ += name;
  for (const IniFile& other : theme_.skins) {
    if (!other.isChecked() || hasFile(other, key.name) || theme_.lostSkins.contains(other.name())) continue;
    findings_.add(Kind::LackingTexture, skin.placeOf(*skin.find(TexturesSection), key), {}, {other.name(), {}, {}});
  }
}

void SkinCheck::checkPictures() {
  QSet<QString> named;
  for (const std::vector<Texture>& skin : textures_) {
    for (const Texture& texture : skin) named += QDir::cleanPath(texture.found);
  }
  const ThemeFiles& files = theme_.files;
  try {
    for (const QStringView ending : PictureEndings) {
      for (const QString& picture : platform::listFiles(files.pictures, ending.toString())) {
        if (named.contains(QDir::cleanPath(folder_ + u'/' + picture))) continue;
        findings_.add(Kind::UnusedPicture, {files.shownPictures + u'/' + picture, 1, 0, {}, {}});
      }
    }
  } catch (const platform::Failure& failure) {
    findings_.add(Kind::CantBeRead, {files.shownPictures, 1, 0, {}, {}}, {failure.description()});
  }
}

}  // namespace

void addSkinSteps(CheckedTheme& theme, Findings& findings, Steps& steps) {
  const auto check = std::make_shared<SkinCheck>(theme, findings);
  const QString& about = theme.files.theme.name;
  const auto forEach = [&](size_t skin, void (SkinCheck::*work)(size_t, size_t)) {
    steps.addEach(about, check->count(skin), [=](size_t texture) { std::invoke(work, *check, skin, texture); });
  };
  for (size_t skin = 0; skin < theme.skins.size(); ++skin) {
    forEach(skin, &SkinCheck::look);
    if (!theme.skins[skin].isChecked()) continue;
    steps.add(about, [=] { check->checkWhole(skin); });
    forEach(skin, &SkinCheck::checkTexture);
  }
  if (!theme.allSkins) return;
  for (size_t skin = 0; skin < theme.skins.size(); ++skin) forEach(skin, &SkinCheck::checkLacking);
  steps.add(about, [=] { check->checkPictures(); });
}

}  // namespace themecheck
