#include "AccessibleSwitch.h"

#include "SwitchButton.h"

AccessibleSwitch::AccessibleSwitch(QWidget* widget)
    : QAccessibleWidget(widget, QAccessible::CheckBox)
{
}

SwitchButton* AccessibleSwitch::switchButton() const
{
    return static_cast<SwitchButton*>(widget());
}

QAccessible::State AccessibleSwitch::state() const
{
    QAccessible::State s = QAccessibleWidget::state();
    s.checkable = true;
    s.checked = switchButton()->isChecked();
    return s;
}

QStringList AccessibleSwitch::actionNames() const
{
    if (!widget()->isEnabled())
        return {};
    return {toggleAction(), pressAction()};
}

void AccessibleSwitch::doAction(const QString& actionName)
{
    if (widget()->isEnabled() && (actionName == toggleAction() || actionName == pressAction()))
        switchButton()->click();
}
