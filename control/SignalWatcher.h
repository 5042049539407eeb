#pragma once

#include <QObject>

#include <initializer_list>

class QSocketNotifier;

// Turns POSIX signals into a Qt signal on the event loop (self-pipe), so that the service can
// save and leave cleanly on SIGTERM and SIGINT. One instance per process.
class SignalWatcher : public QObject
{
    Q_OBJECT

public:
    explicit SignalWatcher(std::initializer_list<int> signalNumbers, QObject* parent = nullptr);
    ~SignalWatcher() override;

signals:
    void received(int signalNumber);

private:
    static void handle(int signalNumber);
    void drain();

    QSocketNotifier* notifier_ = nullptr;
};
