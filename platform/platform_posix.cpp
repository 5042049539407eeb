// POSIX implementation of Platform. A named mutex is a lock file in the user's runtime
// directory; a window reachable by title is a local socket there that carries
// (message, wParam, lParam) and answers once the message is handled; the elevated launch is a
// plain start of the control service in its own session from the given directory. Only QtCore and
// QtNetwork: a message box without a hook is a line on standard error, and the panel installs
// the hook that shows a real one.
#include "Platform.h"

#include <QByteArray>
#include <QDataStream>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QLocalServer>
#include <QLocalSocket>
#include <QLockFile>
#include <QStandardPaths>

#include <cerrno>
#include <csignal>
#include <cstdio>
#include <map>
#include <memory>
#include <thread>
#include <vector>

#include <spawn.h>
#include <sys/wait.h>
#include <unistd.h>

namespace Platform {

namespace {

constexpr int kConnectTimeoutMs = 500;
constexpr int kAnswerTimeoutMs = 2000;
constexpr int kFrameBytes = 4 + 8 + 8;

MessageBoxHook messageBoxHook = nullptr;

QString runtimeDirectory()
{
    QString dir = QStandardPaths::writableLocation(QStandardPaths::RuntimeLocation);
    if (dir.isEmpty())
        dir = QDir::tempPath();
    QDir().mkpath(dir);
    return dir;
}

QString fileSafe(const std::wstring& name)
{
    QString text = QString::fromStdWString(name);
    for (QChar& c : text) {
        const bool plain = c.unicode() < 128 && (c.isLetterOrNumber() || c == '.' || c == '-');
        if (!plain)
            c = QLatin1Char('_');
    }
    return text;
}

QString mutexPath(const std::wstring& name)
{
    return runtimeDirectory() + QStringLiteral("/norvalex-mutex-") + fileSafe(name) +
           QStringLiteral(".lock");
}

QString windowPath(const std::wstring& title)
{
    return runtimeDirectory() + QStringLiteral("/norvalex-window-") + fileSafe(title);
}

struct PosixMutex {
    std::unique_ptr<QLockFile> lock; // null when another holder owns the name
};

struct Listener {
    std::wstring title;
    MessageHandler handler = nullptr;
    void* context = nullptr;
    std::unique_ptr<QLocalServer> server;
};

// Listeners of this process by title: a message to one of them is handled in place, as
// SendMessageW does for a window of the calling thread.
std::map<std::wstring, Listener*>& localListeners()
{
    static std::map<std::wstring, Listener*> listeners;
    return listeners;
}

// Window handles are indexes (from 1) into the titles looked up so far.
std::vector<std::wstring>& knownTitles()
{
    static std::vector<std::wstring> titles;
    return titles;
}

void serveConnection(Listener* listener, QLocalSocket* socket)
{
    QObject::connect(socket, &QLocalSocket::readyRead, socket, [listener, socket]() {
        while (socket->bytesAvailable() >= kFrameBytes) {
            QDataStream in(socket->read(kFrameBytes));
            quint32 message = 0;
            quint64 wParam = 0;
            qint64 lParam = 0;
            in >> message >> wParam >> lParam;
            if (listener->handler)
                listener->handler(listener->context, message, wParam, lParam);
            socket->write("A", 1);
            socket->flush();
        }
    });
    QObject::connect(socket, &QLocalSocket::disconnected, socket, &QObject::deleteLater);
}

} // namespace

MutexHandle createMutex(const std::wstring& name, bool* alreadyExists)
{
    auto* mutex = new PosixMutex;
    auto lock = std::make_unique<QLockFile>(mutexPath(name));
    lock->setStaleLockTime(0);
    bool exists = false;
    // QLockFile takes over a file naming a dead process, but not one naming none (empty or
    // garbage, as a crash or a full disk may leave it); its removal is refused while a live
    // holder has the file locked.
    qint64 holder = 0;
    QString host;
    QString program;
    if (!lock->tryLock(0) && lock->error() == QLockFile::LockFailedError &&
        !lock->getLockInfo(&holder, &host, &program) && lock->removeStaleLockFile())
        qInfo("took over a lock file that named no process: %s", qPrintable(mutexPath(name)));
    if (lock->isLocked() || lock->tryLock(0))
        mutex->lock = std::move(lock);
    else
        exists = lock->error() == QLockFile::LockFailedError;
    if (alreadyExists)
        *alreadyExists = exists;
    return mutex;
}

void closeHandle(MutexHandle handle)
{
    delete static_cast<PosixMutex*>(handle);
}

bool mutexExists(const std::wstring& name)
{
    bool exists = false;
    closeHandle(createMutex(name, &exists));
    return exists;
}

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
    QLocalSocket socket;
    socket.connectToServer(windowPath(title));
    if (!socket.waitForConnected(kConnectTimeoutMs))
        return;
    QByteArray frame;
    QDataStream out(&frame, QIODevice::WriteOnly);
    out << quint32(message) << quint64(wParam) << qint64(lParam);
    socket.write(frame);
    socket.flush();
    if (socket.waitForBytesWritten(kAnswerTimeoutMs))
        socket.waitForReadyRead(kAnswerTimeoutMs);
    socket.disconnectFromServer();
}

void* listenForMessages(const std::wstring& title, MessageHandler handler, void* context)
{
    auto* listener = new Listener;
    listener->title = title;
    listener->handler = handler;
    listener->context = context;
    listener->server = std::make_unique<QLocalServer>();
    const QString path = windowPath(title);
    QLocalServer::removeServer(path);
    listener->server->setSocketOptions(QLocalServer::UserAccessOption);
    if (!listener->server->listen(path))
        std::fprintf(stderr, "cannot listen for messages: %s\n",
                     qPrintable(listener->server->errorString()));
    QLocalServer* server = listener->server.get();
    QObject::connect(server, &QLocalServer::newConnection, server, [listener, server]() {
        while (QLocalSocket* socket = server->nextPendingConnection())
            serveConnection(listener, socket);
    });
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
    if (listener->server)
        listener->server->close();
    delete listener;
}

std::wstring executablePath()
{
    return QFileInfo(QStringLiteral("/proc/self/exe")).symLinkTarget().toStdWString();
}

wchar_t pathSeparator()
{
    return L'/';
}

std::wstring controlExecutableName()
{
    return L"norvalex-control";
}

bool launchElevated(const std::wstring& file, const std::wstring& directory)
{
    const QByteArray dir = QFile::encodeName(QString::fromStdWString(directory));
    const QByteArray program = dir + '/' + QFile::encodeName(QString::fromStdWString(file));
    if (!QFileInfo(QFile::decodeName(program)).isExecutable())
        return false;

    // posix_spawn shares the caller's memory until the exec, so the caller waits for the exec
    // only, not for a copy of its address space as a fork would. The child gets its own session,
    // the default signal dispositions and an empty signal mask.
    posix_spawn_file_actions_t actions;
    posix_spawn_file_actions_init(&actions);
    posix_spawn_file_actions_addchdir_np(&actions, dir.constData());
    posix_spawnattr_t attributes;
    posix_spawnattr_init(&attributes);
    sigset_t mask;
    sigemptyset(&mask);
    posix_spawnattr_setsigmask(&attributes, &mask);
    sigfillset(&mask);
    posix_spawnattr_setsigdefault(&attributes, &mask);
    posix_spawnattr_setflags(&attributes,
                             POSIX_SPAWN_SETSID | POSIX_SPAWN_SETSIGMASK | POSIX_SPAWN_SETSIGDEF);
    char* arguments[] = {const_cast<char*>(program.constData()), nullptr};
    pid_t pid = 0;
    const int error =
        posix_spawn(&pid, program.constData(), &actions, &attributes, arguments, environ);
    posix_spawnattr_destroy(&attributes);
    posix_spawn_file_actions_destroy(&actions);
    if (error != 0)
        return false;
    // The service outlives this process or ends first; either way it must not stay a zombie,
    // whose process id would keep its lock file looking held.
    std::thread([pid]() {
        while (waitpid(pid, nullptr, 0) < 0 && errno == EINTR) {
        }
    }).detach();
    return true;
}

void messageBox(const std::wstring& text, const std::wstring& caption, MessageIcon icon)
{
    if (messageBoxHook) {
        messageBoxHook(text, caption, icon);
        return;
    }
    std::fprintf(stderr, "%s: %s\n", qPrintable(QString::fromStdWString(caption)),
                 qPrintable(QString::fromStdWString(text)));
}

void setMessageBoxHook(MessageBoxHook hook)
{
    messageBoxHook = hook;
}

} // namespace Platform
