#include "Accessibility.h"
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

template <typename T> T* child(QWidget* page, const char* name)
{
    T* found = page->findChild<T*>(QLatin1String(name));
    Q_ASSERT(found);
    return found;
}

// The widget Tab moves to from `widget`.
QWidget* nextTabStop(QWidget* widget)
{
    for (QWidget* next = widget->nextInFocusChain(); next != widget;
         next = next->nextInFocusChain()) {
        if ((next->focusPolicy() & Qt::TabFocus) && next->isEnabled() &&
            next->isVisibleTo(next->window()))
            return next;
    }
    return nullptr;
}

// The widget Shift+Tab moves to from `widget`.
QWidget* previousTabStop(QWidget* widget)
{
    for (QWidget* previous = widget->previousInFocusChain(); previous != widget;
         previous = previous->previousInFocusChain()) {
        if ((previous->focusPolicy() & Qt::TabFocus) && previous->isEnabled() &&
            previous->isVisibleTo(previous->window()))
            return previous;
    }
    return nullptr;
}

void press(QObject* object)
{
    QAccessibleActionInterface* actions = accessible(object)->actionInterface();
    Q_ASSERT(actions);
    actions->doAction(actions->actionNames().value(0));
}

} // namespace

class TestPanelAccessibility : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase() { QStandardPaths::setTestModeEnabled(true); }
    void init()
    {
        extendedFeatures = false;
        isNewMode = false;
        programStarted = false;
        currentLanguage = 0;
        frame = std::make_unique<Main_View>();
    }
    void cleanup() { frame.reset(); }

    // The frame is a window; the menu entries are page tabs whose press shows their page; the
    // window buttons are named and reachable by Tab.
    void frameAndMenu()
    {
        QCOMPARE(accessible(frame.get())->role(), QAccessible::Window);
        QPushButton* const entries[] = {frame->btn_Info, frame->btn_Lighting, frame->btn_Noti,
                                        frame->btn_Setting};
        for (QPushButton* entry : entries) {
            QCOMPARE(accessible(entry)->role(), QAccessible::PageTab);
            QVERIFY(!nameOf(entry).isEmpty());
            QVERIFY(entry->focusPolicy() & Qt::TabFocus);
        }
        QCOMPARE(nameOf(frame->btn_Lighting), QStringLiteral("Lighting"));

        QVERIFY(!frame->lighting_View);
        press(frame->btn_Lighting);
        QVERIFY(frame->lighting_View && frame->lighting_View->isVisibleTo(frame.get()));
        QVERIFY(frame->btn_Lighting->isChecked());
        QVERIFY(accessible(frame->btn_Lighting)->state().checked);
        QVERIFY(!accessible(frame->btn_Info)->state().checked);

        press(frame->btn_Setting);
        QVERIFY(frame->setting_View->isVisibleTo(frame.get()));
        QVERIFY(!frame->lighting_View->isVisibleTo(frame.get()));

        QCOMPARE(nameOf(frame->btn_Close), QStringLiteral("Close"));
        QCOMPARE(nameOf(frame->btn_Min), QStringLiteral("Minimize"));
        QVERIFY(frame->btn_Close->focusPolicy() & Qt::TabFocus);
        // A mouse click still does not move the focus onto the window buttons.
        QVERIFY(!(frame->btn_Close->focusPolicy() & Qt::ClickFocus));
    }

    // Every switch is named by its caption, and the settings' language button by its purpose.
    void settingsAndNotifications()
    {
        frame->slot_show_Setting();
        Setting_View* settings = frame->setting_View;
        // Created in the order auto update, auto run, current location.
        const auto switches = settings->findChildren<SwitchButton*>();
        QCOMPARE(switches.size(), 3);
        QCOMPARE(nameOf(switches.at(0)), QStringLiteral("Auto Update"));
        QVERIFY(nameOf(switches.at(1)).startsWith(QStringLiteral("Run NORVALEX RGB")));
        QVERIFY(!nameOf(switches.at(2)).isEmpty());
        auto* language = child<QPushButton>(settings, "btn_Language");
        QCOMPARE(nameOf(language), QStringLiteral("Language"));
        QVERIFY(language->focusPolicy() & Qt::TabFocus);

        frame->slot_show_Noti();
        Noti_View* noti = frame->noti_View;
        auto* memorySwitch = child<SwitchButton>(noti, "switch_Shutdown_Memory");
        QCOMPARE(nameOf(memorySwitch), QStringLiteral("Memory, Shutdown PC"));
        auto* memoryEdit = child<QLineEdit>(noti, "lineEdit_Shutdown_Memory");
        QCOMPARE(nameOf(memoryEdit), QStringLiteral("Memory, Shutdown PC, threshold"));
        auto* memoryUnit = child<QPushButton>(noti, "btn_Unit_Memory");
        QVERIFY(nameOf(memoryUnit).startsWith(QStringLiteral("Memory, Shutdown PC")));

        // Tab goes along the row: switch, threshold, unit, then the next row's switch.
        QCOMPARE(nextTabStop(memorySwitch), memoryEdit);
        QCOMPARE(nextTabStop(memoryEdit), memoryUnit);
        QCOMPARE(nextTabStop(memoryUnit), child<SwitchButton>(noti, "switch_Shutdown_CPU"));

        // Return in a threshold keeps the focus on the page: it moves to the unit.
        frame->show();
        QVERIFY(QTest::qWaitForWindowActive(frame.get()));
        memoryEdit->setFocus(Qt::TabFocusReason);
        QTRY_VERIFY(memoryEdit->hasFocus());
        memoryEdit->setText(QStringLiteral("70"));
        QTest::keyClick(memoryEdit, Qt::Key_Return);
        QTRY_VERIFY(memoryUnit->hasFocus());
    }

    // On the lighting page the combos, sliders, edits and the mode button are named by their
    // purpose, not by their current value.
    void lightingControls()
    {
        frame->slot_show_Lighting();
        Lighting_View* page = frame->lighting_View;
        // A combo box is labelled by its caption and shows its item as value.
        auto* colorMode = child<QComboBox>(page, "comboBox_ColorMode");
        const auto labels = accessible(colorMode)->relations(QAccessible::Label);
        QCOMPARE(labels.size(), 1);
        QCOMPARE(labels.first().first->text(QAccessible::Name), QStringLiteral("Color Mode"));
        QCOMPARE(accessible(colorMode)->text(QAccessible::Value), colorMode->currentText());
        QCOMPARE(colorMode->accessibleName(), QStringLiteral("Color Mode"));
        QCOMPARE(child<QComboBox>(page, "comboBox_LightSpeed")->accessibleName(),
                 QStringLiteral("Light Speed"));
        QCOMPARE(nameOf(child<QSlider>(page, "slider_Light")), QStringLiteral("Brightness"));
        QCOMPARE(nameOf(child<SwitchButton>(page, "switchButton")), QStringLiteral("Light Switch"));
        auto* mode = child<QPushButton>(page, "btn_LightMode");
        QCOMPARE(nameOf(mode), QStringLiteral("Light Mode"));
        QVERIFY(mode->focusPolicy() & Qt::TabFocus);
        QCOMPARE(nameOf(child<QSlider>(page, "slider_R_Value")), QStringLiteral("Red"));
        QCOMPARE(nameOf(child<QLineEdit>(page, "lineEdit_B_Value")), QStringLiteral("Blue"));
        for (int id = 0; id < 5; ++id) {
            const QByteArray name = "btn_Profile" + QByteArray::number(id);
            auto* profile = child<QPushButton>(page, name.constData());
            QVERIFY(profile->focusPolicy() & Qt::TabFocus);
            QCOMPARE(nameOf(profile), QStringLiteral("Profile %1").arg(id + 1));
        }

        const auto rows = page->findChildren<QPushButton*>(QStringLiteral("btn_SelectHorizontal"));
        QCOMPARE(rows.size(), 8);
        QCOMPARE(nameOf(rows.first()), QStringLiteral("LED row A"));
        QCOMPARE(nameOf(rows.last()), QStringLiteral("LED row H"));
        QVERIFY(rows.first()->focusPolicy() & Qt::TabFocus);

        // Return in a channel field hands the focus to the channel's slider.
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
    }

    // A language switch renames what is named from code, not only the captions: window buttons,
    // notification rows, LED rows, LEDs and their colours, the gauge.
    void namesFollowTheLanguage()
    {
        frame->slot_show_Noti();
        frame->slot_show_Lighting();
        Lighting_View* page = frame->lighting_View;
        Memory_RGB_View* strip = nullptr;
        for (Memory_RGB_View* candidate : page->findChildren<Memory_RGB_View*>())
            if (candidate->slotNumber == 1)
                strip = candidate;
        QVERIFY(strip);
        QCOMPARE(nameOf(strip->btn_MemorySlot), QStringLiteral("Slot 2"));
        QCOMPARE(nameOf(strip->btn_Led[2]).left(14), QStringLiteral("Slot 2, LED C,"));

        const int german = Languages::codeForIndex(3) == QLatin1String("de") ? 3 : -1;
        QVERIFY(german >= 0);
        QTranslator translator;
        QVERIFY(translator.load(Languages::fileForIndex(german)));
        QCoreApplication::installTranslator(&translator);
        currentLanguage = german;
        frame->updateLanguage_MainView();

        QCOMPARE(nameOf(frame->btn_Close), QStringLiteral("Schließen"));
        QCOMPARE(nameOf(frame->btn_Min), QStringLiteral("Minimieren"));
        QCOMPARE(nameOf(child<QPushButton>(page, "btn_LightMode")), QStringLiteral("Lichtmodus"));
        QCOMPARE(nameOf(child<QSlider>(page, "slider_R_Value")), QStringLiteral("Rot"));
        QCOMPARE(
            nameOf(
                page->findChildren<QPushButton*>(QStringLiteral("btn_SelectHorizontal")).first()),
            QStringLiteral("LED-Reihe A"));
        // Strips rename themselves on the language change the new translator posts.
        QTRY_COMPARE(nameOf(strip->btn_MemorySlot), QStringLiteral("Steckplatz 2"));
        QVERIFY2(nameOf(strip->btn_Led[2]).startsWith(QStringLiteral("Steckplatz 2, LED C, ")),
                 qPrintable(nameOf(strip->btn_Led[2])));
        QCOMPARE(nameOf(child<QLineEdit>(frame->noti_View, "lineEdit_Shutdown_Memory")),
                 QStringLiteral("Speicher, fordert zum Herunterfahren des PCs auf, um Schäden zu "
                                "vermeiden, Schwellenwert"));
        auto* gauge =
            frame->information_View->findChild<QWidget*>(QStringLiteral("gauge_MemoryLoad"));
        QCOMPARE(nameOf(gauge), QStringLiteral("Last"));

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
            if (widget != mode && nextTabStop(widget) == mode)
                before = widget;
        QVERIFY(before);
        before->setFocus(Qt::TabFocusReason);
        QTRY_VERIFY(before->hasFocus());
        QTest::keyClick(before, Qt::Key_Tab);
        QTRY_VERIFY(mode->hasFocus());
        QTest::keyClick(mode, Qt::Key_Space);
        QTRY_VERIFY(list->isVisible() && list->hasFocus());
        QVERIFY(list->highlighted() >= 0);
        const int first = list->highlighted();
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

    // On every page Tab runs menu, page, minimise, close and back to the menu, also for pages
    // created after the window buttons.
    void windowButtonsComeLast()
    {
        void (Main_View::*const pages[])() = {
            &Main_View::slot_show_Info, &Main_View::slot_show_Lighting, &Main_View::slot_show_Noti,
            &Main_View::slot_show_Setting, &Main_View::slot_show_Lighting};
        for (const auto page : pages) {
            (frame.get()->*page)();
            QCOMPARE(nextTabStop(frame->btn_Min), frame->btn_Close);
            QCOMPARE(nextTabStop(frame->btn_Close), frame->btn_Info);
            QWidget* shown = nullptr;
            for (QWidget* candidate : {static_cast<QWidget*>(frame->information_View),
                                       static_cast<QWidget*>(frame->lighting_View),
                                       static_cast<QWidget*>(frame->noti_View),
                                       static_cast<QWidget*>(frame->setting_View)})
                if (candidate && candidate->isVisibleTo(frame.get()))
                    shown = candidate;
            QVERIFY(shown);
            QWidget* beforeMin = previousTabStop(frame->btn_Min);
            // The information page holds nothing to operate.
            const bool pageBefore = shown == frame->information_View
                                        ? beforeMin == frame->btn_Setting
                                        : shown->isAncestorOf(beforeMin);
            QVERIFY2(pageBefore,
                     qPrintable(beforeMin ? beforeMin->objectName() : QStringLiteral("none")));
        }
    }

    // The load gauge is a progress bar named "Load" whose value follows the data; unknown load
    // reads as N/A rather than a made-up figure.
    void loadGauge()
    {
        Information_View* page = frame->information_View;
        QVERIFY(page);
        auto* gauge = page->findChild<QWidget*>(QStringLiteral("gauge_MemoryLoad"));
        QVERIFY(gauge);
        QAccessibleInterface* iface = accessible(gauge);
        QCOMPARE(iface->role(), QAccessible::ProgressBar);
        QCOMPARE(iface->text(QAccessible::Name), QStringLiteral("Load"));
        QVERIFY(gauge->testAttribute(Qt::WA_TransparentForMouseEvents));

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
