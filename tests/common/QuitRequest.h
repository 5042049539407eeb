#pragma once

#include <QCoreApplication>
#include <QObject>
#include <QTimer>

#include <functional>

namespace QuitRequest {

// Runs `action` inside the application's event loop and tells whether it asked the application
// to quit within `timeoutMs`. The application's own exec() clears the quit request afterwards.
inline bool during(const std::function<void()>& action, int timeoutMs)
{
    QObject guard; // takes the time-out with it
    QTimer::singleShot(timeoutMs, &guard, []() { QCoreApplication::exit(1); });
    QTimer::singleShot(0, action);
    return QCoreApplication::exec() == 0;
}

} // namespace QuitRequest
