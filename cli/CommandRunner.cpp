#include "CommandRunner.h"

#include "LightModeTable.h"
#include "LightingSession.h"
#include "ModeNames.h"
#include "Platform.h"
#include "SocketPath.h"
#include "StatusReport.h"

#include <QCoreApplication>
#include <QElapsedTimer>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QLocalSocket>
#include <QThread>

#include <algorithm>
#include <cstdio>

namespace {

const wchar_t kControlWindow[] = L"NORVALEX RGB Control";
constexpr int kConnectTimeoutMs = 5000;
constexpr int kConfirmTimeoutMs = 5000;
constexpr int kStopTimeoutMs = 10000;
constexpr int kStopPollMs = 50;
constexpr int kProbeTimeoutMs = 1000;
constexpr int kClockMode = 31;

// Change bits of the light-mode event.
constexpr uint32_t kChangeLighting = 1;
constexpr uint32_t kChangeColors = 2;
constexpr uint32_t kChangeProfile = 8;

using Verb = Command::Verb;

void out(const QString& text)
{
    std::fputs(text.toUtf8().constData(), stdout);
    std::fflush(stdout);
}

void complain(const QString& text)
{
    std::fprintf(stderr, "norvalexctl: %s\n", text.toUtf8().constData());
}

// Whether the service accepts connections. Only looks: probing its lock could make a service
// that is just starting believe another one runs.
bool serviceAnswers()
{
    QLocalSocket socket;
    socket.connectToServer(QString::fromStdString(nxproto::socketPath()));
    return socket.waitForConnected(kProbeTimeoutMs);
}

QString notRunning()
{
    return QStringLiteral("norvalex-control is not running; start it with "
                          "\"systemctl --user start norvalex-control\" or by opening the panel");
}

// The colour mode a light mode keeps: the current one when the mode offers it, else the first
// one it offers.
int colorModeFor(int lightMode, int current)
{
    const QStringList offered = LightModeTable::rule(lightMode).colorItems;
    const QStringList all = LightModeTable::colorModeKeys();
    if (offered.contains(all.value(current)))
        return current;
    return std::max(0, all.indexOf(offered.value(0)));
}

QVector<int> targetSlots(const Command& command, const StatusReport& status)
{
    QVector<int> chosen;
    for (const StatusReport::Module& module : status.modules) {
        if (command.slot < 0 || command.slot == module.slot)
            chosen.append(module.slot);
    }
    return chosen;
}

} // namespace

int CommandRunner::run(const Command& command)
{
    switch (command.verb) {
    case Verb::Help:
        out(CommandLine::usage());
        return ExitOk;
    case Verb::Version:
        out(QStringLiteral("norvalexctl %1\n").arg(QCoreApplication::applicationVersion()));
        return ExitOk;
    case Verb::Modes:
        return listModes(command.json);
    case Verb::Stop:
        return stopService();
    default:
        break;
    }

    if (!serviceAnswers()) {
        complain(notRunning());
        return ExitNoService;
    }
    LightingSession session;
    QString error;
    if (!session.load(&error)) {
        complain(error);
        return ExitFailed;
    }
    if (!session.connect(kConnectTimeoutMs)) {
        complain(QStringLiteral("norvalex-control does not answer"));
        return ExitNoService;
    }
    const StatusReport status = StatusReport::read(session);
    if (command.verb == Verb::Status) {
        out(command.json ? QString::fromUtf8(status.json()) : status.text());
        return ExitOk;
    }
    const QString refused = refusal(command, session, status);
    if (!refused.isEmpty()) {
        complain(refused);
        return ExitBadInput;
    }
    return change(command, session, status);
}

int CommandRunner::listModes(bool json)
{
    if (json) {
        QJsonArray list;
        for (int mode : ModeNames::offered()) {
            QJsonObject entry;
            entry.insert(QStringLiteral("value"), mode);
            entry.insert(QStringLiteral("name"), ModeNames::name(mode));
            entry.insert(QStringLiteral("argument"), ModeNames::slug(mode));
            entry.insert(QStringLiteral("newerModulesOnly"), ModeNames::needsNewModules(mode));
            list.append(entry);
        }
        out(QString::fromUtf8(QJsonDocument(list).toJson(QJsonDocument::Indented)));
        return ExitOk;
    }
    QString text;
    for (int mode : ModeNames::offered()) {
        text += QStringLiteral("%1  %2 %3%4\n")
                    .arg(mode, 2)
                    .arg(ModeNames::slug(mode).leftJustified(15), ModeNames::name(mode),
                         ModeNames::needsNewModules(mode) ? QStringLiteral(" (newer modules)")
                                                          : QString());
    }
    out(text);
    return ExitOk;
}

int CommandRunner::stopService()
{
    if (!serviceAnswers()) {
        complain(QStringLiteral("norvalex-control is not running"));
        return ExitOk;
    }
    const Platform::WindowHandle window = Platform::findWindow(kControlWindow);
    if (!window) {
        complain(QStringLiteral("norvalex-control runs but takes no messages"));
        return ExitFailed;
    }
    Platform::sendMessage(window, Platform::kMessageQuit, 0, 0);
    // The service saves its state before it closes its socket.
    QElapsedTimer clock;
    clock.start();
    while (serviceAnswers()) {
        if (clock.elapsed() > kStopTimeoutMs) {
            complain(QStringLiteral("norvalex-control did not stop within 10 seconds"));
            return ExitFailed;
        }
        QThread::msleep(kStopPollMs);
    }
    return ExitOk;
}

QString CommandRunner::refusal(const Command& command, LightingSession& session,
                               const StatusReport& status) const
{
    if (command.verb == Verb::Profile)
        return {};
    if (command.slot >= 0 && !status.module(command.slot))
        return QStringLiteral("slot %1 holds no module").arg(command.slot + 1);
    if (status.modules.isEmpty())
        return QStringLiteral("no module found");
    if (command.verb == Verb::Color && command.led >= 0) {
        for (int slot : targetSlots(command, status)) {
            const int leds = status.module(slot)->data.ledNum;
            if (leds >= 0 && command.led >= leds)
                return QStringLiteral("the module in slot %1 has %2 LEDs").arg(slot + 1).arg(leds);
        }
    }
    if (command.verb == Verb::Mode) {
        if (ModeNames::needsNewModules(command.lightMode) && !status.hasNewModules())
            return QStringLiteral("light mode %1 needs a module of the newer generation")
                .arg(ModeNames::name(command.lightMode));
        if (command.lightMode == kClockMode && !session.GetSettingValue().currentLocation)
            return QStringLiteral("light mode Clock uses the location: allow it first in the "
                                  "panel's Settings");
    }
    return {};
}

int CommandRunner::change(const Command& command, LightingSession& session,
                          const StatusReport& status)
{
    session.beginChange();
    uint32_t expected = 0;
    const float level = float(command.brightness) / 100.0f;
    if (command.verb == Verb::Profile) {
        session.SetProfile(command.profile);
        expected = kChangeProfile;
    }
    for (int slot : command.verb == Verb::Profile ? QVector<int>() : targetSlots(command, status)) {
        const StatusReport::Module& module = *status.module(slot);
        switch (command.verb) {
        case Verb::Mode: {
            const LightModeTable::Rule rule = LightModeTable::rule(command.lightMode);
            const int speed = rule.speedFixed ? LightModeTable::FixedSpeed : module.speed;
            session.SetValueLighting(slot, command.lightMode,
                                     colorModeFor(command.lightMode, module.colorMode), speed,
                                     module.off);
            expected = kChangeLighting;
            break;
        }
        case Verb::Off:
        case Verb::On:
            session.SetValueLighting(slot, module.lightMode, module.colorMode, module.speed,
                                     command.verb == Verb::Off);
            expected = kChangeLighting;
            break;
        case Verb::Color:
        case Verb::Brightness: {
            COLORREF rgb[NX_LED_ARRAY];
            float bright[NX_LED_ARRAY];
            std::copy_n(session.GetValueRGB(slot), NX_LED_ARRAY, rgb);
            std::copy_n(session.GetValueBright(slot), NX_LED_ARRAY, bright);
            COLORREF single = module.color;
            float singleBright = module.brightness;
            if (command.verb == Verb::Brightness) {
                std::fill(std::begin(bright), std::end(bright), level);
                singleBright = level;
            } else if (command.led >= 0) {
                rgb[command.led] = command.color;
            } else {
                std::fill(std::begin(rgb), std::end(rgb), command.color);
                single = command.color;
            }
            session.SetValueRGB(slot, rgb, bright, single, singleBright, NX_LED_ARRAY);
            expected = kChangeColors;
            if (command.verb == Verb::Color &&
                !LightModeTable::rule(module.lightMode).colorEntryEnabled)
                complain(QStringLiteral("note: light mode %1 of slot %2 plays its own colours")
                             .arg(ModeNames::name(module.lightMode))
                             .arg(slot + 1));
            break;
        }
        default:
            break;
        }
    }
    if (!session.waitForChange(expected, kConfirmTimeoutMs)) {
        complain(QStringLiteral("norvalex-control did not confirm the change"));
        return ExitFailed;
    }
    if (command.json)
        out(QString::fromUtf8(StatusReport::read(session).json()));
    return ExitOk;
}
