#include "TestEnvironment.h"

#include "AppGlobals.h"
#include "Information_Slots_View.h"
#include "Information_View.h"
#include "Lighting_View.h"
#include "Loading_View.h"
#include "Main_View.h"
#include "Noti_View.h"
#include "Platform.h"
#include "Setting_View.h"

#include <QButtonGroup>
#include <QLabel>
#include <QPushButton>
#include <QStandardPaths>
#include <QTimer>
#include <QTranslator>
#include <QtTest>

#include <functional>
#include <memory>

namespace {
// Runs `action` inside the application's event loop and tells whether it asked the
// application to quit. The application's own exec() clears the quit request afterwards.
bool requestsQuit(const std::function<void()>& action)
{
    QTimer guard;
    guard.setSingleShot(true);
    QObject::connect(&guard, &QTimer::timeout, []() { QCoreApplication::exit(1); });
    guard.start(300);
    QTimer::singleShot(0, action);
    return QCoreApplication::exec() == 0;
}

QLabel* pageLabel(QWidget* page, const char* name)
{
    return page->findChild<QLabel*>(QString::fromLatin1(name), Qt::FindDirectChildrenOnly);
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
    void slotNumbers_data();
    void slotNumbers();
    void relays();
    void languageChange();
    // Last: it quits the application's event loop.
    void nativeMessages();

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
    const auto track = [&](void (Main_View::*signal)(), const char* name) {
        connect(frame.get(), signal, &context, [&requests, name]() { requests << name; });
    };
    track(&Main_View::requestSetSlotNum, "slotNum");
    track(&Main_View::requestSetLEDNum, "ledNum");
    track(&Main_View::requestSetRGB, "rgb");
    track(&Main_View::requestSetLighting, "lighting");
    track(&Main_View::requestSetProfile, "profile");
    track(&Main_View::requestNotiData, "noti");
    track(&Main_View::requestSettingData, "setting");
    track(&Main_View::updateLanguage, "language");
    if (entry)
        QTest::mouseClick(entry, Qt::LeftButton);
    else
        frame->updateViewData();
    return requests;
}

void TestMainView::pageSwitching()
{
    frame->show();
    frame->setQXModuleType({QStringLiteral("KX44")});
    frame->setSlotNumber(4, 4);
    QVERIFY(frame->information_View && !frame->lighting_View && !frame->noti_View &&
            !frame->setting_View);
    const QStringList lightingState = {"slotNum", "rgb", "lighting", "profile"};

    QCOMPARE(requestsFor(frame->btn_Noti), (QStringList{"noti", "language"}));
    QVERIFY(frame->noti_View->isVisible() && frame->information_View->isHidden());
    QCOMPARE(requestsFor(nullptr), QStringList{"noti"});

    QCOMPARE(requestsFor(frame->btn_Lighting),
             (QStringList{"slotNum", "ledNum", "rgb", "lighting", "profile", "language"}));
    Lighting_View* lighting = frame->lighting_View;
    QVERIFY(lighting->isVisible() && frame->noti_View->isHidden());
    QCOMPARE(requestsFor(nullptr), lightingState);
    // The menu stays above the wide page created after it.
    QCOMPARE(frame->childAt(frame->btn_Noti->mapTo(frame.get(), QPoint(100, 20))),
             static_cast<QWidget*>(frame->btn_Noti));

    QCOMPARE(requestsFor(frame->btn_Setting), QStringList{"setting"});
    QVERIFY(frame->setting_View->isVisible() && lighting->isHidden());
    QCOMPARE(requestsFor(nullptr), QStringList{"setting"});

    QCOMPARE(requestsFor(frame->btn_Info), QStringList());
    QVERIFY(frame->information_View->isVisible() && frame->setting_View->isHidden());
    QCOMPARE(requestsFor(nullptr), QStringList());

    // Each page is created once.
    Noti_View* noti = frame->noti_View;
    Setting_View* setting = frame->setting_View;
    for (QPushButton* entry : {frame->btn_Lighting, frame->btn_Noti, frame->btn_Setting})
        requestsFor(entry);
    QCOMPARE(frame->lighting_View, lighting);
    QCOMPARE(frame->noti_View, noti);
    QCOMPARE(frame->setting_View, setting);
    QCOMPARE(frame->findChildren<Lighting_View*>().size(), 1);
    QCOMPARE(frame->findChildren<Noti_View*>().size(), 1);
    QCOMPARE(frame->findChildren<Setting_View*>().size(), 1);
    QCOMPARE(frame->findChildren<Information_View*>().size(), 1);

    // Leaving Lighting in the middle of a slot edit cancels the edit, and only then.
    QSignalSpy cancels(lighting->btn_Edit_Cancel, &QPushButton::released);
    requestsFor(frame->btn_Lighting);
    requestsFor(frame->btn_Noti);
    QCOMPARE(cancels.count(), 0);
    requestsFor(frame->btn_Lighting);
    QTest::mouseClick(lighting->btn_Edit, Qt::LeftButton);
    QVERIFY(lighting->btn_Edit_Cancel->isVisible());
    requestsFor(frame->btn_Setting);
    QCOMPARE(cancels.count(), 1);
    QVERIFY(lighting->btn_Edit_Cancel->isHidden() && !lighting->btn_Edit->isHidden());
    requestsFor(frame->btn_Info);
    QCOMPARE(cancels.count(), 1);
}

void TestMainView::dragging_data()
{
    QTest::addColumn<QPoint>("press");
    QTest::addColumn<bool>("moves");

    QTest::newRow("title strip") << QPoint(100, 20) << true;
    QTest::newRow("last row of the strip") << QPoint(300, 44) << true;
    QTest::newRow("left of the window buttons") << QPoint(924, 5) << true;
    QTest::newRow("first row below the strip") << QPoint(300, 45) << false;
    QTest::newRow("window buttons' column") << QPoint(925, 5) << false;
    QTest::newRow("page area") << QPoint(500, 300) << false;
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

    const QString none;
    QTest::newRow("empty list") << QStringList() << false << false;
    QTest::newRow("unsupported") << QStringList{"DDR4-3200", "KX30", "KZ70"} << false << false;
    QTest::newRow("case matters") << QStringList{"kx44"} << false << false;
    QTest::newRow("KX44 inside a model text") << QStringList{none, "NVX-KX44-16G"} << true << true;
    for (const char* code : {"KX31", "KX52", "KX67", "KZ71", "KZ72", "KZ73", "KZ74"})
        QTest::newRow(code) << QStringList{none, QLatin1String(code) + QLatin1String("-8G")}
                            << true << false;
    QTest::newRow("mixed") << QStringList{"KZ74", "OTHER", "KX44"} << true << true;
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
    frame->setQXModuleType({"KX31"});
    QVERIFY(extendedFeatures);
    QCOMPARE(isNewMode, newMode);
    frame->setQXModuleType({"GENERIC"});
    QVERIFY(!extendedFeatures);
    QCOMPARE(isNewMode, newMode);
    QVERIFY(frame->btn_Lighting->isHidden());
}

void TestMainView::slotNumbers_data()
{
    QTest::addColumn<int>("slotCount");
    QTest::addColumn<int>("modules");

    QTest::newRow("slots but no module") << 4 << 0;
    QTest::newRow("eight slots, two modules") << 8 << 2;
    QTest::newRow("nothing") << 0 << 0;
}

void TestMainView::slotNumbers()
{
    QFETCH(int, slotCount);
    QFETCH(int, modules);

    frame->show();
    frame->setSlotNumber(slotCount, modules);
    QCOMPARE(frame->storedSlotCount(), slotCount);
    QCOMPARE(frame->storedMemoryCount(), modules);

    // Loading ends in every case; the missing-module warning is never left on screen.
    Loading_View* loading = frame->loading_View;
    QVERIFY(loading->isHidden());
    QVERIFY(!loading->loading() && !loading->spinnerTimer()->isActive());
    QVERIFY(!loading->label_Warning->isVisible());

    Information_Slots_View* grid = frame->information_View->slotsView();
    for (int number = 1; number <= 8; ++number)
        QCOMPARE(grid->findChild<QPushButton*>(QString::number(number))->isVisible(),
                 number <= slotCount);
}

void TestMainView::relays()
{
    frame->show();
    frame->setQXModuleType({"KX44"});
    frame->setSlotNumber(4, 4);

    // Controller -> frame -> page.
    HWData data{};
    data.memoryLoad = 42.5;
    emit frame->setHWData(data);
    QCOMPARE(pageLabel(frame->information_View, "label_Percent")->text(), QStringLiteral("42.50"));
    frame->slot_show_Lighting();
    emit frame->setProfile(2);
    QVERIFY(frame->lighting_View->findChild<QPushButton*>("btn_Profile2")->isChecked());

    // Page -> frame -> controller.
    QList<int> mode;
    connect(frame.get(), &Main_View::changeLightMode, this,
            [&](int slot, int lightMode, int colorMode, int speed, bool off) {
                mode = {slot, lightMode, colorMode, speed, int(off)};
            });
    emit frame->lighting_View->changeLightMode(2, 31, 1, 3, true);
    QCOMPARE(mode, (QList<int>{2, 31, 1, 3, 1}));

    frame->slot_show_Noti();
    int loadingValue = 0;
    connect(frame.get(), &Main_View::sendNotiData, this,
            [&](NotiEventData sent) { loadingValue = sent.loadingValue; });
    NotiEventData noti{};
    noti.loadingValue = 77;
    emit frame->noti_View->sendNotiData(noti);
    QCOMPARE(loadingValue, 77);

    QSignalSpy closes(frame.get(), &Main_View::slot_Close);
    QTest::mouseClick(frame->btn_Close, Qt::LeftButton);
    QCOMPARE(closes.count(), 1);
}

void TestMainView::languageChange()
{
    frame->show();
    QSignalSpy pagesTold(frame.get(), &Main_View::updateLanguage);
    QTranslator translator;
    for (const char* code : {"en", "zh", "cn", "de", "fr", "jp", "th", "ru", "kr", "es"}) {
        QVERIFY(translator.load(QStringLiteral(":/QXRGBMemory/NORVALEX_%1.qm").arg(code)));
        QCoreApplication::installTranslator(&translator);
        frame->updateLanguage_MainView();
        // The entries are wider than the menu column; the text must fit the visible part.
        for (QAbstractButton* button : frame->buttonGroup_Menu->buttons()) {
            const int textWidth = button->fontMetrics().horizontalAdvance(button->text());
            QVERIFY2(textWidth < frame->widget_Menu->width(), qPrintable(button->text()));
        }
        if (qstrcmp(code, "de") == 0) {
            QCOMPARE(frame->btn_Lighting->text(), QStringLiteral("Beleuchtung"));
            QCOMPARE(pageLabel(frame->information_View, "label_Dashboard")->text(),
                     QStringLiteral("Last"));
        }
        QCoreApplication::removeTranslator(&translator);
    }
    QCOMPARE(pagesTold.count(), 10);
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
    QVERIFY(!requestsQuit(message(Platform::kMessageQuitIfOpened, 1)));
    QVERIFY(!requestsQuit(message(Platform::kMessageRaise, 1)));
    programStarted = true;
    QVERIFY(!requestsQuit(message(Platform::kMessageQuitIfOpened, 0)));
    QVERIFY(requestsQuit(message(Platform::kMessageQuitIfOpened, 1)));
    programStarted = false;
    // 0x8301 always quits, here through the platform layer.
    QVERIFY(requestsQuit([window]() {
        Platform::sendMessage(window, Platform::kMessageQuit, 1, 1);
    }));

    // The frame stops listening when it goes.
    frame.reset();
    QCOMPARE(Platform::findWindow(L"NORVALEX RGB"), Platform::WindowHandle(0));
}

QTEST_MAIN(TestMainView)
#include "tst_main_view.moc"
