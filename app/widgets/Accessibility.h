#pragma once

class QAbstractButton;
class QWidget;

// Accessibility for the panel's own widgets: interfaces for buttons and switches that assistive
// technology can press, and keyboard reach for controls that were made mouse-only.
namespace Accessibility {

// Registers the interface factory. Call once after the application object exists and before the
// first window is created; later calls do nothing.
void install();

// Exposes the button as a page tab of the menu; pressing it clicks the button.
void markPageTab(QAbstractButton* button);

// Lets Tab reach a widget that the mouse must not give the focus to.
void makeTabReachable(QWidget* widget);

} // namespace Accessibility
