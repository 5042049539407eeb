#include "StateFile.h"

#include "StateJson.h"

#include <QDateTime>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QJsonDocument>
#include <QLoggingCategory>
#include <QStandardPaths>

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <cerrno>
#include <cstring>
#include <utility>

Q_LOGGING_CATEGORY(lcStateFile, "norvalex.control.state")

namespace {

// A state file is a few tens of kilobytes; anything far larger is not ours.
constexpr qint64 kMaxFileSize = 4 * 1024 * 1024;

} // namespace

StateFile::StateFile(QString path) : path_(std::move(path)) {}

QString StateFile::defaultPath()
{
    return QStandardPaths::writableLocation(QStandardPaths::GenericConfigLocation) +
           QStringLiteral("/norvalex/control-state.json");
}

StateFile::LoadResult StateFile::load(nxproto::ControlState* state, SimulationConfig* simulation)
{
    *state = nxproto::defaultControlState();
    *simulation = SimulationConfig{};
    // What an interrupted save left behind; only the service writes this name.
    ::unlink(QFile::encodeName(temporaryPath()).constData());
    QByteArray contents;
    QString problem;
    bool missing = false;
    if (!readContents(&contents, &problem, &missing)) {
        if (missing)
            return LoadResult::Missing;
        setAside(problem);
        return LoadResult::SetAside;
    }
    QJsonParseError parseError{};
    const QJsonDocument document = QJsonDocument::fromJson(contents, &parseError);
    if (parseError.error != QJsonParseError::NoError || !document.isObject()) {
        setAside(parseError.error != QJsonParseError::NoError ? parseError.errorString()
                                                              : QStringLiteral("not an object"));
        return LoadResult::SetAside;
    }
    QString error;
    if (!StateJson::fromJson(document.object(), state, simulation, &error)) {
        setAside(error);
        return LoadResult::SetAside;
    }
    return LoadResult::Loaded;
}

bool StateFile::readContents(QByteArray* contents, QString* problem, bool* missing) const
{
    // Non-blocking, so that a FIFO at the path cannot hold the service up; the type is checked
    // on the open descriptor, so that it cannot change between the check and the read.
    const int fd =
        ::open(QFile::encodeName(path_).constData(), O_RDONLY | O_NONBLOCK | O_CLOEXEC | O_NOCTTY);
    if (fd < 0) {
        *missing = errno == ENOENT;
        *problem = QString::fromLocal8Bit(std::strerror(errno));
        return false;
    }
    struct stat info {
    };
    bool ok = false;
    if (::fstat(fd, &info) != 0) {
        *problem = QString::fromLocal8Bit(std::strerror(errno));
    } else if (!S_ISREG(info.st_mode)) {
        *problem = QStringLiteral("not a regular file");
    } else if (info.st_size > kMaxFileSize) {
        *problem = QStringLiteral("file too large");
    } else {
        // Read one byte past the limit, in case the file grows meanwhile.
        contents->resize(int(kMaxFileSize) + 1);
        qint64 total = 0;
        for (;;) {
            const ssize_t got =
                ::read(fd, contents->data() + total, std::size_t(contents->size() - total));
            if (got < 0 && errno == EINTR)
                continue;
            if (got < 0) {
                *problem = QString::fromLocal8Bit(std::strerror(errno));
                break;
            }
            total += got;
            if (got == 0 || total == contents->size()) {
                ok = total <= kMaxFileSize;
                if (!ok)
                    *problem = QStringLiteral("file too large");
                break;
            }
        }
        contents->resize(int(total));
    }
    ::close(fd);
    return ok;
}

bool StateFile::save(const nxproto::ControlState& state, const SimulationConfig& simulation,
                     QString* error)
{
    const QByteArray bytes =
        QJsonDocument(StateJson::toJson(state, simulation)).toJson(QJsonDocument::Indented);
    const QString dir = QFileInfo(path_).absolutePath();
    const QByteArray target = QFile::encodeName(path_);
    const QByteArray temporary = QFile::encodeName(temporaryPath());
    const auto fail = [&](const char* step) {
        const int code = errno;
        ::unlink(temporary.constData());
        if (error)
            *error = QLatin1String(step) + QStringLiteral(": ") +
                     QString::fromLocal8Bit(std::strerror(code));
        return false;
    };

    // The folder holds the user's settings: private, like the file.
    QDir().mkpath(QFileInfo(dir).absolutePath());
    const QByteArray dirName = QFile::encodeName(dir);
    if (::mkdir(dirName.constData(), 0700) != 0 && errno != EEXIST)
        return fail("cannot create the folder");
    ::chmod(dirName.constData(), 0700);

    ::unlink(temporary.constData());
    const int fd =
        ::open(temporary.constData(), O_WRONLY | O_CREAT | O_EXCL | O_CLOEXEC | O_NOFOLLOW, 0600);
    if (fd < 0)
        return fail("cannot create the temporary file");
    qint64 written = 0;
    while (written < bytes.size()) {
        const ssize_t n =
            ::write(fd, bytes.constData() + written, std::size_t(bytes.size() - written));
        if (n < 0 && errno == EINTR)
            continue;
        if (n <= 0) {
            if (n == 0)
                errno = EIO;
            const int code = errno;
            ::close(fd);
            errno = code;
            return fail("cannot write");
        }
        written += n;
    }
    if (::fsync(fd) != 0) {
        const int code = errno;
        ::close(fd);
        errno = code;
        return fail("cannot flush");
    }
    if (::close(fd) != 0)
        return fail("cannot close");
    if (::rename(temporary.constData(), target.constData()) != 0)
        return fail("cannot replace the file");
    // The rename itself reaches the disk with the folder.
    const int dirFd = ::open(dirName.constData(), O_RDONLY | O_DIRECTORY | O_CLOEXEC);
    const bool synced = dirFd >= 0 && ::fsync(dirFd) == 0;
    const int code = errno;
    if (dirFd >= 0)
        ::close(dirFd);
    if (!synced) {
        errno = code;
        return fail("cannot flush the folder");
    }
    return true;
}

QString StateFile::temporaryPath() const
{
    // Hidden and with a suffix no editor or tool uses, so that no file of the user's is taken.
    const QFileInfo info(path_);
    return info.absolutePath() + QStringLiteral("/.") + info.fileName() +
           QStringLiteral(".norvalex-saving");
}

void StateFile::setAside(const QString& reason)
{
    const QString stamp =
        QDateTime::currentDateTimeUtc().toString(QStringLiteral("yyyyMMdd-hhmmsszzz"));
    QString target = path_ + QStringLiteral(".unusable-") + stamp;
    for (int n = 1; QFile::exists(target); ++n)
        target =
            path_ + QStringLiteral(".unusable-") + stamp + QLatin1Char('-') + QString::number(n);
    if (QFile::rename(path_, target)) {
        setAsidePath_ = target;
        qCWarning(lcStateFile).noquote()
            << "state file unusable (" + reason + "), moved to" << target << "- using defaults";
    } else {
        setAsidePath_.clear();
        qCWarning(lcStateFile).noquote()
            << "state file unusable (" + reason + ") and cannot be moved aside - using defaults";
    }
}
