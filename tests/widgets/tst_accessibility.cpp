#include "Accessibility.h"
#include "ColorNames.h"
#include "FocusRing.h"
#include "FocusTracker.h"
#include "Memory_RGB_View.h"
#include "RGB_Palette.h"
#include "SwitchButton.h"
#include "Widget_Preview.h"

#include <QAccessible>
#include <QDialog>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QSignalSpy>
#include <QTest>
#include <QVBoxLayout>

namespace {

QAccessibleInterface* accessible(QObject* object)
{
    QAccessibleInterface* iface = QAccessible::queryAccessibleInterface(object);
    Q_ASSERT(iface);
    return iface;
}

QString nameOf(QObject* object)
{
    return accessible(object)->text(QAccessible::Name);
}

} // namespace

class TestAccessibility : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase() { Accessibility::install(); }

    // A switch is a checkable toggle named by its caption; its action, Space, Return and a
    // click switch it, and only Tab gives it the focus. setChecked places the knob at once and
    // emits nothing; a click during the 100 ms slide does not toggle but is reported again
    // with the same state.
    void switchButton()
    {
        QWidget page;
        auto* caption = new QLabel(QStringLiteral("Auto Update"), &page);
        auto* toggle = new SwitchButton(47, 19, &page);
        caption->setBuddy(toggle);
        QSignalSpy clicked(toggle, &SwitchButton::sigClicked);
        const QLabel* knob = toggle->findChild<QLabel*>();
        const QPoint off(1, 0), on(27, 0);
        QCOMPARE(knob->pos(), off);
        toggle->setChecked(true);
        QCOMPARE(knob->pos(), on);
        toggle->setChecked(false);
        QCOMPARE(clicked.count(), 0);

        QAccessibleInterface* iface = accessible(toggle);
        QCOMPARE(iface->role(), QAccessible::CheckBox);
        QCOMPARE(iface->text(QAccessible::Name), QStringLiteral("Auto Update"));
        QVERIFY(iface->state().checkable && !iface->state().checked);
        QCOMPARE(toggle->focusPolicy(), Qt::TabFocus);
        QAccessibleActionInterface* act = iface->actionInterface();
        act->doAction(QAccessibleActionInterface::toggleAction());
        QVERIFY(toggle->isChecked() && iface->state().checked);
        QCOMPARE(clicked.count(), 1);

        QTRY_COMPARE_WITH_TIMEOUT(knob->pos(), on, 5000);
        QTest::qWait(150);
        QTest::keyClick(toggle, Qt::Key_Space);
        QVERIFY(!toggle->isChecked());
        QCOMPARE(clicked.count(), 2);
        QTRY_COMPARE_WITH_TIMEOUT(knob->pos(), off, 5000);
        QTest::qWait(150);

        page.show();
        QVERIFY(QTest::qWaitForWindowActive(&page));
        QTest::mouseClick(toggle, Qt::LeftButton);
        QTest::mouseClick(toggle, Qt::LeftButton, Qt::NoModifier, QPoint(), 50);
        QCOMPARE(clicked.count(), 4);
        QVERIFY(clicked.at(2).at(0).toBool() && clicked.at(3).at(0).toBool());
        QTRY_COMPARE_WITH_TIMEOUT(knob->pos(), on, 5000);
        QTest::qWait(150);

        // Return, taken by the switch itself and by the panel's Return handling, toggles once.
        toggle->setFocus(Qt::TabFocusReason);
        QTest::keyClick(toggle, Qt::Key_Return);
        QTest::qWait(300);
        QCOMPARE(clicked.count(), 5);
        QVERIFY(!toggle->isChecked());

        toggle->setEnabled(false);
        QVERIFY(act->actionNames().isEmpty());
        act->doAction(QAccessibleActionInterface::toggleAction());
        QCOMPARE(clicked.count(), 5);
    }

    // Pressing a button through its interface clicks it: released() fires, which the page
    // switch and most handlers hang on. Return and Enter press the focused button once; a
    // dialog keeps Return for its default button.
    void buttons()
    {
        QWidget page;
        auto* layout = new QVBoxLayout(&page);
        auto* entry = new QPushButton(QStringLiteral("&Lighting"), &page);
        entry->setCheckable(true);
        Accessibility::markPageTab(entry);
        QSignalSpy released(entry, &QPushButton::released);
        QAccessibleInterface* iface = accessible(entry);
        QCOMPARE(iface->role(), QAccessible::PageTab);
        QCOMPARE(iface->text(QAccessible::Name), QStringLiteral("Lighting"));
        QCOMPARE(iface->actionInterface()->actionNames(),
                 QStringList{QAccessibleActionInterface::pressAction()});
        iface->actionInterface()->doAction(QAccessibleActionInterface::pressAction());
        QCOMPARE(released.count(), 1);
        QVERIFY(entry->isChecked() && iface->state().checked);

        // A button labelled from outside is named by the label.
        auto* caption = new QLabel(QStringLiteral("Language"), &page);
        auto* language = new QPushButton(QStringLiteral("en"), &page);
        caption->setBuddy(language);
        QCOMPARE(nameOf(language), QStringLiteral("Language"));
        auto* other = new QPushButton(QStringLiteral("Cancel"), &page);
        for (QWidget* w : QList<QWidget*>{entry, other, caption, language})
            layout->addWidget(w);

        page.show();
        QVERIFY(QTest::qWaitForWindowActive(&page));
        QSignalSpy otherClicked(other, &QPushButton::clicked);
        entry->setFocus(Qt::TabFocusReason);
        QTest::keyClick(entry, Qt::Key_Return);
        QTRY_COMPARE(released.count(), 2);
        QTest::keyClick(entry, Qt::Key_Enter, Qt::KeypadModifier);
        QTRY_COMPARE(released.count(), 3);
        entry->setEnabled(false);
        QVERIFY(iface->actionInterface()->actionNames().isEmpty());
        iface->actionInterface()->doAction(QAccessibleActionInterface::pressAction());
        QTest::keyClick(entry, Qt::Key_Return);
        QTest::qWait(300);
        QCOMPARE(released.count(), 3);
        QCOMPARE(otherClicked.count(), 0);

        QDialog dialog;
        auto* ok = new QPushButton(QStringLiteral("OK"), &dialog);
        auto* focused = new QPushButton(QStringLiteral("Other"), &dialog);
        (new QVBoxLayout(&dialog))->addWidget(ok);
        dialog.layout()->addWidget(focused);
        focused->setAutoDefault(false);
        ok->setDefault(true);
        QSignalSpy okClicked(ok, &QPushButton::clicked);
        QSignalSpy focusedClicked(focused, &QPushButton::clicked);
        dialog.show();
        QVERIFY(QTest::qWaitForWindowActive(&dialog));
        focused->setFocus(Qt::TabFocusReason);
        QTest::keyClick(focused, Qt::Key_Return);
        QTRY_COMPARE(okClicked.count(), 1);
        QCOMPARE(focusedClicked.count(), 0);
    }

    // LED buttons are named by slot, row letter and the colour they show, and follow changes.
    void ledNames()
    {
        Memory_RGB_View strip;
        strip.setSlotNumber(1);
        strip.setLEDNumber(8);
        QCOMPARE(nameOf(strip.btn_MemorySlot), QStringLiteral("Slot 2"));
        QCOMPARE(nameOf(strip.btn_Led[2]), QStringLiteral("Slot 2, LED C, green"));
        strip.setRGB(2, 0x0000FF, 1.0f);
        strip.slot_ChangeColorMode(1, 0);
        QCOMPARE(nameOf(strip.btn_Led[2]), QStringLiteral("Slot 2, LED C, red"));
        QCOMPARE(nameOf(strip.btn_Led[7]), QStringLiteral("Slot 2, LED H, green"));
        // An effect shows the LEDs inactive.
        strip.slot_ChangeColorMode(1, 2);
        QCOMPARE(nameOf(strip.btn_Led[2]), QStringLiteral("Slot 2, LED C, dark gray"));
    }

    // The wheel is a colour chooser whose value is the colour under its keyboard cursor; the
    // arrows move the cursor, never out of the disc, and Space picks what it names.
    void colourWheel()
    {
        QWidget window;
        auto* before = new QLineEdit(&window);
        auto* wheel = new RGB_Palette(&window);
        wheel->move(0, 30);
        window.resize(200, 220);
        window.show();
        QVERIFY(QTest::qWaitForWindowActive(&window));
        QSignalSpy picked(wheel, &RGB_Palette::pressRGB);
        QAccessibleInterface* iface = accessible(wheel);
        QCOMPARE(iface->role(), QAccessible::ColorChooser);
        const QString centre = iface->text(QAccessible::Value);
        auto* mark = wheel->findChild<FocusRing*>();
        QVERIFY(mark && !mark->isVisible());

        before->setFocus(Qt::OtherFocusReason);
        QTRY_VERIFY(before->hasFocus());
        QTest::keyClick(before, Qt::Key_Tab);
        QTRY_VERIFY(wheel->hasFocus());
        QVERIFY(mark->isVisible() && mark->geometry().contains(wheel->keyboardCursor()));

        const QPoint start = wheel->keyboardCursor();
        QTest::keyClick(wheel, Qt::Key_Right);
        QTest::keyClick(wheel, Qt::Key_Up, Qt::ShiftModifier);
        QCOMPARE(wheel->keyboardCursor(), start + QPoint(8, -1));
        for (int i = 0; i < 40; ++i)
            QTest::keyClick(wheel, Qt::Key_Right);
        COLORREF expected = 0;
        QVERIFY(RGB_Palette::pickColour(wheel->keyboardCursor(), wheel->size(), &expected));
        QVERIFY(wheel->keyboardCursor().x() > start.x() + 60);
        QVERIFY(iface->text(QAccessible::Value) != centre);
        QVERIFY(picked.isEmpty());

        QTest::keyClick(wheel, Qt::Key_Space);
        QCOMPARE(picked.count(), 1);
        QCOMPARE(picked.last().at(0).value<COLORREF>(), expected);
        const QColor shown(expected & 0xFF, (expected >> 8) & 0xFF, (expected >> 16) & 0xFF);
        QVERIFY(iface->text(QAccessible::Value).startsWith(ColorNames::describe(shown)));
        before->setFocus(Qt::OtherFocusReason);
        QTRY_VERIFY(!mark->isVisible());
    }

    // The preview says what it shows, bar by bar, read when asked rather than on every frame.
    void previewValue()
    {
        Widget_Preview preview;
        QAccessibleInterface* iface = accessible(&preview);
        QCOMPARE(iface->role(), QAccessible::Graphic);
        const int leds[] = {5, 8};
        const int order[] = {1, 0};
        preview.setSlotNum(2);
        preview.setModuleNum(1);
        preview.setLEDNum(2, leds);
        preview.setSlotsOrder(2, order);
        COLORREF first[8] = {0x0000FF, 0x0000FF, 0xFF0000, 0xFF0000, 0x0000FF, 0, 0, 0};
        COLORREF second[8] = {};
        preview.updatePreviewList({first, second});
        QCOMPARE(iface->text(QAccessible::Value),
                 QStringLiteral("Slot 2: red, blue, red; Slot 1: empty"));
    }

    // The ring shows around a widget reached by Tab, in the accent colour, and never for
    // focus taken by the mouse or by the program; it is hidden from assistive technology.
    void focusRing()
    {
        QWidget window;
        auto* layout = new QVBoxLayout(&window);
        auto* first = new QLineEdit(&window);
        auto* second = new QPushButton(QStringLiteral("Apply"), &window);
        layout->addWidget(first);
        layout->addWidget(second);
        window.resize(300, 200);
        window.show();
        QVERIFY(QTest::qWaitForWindowActive(&window));
        FocusTracker* tracker = FocusTracker::install();
        first->setFocus(Qt::OtherFocusReason);
        QTRY_VERIFY(first->hasFocus());
        QVERIFY(!tracker->target());
        const QImage plain = window.grab().toImage();

        QTest::keyClick(first, Qt::Key_Tab);
        QTRY_COMPARE(tracker->target(), second);
        FocusRing* ring = tracker->ring();
        QVERIFY(ring->isVisible() && ring->geometry().contains(second->geometry()));
        const QPoint edge = ring->geometry().topLeft() + QPoint(ring->width() / 2, 1);
        QCOMPARE(window.grab().toImage().pixelColor(edge).rgb(), FocusRing::Accent.rgb());
        QVERIFY(ring->testAttribute(Qt::WA_TransparentForMouseEvents));
        QVERIFY(accessible(ring)->state().invisible);

        // A mouse press hides the ring; the window then looks as it did without it.
        QTest::mouseClick(first, Qt::LeftButton);
        QVERIFY(!tracker->target() && !ring->isVisible());
        first->setFocus(Qt::OtherFocusReason);
        QCOMPARE(window.grab().toImage(), plain);
    }
};

QTEST_MAIN(TestAccessibility)
#include "tst_accessibility.moc"
