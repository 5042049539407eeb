// The frame: its pages, messages, loading overlay and window behaviour, and its own names, Tab
// order and keyboard paths. Widget kinds (switches, page tabs, LEDs, the wheel) are checked in
// tests/widgets, the panel on a real AT-SPI bus in tests/atspi.
#include "AppGlobals.h"
#include "Information_Slots_View.h"
#include "Information_View.h"
#include "Languages.h"
#include "Lighting_View.h"
#include "Loading_View.h"
#include "Main_View.h"
#include "Memory_RGB_View.h"
#include "Noti_View.h"
#include "Platform.h"
#include "QuitRequest.h"
#include "Setting_View.h"
#include "SwitchButton.h"
#include "TestEnvironment.h"
#include "Widget_Light_Mode_View.h"

#include <QAccessible>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QStandardPaths>
#include <QTranslator>
#include <QtTest>

#include <memory>

namespace {

// Each message a window receives as "message wParam lParam", the message in hex.
void record(void* context, unsigned message, std::uintptr_t wParam, std::intptr_t lParam)
{
    *static_cast<QStringList*>(context)
        << QStringLiteral("%1 %2 %3").arg(message, 0, 16).arg(wParam).arg(lParam);
}

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

class TestMainView : public QObject
{
    Q_OBJECT

    std::unique_ptr<Main_View> frame;

    // The requests the frame sends to the controller while it shows the page of `entry`, or
    // while it refreshes the visible page when `entry` is null.
    QStringList requestsFor(QPushButton* entry)
    {
        QStringList requests;
        QObject context;
        const std::pair<void (Main_View::*)(), const char*> tracked[] = {
            {&Main_View::requestSetSlotNum, "slotNum"},
            {&Main_View::requestSetLEDNum, "ledNum"},
            {&Main_View::requestSetRGB, "rgb"},
            {&Main_View::requestSetLighting, "lighting"},
            {&Main_View::requestSetProfile, "profile"},
            {&Main_View::requestNotiData, "noti"},
            {&Main_View::requestSettingData, "setting"},
            {&Main_View::updateLanguage, "language"}};
        for (const auto& [signal, name] : tracked)
            connect(frame.get(), signal, &context,
                    [&requests, name = name]() { requests << name; });
        if (entry)
            QTest::mouseClick(entry, Qt::LeftButton);
        else
            frame->updateViewData();
        return requests;
    }

private slots:
    void initTestCase() { QStandardPaths::setTestModeEnabled(true); }
    void init()
    {
        extendedFeatures = isNewMode = programStarted = false;
        currentLanguage = 0;
        frame = std::make_unique<Main_View>();
    }
    void cleanup() { frame.reset(); }

    // Each entry shows its page, created on first use, hides the others and asks the controller for
    // what the page shows; the pages and the controller talk through the frame.
    void pageSwitching()
    {
        frame->show();
        frame->setQXModuleType({QStringLiteral("KX44")});
        frame->setSlotNumber(4, 4);
        QVERIFY(frame->information_View && !frame->lighting_View && !frame->noti_View &&
                !frame->setting_View);

        QCOMPARE(requestsFor(frame->btn_Noti), (QStringList{"noti", "language"}));
        QVERIFY(frame->noti_View->isVisible() && frame->information_View->isHidden());
        QCOMPARE(requestsFor(nullptr), QStringList{"noti"});

        QCOMPARE(requestsFor(frame->btn_Lighting),
                 (QStringList{"slotNum", "ledNum", "rgb", "lighting", "profile", "language"}));
        Lighting_View* lighting = frame->lighting_View;
        QVERIFY(lighting->isVisible() && frame->noti_View->isHidden());
        QCOMPARE(requestsFor(nullptr), (QStringList{"slotNum", "rgb", "lighting", "profile"}));
        emit frame->setProfile(2);
        QVERIFY(lighting->findChild<QPushButton*>("btn_Profile2")->isChecked());

        QCOMPARE(requestsFor(frame->btn_Setting), QStringList{"setting"});
        QVERIFY(frame->setting_View->isVisible() && lighting->isHidden());
        QCOMPARE(requestsFor(frame->btn_Info), QStringList());
        QVERIFY(frame->information_View->isVisible() && frame->setting_View->isHidden());
        // The load reaches the Information page; unknown load reads as N/A, not a made-up figure.
        QAccessibleInterface* gauge = QAccessible::queryAccessibleInterface(
            child(frame->information_View, "gauge_MemoryLoad"));
        HWData data{};
        data.memoryLoad = 42.6;
        emit frame->setHWData(data);
        QCOMPARE(child<QLabel>(frame->information_View, "label_Percent")->text(),
                 QStringLiteral("42.60"));
        QCOMPARE(gauge->text(QAccessible::Value), QStringLiteral("43%"));
        data.memoryLoad = -1;
        emit frame->setHWData(data);
        QCOMPARE(gauge->text(QAccessible::Value), QStringLiteral("N/A"));

        // Each page is created once. Leaving Lighting in the middle of a slot edit cancels the
        // edit, and only then.
        Noti_View* noti = frame->noti_View;
        QSignalSpy cancels(lighting->btn_Edit_Cancel, &QPushButton::released);
        requestsFor(frame->btn_Lighting);
        requestsFor(frame->btn_Noti);
        QVERIFY(frame->lighting_View == lighting && frame->noti_View == noti);
        QCOMPARE(cancels.count(), 0);
        requestsFor(frame->btn_Lighting);
        QTest::mouseClick(lighting->btn_Edit, Qt::LeftButton);
        QVERIFY(lighting->btn_Edit_Cancel->isVisible());
        requestsFor(frame->btn_Setting);
        QCOMPARE(cancels.count(), 1);
        QVERIFY(lighting->btn_Edit_Cancel->isHidden() && !lighting->btn_Edit->isHidden());
    }

    // The title strip drags the window, down to its last row and up to the window buttons'
    // column; after the release, moving the mouse leaves the window where it is.
    void dragging()
    {
        frame->move(100, 100);
        frame->show();
        QVERIFY(QTest::qWaitForWindowExposed(frame.get()));
        QWindow* window = frame->windowHandle();
        const QPoint delta(30, 12);
        for (const auto& [press, moves] :
             {std::pair(QPoint(300, 44), true), std::pair(QPoint(300, 45), false),
              std::pair(QPoint(925, 5), false)}) {
            const QPoint start = frame->pos();
            QTest::mousePress(window, Qt::LeftButton, Qt::NoModifier, press);
            QTest::mouseMove(window, press + delta);
            QCOMPARE(frame->pos(), moves ? start + delta : start);
            QTest::mouseRelease(window, Qt::LeftButton, Qt::NoModifier, press + delta);
            const QPoint afterRelease = frame->pos();
            QTest::mouseMove(window, press + delta + delta);
            QCOMPARE(frame->pos(), afterRelease);
        }
    }

    // Lighting is offered for the supported codes, also inside a model text (case matters);
    // KX44 raises isNewMode. Each list decides extendedFeatures afresh; isNewMode is never
    // lowered.
    void moduleTypes()
    {
        const struct {
            QStringList types;
            bool extended, newMode;
        } cases[] = {{{"", "KZ74-8G"}, true, false},
                     {{"", "NVX-KX44-16G"}, true, true},
                     {{"DDR4-3200", "kx44", "KZ70"}, false, true}};
        for (const auto& c : cases) {
            frame->setQXModuleType(c.types);
            QCOMPARE(extendedFeatures, c.extended);
            QCOMPARE(isNewMode, c.newMode);
            QCOMPARE(frame->btn_Lighting->isHidden(), !c.extended);
        }
    }

    // Loading ends also without a module; the missing-module warning is never left on screen, and
    // the Information grid shows the slots.
    void slotNumbers()
    {
        frame->show();
        frame->setSlotNumber(4, 0);
        Loading_View* loading = frame->loading_View;
        QVERIFY(loading->isHidden() && !loading->loading() && !loading->spinnerTimer()->isActive());
        QVERIFY(!loading->label_Warning->isVisible());
        Information_Slots_View* grid = frame->information_View->slotsView();
        for (int number = 1; number <= 8; ++number)
            QCOMPARE(grid->findChild<QPushButton*>(QString::number(number))->isVisible(),
                     number <= 4);
    }

    // The loading overlay's warning, made before the stored language is known, follows a
    // language change.
    void loadingWarningFollowsTheLanguage()
    {
        Loading_View view;
        QTranslator german;
        QVERIFY(german.load(QStringLiteral(":/QXRGBMemory/NORVALEX_de.qm")));
        QCoreApplication::installTranslator(&german);
        QTRY_COMPARE(view.label_Warning_Content->text(),
                     QStringLiteral("Kein NORVALEX-Speichermodul gefunden"));
        QCoreApplication::removeTranslator(&german);
        QTRY_COMPARE(view.label_Warning_Content->text(),
                     QStringLiteral("Can not Find QX NORVALEX"));
    }

    // The background is the resource's picture pixel for pixel, as Qt's own reader decodes it.
    // The frame carries the application icon in the small sizes task bars use, from its first
    // picture on, or from its show when it starts minimised and paints nothing; X11 takes every
    // size in one _NET_WM_ICON request of at most 65535 words.
    void framePictures()
    {
        const QImage background = frame->palette().brush(QPalette::Window).texture().toImage();
        const QImage resource = QImage(QStringLiteral(":/QXRGBMemory/Images/Main_BG.png"));
        QCOMPARE(background.size(), QSize(1000, 600));
        QVERIFY(background.convertToFormat(QImage::Format_RGB32) ==
                resource.convertToFormat(QImage::Format_RGB32));

        const auto iconSizes = [](QWidget* window) {
            return window->windowIcon().availableSizes();
        };
        QVERIFY(iconSizes(frame.get()).isEmpty());
        frame->show();
        QVERIFY(QTest::qWaitForWindowExposed(frame.get()));
        QTRY_VERIFY(iconSizes(frame.get()).contains(QSize(16, 16)));
        const QList<QSize> sizes = iconSizes(frame.get());
        QVERIFY(sizes.contains(QSize(32, 32)));
        int words = 0;
        for (const QSize& size : sizes)
            words += 2 + size.width() * size.height();
        QVERIFY2(words <= 65535, qPrintable(QString::number(words)));

        Main_View minimised;
        minimised.setWindowState(Qt::WindowMinimized);
        minimised.show();
        QTRY_VERIFY(iconSizes(&minimised).contains(QSize(16, 16)));
    }

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
            QWidget* shown = frame->information_View;
            for (QWidget* p :
                 QList<QWidget*>{frame->lighting_View, frame->noti_View, frame->setting_View})
                shown = p && p->isVisibleTo(frame.get()) ? p : shown;
            // The information page holds nothing to operate.
            QWidget* beforeMin = tabStop(frame->btn_Min, false);
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
        QCOMPARE(nameOf(memoryEdit), QStringLiteral("Memory, Shutdown PC, threshold"));
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

    // The lighting page's controls are named by their purpose, not their value; names made in
    // code follow a language switch.
    void lightingNamesInTwoLanguages()
    {
        frame->slot_show_Lighting();
        Lighting_View* page = frame->lighting_View;
        const auto labels = QAccessible::queryAccessibleInterface(child(page, "comboBox_ColorMode"))
                                ->relations(QAccessible::Label);
        QCOMPARE(labels.size(), 1);
        QCOMPARE(labels.first().first->text(QAccessible::Name), QStringLiteral("Color Mode"));
        const auto rows = page->findChildren<QPushButton*>(QStringLiteral("btn_SelectHorizontal"));
        QCOMPARE(nameOf(rows.last()), QStringLiteral("LED row H"));

        // Names made in code follow the language too: window buttons, rows, strips, the gauge.
        frame->slot_show_Noti();
        Memory_RGB_View* strip = nullptr;
        for (Memory_RGB_View* candidate : page->findChildren<Memory_RGB_View*>())
            if (candidate->slotNumber == 1)
                strip = candidate;
        QVERIFY(strip);
        QTranslator translator;
        QVERIFY(translator.load(Languages::fileForIndex(3)));
        QCoreApplication::installTranslator(&translator);
        currentLanguage = 3;
        frame->updateLanguage_MainView();
        QCOMPARE(nameOf(frame->btn_Close), QStringLiteral("Schließen"));
        QCOMPARE(nameOf(rows.first()), QStringLiteral("LED-Reihe A"));
        // Strips rename themselves on the language change the new translator posts.
        QTRY_COMPARE(nameOf(strip->btn_MemorySlot), QStringLiteral("Steckplatz 2"));
        QVERIFY(nameOf(strip->btn_Led[2]).startsWith(QStringLiteral("Steckplatz 2, LED C, ")));
        QCoreApplication::removeTranslator(&translator);
        currentLanguage = 0;
    }

    // The light-mode list by keyboard: Tab reaches the mode button, Space opens the list with the
    // current mode highlighted, the arrows and Return pick a mode, and the focus is back on the
    // mode button.
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
    }

    void closeAppTellsTheRunningPrograms()
    {
        frame.reset(); // it listens under the panel's name
        QStringList panel;
        QStringList control;
        void* panelWindow = Platform::listenForMessages(L"NORVALEX RGB", &record, &panel);
        void* controlWindow =
            Platform::listenForMessages(L"NORVALEX RGB Control", &record, &control);

        Loading_View view;
        view.show();
        view.isProductWarning(true);
        const auto clickOK = [&view]() { QTest::mouseClick(view.btn_OK, Qt::LeftButton); };

        // Neither program holds its name: nobody is told, the application still quits.
        QVERIFY(QuitRequest::during(clickOK, 3000));
        QVERIFY(panel.isEmpty() && control.isEmpty());

        // Both running: each window gets the quit message with 1, 1.
        bool existed = true;
        Platform::MutexHandle panelName = Platform::createMutex(L"NORVALEX RGB.exe", &existed);
        Platform::MutexHandle controlName =
            Platform::createMutex(L"NORVALEX Control.exe", &existed);
        QVERIFY(!existed);
        QVERIFY(QuitRequest::during(clickOK, 3000));
        QCOMPARE(panel, QStringList{"8301 1 1"});
        QCOMPARE(control, QStringList{"8301 1 1"});

        Platform::closeHandle(panelName);
        Platform::closeHandle(controlName);
        Platform::stopListening(controlWindow);
        Platform::stopListening(panelWindow);
    }

    void nativeMessages()
    {
        // 0x8302 brings the window back, also from the task bar.
        const Platform::WindowHandle window = Platform::findWindow(L"NORVALEX RGB");
        QVERIFY(window != 0);
        Platform::sendMessage(window, Platform::kMessageRaise, 0, 0);
        QVERIFY(frame->isVisible());
        frame->showMinimized();
        QTRY_VERIFY(frame->windowState() & Qt::WindowMinimized);
        Platform::sendMessage(window, Platform::kMessageRaise, 0, 0);
        QVERIFY(!(frame->windowState() & Qt::WindowMinimized));

        Main_View* view = frame.get();
        const auto message = [view](unsigned id, quintptr wParam) {
            return [view, id, wParam]() { view->handleNativeMessage(id, wParam, 0); };
        };
        // 0x8303 quits only a panel the control service started, and only with a non-zero wParam.
        QVERIFY(!QuitRequest::during(message(Platform::kMessageQuitIfOpened, 1), 300));
        programStarted = true;
        QVERIFY(!QuitRequest::during(message(Platform::kMessageQuitIfOpened, 0), 300));
        QVERIFY(QuitRequest::during(message(Platform::kMessageQuitIfOpened, 1), 300));
        programStarted = false;
        // 0x8301 always quits, here through the platform layer.
        QVERIFY(QuitRequest::during(
            [window]() { Platform::sendMessage(window, Platform::kMessageQuit, 1, 1); }, 300));
    }
};

QTEST_MAIN(TestMainView)
#include "tst_main_view.moc"
