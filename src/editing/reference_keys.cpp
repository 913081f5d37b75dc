#include "editing/reference_keys.h"

#include "editing/immediate_edits.h"
#include "editing/reports.h"
#include "platform/failure.h"
#include "themefiles/ini_access.h"
#include "themefiles/section_names.h"
#include "themefiles/working_copies.h"

namespace editing {
namespace {

using themefiles::ThemePaths;

bool write(Session& session, ReferenceKind kind, const QString& key, const std::optional<QString>& value) {
  const ReferenceFile file = fileOf(kind);
  return writeAtOnce(session, WriteStep, file.copy, file.section, key, value);
}

/// What the key stands for in the text that an edit would start from.
std::optional<QString> valueOf(const Session& session, ReferenceKind kind, const QString& key) {
  const ReferenceFile file = fileOf(kind);
  return themefiles::wholeValue(themefiles::presentText(session.state(), file.copy), file.section, key);
}

}  // namespace

ReferenceFile fileOf(ReferenceKind kind) {
  if (kind == ReferenceKind::Text) return {&ThemePaths::LanguageFile, themefiles::TextSection};
  return {&ThemePaths::SkinFile, themefiles::TexturesSection};
}

std::optional<ReferenceKind> referenceOf(themefiles::EditorFrame frame) {
  if (frame == themefiles::EditorFrame::Texts) return ReferenceKind::Text;
  if (frame == themefiles::EditorFrame::Texture) return ReferenceKind::Texture;
  return std::nullopt;
}

QStringList referenceKeys(const themefiles::ModuleState& state, ReferenceKind kind) {
  const ReferenceFile file = fileOf(kind);
  return themefiles::keyNames(file.section, state.paths.*file.copy);
}

std::optional<QString> referenceContent(const Session& session, ReferenceKind kind, const QString& key) {
  QString content;
  const bool read = platform::guarded(session.status(), ReadStep.toString(), [&] {
    content = valueOf(session, kind, key).value_or(QString());
    if (content.size() > LongestValue) throw platform::Failure(tooLongText(key));
  });
  return read ? std::optional(content) : std::nullopt;
}

KeyAdding addReferenceKey(Session& session, ReferenceKind kind, const QString& key) {
  bool exists = false;
  const bool read = platform::guarded(session.status(), WriteStep.toString(),
                                      [&] { exists = valueOf(session, kind, key).has_value(); });
  if (read && exists) return KeyAdding::Exists;
  return read && write(session, kind, key, QString()) ? KeyAdding::Done : KeyAdding::Failed;
}

bool removeReferenceKey(Session& session, ReferenceKind kind, const QString& key) {
  return write(session, kind, key, std::nullopt);
}

}  // namespace editing
