#include "ChannelMode.h"

#include <QRegularExpression>
#include <QSet>

namespace {

QChar letterIn(const QString& text)
{
    // Most specific first: an explicit "Channel X", then "DIMM_X1"-like names, then "X1".
    static const QRegularExpression patterns[] = {
        QRegularExpression(QStringLiteral("CHANNEL[ _-]?([A-H])(?![A-Z])"),
                           QRegularExpression::CaseInsensitiveOption),
        QRegularExpression(QStringLiteral("DIMM[ _-]?([A-H])[ _-]?[0-9]"),
                           QRegularExpression::CaseInsensitiveOption),
        QRegularExpression(QStringLiteral("(?:^|[ _-])([A-H])[ _-]?[0-9](?![0-9])"),
                           QRegularExpression::CaseInsensitiveOption),
    };
    for (const QRegularExpression& pattern : patterns) {
        const QRegularExpressionMatch match = pattern.match(text);
        if (match.hasMatch())
            return match.captured(1).at(0).toUpper();
    }
    return {};
}

} // namespace

QChar ChannelMode::channelOf(const MemoryDevice& device)
{
    const QChar fromBank = letterIn(device.bankLocator);
    return fromBank.isNull() ? letterIn(device.locator) : fromBank;
}

int ChannelMode::populatedChannels(const SmbiosMemory& memory)
{
    QSet<QChar> channels;
    for (const MemoryDevice& device : memory.devices) {
        if (!device.present)
            continue;
        const QChar channel = channelOf(device);
        if (channel.isNull())
            return -1;
        channels.insert(channel);
    }
    return channels.isEmpty() ? -1 : channels.size();
}
