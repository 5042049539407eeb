#include "Accessibility.h"

#include "AccessibleButton.h"
#include "AccessibleDisplay.h"
#include "AccessibleHidden.h"
#include "AccessibleSwitch.h"
#include "FocusTracker.h"
#include "ReturnActivation.h"
#include "SwitchButton.h"

#include <QAbstractButton>
#include <QAccessible>
#include <QPushButton>

namespace {

QAccessibleInterface* createInterface(const QString& className, QObject* object)
{
    if (!object || !object->isWidgetType())
        return nullptr;
    auto* widget = static_cast<QWidget*>(object);
    const QVariant displayRole = widget->property(AccessibleDisplay::RoleProperty);
    if (displayRole.isValid())
        return new AccessibleDisplay(widget, QAccessible::Role(displayRole.toInt()));
    if (className == QLatin1String("SwitchButton"))
        return new AccessibleSwitch(widget);
    if (className == QLatin1String("QPushButton"))
        return new AccessibleButton(widget);
    if (className == QLatin1String("RGB_Palette"))
        return new AccessibleDisplay(widget, QAccessible::ColorChooser);
    // The focus ring and the controller's window, which never shows, are not for the user.
    if (className == QLatin1String("FocusRing") || className == QLatin1String("QXRGBMemory"))
        return new AccessibleHidden(widget);
    // The panel's frame is its window, not a filler.
    if (className == QLatin1String("Main_View"))
        return new QAccessibleWidget(widget, QAccessible::Window);
    return nullptr;
}

} // namespace

namespace Accessibility {

void install()
{
    static bool installed = false;
    if (installed)
        return;
    installed = true;
    QAccessible::installFactory(&createInterface);
    FocusTracker::install();
    ReturnActivation::install();
}

void markPageTab(QAbstractButton* button)
{
    button->setProperty("nxPageTab", true);
    makeTabReachable(button);
}

void makeTabReachable(QWidget* widget)
{
    // Tab only: a mouse click keeps not taking the focus.
    widget->setFocusPolicy(Qt::TabFocus);
}

} // namespace Accessibility
