#include "Startup.h"

#include "DataDirectory.h"
#include "Platform.h"

#include <QDebug>
#include <QFileInfo>
#include <QSettings>

#include <cstring>

namespace Startup {

QString dataDirectory()
{
    return DataDirectory::path();
}

bool isDebugMode()
{
    const QString path = dataDirectory() + QStringLiteral("/ModuleDevice.ini");
    if (!QFileInfo::exists(path)) {
        qDebug() << "沒找到ModuleDevice，Debuge模式關閉";
        return false;
    }
    qDebug() << "有找到ModuleDevice，檢查Debuge模式";
    const QSettings ini(path, QSettings::IniFormat);
    const bool debug = ini.value(QStringLiteral("DebugMode/isDebugMode"), QVariant()).toBool();
    qDebug() << "isDebugMode = " << debug;
    return debug;
}

void startControl()
{
    bool running = false;
    Platform::closeHandle(Platform::createMutex(L"NORVALEX Control.exe", &running));
    if (running) {
        qDebug() << "控制EXE有開";
        return;
    }
    qDebug() << "啟動程式";
    std::wstring directory = Platform::executablePath();
    const std::size_t cut = directory.find_last_of(Platform::pathSeparator());
    if (cut != std::wstring::npos)
        directory.erase(cut);
    if (Platform::launchElevated(Platform::controlExecutableName(), directory)) {
        qDebug() << "NORVALEX Control.exe OK";
        return;
    }
    qDebug() << "NORVALEX Control.exe FFFFFFFFFFF";
    Platform::messageBox(L"Can not find NORVALEX Control.exe", L"ERROR",
                         Platform::MessageIcon::Information);
}

bool isOpenArgument(int argc, char* argv[])
{
    return argc > 1 && argv[1] && std::strcmp(argv[1], "open") == 0;
}

} // namespace Startup
