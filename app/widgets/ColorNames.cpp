#include "ColorNames.h"

#include <QColor>
#include <QCoreApplication>
#include <QString>

namespace {

QString translated(const char* text)
{
    return QCoreApplication::translate("ColorNames", text);
}

// Hue bands in degrees, each up to (excluding) its end.
struct HueBand {
    int end;
    const char* name;
};
constexpr HueBand kHueBands[] = {
    {15, QT_TRANSLATE_NOOP("ColorNames", "red")},
    {45, QT_TRANSLATE_NOOP("ColorNames", "orange")},
    {70, QT_TRANSLATE_NOOP("ColorNames", "yellow")},
    {160, QT_TRANSLATE_NOOP("ColorNames", "green")},
    {200, QT_TRANSLATE_NOOP("ColorNames", "cyan")},
    {255, QT_TRANSLATE_NOOP("ColorNames", "blue")},
    {290, QT_TRANSLATE_NOOP("ColorNames", "purple")},
    {345, QT_TRANSLATE_NOOP("ColorNames", "magenta")},
    {360, QT_TRANSLATE_NOOP("ColorNames", "red")},
};

} // namespace

namespace ColorNames {

QString describe(const QColor& color)
{
    const QColor hsv = color.toHsv();
    const int value = hsv.value();
    const int saturation = hsv.saturation();
    if (value < 24)
        return translated(QT_TRANSLATE_NOOP("ColorNames", "off"));
    if (saturation < 40) {
        if (value > 215)
            return translated(QT_TRANSLATE_NOOP("ColorNames", "white"));
        return value > 120 ? translated(QT_TRANSLATE_NOOP("ColorNames", "gray"))
                           : translated(QT_TRANSLATE_NOOP("ColorNames", "dark gray"));
    }
    const int hue = qMax(0, hsv.hue());
    QString name;
    for (const HueBand& band : kHueBands) {
        if (hue < band.end) {
            name = translated(band.name);
            break;
        }
    }
    if (value < 110)
        return translated(QT_TRANSLATE_NOOP("ColorNames", "dark %1")).arg(name);
    if (saturation < 130)
        return translated(QT_TRANSLATE_NOOP("ColorNames", "pale %1")).arg(name);
    return name;
}

} // namespace ColorNames
