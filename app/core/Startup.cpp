#include "Startup.h"

#include "DataDirectory.h"
#include "Log.h"
#include "Platform.h"

#include <QFileInfo>
#include <QSettings>

namespace Startup {

QString dataDirectory()
{
    return DataDirectory::path();
}

bool isDebugMode()
{
    const QString path = dataDirectory() + QStringLiteral("/ModuleDevice.ini");
    if (!QFileInfo::exists(path)) {
        qCDebug(lcPanel) << "沒找到ModuleDevice，Debuge模式關閉";
        return false;
    }
    qCDebug(lcPanel) << "有找到ModuleDevice，檢查Debuge模式";
    const QSettings ini(path, QSettings::IniFormat);
    const bool debug = ini.value(QStringLiteral("DebugMode/isDebugMode"), QVariant()).toBool();
    qCDebug(lcPanel) << "isDebugMode = " << debug;
    return debug;
}

void startControl()
{
    bool running = false;
    Platform::closeHandle(Platform::createMutex(L"NORVALEX Control.exe", &running));
    if (running) {
        qCDebug(lcPanel) << "控制EXE有開";
        return;
    }
    qCDebug(lcPanel) << "啟動程式";
    std::wstring directory = Platform::executablePath();
    const std::size_t cut = directory.find_last_of(Platform::pathSeparator());
    if (cut != std::wstring::npos)
        directory.erase(cut);
    if (Platform::launchElevated(Platform::controlExecutableName(), directory)) {
        qCDebug(lcPanel) << "NORVALEX Control.exe OK";
        return;
    }
    qCDebug(lcPanel) << "NORVALEX Control.exe FFFFFFFFFFF";
    Platform::messageBox(L"Can not find NORVALEX Control.exe", L"ERROR",
                         Platform::MessageIcon::Information);
}

} // namespace Startup
