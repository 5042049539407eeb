#include "ModeNames.h"

#include "LightModeTable.h"

#include <algorithm>

namespace {

// Modes a module may report but the panel never offers for picking.
constexpr int kReportedOnly[] = {7, 11, 12, 13, 16, 20, 22, 23, 29, 35};

QString squeezed(const QString& text)
{
    QString out;
    for (const QChar c : text) {
        if (c.isLetterOrNumber())
            out.append(c.toLower());
    }
    return out;
}

} // namespace

int ModeNames::find(const QString& text)
{
    bool isNumber = false;
    const int value = text.toInt(&isNumber, 10);
    if (isNumber)
        return LightModeTable::modeKey(value) ? value : -1;
    const QString wanted = squeezed(text);
    if (wanted.isEmpty())
        return -1;
    for (int mode = 0; mode <= LightModeTable::LastMode; ++mode) {
        if (squeezed(name(mode)) == wanted)
            return mode;
    }
    return -1;
}

QString ModeNames::name(int lightMode)
{
    const char* key = LightModeTable::modeKey(lightMode);
    return key ? QString::fromLatin1(key) : QString();
}

QString ModeNames::slug(int lightMode)
{
    QString out;
    for (const QChar c : name(lightMode)) {
        if (c.isLetterOrNumber())
            out.append(c.toLower());
        else if (!out.isEmpty() && !out.endsWith(QLatin1Char('-')))
            out.append(QLatin1Char('-'));
    }
    while (out.endsWith(QLatin1Char('-')))
        out.chop(1);
    return out;
}

bool ModeNames::isOffered(int lightMode)
{
    return LightModeTable::modeKey(lightMode) &&
           std::find(std::begin(kReportedOnly), std::end(kReportedOnly), lightMode) ==
               std::end(kReportedOnly);
}

bool ModeNames::needsNewModules(int lightMode)
{
    return lightMode >= LightModeTable::FirstNewMode;
}

QVector<int> ModeNames::offered()
{
    QVector<int> modes;
    for (int mode : LightModeTable::modeValues(true)) {
        if (isOffered(mode))
            modes.append(mode);
    }
    return modes;
}
