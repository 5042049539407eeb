#pragma once

#include "ControlState.h"
#include "SimulationConfig.h"

#include <QString>

// The service's state on disk: read once at start, replaced atomically on every save. A file
// that cannot be read as a state of ours is moved aside (and logged), and defaults take over.
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
    bool save(const nxproto::ControlState& state, const SimulationConfig& simulation);

    const QString& path() const { return path_; }
    // Where the last unusable file was moved, empty when none was.
    const QString& setAsidePath() const { return setAsidePath_; }

private:
    void setAside(const QString& reason);
    // Temporary files of saves that a kill interrupted.
    void removeLeftovers();

    QString path_;
    QString setAsidePath_;
};
