#include "AccessibleButton.h"

#include <QAbstractButton>
#include <QKeySequence>
#include <QLabel>
#include <QRegularExpression>

namespace {
const char* const PageTabProperty = "nxPageTab";

// The caption of a sibling label that names the widget, if any.
QString buddyCaption(const QWidget* widget)
{
    if (!widget->parentWidget())
        return {};
    const auto labels =
        widget->parentWidget()->findChildren<QLabel*>(QString(), Qt::FindDirectChildrenOnly);
    for (const QLabel* label : labels) {
        if (label->buddy() == widget)
            return label->text().simplified();
    }
    return {};
}

QString withoutMnemonic(QString text)
{
    text.remove(QRegularExpression(QStringLiteral("&(?!&)")));
    return text.replace(QStringLiteral("&&"), QStringLiteral("&"));
}
} // namespace

AccessibleButton::AccessibleButton(QWidget* widget) : QAccessibleWidget(widget, QAccessible::Button)
{
    addControllingSignal(QStringLiteral("clicked(bool)"));
}

QAbstractButton* AccessibleButton::button() const
{
    return static_cast<QAbstractButton*>(widget());
}

QString AccessibleButton::text(QAccessible::Text t) const
{
    const QString caption = withoutMnemonic(button()->text()).simplified();
    const QString buddy = buddyCaption(widget());
    if (t == QAccessible::Description && !buddy.isEmpty() &&
        widget()->accessibleDescription().isEmpty())
        return caption; // A button labelled from outside shows its value.
    if (t != QAccessible::Name)
        return QAccessibleWidget::text(t);
    if (!widget()->accessibleName().isEmpty())
        return widget()->accessibleName();
    if (!buddy.isEmpty())
        return buddy;
    return caption.isEmpty() ? widget()->toolTip() : caption;
}

QAccessible::State AccessibleButton::state() const
{
    QAccessible::State s = QAccessibleWidget::state();
    QAbstractButton* b = button();
    if (b->isCheckable()) {
        s.checkable = true;
        s.checked = b->isChecked();
    }
    if (b->isDown())
        s.pressed = true;
    return s;
}

QAccessible::Role AccessibleButton::role() const
{
    if (button()->property(PageTabProperty).toBool())
        return QAccessible::PageTab;
    if (button()->isCheckable() && !button()->autoExclusive())
        return QAccessible::CheckBox;
    return QAccessible::Button;
}

QStringList AccessibleButton::actionNames() const
{
    if (!button()->isEnabled())
        return {};
    // The first action is the default one.
    QStringList names{pressAction()};
    if (button()->isCheckable() && !button()->property(PageTabProperty).toBool())
        names << toggleAction();
    return names;
}

void AccessibleButton::doAction(const QString& actionName)
{
    if (!button()->isEnabled())
        return;
    if (actionName == pressAction() || actionName == toggleAction())
        button()->click();
}

QStringList AccessibleButton::keyBindingsForAction(const QString& actionName) const
{
    if (actionName == pressAction() && !button()->shortcut().isEmpty())
        return {button()->shortcut().toString(QKeySequence::NativeText)};
    return {};
}
