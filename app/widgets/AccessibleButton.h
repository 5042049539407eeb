#pragma once

#include <QAccessibleWidget>

class QAbstractButton;

// A push button whose press action clicks it: pressed, released and clicked are emitted as for a
// mouse click, so handlers that hang on released() run too. Checkable buttons keep their toggle
// action; buttons marked as page tabs have the page-tab role.
class AccessibleButton : public QAccessibleWidget
{
public:
    explicit AccessibleButton(QWidget* widget);

    QString text(QAccessible::Text t) const override;
    QAccessible::State state() const override;
    QAccessible::Role role() const override;
    QStringList actionNames() const override;
    void doAction(const QString& actionName) override;
    QStringList keyBindingsForAction(const QString& actionName) const override;

private:
    QAbstractButton* button() const;
};
