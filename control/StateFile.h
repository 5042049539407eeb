#pragma once

#include "ControlState.h"
#include "SimulationConfig.h"

#include <QString>

// The service's state on disk: read once at start, replaced atomically on every save. Only a
// regular file of a sane size is read; one that cannot be read as a state of ours is moved
// aside (and logged), and defaults take over. A save is on disk (synced) when it returns true;
// one that fails leaves the previous file untouched.
class StateFile
{
public:
    enum class LoadResult { Loaded, Missing, SetAside };

    explicit StateFile(QString path);

    // <generic config location>/norvalex/control-state.json
    static QString defaultPath();

    // Fills `state` and `simulation` from the file, or with defaults when it is missing or
    // unusable.
    LoadResult load(nxproto::ControlState* state, SimulationConfig* simulation);
    // False with the reason in `error` when the new contents did not reach the disk whole.
    bool save(const nxproto::ControlState& state, const SimulationConfig& simulation,
              QString* error = nullptr);

    const QString& path() const { return path_; }
    // Where the last unusable file was moved, empty when none was.
    const QString& setAsidePath() const { return setAsidePath_; }
    // The one name a save writes before it replaces the file; nothing else is removed.
    QString temporaryPath() const;

private:
    bool readContents(QByteArray* contents, QString* problem, bool* missing) const;
    void setAside(const QString& reason);

    QString path_;
    QString setAsidePath_;
};
