#pragma once

#include <QProcess>
#include <QProcessEnvironment>
#include <QString>
#include <QStringList>

// One norvalex-control process for a test, run with the test's own runtime and config
// directories.
class ServiceProcess
{
public:
    ServiceProcess(QString runtimeDir, QString configDir);
    ~ServiceProcess();

    ServiceProcess(const ServiceProcess&) = delete;
    ServiceProcess& operator=(const ServiceProcess&) = delete;

    static QString executable();

    // Starts and waits until its socket accepts connections.
    bool start(const QStringList& arguments = {}, int timeoutMs = 5000);
    // Runs to its end and returns the exit code (-1 when it did not end in time).
    int runToEnd(const QStringList& arguments, int timeoutMs = 5000);

    // Message 0x8301 to its window, as the panel sends it.
    bool quitByMessage(int timeoutMs = 5000);
    bool terminate(int timeoutMs = 5000);
    void kill();
    bool isRunning() const;
    qint64 pid() const;
    int exitCode() const { return process_.exitCode(); }
    QProcess::ExitStatus exitStatus() const { return process_.exitStatus(); }
    QByteArray log();

    QString socketPath() const;
    QString statePath() const;
    QProcessEnvironment environment() const;

private:
    QString runtimeDir_;
    QString configDir_;
    QProcess process_;
    QByteArray log_;
};
