#include "SignalWatcher.h"

#include <QSocketNotifier>

#include <fcntl.h>
#include <signal.h>
#include <unistd.h>

namespace {

int pipeFds[2] = {-1, -1};

} // namespace

SignalWatcher::SignalWatcher(std::initializer_list<int> signalNumbers, QObject* parent)
    : QObject(parent)
{
    if (pipeFds[0] < 0 && pipe2(pipeFds, O_NONBLOCK | O_CLOEXEC) != 0)
        return;
    notifier_ = new QSocketNotifier(pipeFds[0], QSocketNotifier::Read, this);
    connect(notifier_, &QSocketNotifier::activated, this, &SignalWatcher::drain);
    struct sigaction action {
    };
    action.sa_handler = &SignalWatcher::handle;
    sigemptyset(&action.sa_mask);
    action.sa_flags = SA_RESTART;
    for (int number : signalNumbers)
        sigaction(number, &action, nullptr);
}

SignalWatcher::~SignalWatcher() = default;

void SignalWatcher::handle(int signalNumber)
{
    const unsigned char byte = static_cast<unsigned char>(signalNumber);
    [[maybe_unused]] const ssize_t n = ::write(pipeFds[1], &byte, 1);
}

void SignalWatcher::drain()
{
    unsigned char bytes[16];
    ssize_t n = 0;
    while ((n = ::read(pipeFds[0], bytes, sizeof bytes)) > 0) {
        for (ssize_t i = 0; i < n; ++i)
            emit received(bytes[i]);
    }
}
