#pragma once

#include <QStringList>

// The panel's language (its `languageIndex`, 0..9) that matches the desktop's, for a first start.
namespace DesktopLanguage {

// The first of the user's interface languages (BCP 47 names, most preferred first) that the
// panel is translated into; 0 (English) when none is.
int indexFor(const QStringList& uiLanguages);
// indexFor() of the process's locale (LANGUAGE, LC_ALL, LC_MESSAGES, LANG).
int systemIndex();

} // namespace DesktopLanguage
