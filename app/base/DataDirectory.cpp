#include "DataDirectory.h"

#include <QFileInfo>
#include <QSettings>

namespace DataDirectory {

QString path()
{
    const QSettings settings(QSettings::IniFormat, QSettings::UserScope, QStringLiteral("Qx"),
                             QStringLiteral("application"));
    return QFileInfo(settings.fileName()).absolutePath() + QStringLiteral("/NORVALEXRGB");
}

} // namespace DataDirectory
