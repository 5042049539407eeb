#include "DesktopLanguage.h"

#include <QLocale>

namespace DesktopLanguage {

namespace {

constexpr int kEnglish = 0;

// -1 for a language the panel has no translation of.
int indexOf(const QLocale& locale)
{
    switch (locale.language()) {
    case QLocale::English:
        return 0;
    case QLocale::Chinese:
        return locale.script() == QLocale::TraditionalChineseScript ? 1 : 2;
    case QLocale::German:
        return 3;
    case QLocale::French:
        return 4;
    case QLocale::Japanese:
        return 5;
    case QLocale::Thai:
        return 6;
    case QLocale::Russian:
        return 7;
    case QLocale::Korean:
        return 8;
    case QLocale::Spanish:
        return 9;
    default:
        return -1;
    }
}

} // namespace

int indexFor(const QStringList& uiLanguages)
{
    for (const QString& name : uiLanguages) {
        const int index = indexOf(QLocale(name));
        if (index >= 0)
            return index;
    }
    return kEnglish;
}

int systemIndex()
{
    return indexFor(QLocale::system().uiLanguages());
}

} // namespace DesktopLanguage
