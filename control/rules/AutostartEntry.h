#pragma once

#include <QString>

// The XDG autostart entry that starts the panel in the background when the user logs in.
class AutostartEntry
{
public:
    // <config>/autostart/norvalex-rgb.desktop
    static QString path();
    // The entry's text for a panel at `executable`.
    static QByteArray content(const QString& executable);
    // The panel beside this program, else the one on the PATH.
    static QString panelExecutable();

    // Writes or removes the entry; true when the file now matches `enabled`.
    static bool apply(bool enabled, const QString& executable, QString* error);
};
