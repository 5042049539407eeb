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

    // Starts and waits until its socket accepts connections.
    bool start(const QStringList& arguments = {}, int timeoutMs = 5000);
    // Message 0x8301 to its window, as the panel sends it.
    bool quitByMessage(int timeoutMs = 5000);
    bool terminate(int timeoutMs = 5000);
    void kill();
    bool isRunning() const { return process_.state() != QProcess::NotRunning; }
    qint64 pid() const { return process_.processId(); }
    int exitCode() const { return process_.exitCode(); }
    QByteArray log() { return log_ += process_.readAll(); }

    QString socketPath() const;
    QProcessEnvironment environment() const;

private:
    QString runtimeDir_;
    QString configDir_;
    QProcess process_;
    QByteArray log_;
};
