// The panel's own names, Tab order and keyboard paths. Widget kinds (switches, page tabs,
// LEDs, the wheel) are checked in tests/widgets, the panel on a real AT-SPI bus in tests/atspi.
#include "AppGlobals.h"
#include "Information_View.h"
#include "Languages.h"
#include "Lighting_View.h"
#include "Main_View.h"
#include "Memory_RGB_View.h"
#include "Noti_View.h"
#include "Setting_View.h"
#include "SwitchButton.h"
#include "Widget_Light_Mode_View.h"

#include <QAccessible>
#include <QComboBox>
#include <QLineEdit>
#include <QPushButton>
#include <QSlider>
#include <QStandardPaths>
#include <QTranslator>
#include <QtTest>

#include <memory>

namespace {

QString nameOf(QObject* object)
{
    return QAccessible::queryAccessibleInterface(object)->text(QAccessible::Name);
}

template <typename T = QWidget> T* child(QWidget* page, const char* name)
{
    T* found = page->findChild<T*>(QLatin1String(name));
    Q_ASSERT(found);
    return found;
}

// The widget Tab (or Shift+Tab) moves to from `widget`.
QWidget* tabStop(QWidget* widget, bool forward = true)
{
    for (QWidget* next = forward ? widget->nextInFocusChain() : widget->previousInFocusChain();
         next != widget; next = forward ? next->nextInFocusChain() : next->previousInFocusChain()) {
        if ((next->focusPolicy() & Qt::TabFocus) && next->isEnabled() &&
            next->isVisibleTo(next->window()))
            return next;
    }
    return nullptr;
}

} // namespace

class TestPanelAccessibility : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase() { QStandardPaths::setTestModeEnabled(true); }
    void init()
    {
        extendedFeatures = isNewMode = programStarted = false;
        currentLanguage = 0;
        frame = std::make_unique<Main_View>();
    }
    void cleanup() { frame.reset(); }

    // On every page Tab runs menu, page, minimise, close and back to the menu, also for pages
    // created after the window buttons; a mouse click does not focus the window buttons.
    void windowButtonsComeLast()
    {
        QVERIFY(!(frame->btn_Close->focusPolicy() & Qt::ClickFocus));
        void (Main_View::*const pages[])() = {
            &Main_View::slot_show_Info, &Main_View::slot_show_Lighting, &Main_View::slot_show_Noti,
            &Main_View::slot_show_Setting, &Main_View::slot_show_Lighting};
        for (const auto page : pages) {
            (frame.get()->*page)();
            QCOMPARE(tabStop(frame->btn_Min), frame->btn_Close);
            QCOMPARE(tabStop(frame->btn_Close), frame->btn_Info);
            QWidget* shown = nullptr;
            for (QWidget* candidate : {static_cast<QWidget*>(frame->information_View),
                                       static_cast<QWidget*>(frame->lighting_View),
                                       static_cast<QWidget*>(frame->noti_View),
                                       static_cast<QWidget*>(frame->setting_View)})
                if (candidate && candidate->isVisibleTo(frame.get()))
                    shown = candidate;
            QVERIFY(shown);
            QWidget* beforeMin = tabStop(frame->btn_Min, false);
            // The information page holds nothing to operate.
            QVERIFY(shown == frame->information_View ? beforeMin == frame->btn_Setting
                                                     : shown->isAncestorOf(beforeMin));
        }

        // A click on the frame gives it the focus; Tab then starts at the menu, Shift+Tab at
        // the close button.
        frame->show();
        QVERIFY(QTest::qWaitForWindowActive(frame.get()));
        frame->setFocus(Qt::MouseFocusReason);
        QTRY_VERIFY(frame->hasFocus());
        QTest::keyClick(frame.get(), Qt::Key_Tab);
        QTRY_VERIFY(frame->btn_Info->hasFocus());
        frame->setFocus(Qt::MouseFocusReason);
        QTRY_VERIFY(frame->hasFocus());
        QTest::keyClick(frame.get(), Qt::Key_Backtab, Qt::ShiftModifier);
        QTRY_VERIFY(frame->btn_Close->hasFocus());
    }

    // A notification row is named by its rule and read along by Tab; Return in a threshold
    // keeps the focus on the page by moving it to the unit.
    void notificationRow()
    {
        frame->slot_show_Noti();
        Noti_View* noti = frame->noti_View;
        auto* memorySwitch = child<SwitchButton>(noti, "switch_Shutdown_Memory");
        auto* memoryEdit = child<QLineEdit>(noti, "lineEdit_Shutdown_Memory");
        auto* memoryUnit = child<QPushButton>(noti, "btn_Unit_Memory");
        QCOMPARE(nameOf(memorySwitch), QStringLiteral("Memory, Shutdown PC"));
        QCOMPARE(nameOf(memoryEdit), QStringLiteral("Memory, Shutdown PC, threshold"));
        QVERIFY(nameOf(memoryUnit).startsWith(QStringLiteral("Memory, Shutdown PC")));
        QCOMPARE(tabStop(memorySwitch), memoryEdit);
        QCOMPARE(tabStop(memoryEdit), memoryUnit);
        QCOMPARE(tabStop(memoryUnit), child(noti, "switch_Shutdown_CPU"));

        frame->show();
        QVERIFY(QTest::qWaitForWindowActive(frame.get()));
        memoryEdit->setFocus(Qt::TabFocusReason);
        QTRY_VERIFY(memoryEdit->hasFocus());
        memoryEdit->setText(QStringLiteral("70"));
        QTest::keyClick(memoryEdit, Qt::Key_Return);
        QTRY_VERIFY(memoryUnit->hasFocus());
    }

    // The lighting page's controls are named by their purpose, not their value, and follow a
    // language switch; Return in a channel field hands the focus to the channel's slider.
    void lightingNamesInTwoLanguages()
    {
        frame->slot_show_Lighting();
        Lighting_View* page = frame->lighting_View;
        auto* colorMode = child<QComboBox>(page, "comboBox_ColorMode");
        QAccessibleInterface* combo = QAccessible::queryAccessibleInterface(colorMode);
        const auto labels = combo->relations(QAccessible::Label);
        QCOMPARE(labels.size(), 1);
        QCOMPARE(labels.first().first->text(QAccessible::Name), QStringLiteral("Color Mode"));
        QCOMPARE(combo->text(QAccessible::Value), colorMode->currentText());
        QCOMPARE(child<QComboBox>(page, "comboBox_LightSpeed")->accessibleName(),
                 QStringLiteral("Light Speed"));
        const auto rows = page->findChildren<QPushButton*>(QStringLiteral("btn_SelectHorizontal"));
        QCOMPARE(rows.size(), 8);
        QVERIFY(rows.first()->focusPolicy() & Qt::TabFocus);
        const std::pair<QObject*, const char*> english[] = {
            {child(page, "slider_Light"), "Brightness"},
            {child(page, "switchButton"), "Light Switch"},
            {child(page, "btn_LightMode"), "Light Mode"},
            {child(page, "slider_R_Value"), "Red"},
            {child(page, "lineEdit_B_Value"), "Blue"},
            {child(page, "btn_Profile4"), "Profile 5"},
            {rows.first(), "LED row A"},
            {rows.last(), "LED row H"},
            {frame->btn_Close, "Close"},
            {frame->btn_Min, "Minimize"}};
        for (const auto& [object, name] : english)
            QCOMPARE(nameOf(object), QString::fromUtf8(name));

        frame->show();
        QVERIFY(QTest::qWaitForWindowActive(frame.get()));
        auto* green = child<QLineEdit>(page, "lineEdit_G_Value");
        green->setFocus(Qt::TabFocusReason);
        QTRY_VERIFY(green->hasFocus());
        green->setText(QStringLiteral("40"));
        QTest::keyClick(green, Qt::Key_Return);
        auto* greenSlider = child<QSlider>(page, "slider_G_Value");
        QTRY_VERIFY(greenSlider->hasFocus());
        QCOMPARE(greenSlider->value(), 40);

        // Names made in code follow the language too: window buttons, rows, strips, the gauge.
        frame->slot_show_Noti();
        Memory_RGB_View* strip = nullptr;
        for (Memory_RGB_View* candidate : page->findChildren<Memory_RGB_View*>())
            if (candidate->slotNumber == 1)
                strip = candidate;
        QVERIFY(strip);
        QCOMPARE(Languages::codeForIndex(3), QStringLiteral("de"));
        QTranslator translator;
        QVERIFY(translator.load(Languages::fileForIndex(3)));
        QCoreApplication::installTranslator(&translator);
        currentLanguage = 3;
        frame->updateLanguage_MainView();
        const std::pair<QObject*, const char*> german[] = {
            {frame->btn_Close, "Schließen"},
            {frame->btn_Min, "Minimieren"},
            {child(page, "btn_LightMode"), "Lichtmodus"},
            {child(page, "slider_R_Value"), "Rot"},
            {rows.first(), "LED-Reihe A"},
            {child(frame->information_View, "gauge_MemoryLoad"), "Last"},
            {child(frame->noti_View, "lineEdit_Shutdown_Memory"),
             "Speicher, fordert zum Herunterfahren des PCs auf, um Schäden zu vermeiden, "
             "Schwellenwert"}};
        for (const auto& [object, name] : german)
            QCOMPARE(nameOf(object), QString::fromUtf8(name));
        // Strips rename themselves on the language change the new translator posts.
        QTRY_COMPARE(nameOf(strip->btn_MemorySlot), QStringLiteral("Steckplatz 2"));
        QVERIFY2(nameOf(strip->btn_Led[2]).startsWith(QStringLiteral("Steckplatz 2, LED C, ")),
                 qPrintable(nameOf(strip->btn_Led[2])));
        QCoreApplication::removeTranslator(&translator);
        currentLanguage = 0;
    }

    // The light-mode list by keyboard: Space on the mode button opens it with the current mode
    // highlighted, the arrows and Return pick a mode, Escape closes it; either way the focus is
    // back on the mode button. A mouse user sees no highlight.
    void lightModeListByKeyboard()
    {
        frame->slot_show_Lighting();
        frame->show();
        QVERIFY(QTest::qWaitForWindowActive(frame.get()));
        Lighting_View* page = frame->lighting_View;
        auto* mode = child<QPushButton>(page, "btn_LightMode");
        auto* list = page->findChild<Widget_Light_Mode_View*>();
        QVERIFY(list);
        QSignalSpy picked(list, &Widget_Light_Mode_View::selectLightMode);

        // Tab reaches the mode button (Qt's chain skips a widget with a focus proxy).
        QWidget* before = nullptr;
        for (QWidget* widget : page->findChildren<QWidget*>())
            if (widget != mode && widget->isVisible() && tabStop(widget) == mode)
                before = widget;
        QVERIFY(before);
        before->setFocus(Qt::TabFocusReason);
        QTRY_VERIFY(before->hasFocus());
        QTest::keyClick(before, Qt::Key_Tab);
        QTRY_VERIFY(mode->hasFocus());
        QTest::keyClick(mode, Qt::Key_Space);
        QTRY_VERIFY(list->isVisible() && list->hasFocus());
        const int first = list->highlighted();
        QVERIFY(first >= 0);
        QTest::keyClick(list, Qt::Key_Down);
        const int chosen = list->highlighted();
        QVERIFY(chosen != first);
        QTest::keyClick(list, Qt::Key_Return);
        QCOMPARE(picked.count(), 1);
        QCOMPARE(picked.at(0).at(0).toInt(), chosen);
        QTRY_VERIFY(list->isHidden());
        QTRY_VERIFY(mode->hasFocus());

        QTest::keyClick(mode, Qt::Key_Space);
        QTRY_VERIFY(list->isVisible() && list->hasFocus());
        QTest::keyClick(list, Qt::Key_Escape);
        QTRY_VERIFY(list->isHidden());
        QTRY_VERIFY(mode->hasFocus());
        QCOMPARE(picked.count(), 1);

        // The mouse opens it without a highlight, and a second click closes it.
        frame->setFocus(Qt::OtherFocusReason);
        QTest::mouseClick(mode, Qt::LeftButton);
        QTRY_VERIFY(list->isVisible() && list->hasFocus());
        QCOMPARE(list->highlighted(), -1);
        QTest::mouseClick(mode, Qt::LeftButton);
        QTRY_VERIFY(list->isHidden());
    }

    // The load gauge's value follows the data; unknown load reads as N/A rather than a made-up
    // figure.
    void loadGauge()
    {
        Information_View* page = frame->information_View;
        auto* gauge = child(page, "gauge_MemoryLoad");
        QVERIFY(gauge->testAttribute(Qt::WA_TransparentForMouseEvents));
        QAccessibleInterface* iface = QAccessible::queryAccessibleInterface(gauge);
        HWData data{};
        data.memoryLoad = 42.6;
        page->setHWData(data);
        QCOMPARE(iface->text(QAccessible::Value), QStringLiteral("43%"));
        data.memoryLoad = -1;
        page->setHWData(data);
        QCOMPARE(iface->text(QAccessible::Value), QStringLiteral("N/A"));
    }

private:
    std::unique_ptr<Main_View> frame;
};

QTEST_MAIN(TestPanelAccessibility)
#include "tst_panel_accessibility.moc"
