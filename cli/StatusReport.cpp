#include "StatusReport.h"

#include "LightModeTable.h"
#include "LightingSession.h"
#include "ModeNames.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>

#include <cmath>

namespace {

const QString kUnknown = QStringLiteral("N/A");

QString fieldText(const char* field, int size)
{
    return QString::fromLatin1(field, int(qstrnlen(field, uint(size))));
}

QString orUnknown(double value, const QString& unit, int decimals = 0)
{
    if (value < 0)
        return kUnknown;
    return QString::number(value, 'f', decimals) + unit;
}

QJsonValue jsonNumber(double value)
{
    return value < 0 ? QJsonValue() : QJsonValue(value);
}

QString channelName(int channel)
{
    switch (channel) {
    case 2:
        return QStringLiteral("dual");
    case 4:
        return QStringLiteral("quad");
    default:
        return QString();
    }
}

QString hexColor(COLORREF color)
{
    const uint rgb = ((color & 0xFF) << 16) | (color & 0xFF00) | ((color >> 16) & 0xFF);
    return QStringLiteral("%1").arg(rgb, 6, 16, QLatin1Char('0')).toUpper();
}

int percent(float brightness)
{
    return int(std::lround(double(brightness) * 100.0));
}

QString speedName(int speed)
{
    const QStringList names = LightModeTable::speedKeys();
    return speed >= 0 && speed < names.size() ? names.at(speed) : QString();
}

} // namespace

StatusReport StatusReport::read(LightingSession& session)
{
    StatusReport report;
    report.hardware = session.GetValueHWData();
    report.profile = session.GetProfile();
    for (int slot = 0; slot < NX_MODULE_COUNT; ++slot) {
        if (report.hardware.slotIndex[slot] < 0)
            continue;
        Module module;
        module.slot = slot;
        module.data = report.hardware.memoryData[slot];
        module.lightMode = session.GetValueLightMode(slot);
        module.colorMode = session.GetValueColorMode(slot);
        module.speed = session.GetValueLightSpeed(slot);
        module.off = session.GetValueTurnOff(slot) != 0;
        module.brightness = session.GetValueSingleBright(slot);
        module.color = session.GetValueSingleRGB(slot);
        report.modules.append(module);
    }
    return report;
}

QString StatusReport::Module::model() const
{
    return fieldText(data.modelCode, NX_TEXT_LEN);
}

QString StatusReport::Module::type() const
{
    return fieldText(data.type, NX_TEXT_LEN);
}

const StatusReport::Module* StatusReport::module(int slot) const
{
    for (const Module& module : modules) {
        if (module.slot == slot)
            return &module;
    }
    return nullptr;
}

bool StatusReport::hasNewModules() const
{
    for (const Module& module : modules) {
        if (module.model().contains(QLatin1String("KX44")))
            return true;
    }
    return false;
}

QString StatusReport::text() const
{
    QString out;
    out += QStringLiteral("Profile %1\n").arg(profile + 1);
    const HWData& hw = hardware;
    const QString channelText = channelName(hw.channel);
    out += QStringLiteral("Memory: load %1, %2 used, %3 channel, %4, CL %5, tRCD %6\n")
               .arg(orUnknown(hw.memoryLoad, QStringLiteral(" %")),
                    orUnknown(hw.physicalMemoryUsed, QStringLiteral(" MB")),
                    channelText.isEmpty() ? kUnknown : channelText,
                    orUnknown(hw.frequency, QStringLiteral(" MHz")),
                    orUnknown(hw.casLatency, QString()), orUnknown(hw.tRCD, QString()));
    if (modules.isEmpty()) {
        out += QStringLiteral("No module found\n");
        return out;
    }
    const int widths[] = {5, 8, 7, 10, 10, 7, 5, 15, 7, 8, 4, 11};
    const QStringList header = {
        QStringLiteral("Slot"),  QStringLiteral("Model"),      QStringLiteral("Type"),
        QStringLiteral("Size"),  QStringLiteral("Clock"),      QStringLiteral("Temp"),
        QStringLiteral("LEDs"),  QStringLiteral("Light mode"), QStringLiteral("Colour"),
        QStringLiteral("Speed"), QStringLiteral("On"),         QStringLiteral("Brightness"),
    };
    auto row = [&widths](const QStringList& cells) -> QString {
        QString line;
        for (int i = 0; i < cells.size(); ++i)
            line += i + 1 < cells.size() ? cells.at(i).leftJustified(widths[i]) : cells.at(i);
        return line + QLatin1Char('\n');
    };
    out += row(header);
    for (const Module& m : modules) {
        out += row({QString::number(m.slot + 1), m.model(), m.type(),
                    orUnknown(m.data.memoryModuleSize, QStringLiteral(" MB")),
                    orUnknown(m.data.frequency, QStringLiteral(" MHz")),
                    orUnknown(m.data.temperature, QStringLiteral(" °C")),
                    m.data.ledNum < 0 ? kUnknown : QString::number(m.data.ledNum),
                    ModeNames::name(m.lightMode),
                    QString::fromLatin1(LightModeTable::colorModeKey(m.colorMode)),
                    speedName(m.speed), m.off ? QStringLiteral("off") : QStringLiteral("on"),
                    QStringLiteral("%1 %").arg(percent(m.brightness))});
    }
    return out;
}

QByteArray StatusReport::json() const
{
    QJsonObject memory;
    const HWData& hw = hardware;
    memory.insert(QStringLiteral("load"), jsonNumber(hw.memoryLoad));
    memory.insert(QStringLiteral("usedMB"), jsonNumber(hw.physicalMemoryUsed));
    const QString channelText = channelName(hw.channel);
    memory.insert(QStringLiteral("channel"),
                  channelText.isEmpty() ? QJsonValue() : QJsonValue(channelText));
    memory.insert(QStringLiteral("frequencyMHz"), jsonNumber(hw.frequency));
    memory.insert(QStringLiteral("casLatency"), jsonNumber(hw.casLatency));
    memory.insert(QStringLiteral("tRCD"), jsonNumber(hw.tRCD));
    memory.insert(QStringLiteral("moduleCount"), jsonNumber(hw.memoryCount));
    memory.insert(QStringLiteral("slotCount"), hw.slotCount);

    QJsonArray list;
    for (const Module& m : modules) {
        QJsonObject module;
        module.insert(QStringLiteral("slot"), m.slot + 1);
        module.insert(QStringLiteral("model"), m.model());
        module.insert(QStringLiteral("type"), m.type());
        module.insert(QStringLiteral("sizeMB"), jsonNumber(m.data.memoryModuleSize));
        module.insert(QStringLiteral("frequencyMHz"), jsonNumber(m.data.frequency));
        module.insert(QStringLiteral("temperatureC"), jsonNumber(m.data.temperature));
        module.insert(QStringLiteral("leds"), jsonNumber(m.data.ledNum));
        module.insert(QStringLiteral("lightMode"), m.lightMode);
        module.insert(QStringLiteral("lightModeName"), ModeNames::name(m.lightMode));
        module.insert(QStringLiteral("colorMode"),
                      QString::fromLatin1(LightModeTable::colorModeKey(m.colorMode)));
        module.insert(QStringLiteral("speed"), speedName(m.speed));
        module.insert(QStringLiteral("on"), !m.off);
        module.insert(QStringLiteral("brightness"), percent(m.brightness));
        module.insert(QStringLiteral("color"), hexColor(m.color));
        list.append(module);
    }
    QJsonObject root;
    root.insert(QStringLiteral("profile"), profile + 1);
    root.insert(QStringLiteral("memory"), memory);
    root.insert(QStringLiteral("modules"), list);
    return QJsonDocument(root).toJson(QJsonDocument::Indented);
}
