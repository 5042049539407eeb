#pragma once

#include <QByteArray>
#include <QString>

// System memory use from /proc/meminfo: load = (total - available) / total.
struct MemInfo {
    double load = -1.0; // percent, whole numbers
    int usedMB = -1;

    // -1 in both fields when the text lacks MemTotal or MemAvailable or they do not fit.
    static MemInfo parse(const QByteArray& text);
    // <root>/proc/meminfo
    static MemInfo read(const QString& root);
};
