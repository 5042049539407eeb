#include "RuleActions.h"

#include "DesktopNotifier.h"

#include <QLoggingCategory>

Q_DECLARE_LOGGING_CATEGORY(lcNotify)

RuleActions::RuleActions(DesktopNotifier* notifier, QObject* parent)
    : QObject(parent), notifier_(notifier)
{
}

void RuleActions::check(const NotiEventData& rules, const RuleEngine::Readings& readings)
{
    const bool wasOverriding = engine_.loadOverride().has_value();
    const std::vector<RuleEngine::Event> events = engine_.check(rules, readings);
    const std::optional<COLORREF> color = engine_.loadOverride();
    if (color && !wasOverriding) {
        qCInfo(lcNotify).noquote() << QStringLiteral("memory load %1 % above %2 %: all LEDs to #%3")
                                          .arg(readings.memoryLoad)
                                          .arg(rules.loadingValue)
                                          .arg(*color, 6, 16, QLatin1Char('0'));
    } else if (!color && wasOverriding) {
        qCInfo(lcNotify) << "memory load rule ended: the lighting returns";
    }

    for (const RuleEngine::Event& event : events) {
        const int key = int(event.sensor);
        switch (event.kind) {
        case RuleEngine::Event::Raised: {
            const QString text = RuleEngine::describe(event);
            qCWarning(lcNotify).noquote() << text;
            notifier_->raise(key, text, QStringLiteral("Shut the computer down to avoid damage?"));
            break;
        }
        case RuleEngine::Event::Cleared:
            qCInfo(lcNotify) << (event.sensor == RuleEngine::Sensor::Cpu ? "CPU" : "memory")
                             << "temperature back below its threshold";
            notifier_->clear(key);
            break;
        case RuleEngine::Event::Ignored:
            qCWarning(lcNotify) << "rule ignored: threshold" << event.threshold << "is not usable";
            break;
        case RuleEngine::Event::FanRuleNeedsProgram:
            qCInfo(lcNotify) << "fan rule kept: it needs a fan-control program, which this "
                                "service does not drive";
            break;
        }
    }
}
