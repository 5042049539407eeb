#pragma once

#include <QString>
#include <QVector>

// The light modes by the names the panel shows, for the command line: a name matches whatever
// its case, spaces, dots, dashes and underscores ("rgb-spectrum", "RGB Spectrum", "temp").
class ModeNames
{
public:
    // The mode a name or a decimal value stands for, or -1.
    static int find(const QString& text);
    // The panel's name of a mode ("Shooting Star"), empty for an unknown value.
    static QString name(int lightMode);
    // The name as typed on the command line ("shooting-star").
    static QString slug(int lightMode);
    // Whether the panel offers the mode for picking; some modes are only reported by modules.
    static bool isOffered(int lightMode);
    // Whether only the newer module generation has the mode.
    static bool needsNewModules(int lightMode);
    // The offered modes in ascending order, the newer generation's included.
    static QVector<int> offered();
};
