#pragma once

#include "norvalex_lighting.h"

#include <QString>
#include <QStringList>

// Exit codes of norvalexctl.
enum ExitCode {
    ExitOk = 0,
    ExitFailed = 1,    // the service did not confirm, did not stop, or the library is missing
    ExitBadInput = 2,  // wrong input; nothing was changed
    ExitNoService = 3, // norvalex-control is not running
};

// One parsed invocation. Slots, LEDs and profiles are counted from 1 on the command line, as
// the panel shows them, and from 0 here.
struct Command {
    enum class Verb {
        Help,
        Version,
        Status,
        Modes,
        Profile,
        Mode,
        Color,
        Brightness,
        Off,
        On,
        Stop
    };

    Verb verb = Verb::Help;
    bool json = false;
    int slot = -1; // -1: every present module
    int led = -1;  // -1: every LED
    int profile = 0;
    int lightMode = 0;
    COLORREF color = 0; // 0x00BBGGRR
    int brightness = 0; // percent

    bool changesState() const;
};

class CommandLine
{
public:
    // Parses the arguments after the program name. On failure returns false with a message
    // for the user.
    static bool parse(const QStringList& arguments, Command* command, QString* error);
    static QString usage();
};
