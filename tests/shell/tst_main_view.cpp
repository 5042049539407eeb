#include "TestEnvironment.h"

#include "AppGlobals.h"
#include "Information_Slots_View.h"
#include "Information_View.h"
#include "Lighting_View.h"
#include "Loading_View.h"
#include "Main_View.h"
#include "Noti_View.h"
#include "Platform.h"
#include "QuitRequest.h"
#include "Setting_View.h"

#include <QLabel>
#include <QPushButton>
#include <QStandardPaths>
#include <QTimer>
#include <QTranslator>
#include <QtTest>

#include <functional>
#include <memory>

namespace {
// Each message a window receives as "message wParam lParam", the message in hex.
void record(void* context, unsigned message, std::uintptr_t wParam, std::intptr_t lParam)
{
    *static_cast<QStringList*>(context)
        << QStringLiteral("%1 %2 %3").arg(message, 0, 16).arg(wParam).arg(lParam);
}
} // namespace

class TestMainView : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase() { QStandardPaths::setTestModeEnabled(true); }
    void init();
    void cleanup() { frame.reset(); }

    void pageSwitching();
    void dragging_data();
    void dragging();
    void moduleTypes_data();
    void moduleTypes();
    void slotNumbers();
    void spinner();
    void warningFollowsTheLanguage();
    void closeAppTellsTheRunningPrograms();
    // Last: it quits the application's event loop.
    void nativeMessages();
    void windowIcon();

private:
    // The requests the frame sends to the controller while it shows the page of `entry`, or
    // while it refreshes the visible page when `entry` is null.
    QStringList requestsFor(QPushButton* entry);

    std::unique_ptr<Main_View> frame;
};

void TestMainView::init()
{
    extendedFeatures = false;
    isNewMode = false;
    programStarted = false;
    currentLanguage = 0;
    frame = std::make_unique<Main_View>();
}

QStringList TestMainView::requestsFor(QPushButton* entry)
{
    QStringList requests;
    QObject context;
    const std::pair<void (Main_View::*)(), const char*> tracked[] = {
        {&Main_View::requestSetSlotNum, "slotNum"},  {&Main_View::requestSetLEDNum, "ledNum"},
        {&Main_View::requestSetRGB, "rgb"},          {&Main_View::requestSetLighting, "lighting"},
        {&Main_View::requestSetProfile, "profile"},  {&Main_View::requestNotiData, "noti"},
        {&Main_View::requestSettingData, "setting"}, {&Main_View::updateLanguage, "language"}};
    for (const auto& [signal, name] : tracked)
        connect(frame.get(), signal, &context, [&requests, name = name]() { requests << name; });
    if (entry)
        QTest::mouseClick(entry, Qt::LeftButton);
    else
        frame->updateViewData();
    return requests;
}

// Each entry shows its page, created on first use, hides the others and asks the controller for
// what the page shows; the pages and the controller talk through the frame.
void TestMainView::pageSwitching()
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
    HWData data{};
    data.memoryLoad = 42.5;
    emit frame->setHWData(data);
    QCOMPARE(frame->information_View->findChild<QLabel*>("label_Percent")->text(),
             QStringLiteral("42.50"));

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

void TestMainView::dragging_data()
{
    QTest::addColumn<QPoint>("press");
    QTest::addColumn<bool>("moves");
    QTest::newRow("last row of the strip") << QPoint(300, 44) << true;
    QTest::newRow("first row below the strip") << QPoint(300, 45) << false;
    QTest::newRow("window buttons' column") << QPoint(925, 5) << false;
}

void TestMainView::dragging()
{
    QFETCH(QPoint, press);
    QFETCH(bool, moves);
    frame->move(100, 100);
    frame->show();
    QVERIFY(QTest::qWaitForWindowExposed(frame.get()));
    const QPoint start = frame->pos();
    const QPoint delta(30, 12);
    QWindow* window = frame->windowHandle();
    QTest::mousePress(window, Qt::LeftButton, Qt::NoModifier, press);
    QTest::mouseMove(window, press + delta);
    QCOMPARE(frame->pos(), moves ? start + delta : start);
    QTest::mouseRelease(window, Qt::LeftButton, Qt::NoModifier, press + delta);
    // After the release, moving the mouse leaves the window where it is.
    const QPoint afterRelease = frame->pos();
    QTest::mouseMove(window, press + delta + delta);
    QCOMPARE(frame->pos(), afterRelease);
}

void TestMainView::moduleTypes_data()
{
    QTest::addColumn<QStringList>("types");
    QTest::addColumn<bool>("extended");
    QTest::addColumn<bool>("newMode");
    QTest::newRow("unsupported") << QStringList{"DDR4-3200", "kx44", "KZ70"} << false << false;
    QTest::newRow("KX44 inside a model text") << QStringList{"", "NVX-KX44-16G"} << true << true;
    QTest::newRow("KZ74") << QStringList{"", "KZ74-8G"} << true << false;
}

void TestMainView::moduleTypes()
{
    QFETCH(QStringList, types);
    QFETCH(bool, extended);
    QFETCH(bool, newMode);
    frame->setQXModuleType(types);
    QCOMPARE(extendedFeatures, extended);
    QCOMPARE(isNewMode, newMode);
    QCOMPARE(frame->btn_Lighting->isHidden(), !extended);
    // Each list decides extendedFeatures afresh; isNewMode is never lowered.
    frame->setQXModuleType({"GENERIC"});
    QVERIFY(!extendedFeatures && frame->btn_Lighting->isHidden());
    QCOMPARE(isNewMode, newMode);
}

// Loading ends also without a module; the missing-module warning is never left on screen, and
// the Information grid shows the slots.
void TestMainView::slotNumbers()
{
    frame->show();
    frame->setSlotNumber(4, 0);
    QCOMPARE(frame->storedSlotCount(), 4);
    QCOMPARE(frame->storedMemoryCount(), 0);
    Loading_View* loading = frame->loading_View;
    QVERIFY(loading->isHidden() && !loading->loading() && !loading->spinnerTimer()->isActive());
    QVERIFY(!loading->label_Warning->isVisible());
    Information_Slots_View* grid = frame->information_View->slotsView();
    for (int number = 1; number <= 8; ++number)
        QCOMPARE(grid->findChild<QPushButton*>(QString::number(number))->isVisible(), number <= 4);
}

void TestMainView::nativeMessages()
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

    // The frame stops listening when it goes.
    frame.reset();
    QCOMPARE(Platform::findWindow(L"NORVALEX RGB"), Platform::WindowHandle(0));
}

// The frame carries the application icon in the small sizes task bars use; X11 takes every
// size in one _NET_WM_ICON request of at most 65535 words.
void TestMainView::windowIcon()
{
    const QList<QSize> sizes = frame->windowIcon().availableSizes();
    QVERIFY(sizes.contains(QSize(16, 16)) && sizes.contains(QSize(32, 32)));
    int words = 0;
    for (const QSize& size : sizes)
        words += 2 + size.width() * size.height();
    QVERIFY2(words <= 65535, qPrintable(QString::number(words)));
}

void TestMainView::spinner()
{
    Loading_View view;
    const int start = view.spinnerAngle();
    view.isStartLoading(true);
    QVERIFY(view.isVisible() && view.loading());
    QTRY_VERIFY_WITH_TIMEOUT(view.spinnerAngle() != start, 1000);
    view.isStartLoading(false);
    QVERIFY(view.isHidden() && !view.loading() && !view.spinnerTimer()->isActive());
}

void TestMainView::warningFollowsTheLanguage()
{
    // The overlay exists before the stored language is known.
    Loading_View view;
    QTranslator german;
    QVERIFY(german.load(QStringLiteral(":/QXRGBMemory/NORVALEX_de.qm")));
    QCoreApplication::installTranslator(&german);
    QTRY_COMPARE(view.label_Warning_Content->text(),
                 QStringLiteral("Kein NORVALEX-Speichermodul gefunden"));
    QCoreApplication::removeTranslator(&german);
    QTRY_COMPARE(view.label_Warning_Content->text(), QStringLiteral("Can not Find QX NORVALEX"));
}

void TestMainView::closeAppTellsTheRunningPrograms()
{
    frame.reset(); // it listens under the panel's name
    QStringList panel;
    QStringList control;
    void* panelWindow = Platform::listenForMessages(L"NORVALEX RGB", &record, &panel);
    void* controlWindow = Platform::listenForMessages(L"NORVALEX RGB Control", &record, &control);

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
    Platform::MutexHandle controlName = Platform::createMutex(L"NORVALEX Control.exe", &existed);
    QVERIFY(!existed);
    QVERIFY(QuitRequest::during(clickOK, 3000));
    QCOMPARE(panel, QStringList{"8301 1 1"});
    QCOMPARE(control, QStringList{"8301 1 1"});

    Platform::closeHandle(panelName);
    Platform::closeHandle(controlName);
    Platform::stopListening(controlWindow);
    Platform::stopListening(panelWindow);
}

QTEST_MAIN(TestMainView)
#include "tst_main_view.moc"
