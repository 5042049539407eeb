#pragma once

#include "RuleEngine.h"

#include <QObject>

#include <optional>

class DesktopNotifier;

// Carries the rules out: checks them against each new reading, logs what starts and ends,
// and raises and withdraws the desktop warnings.
class RuleActions : public QObject
{
    Q_OBJECT

public:
    explicit RuleActions(DesktopNotifier* notifier, QObject* parent = nullptr);

    void check(const NotiEventData& rules, const RuleEngine::Readings& readings);
    std::optional<COLORREF> loadOverride() const { return engine_.loadOverride(); }

private:
    DesktopNotifier* notifier_;
    RuleEngine engine_;
};
