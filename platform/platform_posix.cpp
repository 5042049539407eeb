// POSIX implementation of Platform, but for the window messages (platform_posix_messages.cpp).
// A named mutex is a lock file in the user's runtime directory; the elevated launch is a plain
// start of the control service in its own session from the given directory. Only QtCore: a
// message box without a hook is a line on standard error, and the panel installs the hook that
// shows a real one.
#include "platform_posix.h"
#include "Platform.h"

#include <QByteArray>
#include <QCoreApplication>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QLockFile>
#include <QStandardPaths>
#include <QThread>
#include <QTimer>

#include <cerrno>
#include <csignal>
#include <cstdio>
#include <cstring>
#include <memory>
#include <thread>

#include <dlfcn.h>
#include <spawn.h>
#include <sys/wait.h>
#include <unistd.h>

namespace Platform {

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

namespace {

MessageBoxHook messageBoxHook = nullptr;

QString mutexPath(const std::wstring& name)
{
    return runtimeDirectory() + QStringLiteral("/norvalex-mutex-") + fileSafe(name) +
           QStringLiteral(".lock");
}

struct PosixMutex {
    std::unique_ptr<QLockFile> lock; // null when another holder owns the name
};

// Starts `program` in `dir`, in a session of its own with the default signal dispositions and an
// empty signal mask, and waits for it to end: the service outlives this process or ends first,
// and must not stay a zombie, whose process id would keep its lock file looking held.
void startAndReap(const QByteArray& dir, const QByteArray& program)
{
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
    if (error != 0) {
        std::fprintf(stderr, "cannot start %s: %s\n", program.constData(), std::strerror(error));
        return;
    }
    while (waitpid(pid, nullptr, 0) < 0 && errno == EINTR) {
    }
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
    // posix_spawn returns only once the new program is loaded, and its loading competes for the
    // CPU with what the caller does next. So both happen on a thread of their own, set going when
    // the caller's event loop runs again: a panel that launches the service while it builds its
    // window gets the window on screen first.
    const auto start = [dir, program]() { std::thread(startAndReap, dir, program).detach(); };
    QCoreApplication* app = QCoreApplication::instance();
    if (app && app->thread() == QThread::currentThread())
        QTimer::singleShot(0, app, start);
    else
        start();
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

void loadFontConfiguration()
{
    // Fontconfig keeps one configuration per process, built on first use from its XML files and
    // caches; the toolkit's font database finds it ready. The library stays loaded, since that
    // database uses it for the rest of the process.
    void* fontconfig = dlopen("libfontconfig.so.1", RTLD_LAZY | RTLD_LOCAL);
    if (!fontconfig)
        return;
    using Init = int (*)();
    if (const auto init = reinterpret_cast<Init>(dlsym(fontconfig, "FcInit")))
        init();
}

} // namespace Platform
