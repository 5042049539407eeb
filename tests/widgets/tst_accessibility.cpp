#include "Accessibility.h"
#include "ColorNames.h"
#include "FocusRing.h"
#include "FocusTracker.h"
#include "Memory_RGB_View.h"
#include "RGB_Palette.h"
#include "SwitchButton.h"
#include "Widget_Preview.h"

#include <QAccessible>
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

QAccessibleActionInterface* actions(QObject* object)
{
    return accessible(object)->actionInterface();
}

} // namespace

class TestAccessibility : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase() { Accessibility::install(); }

    void switchButton_data()
    {
        QTest::addColumn<QSize>("size");
        QTest::addColumn<QPoint>("on");
        QTest::newRow("47x19") << QSize(47, 19) << QPoint(27, 0);
        QTest::newRow("60x24") << QSize(60, 24) << QPoint(35, 0);
    }

    // A switch is a checkable toggle named by its caption; its action, Space and a click switch
    // it, and only Tab gives it the focus. setChecked places the knob at once and emits
    // nothing; a switch slides the knob over 100 ms, and a click during the slide does not
    // toggle but is reported again with the same state.
    void switchButton()
    {
        QFETCH(QSize, size);
        QFETCH(QPoint, on);
        QWidget page;
        auto* caption = new QLabel(QStringLiteral("Auto Update"), &page);
        auto* toggle = new SwitchButton(size.width(), size.height(), &page);
        caption->setBuddy(toggle);
        QSignalSpy clicked(toggle, &SwitchButton::sigClicked);
        const QLabel* knob = toggle->findChild<QLabel*>();
        QCOMPARE(knob->pos(), QPoint(1, 0));
        toggle->setChecked(true);
        QCOMPARE(knob->pos(), on);
        toggle->setChecked(false);
        QCOMPARE(knob->pos(), QPoint(1, 0));
        QCOMPARE(clicked.count(), 0);

        QAccessibleInterface* iface = accessible(toggle);
        QCOMPARE(iface->role(), QAccessible::CheckBox);
        QCOMPARE(iface->text(QAccessible::Name), QStringLiteral("Auto Update"));
        QVERIFY(iface->state().checkable && !iface->state().checked && iface->state().focusable);
        QCOMPARE(toggle->focusPolicy(), Qt::TabFocus);
        QAccessibleActionInterface* act = iface->actionInterface();
        QVERIFY(act);
        QCOMPARE(act->actionNames().first(), QAccessibleActionInterface::toggleAction());
        act->doAction(QAccessibleActionInterface::toggleAction());
        QVERIFY(toggle->isChecked() && iface->state().checked);
        QCOMPARE(clicked.count(), 1);
        QCOMPARE(clicked.last().at(0).toBool(), true);

        // The slide must end before the next switch is taken.
        QTRY_COMPARE_WITH_TIMEOUT(knob->pos(), on, 5000);
        QTest::qWait(150);
        QCOMPARE(knob->pos(), on);
        QTest::keyClick(toggle, Qt::Key_Space);
        QVERIFY(!toggle->isChecked());
        QCOMPARE(clicked.count(), 2);
        QTest::keyClick(toggle, Qt::Key_A);
        QCOMPARE(clicked.count(), 2);
        QTRY_COMPARE_WITH_TIMEOUT(knob->pos(), QPoint(1, 0), 5000);
        QTest::qWait(150);

        page.show();
        QVERIFY(QTest::qWaitForWindowExposed(&page));
        QTest::mouseClick(toggle, Qt::LeftButton);
        QTest::mouseClick(toggle, Qt::LeftButton, Qt::NoModifier, QPoint(), 50);
        QCOMPARE(clicked.count(), 4);
        QCOMPARE(clicked.at(2).at(0).toBool(), true);
        QCOMPARE(clicked.at(3).at(0).toBool(), true);
        QVERIFY(toggle->isChecked());
        QTRY_COMPARE_WITH_TIMEOUT(knob->pos(), on, 5000);

        toggle->setEnabled(false);
        QVERIFY(act->actionNames().isEmpty());
        act->doAction(QAccessibleActionInterface::toggleAction());
        QCOMPARE(clicked.count(), 4);
    }

    // Pressing a button through its interface clicks it: released() fires, which the page
    // switch and most handlers hang on. Page tabs are page tabs whose only action is press.
    void buttons()
    {
        QWidget page;
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
        QVERIFY(entry->isChecked());
        QVERIFY(iface->state().checked);
        QVERIFY(entry->focusPolicy() & Qt::TabFocus);

        // A checkable button that is not a tab toggles; press comes first as the default.
        auto* unit = new QPushButton(QStringLiteral("°C"), &page);
        unit->setCheckable(true);
        QCOMPARE(accessible(unit)->role(), QAccessible::CheckBox);
        QCOMPARE(actions(unit)->actionNames(),
                 (QStringList{QAccessibleActionInterface::pressAction(),
                              QAccessibleActionInterface::toggleAction()}));

        // A button labelled from outside is named by the label and shows its caption as value.
        auto* caption = new QLabel(QStringLiteral("Language"), &page);
        auto* language = new QPushButton(QStringLiteral("en"), &page);
        caption->setBuddy(language);
        QCOMPARE(accessible(language)->text(QAccessible::Name), QStringLiteral("Language"));
        QCOMPARE(accessible(language)->text(QAccessible::Description), QStringLiteral("en"));

        // An explicit name wins; a caption-less button falls back to its tool tip.
        auto* close = new QPushButton(&page);
        close->setToolTip(QStringLiteral("Close window"));
        QCOMPARE(accessible(close)->text(QAccessible::Name), QStringLiteral("Close window"));
        close->setAccessibleName(QStringLiteral("Close"));
        QCOMPARE(accessible(close)->text(QAccessible::Name), QStringLiteral("Close"));

        QSignalSpy disabledRelease(close, &QPushButton::released);
        close->setEnabled(false);
        QVERIFY(actions(close)->actionNames().isEmpty());
        actions(close)->doAction(QAccessibleActionInterface::pressAction());
        QCOMPARE(disabledRelease.count(), 0);
    }

    void colorNames_data()
    {
        QTest::addColumn<QColor>("color");
        QTest::addColumn<QString>("name");
        QTest::newRow("red") << QColor(255, 0, 0) << "red";
        QTest::newRow("red wraps") << QColor(255, 0, 40) << "red";
        QTest::newRow("green") << QColor(0, 255, 0) << "green";
        QTest::newRow("blue") << QColor(0, 0, 255) << "blue";
        QTest::newRow("orange") << QColor(255, 128, 0) << "orange";
        QTest::newRow("yellow") << QColor(255, 230, 0) << "yellow";
        QTest::newRow("cyan") << QColor(0, 255, 255) << "cyan";
        QTest::newRow("purple") << QColor(140, 0, 255) << "purple";
        QTest::newRow("magenta") << QColor(255, 0, 200) << "magenta";
        QTest::newRow("white") << QColor(255, 255, 255) << "white";
        QTest::newRow("grey") << QColor(100, 100, 100) << "dark gray";
        QTest::newRow("light grey") << QColor(180, 180, 180) << "gray";
        QTest::newRow("black is off") << QColor(0, 0, 0) << "off";
        QTest::newRow("dark red") << QColor(90, 0, 0) << "dark red";
        QTest::newRow("pale blue") << QColor(150, 150, 255) << "pale blue";
    }

    void colorNames()
    {
        QFETCH(QColor, color);
        QFETCH(QString, name);
        QCOMPARE(ColorNames::describe(color), name);
    }

    // LED buttons are named by slot, row letter and the colour they show, and follow changes.
    void ledNames()
    {
        Memory_RGB_View strip;
        strip.setSlotNumber(1);
        strip.setLEDNumber(8);
        QCOMPARE(accessible(strip.btn_MemorySlot)->text(QAccessible::Name),
                 QStringLiteral("Slot 2"));
        QCOMPARE(accessible(strip.btn_Led[2])->text(QAccessible::Name),
                 QStringLiteral("Slot 2, LED C, green"));
        strip.setRGB(2, 0x0000FF, 1.0f);
        strip.slot_ChangeColorMode(1, 0);
        QCOMPARE(accessible(strip.btn_Led[2])->text(QAccessible::Name),
                 QStringLiteral("Slot 2, LED C, red"));
        QCOMPARE(accessible(strip.btn_Led[7])->text(QAccessible::Name),
                 QStringLiteral("Slot 2, LED H, green"));
        // Another slot's mode change leaves the names alone; an effect shows the LEDs inactive.
        strip.slot_ChangeColorMode(0, 2);
        QCOMPARE(accessible(strip.btn_Led[2])->text(QAccessible::Name),
                 QStringLiteral("Slot 2, LED C, red"));
        strip.slot_ChangeColorMode(1, 2);
        QCOMPARE(accessible(strip.btn_Led[2])->text(QAccessible::Name),
                 QStringLiteral("Slot 2, LED C, dark gray"));
        QCOMPARE(accessible(strip.btn_Led[0])->role(), QAccessible::CheckBox);
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
        QVERIFY(!centre.isEmpty());
        auto* mark = wheel->findChild<FocusRing*>();
        QVERIFY(mark && !mark->isVisible());

        before->setFocus(Qt::OtherFocusReason);
        QTRY_VERIFY(before->hasFocus());
        QTest::keyClick(before, Qt::Key_Tab);
        QTRY_VERIFY(wheel->hasFocus());
        QVERIFY(mark->isVisible());
        QVERIFY(mark->geometry().contains(wheel->keyboardCursor()));

        const QPoint start = wheel->keyboardCursor();
        QTest::keyClick(wheel, Qt::Key_Right);
        QCOMPARE(wheel->keyboardCursor(), start + QPoint(8, 0));
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
        QTRY_VERIFY(!wheel->hasFocus());
        QVERIFY(!mark->isVisible());
    }

    // The preview says what it shows, bar by bar, read when asked rather than on every frame.
    void previewValue()
    {
        Widget_Preview preview;
        QAccessibleInterface* iface = accessible(&preview);
        QCOMPARE(iface->role(), QAccessible::Graphic);
        QCOMPARE(iface->text(QAccessible::Value), QString());

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
        window.resize(300, 200);
        auto* layout = new QVBoxLayout(&window);
        auto* first = new QLineEdit(&window);
        auto* second = new QPushButton(QStringLiteral("Apply"), &window);
        layout->addWidget(first);
        layout->addWidget(second);
        window.show();
        QVERIFY(QTest::qWaitForWindowActive(&window));
        FocusTracker* tracker = FocusTracker::install();
        QCOMPARE(FocusTracker::install(), tracker);

        first->setFocus(Qt::OtherFocusReason);
        QTRY_VERIFY(first->hasFocus());
        QVERIFY(!tracker->target());
        const QImage plain = window.grab().toImage();

        QTest::keyClick(first, Qt::Key_Tab);
        QTRY_VERIFY(second->hasFocus());
        QCOMPARE(tracker->target(), second);
        FocusRing* ring = tracker->ring();
        QVERIFY(ring && ring->isVisible());
        QVERIFY(ring->geometry().contains(second->geometry()));
        QVERIFY(ring->geometry() != second->geometry());
        const QImage focused = window.grab().toImage();
        const QPoint edge = ring->geometry().topLeft() + QPoint(ring->width() / 2, 1);
        QCOMPARE(focused.pixelColor(edge).rgb(), FocusRing::Accent.rgb());
        QVERIFY(ring->testAttribute(Qt::WA_TransparentForMouseEvents));
        QVERIFY(accessible(ring)->state().invisible);
        QCOMPARE(accessible(ring)->childCount(), 0);

        // A mouse press hides the ring; the window then looks as it did without it.
        QTest::mouseClick(first, Qt::LeftButton);
        QVERIFY(!tracker->target());
        QVERIFY(!ring->isVisible());
        first->setFocus(Qt::OtherFocusReason);
        QCOMPARE(window.grab().toImage(), plain);

        // Back-tab shows it again; a focus the program moves hides it.
        QTest::keyClick(second, Qt::Key_Backtab);
        second->setFocus(Qt::TabFocusReason);
        QTRY_COMPARE(tracker->target(), second);
        first->setFocus(Qt::OtherFocusReason);
        QVERIFY(!tracker->target());
    }
};

QTEST_MAIN(TestAccessibility)
#include "tst_accessibility.moc"
