#include "CommandLine.h"

#include "ModeNames.h"

#include <QRegularExpression>

namespace {

constexpr int kSlotCount = NX_MODULE_COUNT;
constexpr int kLedCount = NX_LED_ARRAY;
constexpr int kProfileCount = 5;

using Verb = Command::Verb;

struct VerbInfo {
    const char* word;
    Verb verb;
    int arguments;
    bool takesSlot;
};

const VerbInfo kVerbs[] = {
    {"status", Verb::Status, 0, false},   {"modes", Verb::Modes, 0, false},
    {"profile", Verb::Profile, 1, false}, {"mode", Verb::Mode, 1, true},
    {"color", Verb::Color, 1, true},      {"brightness", Verb::Brightness, 1, true},
    {"off", Verb::Off, 0, true},          {"on", Verb::On, 0, true},
    {"stop", Verb::Stop, 0, false},
};

// A whole decimal number within [low, high], nothing else.
bool readNumber(const QString& text, int low, int high, int* value)
{
    static const QRegularExpression digits(QStringLiteral("^[0-9]{1,6}$"));
    if (!digits.match(text).hasMatch())
        return false;
    *value = text.toInt();
    return *value >= low && *value <= high;
}

bool readColor(QString text, COLORREF* color)
{
    static const QRegularExpression hex(QStringLiteral("^#?[0-9A-Fa-f]{6}$"));
    if (!hex.match(text).hasMatch())
        return false;
    if (text.startsWith(QLatin1Char('#')))
        text.remove(0, 1);
    const uint rgb = text.toUInt(nullptr, 16);
    const COLORREF red = (rgb >> 16) & 0xFF;
    const COLORREF green = (rgb >> 8) & 0xFF;
    const COLORREF blue = rgb & 0xFF;
    *color = red | (green << 8) | (blue << 16);
    return true;
}

// "--name value" or "--name=value": the value, advancing `at` past it.
bool optionValue(const QStringList& args, int* at, const QString& name, QString* value,
                 QString* error)
{
    const QString& arg = args.at(*at);
    if (arg.startsWith(name + QLatin1Char('='))) {
        *value = arg.mid(name.size() + 1);
        return true;
    }
    if (*at + 1 >= args.size()) {
        *error = name + QStringLiteral(" needs a value");
        return false;
    }
    *value = args.at(++*at);
    return true;
}

bool readArgument(const VerbInfo& info, const QString& text, Command* command, QString* error)
{
    switch (info.verb) {
    case Verb::Profile:
        if (!readNumber(text, 1, kProfileCount, &command->profile)) {
            *error = QStringLiteral("profile takes a number from 1 to 5, not \"%1\"").arg(text);
            return false;
        }
        command->profile -= 1;
        return true;
    case Verb::Mode:
        command->lightMode = ModeNames::find(text);
        if (command->lightMode < 0) {
            *error = QStringLiteral("unknown light mode \"%1\" (norvalexctl modes lists them)")
                         .arg(text);
            return false;
        }
        if (!ModeNames::isOffered(command->lightMode)) {
            *error = QStringLiteral("light mode %1 is only reported by modules, it cannot be set")
                         .arg(ModeNames::name(command->lightMode));
            return false;
        }
        return true;
    case Verb::Color:
        if (!readColor(text, &command->color)) {
            *error =
                QStringLiteral("colour takes six hexadecimal digits RRGGBB, not \"%1\"").arg(text);
            return false;
        }
        return true;
    case Verb::Brightness:
        if (!readNumber(text, 0, 100, &command->brightness)) {
            *error =
                QStringLiteral("brightness takes a number from 0 to 100, not \"%1\"").arg(text);
            return false;
        }
        return true;
    default:
        return true;
    }
}

} // namespace

bool Command::changesState() const
{
    switch (verb) {
    case Verb::Profile:
    case Verb::Mode:
    case Verb::Color:
    case Verb::Brightness:
    case Verb::Off:
    case Verb::On:
        return true;
    default:
        return false;
    }
}

bool CommandLine::parse(const QStringList& args, Command* command, QString* error)
{
    *command = Command{};
    QStringList positional;
    QString slotText;
    QString ledText;
    bool optionsEnded = false;
    for (int at = 0; at < args.size(); ++at) {
        const QString& arg = args.at(at);
        if (optionsEnded || !arg.startsWith(QLatin1Char('-')) || arg == QLatin1String("-")) {
            positional.append(arg);
        } else if (arg == QLatin1String("--")) {
            optionsEnded = true;
        } else if (arg == QLatin1String("-h") || arg == QLatin1String("--help")) {
            command->verb = Verb::Help;
            return true;
        } else if (arg == QLatin1String("-V") || arg == QLatin1String("--version")) {
            command->verb = Verb::Version;
            return true;
        } else if (arg == QLatin1String("--json")) {
            command->json = true;
        } else if (arg == QLatin1String("--slot") || arg.startsWith(QLatin1String("--slot="))) {
            if (!optionValue(args, &at, QStringLiteral("--slot"), &slotText, error))
                return false;
        } else if (arg == QLatin1String("--led") || arg.startsWith(QLatin1String("--led="))) {
            if (!optionValue(args, &at, QStringLiteral("--led"), &ledText, error))
                return false;
        } else {
            *error = QStringLiteral("unknown option %1").arg(arg);
            return false;
        }
    }
    if (positional.isEmpty()) {
        *error = QStringLiteral("no command given");
        return false;
    }

    const VerbInfo* info = nullptr;
    for (const VerbInfo& candidate : kVerbs) {
        if (positional.first() == QLatin1String(candidate.word))
            info = &candidate;
    }
    if (!info) {
        *error = QStringLiteral("unknown command \"%1\"").arg(positional.first());
        return false;
    }
    command->verb = info->verb;
    if (positional.size() - 1 != info->arguments) {
        *error = info->arguments == 0
                     ? QStringLiteral("%1 takes no argument").arg(QLatin1String(info->word))
                     : QStringLiteral("%1 takes one argument").arg(QLatin1String(info->word));
        return false;
    }
    if (info->arguments == 1 && !readArgument(*info, positional.at(1), command, error))
        return false;

    if (!slotText.isNull()) {
        if (!info->takesSlot) {
            *error = QStringLiteral("%1 takes no --slot").arg(QLatin1String(info->word));
            return false;
        }
        if (!readNumber(slotText, 1, kSlotCount, &command->slot)) {
            *error = QStringLiteral("--slot takes a number from 1 to 8, not \"%1\"").arg(slotText);
            return false;
        }
        command->slot -= 1;
    }
    if (!ledText.isNull()) {
        if (info->verb != Verb::Color) {
            *error = QStringLiteral("only color takes --led");
            return false;
        }
        if (!readNumber(ledText, 1, kLedCount, &command->led)) {
            *error = QStringLiteral("--led takes a number from 1 to 12, not \"%1\"").arg(ledText);
            return false;
        }
        command->led -= 1;
    }
    return true;
}

QString CommandLine::usage()
{
    return QStringLiteral(
        "Usage: norvalexctl [--json] COMMAND [ARGUMENT] [--slot N] [--led N]\n"
        "Sets the lighting of the memory modules through the running norvalex-control.\n"
        "\n"
        "Commands:\n"
        "  status                  modules, profile, light mode per slot, temperatures, load\n"
        "  profile N               switch to profile N (1 to 5)\n"
        "  mode NAME|VALUE         set the light mode (norvalexctl modes lists them)\n"
        "  color RRGGBB            set the colour (hexadecimal red, green, blue)\n"
        "  brightness 0-100        set the brightness in percent\n"
        "  off, on                 switch the lights off or on\n"
        "  stop                    end norvalex-control; it saves its state first\n"
        "  modes                   list the light modes that can be set\n"
        "\n"
        "Options:\n"
        "  --slot N                only the module in slot N (1 to 8); default every module\n"
        "  --led N                 with color: only LED N (1 to the module's LED count)\n"
        "  --json                  print the status as JSON (after a change: the new status)\n"
        "  -h, --help              show this help\n"
        "  -V, --version           show the version\n"
        "\n"
        "Exit status: 0 done, 1 failed, 2 wrong input (nothing changed),\n"
        "3 norvalex-control is not running.\n");
}
