#include "StateFile.h"

#include "StateJson.h"

#include <QDateTime>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QJsonDocument>
#include <QLoggingCategory>
#include <QRegularExpression>
#include <QSaveFile>
#include <QStandardPaths>

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
    removeLeftovers();
    QFile file(path_);
    if (!file.exists())
        return LoadResult::Missing;
    if (!file.open(QIODevice::ReadOnly)) {
        qCWarning(lcStateFile) << "cannot read" << path_ << file.errorString();
        setAside(file.errorString());
        return LoadResult::SetAside;
    }
    if (file.size() > kMaxFileSize) {
        file.close();
        setAside(QStringLiteral("file too large"));
        return LoadResult::SetAside;
    }
    QJsonParseError parseError{};
    const QJsonDocument document = QJsonDocument::fromJson(file.readAll(), &parseError);
    file.close();
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

bool StateFile::save(const nxproto::ControlState& state, const SimulationConfig& simulation)
{
    QDir().mkpath(QFileInfo(path_).absolutePath());
    QSaveFile file(path_);
    if (!file.open(QIODevice::WriteOnly)) {
        qCWarning(lcStateFile) << "cannot write" << path_ << file.errorString();
        return false;
    }
    file.write(QJsonDocument(StateJson::toJson(state, simulation)).toJson(QJsonDocument::Indented));
    if (!file.commit()) {
        qCWarning(lcStateFile) << "cannot replace" << path_ << file.errorString();
        return false;
    }
    return true;
}

void StateFile::removeLeftovers()
{
    // QSaveFile writes to "<name>.XXXXXX" beside the file and renames it on commit.
    const QFileInfo info(path_);
    const QRegularExpression pattern(QRegularExpression::anchoredPattern(
        QRegularExpression::escape(info.fileName()) + QStringLiteral("\\.[A-Za-z0-9]{6}")));
    const QStringList names = info.dir().entryList(QDir::Files | QDir::Hidden);
    for (const QString& name : names) {
        if (pattern.match(name).hasMatch() && info.dir().remove(name))
            qCInfo(lcStateFile).noquote() << "removed an interrupted save:" << name;
    }
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
