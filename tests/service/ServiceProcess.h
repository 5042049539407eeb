#pragma once

#include "SocketPath.h"

#include <QElapsedTimer>
#include <QLocalSocket>
#include <QProcess>
#include <QThread>

#include <csignal>

// One norvalex-control process for a test, run with the test's own runtime and config
// directories; its warnings go to the test's output. Killed if still running at the end.
class ServiceProcess
{
public:
    ServiceProcess(const QString& runtimeDir, const QString& configDir)
        : socketPath_(runtimeDir + QLatin1Char('/') + QLatin1String(nxproto::kSocketFileName))
    {
        QProcessEnvironment env = QProcessEnvironment::systemEnvironment();
        env.insert(QStringLiteral("XDG_RUNTIME_DIR"), runtimeDir);
        env.insert(QStringLiteral("XDG_CONFIG_HOME"), configDir);
        env.insert(QStringLiteral("QT_LOGGING_RULES"),
                   QStringLiteral("*.debug=false;*.info=false"));
        process_.setProcessEnvironment(env);
        process_.setProcessChannelMode(QProcess::ForwardedChannels);
    }
    ~ServiceProcess()
    {
        if (isRunning())
            kill();
    }

    // Changes the environment of the next start; an empty value removes the variable.
    void setEnvironment(const QString& name, const QString& value)
    {
        QProcessEnvironment env = process_.processEnvironment();
        if (value.isEmpty())
            env.remove(name);
        else
            env.insert(name, value);
        process_.setProcessEnvironment(env);
    }
    // Where the socket is expected, when the test changes the runtime directory.
    void setSocketPath(const QString& path) { socketPath_ = path; }
    // Its standard error is kept for readAllErrors() instead of forwarded.
    void captureErrors() { process_.setProcessChannelMode(QProcess::ForwardedOutputChannel); }
    QString readAllErrors() { return QString::fromLocal8Bit(process_.readAllStandardError()); }

    // Starts and waits until its socket accepts connections.
    // Simulated modules unless the arguments choose: the tests must not depend on the machine.
    bool start(QStringList arguments = {})
    {
        if (arguments.filter(QStringLiteral("--modules")).isEmpty())
            arguments.prepend(QStringLiteral("--modules=simulated"));
        process_.start(QStringLiteral(NX_CONTROL_EXECUTABLE), arguments);
        QElapsedTimer clock;
        clock.start();
        while (process_.waitForStarted() && isRunning() && clock.elapsed() < 5000) {
            QLocalSocket probe;
            probe.connectToServer(socketPath_);
            if (probe.waitForConnected(100))
                return true;
            QThread::msleep(20);
        }
        return false;
    }
    bool terminate()
    {
        process_.terminate();
        return process_.waitForFinished(5000);
    }
    void kill()
    {
        ::kill(pid_t(pid()), SIGKILL);
        process_.waitForFinished(3000);
    }
    bool isRunning() const { return process_.state() != QProcess::NotRunning; }
    qint64 pid() const { return process_.processId(); }
    int exitCode() const { return process_.exitCode(); }
    QString socketPath() const { return socketPath_; }

private:
    QString socketPath_;
    QProcess process_;
};
