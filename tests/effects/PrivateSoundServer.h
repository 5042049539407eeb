#pragma once

#include <QDir>
#include <QFile>
#include <QProcess>
#include <QStandardPaths>
#include <QTemporaryDir>
#include <QThread>

// A pulseaudio of a test's own with one silent output ("nxtest"), reachable on a socket in a
// temporary directory and nowhere else. Killed when it goes out of scope.
class PrivateSoundServer
{
public:
    // False when pulseaudio is not installed or does not come up.
    bool start()
    {
        const QString program = QStandardPaths::findExecutable(QStringLiteral("pulseaudio"));
        const QString runtime = dir_.filePath(QStringLiteral("runtime"));
        if (program.isEmpty() || !QDir().mkpath(runtime))
            return false;
        QFile::setPermissions(runtime, QFileDevice::ReadOwner | QFileDevice::WriteOwner |
                                           QFileDevice::ExeOwner);
        QProcessEnvironment env = QProcessEnvironment::systemEnvironment();
        for (const char* name : {"HOME", "XDG_CONFIG_HOME"})
            env.insert(QLatin1String(name), dir_.path());
        env.insert(QStringLiteral("XDG_RUNTIME_DIR"), runtime);
        process_.setProcessEnvironment(env);
        process_.setProcessChannelMode(QProcess::ForwardedErrorChannel);
        process_.start(program,
                       {QStringLiteral("-n"), QStringLiteral("--daemonize=no"),
                        QStringLiteral("--exit-idle-time=-1"), QStringLiteral("--use-pid-file=no"),
                        QStringLiteral("--log-level=error"),
                        QStringLiteral("--load=module-native-protocol-unix "
                                       "auth-anonymous=1 socket=") +
                            socket(),
                        QStringLiteral("--load=module-null-sink sink_name=nxtest")});
        for (int i = 0; i < 200 && process_.waitForStarted() && !QFile::exists(socket()); ++i)
            QThread::msleep(50);
        return QFile::exists(socket());
    }
    ~PrivateSoundServer()
    {
        process_.kill();
        process_.waitForFinished(5000);
    }

    QString socket() const { return dir_.filePath(QStringLiteral("native")); }
    // The value of PULSE_SERVER that reaches it.
    QByteArray address() const { return "unix:" + socket().toLocal8Bit(); }

private:
    QTemporaryDir dir_;
    QProcess process_;
};
