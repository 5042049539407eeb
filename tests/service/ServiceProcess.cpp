#include "ServiceProcess.h"

#include "Platform.h"
#include "SocketPath.h"

#include <QElapsedTimer>
#include <QLocalSocket>
#include <QThread>

#include <csignal>
#include <utility>

ServiceProcess::ServiceProcess(QString runtimeDir, QString configDir)
    : runtimeDir_(std::move(runtimeDir)), configDir_(std::move(configDir))
{
    process_.setProcessChannelMode(QProcess::MergedChannels);
}

ServiceProcess::~ServiceProcess()
{
    if (isRunning())
        kill();
}

QProcessEnvironment ServiceProcess::environment() const
{
    QProcessEnvironment env = QProcessEnvironment::systemEnvironment();
    env.insert(QStringLiteral("XDG_RUNTIME_DIR"), runtimeDir_);
    env.insert(QStringLiteral("XDG_CONFIG_HOME"), configDir_);
    env.insert(QStringLiteral("QT_LOGGING_RULES"), QStringLiteral("*.debug=false"));
    return env;
}

QString ServiceProcess::socketPath() const
{
    return runtimeDir_ + QLatin1Char('/') + QLatin1String(nxproto::kSocketFileName);
}

bool ServiceProcess::start(const QStringList& arguments, int timeoutMs)
{
    process_.setProcessEnvironment(environment());
    process_.start(QStringLiteral(NX_CONTROL_EXECUTABLE), arguments);
    QElapsedTimer clock;
    clock.start();
    while (process_.waitForStarted(timeoutMs) && clock.elapsed() < timeoutMs && isRunning()) {
        QLocalSocket probe;
        probe.connectToServer(socketPath());
        if (probe.waitForConnected(100))
            return true;
        QThread::msleep(20);
    }
    return false;
}

bool ServiceProcess::quitByMessage(int timeoutMs)
{
    const Platform::WindowHandle window = Platform::findWindow(L"NORVALEX RGB Control");
    if (!window)
        return false;
    Platform::sendMessage(window, Platform::kMessageQuit, 0, 0);
    return process_.waitForFinished(timeoutMs);
}

bool ServiceProcess::terminate(int timeoutMs)
{
    process_.terminate();
    return process_.waitForFinished(timeoutMs);
}

void ServiceProcess::kill()
{
    ::kill(pid_t(process_.processId()), SIGKILL);
    process_.waitForFinished(3000);
}
