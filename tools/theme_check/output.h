#pragma once

#include <vector>

#include <QByteArray>
#include <QString>

#include "themecheck/findings.h"

namespace themechecktool {

/// How many findings there are of each level.
struct Counts {
  int errors = 0;
  int warnings = 0;
  int notes = 0;
  int ignored = 0;
};

Counts countsOf(const std::vector<themecheck::Finding>& findings);

/// "1 error, 2 warnings, 0 notes", and ", 3 ignored" where some are.
QString countsText(const Counts& counts);

/// "3 ignored".
QString ignoredText(const Counts& counts);

/// "error: MainStaticIcon: Tex: no file 'x.png'", at one of the finding's places; a "-" stands for a section or a key
/// that there is none of.
QString withoutPlace(const themecheck::Finding& finding, const themecheck::Place& place);

/// The finding on one line, in the form that compilers use.
QString lineOf(const themecheck::Finding& finding);

/// All findings as one array, UTF-8.
QByteArray jsonOf(const std::vector<themecheck::Finding>& findings);

}  // namespace themechecktool
