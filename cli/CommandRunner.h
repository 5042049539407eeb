#pragma once

#include "CommandLine.h"

class LightingSession;
struct StatusReport;

// Carries out one parsed command: the state-changing ones through the lighting library, after
// checking them against what the service reports, `stop` through the service's message window.
class CommandRunner
{
public:
    // Returns the exit code; results go to stdout, messages to stderr.
    int run(const Command& command);

private:
    int listModes(bool json);
    int stopService();
    int change(const Command& command, LightingSession& session, const StatusReport& status);
    // Why the command cannot apply to this machine's modules, empty when it can.
    QString refusal(const Command& command, LightingSession& session,
                    const StatusReport& status) const;
};
