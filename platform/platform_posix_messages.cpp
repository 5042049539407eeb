// POSIX side of Platform's window messages. A window reachable by title is a local socket in
// the user's runtime directory; a sender connects, writes (message, wParam, lParam) and waits for
// the one-byte answer that the listener writes once its handler has returned.
#include "Platform.h"
#include "platform_posix.h"

#include <QByteArray>
#include <QFile>
#include <QFileInfo>
#include <QSocketNotifier>
#include <QtEndian>

#include <cerrno>
#include <cstdio>
#include <cstring>
#include <map>
#include <set>
#include <vector>

#include <sys/socket.h>
#include <sys/stat.h>
#include <sys/un.h>
#include <unistd.h>

namespace Platform {

namespace {

constexpr int kConnectTimeoutMs = 500;
constexpr int kAnswerTimeoutMs = 2000;
constexpr int kFrameBytes = 4 + 8 + 8;

QString windowPath(const std::wstring& title)
{
    return runtimeDirectory() + QStringLiteral("/norvalex-window-") + fileSafe(title);
}

struct Connection {
    QSocketNotifier* notifier = nullptr;
    QByteArray received;
};

struct Listener {
    std::wstring title;
    MessageHandler handler = nullptr;
    void* context = nullptr;
    QByteArray path;
    int socket = -1;
    QSocketNotifier* notifier = nullptr;
    std::map<int, Connection> connections;
};

// Listeners of this process by title: a message to one of them is handled in place, as
// SendMessageW does for a window of the calling thread.
std::map<std::wstring, Listener*>& localListeners()
{
    static std::map<std::wstring, Listener*> listeners;
    return listeners;
}

// Every listener not yet stopped: a handler may stop the listener that called it.
std::set<Listener*>& liveListeners()
{
    static std::set<Listener*> listeners;
    return listeners;
}

// Window handles are indexes (from 1) into the titles looked up so far.
std::vector<std::wstring>& knownTitles()
{
    static std::vector<std::wstring> titles;
    return titles;
}

// A frame is the message, wParam and lParam, big-endian; the answer is one byte.
QByteArray encodeFrame(unsigned message, std::uint64_t wParam, std::int64_t lParam)
{
    QByteArray frame(kFrameBytes, Qt::Uninitialized);
    auto* bytes = reinterpret_cast<uchar*>(frame.data());
    qToBigEndian<quint32>(message, bytes);
    qToBigEndian<quint64>(wParam, bytes + 4);
    qToBigEndian<qint64>(lParam, bytes + 12);
    return frame;
}

void dropConnection(Listener* listener, int fd)
{
    const auto it = listener->connections.find(fd);
    if (it == listener->connections.end())
        return;
    it->second.notifier->setEnabled(false);
    it->second.notifier->deleteLater();
    ::close(fd);
    listener->connections.erase(it);
}

// Reads what has arrived; true when the peer has closed its end.
bool receiveInto(int fd, QByteArray* received)
{
    char buffer[256];
    for (;;) {
        const ssize_t count = ::recv(fd, buffer, sizeof buffer, 0);
        if (count > 0)
            received->append(buffer, int(count));
        else if (count == 0)
            return true;
        else if (errno != EINTR)
            return errno != EAGAIN && errno != EWOULDBLOCK;
    }
}

void readConnection(Listener* listener, int fd)
{
    const bool closed = receiveInto(fd, &listener->connections[fd].received);
    while (listener->connections[fd].received.size() >= kFrameBytes) {
        QByteArray& received = listener->connections[fd].received;
        const auto* bytes = reinterpret_cast<const uchar*>(received.constData());
        const quint32 message = qFromBigEndian<quint32>(bytes);
        const quint64 wParam = qFromBigEndian<quint64>(bytes + 4);
        const qint64 lParam = qFromBigEndian<qint64>(bytes + 12);
        received.remove(0, kFrameBytes);
        if (listener->handler)
            listener->handler(listener->context, message, wParam, lParam);
        if (!liveListeners().count(listener) || !listener->connections.count(fd))
            return;
        ::send(fd, "A", 1, MSG_NOSIGNAL);
    }
    if (closed)
        dropConnection(listener, fd);
}

void acceptConnections(Listener* listener)
{
    int fd;
    while ((fd = ::accept4(listener->socket, nullptr, nullptr, SOCK_NONBLOCK | SOCK_CLOEXEC)) >=
           0) {
        Connection& connection = listener->connections[fd];
        connection.notifier = new QSocketNotifier(fd, QSocketNotifier::Read);
        QObject::connect(connection.notifier, &QSocketNotifier::activated, connection.notifier,
                         [listener, fd]() { readConnection(listener, fd); });
    }
}

bool socketAddress(const QByteArray& path, sockaddr_un* address)
{
    std::memset(address, 0, sizeof *address);
    address->sun_family = AF_UNIX;
    if (std::size_t(path.size()) >= sizeof address->sun_path)
        return false;
    std::memcpy(address->sun_path, path.constData(), std::size_t(path.size()));
    return true;
}

// A listening socket at `path` that only this user may connect to, replacing a file left by a
// process that ended; -1 with the reason on standard error when that fails.
int listenAt(const QByteArray& path)
{
    sockaddr_un address;
    if (!socketAddress(path, &address)) {
        std::fprintf(stderr, "cannot listen for messages: path too long: %s\n", path.constData());
        return -1;
    }
    ::unlink(path.constData());
    const int fd = ::socket(AF_UNIX, SOCK_STREAM | SOCK_NONBLOCK | SOCK_CLOEXEC, 0);
    if (fd >= 0 && ::bind(fd, reinterpret_cast<const sockaddr*>(&address), sizeof address) == 0 &&
        ::chmod(path.constData(), S_IRUSR | S_IWUSR) == 0 && ::listen(fd, SOMAXCONN) == 0)
        return fd;
    std::fprintf(stderr, "cannot listen for messages: %s\n", std::strerror(errno));
    if (fd >= 0)
        ::close(fd);
    return -1;
}

} // namespace

WindowHandle findWindow(const std::wstring& title)
{
    const bool local = localListeners().count(title) > 0;
    if (!local && !QFileInfo::exists(windowPath(title)))
        return 0;
    auto& titles = knownTitles();
    for (std::size_t i = 0; i < titles.size(); ++i) {
        if (titles[i] == title)
            return static_cast<WindowHandle>(i + 1);
    }
    titles.push_back(title);
    return static_cast<WindowHandle>(titles.size());
}

void sendMessage(WindowHandle window, unsigned message, std::uintptr_t wParam, std::intptr_t lParam)
{
    const auto& titles = knownTitles();
    if (window <= 0 || static_cast<std::size_t>(window) > titles.size())
        return;
    const std::wstring& title = titles[static_cast<std::size_t>(window - 1)];
    const auto local = localListeners().find(title);
    if (local != localListeners().end()) {
        if (local->second->handler)
            local->second->handler(local->second->context, message, wParam, lParam);
        return;
    }
    sockaddr_un address;
    if (!socketAddress(QFile::encodeName(windowPath(title)), &address))
        return;
    const int fd = ::socket(AF_UNIX, SOCK_STREAM | SOCK_CLOEXEC, 0);
    if (fd < 0)
        return;
    // Bounded waits: for room in a full backlog and for the write, then for the answer.
    const timeval connectLimit{0, kConnectTimeoutMs * 1000};
    const timeval answerLimit{kAnswerTimeoutMs / 1000, (kAnswerTimeoutMs % 1000) * 1000};
    ::setsockopt(fd, SOL_SOCKET, SO_SNDTIMEO, &connectLimit, sizeof connectLimit);
    ::setsockopt(fd, SOL_SOCKET, SO_RCVTIMEO, &answerLimit, sizeof answerLimit);
    if (::connect(fd, reinterpret_cast<const sockaddr*>(&address), sizeof address) == 0) {
        const QByteArray frame = encodeFrame(message, wParam, std::int64_t(lParam));
        if (::send(fd, frame.constData(), std::size_t(frame.size()), MSG_NOSIGNAL) == kFrameBytes) {
            char answer = 0;
            while (::recv(fd, &answer, 1, 0) < 0 && errno == EINTR) {
            }
        }
    }
    ::close(fd);
}

void* listenForMessages(const std::wstring& title, MessageHandler handler, void* context)
{
    auto* listener = new Listener;
    listener->title = title;
    listener->handler = handler;
    listener->context = context;
    listener->path = QFile::encodeName(windowPath(title));
    listener->socket = listenAt(listener->path);
    if (listener->socket >= 0) {
        listener->notifier = new QSocketNotifier(listener->socket, QSocketNotifier::Read);
        QObject::connect(listener->notifier, &QSocketNotifier::activated, listener->notifier,
                         [listener]() { acceptConnections(listener); });
    }
    liveListeners().insert(listener);
    localListeners()[title] = listener;
    return listener;
}

void stopListening(void* handle)
{
    auto* listener = static_cast<Listener*>(handle);
    if (!listener)
        return;
    auto& listeners = localListeners();
    const auto it = listeners.find(listener->title);
    if (it != listeners.end() && it->second == listener)
        listeners.erase(it);
    liveListeners().erase(listener);
    while (!listener->connections.empty())
        dropConnection(listener, listener->connections.begin()->first);
    if (listener->socket >= 0) {
        listener->notifier->setEnabled(false);
        listener->notifier->deleteLater();
        ::close(listener->socket);
        ::unlink(listener->path.constData());
    }
    delete listener;
}

} // namespace Platform
