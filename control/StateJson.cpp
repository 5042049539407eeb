#include "StateJson.h"

#include "OutputChoice.h"

#include <QJsonArray>
#include <QJsonValue>

#include <cmath>
#include <cstdint>
#include <cstring>

namespace StateJson {

const char kFormat[] = "norvalex-control-state";

namespace {

using nxproto::ControlState;
using nxproto::ModuleLighting;

const char* const kNotificationNames[nxproto::kNotificationCells] = {
    "reserved0",          "changedItem",      "loadingSwitch",        "loadingValue",
    "loadingColor",       "reserved20",       "shutdownMemorySwitch", "shutdownMemoryValue",
    "shutdownMemoryUnit", "fanSpeedSwitch",   "fanSpeedValue",        "fanSpeedUnit",
    "shutdownCPUSwitch",  "shutdownCPUValue", "shutdownCPUUnit"};

// Reads members and keeps the first fault.
class Reader
{
public:
    explicit Reader(QString* error) : error_(error) {}

    bool ok() const { return ok_; }

    bool fail(const QString& what)
    {
        if (ok_ && error_)
            *error_ = what;
        ok_ = false;
        return false;
    }

    QJsonValue member(const QJsonObject& object, const char* key)
    {
        const QJsonValue value = object.value(QLatin1String(key));
        if (value.isUndefined())
            fail(QStringLiteral("missing \"%1\"").arg(QLatin1String(key)));
        return value;
    }

    qint64 integer(const QJsonObject& object, const char* key, qint64 low, qint64 high)
    {
        const QJsonValue value = member(object, key);
        const double number = value.toDouble(std::nan(""));
        if (ok_ && (!value.isDouble() || number != std::floor(number) || number < double(low) ||
                    number > double(high)))
            fail(QStringLiteral("\"%1\" is not an integer from %2 to %3")
                     .arg(QLatin1String(key))
                     .arg(low)
                     .arg(high));
        return ok_ ? qint64(number) : low;
    }

    bool boolean(const QJsonObject& object, const char* key)
    {
        const QJsonValue value = member(object, key);
        if (ok_ && !value.isBool())
            fail(QStringLiteral("\"%1\" is not true or false").arg(QLatin1String(key)));
        return value.toBool();
    }

    float brightness(const QJsonValue& value, const char* key)
    {
        const double number = value.toDouble(-1.0);
        if (!value.isDouble() || !std::isfinite(number) || number < 0.0 || number > 1.0) {
            fail(QStringLiteral("\"%1\" holds a brightness outside 0..1").arg(QLatin1String(key)));
            return 0.0f;
        }
        return float(number);
    }

    COLORREF color(const QJsonValue& value, const char* key)
    {
        COLORREF color = 0;
        if (!colorFromText(value.toString(), &color))
            fail(QStringLiteral("\"%1\" holds a colour that is not #rrggbb")
                     .arg(QLatin1String(key)));
        return color;
    }

    QJsonArray array(const QJsonObject& object, const char* key, int size)
    {
        const QJsonValue value = member(object, key);
        if (ok_ && (!value.isArray() || value.toArray().size() != size))
            fail(QStringLiteral("\"%1\" is not an array of %2").arg(QLatin1String(key)).arg(size));
        return ok_ ? value.toArray() : QJsonArray();
    }

    QJsonObject object(const QJsonValue& value, const QString& what)
    {
        if (!value.isObject())
            fail(what + QStringLiteral(" is not an object"));
        return value.toObject();
    }

private:
    QString* error_;
    bool ok_ = true;
};

QJsonObject moduleToJson(const ModuleLighting& module)
{
    QJsonArray colors;
    QJsonArray bright;
    for (int i = 0; i < nxproto::kLedCount; ++i) {
        colors.append(colorToText(module.rgb[i]));
        bright.append(double(module.bright[i]));
    }
    return QJsonObject{{QStringLiteral("lightMode"), module.lightMode},
                       {QStringLiteral("colorMode"), module.colorMode},
                       {QStringLiteral("lightSpeed"), module.lightSpeed},
                       {QStringLiteral("turnOff"), module.turnOff},
                       {QStringLiteral("colors"), colors},
                       {QStringLiteral("brightness"), bright},
                       {QStringLiteral("singleColor"), colorToText(module.singleRGB)},
                       {QStringLiteral("singleBrightness"), double(module.singleBright)}};
}

ModuleLighting moduleFromJson(Reader& in, const QJsonObject& object)
{
    ModuleLighting module;
    module.lightMode = int32_t(in.integer(object, "lightMode", 0, nxproto::kMaxLightMode));
    module.colorMode = int32_t(in.integer(object, "colorMode", 0, nxproto::kMaxColorMode));
    module.lightSpeed = int32_t(in.integer(object, "lightSpeed", 0, nxproto::kMaxLightSpeed));
    module.turnOff = in.boolean(object, "turnOff");
    const QJsonArray colors = in.array(object, "colors", nxproto::kLedCount);
    const QJsonArray bright = in.array(object, "brightness", nxproto::kLedCount);
    for (int i = 0; in.ok() && i < nxproto::kLedCount; ++i) {
        module.rgb[i] = in.color(colors.at(i), "colors");
        module.bright[i] = in.brightness(bright.at(i), "brightness");
    }
    if (in.ok())
        module.singleRGB = in.color(in.member(object, "singleColor"), "singleColor");
    if (in.ok())
        module.singleBright =
            in.brightness(in.member(object, "singleBrightness"), "singleBrightness");
    return module;
}

} // namespace

QString colorToText(COLORREF color)
{
    const unsigned rgb = ((color & 0xFF) << 16) | (color & 0xFF00) | ((color >> 16) & 0xFF);
    return QStringLiteral("#%1").arg(rgb, 6, 16, QLatin1Char('0'));
}

bool colorFromText(const QString& text, COLORREF* color)
{
    if (text.size() != 7 || text.at(0) != QLatin1Char('#'))
        return false;
    bool ok = false;
    const unsigned rgb = text.midRef(1).toUInt(&ok, 16);
    if (!ok)
        return false;
    *color = ((rgb >> 16) & 0xFF) | (rgb & 0xFF00) | ((rgb & 0xFF) << 16);
    return true;
}

QJsonObject toJson(const ControlState& state, const SimulationConfig& simulation)
{
    QJsonArray order;
    for (int32_t value : state.slotOrder)
        order.append(value);
    QJsonArray profiles;
    for (const auto& profile : state.profiles) {
        QJsonArray modules;
        for (const ModuleLighting& module : profile)
            modules.append(moduleToJson(module));
        profiles.append(modules);
    }
    uint32_t cells[nxproto::kNotificationCells];
    nxproto::notificationToCells(state.noti, cells);
    QJsonObject noti;
    for (int i = 0; i < nxproto::kNotificationCells; ++i)
        noti.insert(QLatin1String(kNotificationNames[i]), qint64(int32_t(cells[i])));
    uint8_t setting[sizeof(SettingData)];
    std::memcpy(setting, &state.setting, sizeof setting);
    const QJsonObject settings{{QStringLiteral("languageIndex"), state.setting.languageIndex},
                               {QStringLiteral("autoUpdate"), setting[4] != 0},
                               {QStringLiteral("autoRun"), setting[5] != 0},
                               {QStringLiteral("currentLocation"), setting[6] != 0},
                               {QStringLiteral("reserved7"), int(setting[7])}};
    QJsonArray models;
    for (const std::string& code : simulation.models)
        models.append(QString::fromStdString(code));
    const QJsonObject sim{{QStringLiteral("modules"), simulation.modules},
                          {QStringLiteral("leds"), simulation.leds},
                          {QStringLiteral("models"), models}};
    return QJsonObject{{QStringLiteral("format"), QLatin1String(kFormat)},
                       {QStringLiteral("version"), kVersion},
                       {QStringLiteral("profile"), state.profile},
                       {QStringLiteral("slotOrder"), order},
                       {QStringLiteral("profiles"), profiles},
                       {QStringLiteral("notification"), noti},
                       {QStringLiteral("settings"), settings},
                       {QStringLiteral("simulation"), sim},
                       {QStringLiteral("output"), QString::fromStdString(simulation.output)}};
}

bool fromJson(const QJsonObject& object, ControlState* stateOut, SimulationConfig* simulationOut,
              QString* error)
{
    Reader in(error);
    if (object.value(QStringLiteral("format")).toString() != QLatin1String(kFormat))
        return in.fail(QStringLiteral("not a norvalex-control state file"));
    const qint64 version = in.integer(object, "version", 1, 1000000);
    if (in.ok() && version != kVersion)
        return in.fail(QStringLiteral("unsupported version %1").arg(version));

    ControlState state;
    state.profile = int32_t(in.integer(object, "profile", 0, nxproto::kProfileCount - 1));
    const QJsonArray order = in.array(object, "slotOrder", nxproto::kSlotCount);
    for (int i = 0; in.ok() && i < nxproto::kSlotCount; ++i) {
        const QJsonValue value = order.at(i);
        if (!value.isDouble() || value.toInt(-1) < 0 || value.toInt(-1) >= nxproto::kSlotCount ||
            value.toDouble() != value.toInt())
            in.fail(QStringLiteral("\"slotOrder\" holds a slot outside 0..7"));
        state.slotOrder[i] = value.toInt();
    }
    const QJsonArray profiles = in.array(object, "profiles", nxproto::kProfileCount);
    for (int p = 0; in.ok() && p < nxproto::kProfileCount; ++p) {
        if (!profiles.at(p).isArray() || profiles.at(p).toArray().size() != nxproto::kSlotCount) {
            in.fail(QStringLiteral("a profile is not an array of 8 modules"));
            break;
        }
        const QJsonArray modules = profiles.at(p).toArray();
        for (int s = 0; in.ok() && s < nxproto::kSlotCount; ++s) {
            const QJsonObject module = in.object(modules.at(s), QStringLiteral("a module"));
            if (in.ok())
                state.profiles[p][s] = moduleFromJson(in, module);
        }
    }

    const QJsonObject noti =
        in.object(in.member(object, "notification"), QStringLiteral("\"notification\""));
    uint32_t cells[nxproto::kNotificationCells] = {};
    for (int i = 0; in.ok() && i < nxproto::kNotificationCells; ++i)
        cells[i] = uint32_t(int32_t(in.integer(noti, kNotificationNames[i], INT32_MIN, INT32_MAX)));
    state.noti = nxproto::notificationFromCells(cells);

    const QJsonObject settings =
        in.object(in.member(object, "settings"), QStringLiteral("\"settings\""));
    if (in.ok()) {
        uint8_t raw[sizeof(SettingData)] = {};
        const int32_t language =
            int32_t(in.integer(settings, "languageIndex", INT32_MIN, INT32_MAX));
        std::memcpy(raw, &language, sizeof language);
        raw[4] = in.boolean(settings, "autoUpdate") ? 1 : 0;
        raw[5] = in.boolean(settings, "autoRun") ? 1 : 0;
        raw[6] = in.boolean(settings, "currentLocation") ? 1 : 0;
        raw[7] = uint8_t(in.integer(settings, "reserved7", 0, 255));
        std::memcpy(&state.setting, raw, sizeof raw);
    }

    SimulationConfig simulation;
    const QJsonObject sim =
        in.object(in.member(object, "simulation"), QStringLiteral("\"simulation\""));
    if (in.ok()) {
        simulation.modules = int(in.integer(sim, "modules", 0, SimulationConfig::kMaxModules));
        simulation.leds = int(in.integer(sim, "leds", 5, 8));
        if (in.ok() && !SimulationConfig::validLeds(simulation.leds))
            in.fail(QStringLiteral("\"leds\" is not 5 or 8"));
        const QJsonValue models = in.member(sim, "models");
        simulation.models.clear();
        for (const QJsonValue& code : models.toArray()) {
            const std::string text = code.toString().toStdString();
            if (!SimulationConfig::validModel(text))
                in.fail(QStringLiteral("\"models\" holds an unusable model code"));
            simulation.models.push_back(text);
        }
        if (in.ok() && simulation.models.empty())
            in.fail(QStringLiteral("\"models\" is not a non-empty array of codes"));
    }
    // Files written before outputs existed have no "output".
    const QJsonValue output = object.value(QStringLiteral("output"));
    if (in.ok() && !output.isUndefined()) {
        OutputChoice choice;
        std::string reason;
        if (!output.isString() ||
            !OutputChoice::parse(output.toString().toStdString(), &choice, &reason))
            in.fail(QStringLiteral("\"output\" is not none or openrgb[:HOST:PORT]"));
        simulation.output = choice.text();
    }
    if (!in.ok())
        return false;
    *stateOut = state;
    *simulationOut = simulation;
    return true;
}

} // namespace StateJson
