#include "TestEnvironment.h"

#include "Widget_LocationPolicy.h"

#include <QApplication>
#include <QCheckBox>
#include <QMouseEvent>
#include <QPushButton>
#include <QStandardPaths>
#include <QtTest>

#include <memory>

namespace {

// Delivers a mouse event for a pointer at `screen` to a widget of `window`, as the window system
// would: an event the widget ignores travels on to its parent.
void sendMouse(QWidget* window, QWidget* widget, QEvent::Type type, QPoint screen)
{
    const QPoint local = screen - window->pos() - widget->mapTo(window, QPoint(0, 0));
    const Qt::MouseButton button = type == QEvent::MouseMove ? Qt::NoButton : Qt::LeftButton;
    const Qt::MouseButtons buttons =
        type == QEvent::MouseButtonRelease ? Qt::NoButton : Qt::MouseButtons(Qt::LeftButton);
    QMouseEvent event(type, local, screen, button, buttons, Qt::NoModifier);
    QApplication::instance()->notify(widget, &event);
}

} // namespace

class TestLocationPolicy : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase() { QStandardPaths::setTestModeEnabled(true); }
    void init()
    {
        dialog = std::make_unique<Widget_LocationPolicy>();
        dialog->move(200, 150);
        dialog->show();
        QVERIFY(QTest::qWaitForWindowExposed(dialog.get()));
    }
    void cleanup() { dialog.reset(); }

    void okReportsTheBox();
    void dragMovesWithoutJump();

private:
    template <typename T> T* child(const char* name)
    {
        return dialog->findChild<T*>(QLatin1String(name));
    }

    std::unique_ptr<Widget_LocationPolicy> dialog;
};

// OK reports whether the box is ticked and closes the dialog; shown again, it keeps the answer.
void TestLocationPolicy::okReportsTheBox()
{
    QSignalSpy spy(dialog.get(), &Widget_LocationPolicy::sendPushOK);
    auto* box = child<QCheckBox>("check_notRemind");
    auto* ok = child<QPushButton>("btn_OK");
    QTest::mouseClick(ok, Qt::LeftButton);
    QVERIFY(!dialog->isVisible());
    dialog->show();
    QTest::mouseClick(box, Qt::LeftButton, Qt::NoModifier, QPoint(8, box->height() / 2));
    QTest::mouseClick(ok, Qt::LeftButton);
    dialog->show();
    QTest::mouseClick(ok, Qt::LeftButton);
    QCOMPARE(spy, (QList<QVariantList>{{false}, {true}, {true}}));
}

// A press on the text, which the label passes on, drags the dialog without a jump.
void TestLocationPolicy::dragMovesWithoutJump()
{
    QWidget* window = dialog.get();
    QWidget* target = child<QWidget>("label_Content");
    const QPoint start = dialog->pos();
    const QPoint offset = target->mapTo(window, QPoint(160, 40));
    // The pointer's place on the screen; dragging keeps it over the same spot of the window.
    QPoint pointer = start + offset;

    sendMouse(window, target, QEvent::MouseButtonPress, pointer);
    QCOMPARE(dialog->pos(), start);
    for (const QPoint& step : {QPoint(30, 20), QPoint(-5, 12), QPoint(40, -60)}) {
        pointer += step;
        sendMouse(window, target, QEvent::MouseMove, pointer);
        QCOMPARE(pointer - dialog->pos(), offset);
    }

    sendMouse(window, target, QEvent::MouseButtonRelease, pointer);
    // After the release the pointer moves alone.
    const QPoint released = dialog->pos();
    sendMouse(window, target, QEvent::MouseMove, pointer + QPoint(25, 25));
    QCOMPARE(dialog->pos(), released);
}

QTEST_MAIN(TestLocationPolicy)
#include "tst_location_policy.moc"
