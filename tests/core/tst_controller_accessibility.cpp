// The controller's window exists for the message relay only: assistive technology must not list
// it beside the panel's frame.
#include "Accessibility.h"
#include "LightingDouble.h"
#include "Main_View.h"
#include "QXRGBMemory.h"

#include <QAccessible>
#include <QtTest>

#include <memory>

class TestControllerAccessibility : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase()
    {
        QStandardPaths::setTestModeEnabled(true);
        Accessibility::install();
    }

    void controllerWindowHidden()
    {
        Double_reset();
        auto controller = std::make_unique<QXRGBMemory>(QStringLiteral(NX_DOUBLE_LIBRARY));
        controller->pollTimer()->stop();
        controller->setAttribute(Qt::WA_DontShowOnScreen);
        controller->show();
        controller->setWindowTitle(QStringLiteral("NORVALEX"));

        QAccessibleInterface* iface = QAccessible::queryAccessibleInterface(controller.get());
        QVERIFY(iface);
        QVERIFY(iface->state().invisible);
        QCOMPARE(iface->childCount(), 0);
        QVERIFY(iface->text(QAccessible::Name).isEmpty());

        // The panel's frame, in contrast, is a named window with its controls below it.
        Main_View* frame = controller->mainView();
        QVERIFY(frame);
        QAccessibleInterface* frameIface = QAccessible::queryAccessibleInterface(frame);
        QCOMPARE(frameIface->role(), QAccessible::Window);
        QVERIFY(!frameIface->state().invisible);
        QVERIFY(frameIface->childCount() > 0);
    }
};

QTEST_MAIN(TestControllerAccessibility)
#include "tst_controller_accessibility.moc"
