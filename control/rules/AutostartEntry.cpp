#include "AutostartEntry.h"

#include <QCoreApplication>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QSaveFile>
#include <QStandardPaths>

QString AutostartEntry::path()
{
    return QStandardPaths::writableLocation(QStandardPaths::GenericConfigLocation) +
           QStringLiteral("/autostart/norvalex-rgb.desktop");
}

QString AutostartEntry::panelExecutable()
{
    const QString beside = QCoreApplication::applicationDirPath() + QStringLiteral("/norvalex-rgb");
    return QFileInfo(beside).isExecutable() ? beside : QStringLiteral("norvalex-rgb");
}

QByteArray AutostartEntry::content(const QString& executable)
{
    // Exec quoting inside double quotes, then the escaping of a desktop-entry string value.
    QString quoted;
    for (const QChar c : executable) {
        if (c == QLatin1Char('"') || c == QLatin1Char('`') || c == QLatin1Char('$') ||
            c == QLatin1Char('\\'))
            quoted += QLatin1Char('\\');
        quoted += c;
    }
    quoted.replace(QLatin1String("\\"), QLatin1String("\\\\"));
    quoted.replace(QLatin1String("%"), QLatin1String("%%"));
    return QStringLiteral("[Desktop Entry]\n"
                          "Type=Application\n"
                          "Name=NORVALEX RGB\n"
                          "Comment=Memory module lighting, started in the background\n"
                          "Exec=\"%1\" --background\n"
                          "Icon=norvalex-rgb\n"
                          "Terminal=false\n"
                          "X-GNOME-Autostart-enabled=true\n")
        .arg(quoted)
        .toUtf8();
}

bool AutostartEntry::apply(bool enabled, const QString& executable, QString* error)
{
    const QString file = path();
    if (!enabled) {
        if (!QFileInfo::exists(file) || QFile::remove(file))
            return true;
        *error = QStringLiteral("cannot remove ") + file;
        return false;
    }
    const QByteArray text = content(executable);
    QFile current(file);
    if (current.open(QIODevice::ReadOnly) && current.readAll() == text)
        return true;
    current.close();
    QDir().mkpath(QFileInfo(file).absolutePath());
    QSaveFile out(file);
    if (!out.open(QIODevice::WriteOnly) || out.write(text) != text.size() || !out.commit()) {
        *error = out.errorString();
        return false;
    }
    return true;
}
