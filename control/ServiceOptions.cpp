#include "ServiceOptions.h"

#include "OutputChoice.h"

#include <QCommandLineParser>
#include <QCoreApplication>
#include <QFileInfo>

bool ServiceOptions::parse(const QStringList& givenArguments, QString* message, bool* exitNow)
{
    // --sdk-server takes an optional value, which the parser cannot express.
    QStringList arguments = givenArguments;
    const QString bareSdkServer = QStringLiteral("--sdk-server");
    for (QString& argument : arguments) {
        if (argument == bareSdkServer)
            argument = bareSdkServer + QStringLiteral("=127.0.0.1:6743");
    }
    *exitNow = false;
    QCommandLineParser parser;
    parser.setApplicationDescription(
        QStringLiteral("NORVALEX control service: owns the lighting state of the memory modules."));
    const QCommandLineOption helpOption = parser.addHelpOption();
    const QCommandLineOption versionOption = parser.addVersionOption();
    const QCommandLineOption modulesOption(
        QStringLiteral("modules"),
        QStringLiteral("Which modules to report: \"auto\" (default) the machine's own as found "
                       "in SMBIOS, or simulated ones when none are found; \"simulated\" always "
                       "the simulation; a number 0 to 8: that many simulated modules."),
        QStringLiteral("auto|simulated|count"));
    const QCommandLineOption rootOption(
        QStringLiteral("root"),
        QStringLiteral("Read /proc, /sys and /run below this folder instead (for tests)."),
        QStringLiteral("dir"));
    const QCommandLineOption ledsOption(QStringLiteral("leds"),
                                        QStringLiteral("LEDs per module, 5 or 8."),
                                        QStringLiteral("count"));
    const QCommandLineOption modelOption(
        QStringLiteral("model"),
        QStringLiteral("Model codes, comma-separated, given to the modules in turn."),
        QStringLiteral("codes"));
    const QCommandLineOption outputOption(
        QStringLiteral("output"),
        QStringLiteral("Where the lighting goes: none, or openrgb[:HOST:PORT] for the DRAM "
                       "controllers of an OpenRGB SDK server (127.0.0.1:6742 by default). Kept "
                       "in the state file."),
        QStringLiteral("output"));
    const QCommandLineOption sdkServerOption(
        QStringLiteral("sdk-server"),
        QStringLiteral("Let OpenRGB SDK clients drive the modules, on 127.0.0.1:6743 unless "
                       "ADDRESS:PORT is given."),
        QStringLiteral("address"));
    parser.addOption(outputOption);
    parser.addOption(sdkServerOption);
    parser.addOption(modulesOption);
    parser.addOption(rootOption);
    parser.addOption(ledsOption);
    parser.addOption(modelOption);

    if (!parser.parse(arguments)) {
        *message = parser.errorText();
        return false;
    }
    // addHelpOption() also offers --help-all, which parse() leaves to the caller.
    if (parser.isSet(helpOption) || parser.isSet(QStringLiteral("help-all"))) {
        *message = parser.helpText();
        *exitNow = true;
        return true;
    }
    if (parser.isSet(versionOption)) {
        *message = QCoreApplication::applicationName() + QLatin1Char(' ') +
                   QCoreApplication::applicationVersion();
        *exitNow = true;
        return true;
    }
    if (!parser.positionalArguments().isEmpty()) {
        *message = QStringLiteral("unexpected argument: ") + parser.positionalArguments().first();
        return false;
    }
    if (parser.isSet(modulesOption)) {
        const QString text = parser.value(modulesOption);
        bool ok = false;
        const int value = text.toInt(&ok);
        if (text == QLatin1String("auto")) {
            moduleMode = ModuleMode::Auto;
        } else if (text == QLatin1String("simulated")) {
            moduleMode = ModuleMode::Simulated;
        } else if (ok && SimulationConfig::validModules(value)) {
            moduleMode = ModuleMode::Simulated;
            modules = value;
        } else {
            *message = QStringLiteral("--modules takes auto, simulated or a number from 0 to 8");
            return false;
        }
    }
    if (parser.isSet(rootOption)) {
        root = parser.value(rootOption);
        if (root.isEmpty() || !QFileInfo(root).isDir()) {
            *message = QStringLiteral("--root takes an existing folder");
            return false;
        }
        root = QFileInfo(root).absoluteFilePath();
    }
    if (parser.isSet(ledsOption)) {
        bool ok = false;
        const int value = parser.value(ledsOption).toInt(&ok);
        if (!ok || !SimulationConfig::validLeds(value)) {
            *message = QStringLiteral("--leds takes 5 or 8");
            return false;
        }
        leds = value;
    }
    if (parser.isSet(modelOption)) {
        std::vector<std::string> codes;
        const QStringList parts = parser.value(modelOption).split(QLatin1Char(','));
        for (const QString& part : parts) {
            const std::string code = part.trimmed().toStdString();
            if (!SimulationConfig::validModel(code)) {
                *message = QStringLiteral("--model takes codes of 1 to 63 printable characters");
                return false;
            }
            codes.push_back(code);
        }
        models = codes;
    }
    if (parser.isSet(outputOption)) {
        const std::string text = parser.value(outputOption).toStdString();
        OutputChoice choice;
        std::string error;
        if (!OutputChoice::parse(text, &choice, &error)) {
            *message = QStringLiteral("--output: ") + QString::fromStdString(error);
            return false;
        }
        output = choice.text();
    }
    if (parser.isSet(sdkServerOption)) {
        std::string host = "127.0.0.1";
        uint16_t port = 6743;
        std::string error;
        if (!OutputChoice::parseAddress(parser.value(sdkServerOption).toStdString(), &host, &port,
                                        &error)) {
            *message = QStringLiteral("--sdk-server: ") + QString::fromStdString(error);
            return false;
        }
        sdkServerHost = QString::fromStdString(host);
        sdkServerPort = port;
    }
    return true;
}

SimulationConfig ServiceOptions::apply(SimulationConfig stored) const
{
    if (modules)
        stored.modules = *modules;
    if (leds)
        stored.leds = *leds;
    if (models)
        stored.models = *models;
    if (output)
        stored.output = *output;
    return stored;
}
