#pragma once

#include <QAccessibleWidget>

class SwitchButton;

// A SwitchButton as a toggle button with its checked state; pressing or toggling it switches
// it as a click does, with the same signal.
class AccessibleSwitch : public QAccessibleWidget
{
public:
    explicit AccessibleSwitch(QWidget* widget);

    QAccessible::State state() const override;
    QStringList actionNames() const override;
    void doAction(const QString& actionName) override;

private:
    SwitchButton* switchButton() const;
};
