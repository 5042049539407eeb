#include "TestEnvironment.h"

#include "AppGlobals.h"
#include "Clean_View.h"
#include "Information_Slots_View.h"
#include "Information_View.h"
#include "Lighting_View.h"
#include "Loading_View.h"
#include "Main_View.h"
#include "Memory_RGB_View.h"
#include "Noti_View.h"
#include "Platform.h"
#include "Setting_View.h"

#include <QButtonGroup>
#include <QLabel>
#include <QMetaMethod>
#include <QPushButton>
#include <QStandardPaths>
#include <QTimer>
#include <QTranslator>
#include <QtTest>

#include <functional>
#include <memory>

namespace {
HWData sampleData()
{
    HWData data{};
    for (int i = 0; i < NX_MODULE_COUNT; ++i)
        data.slotIndex[i] = i < 4 ? i : -1;
    data.memoryCount = 4;
    data.slotCount = 4;
    data.frequency = 3200;
    data.casLatency = 16;
    data.tRCD = 18;
    data.channel = 2;
    data.physicalMemoryUsed = 13926;
    data.memoryLoad = 42.5;
    for (int i = 0; i < 4; ++i)
        data.memoryData[i].memoryModuleSize = 8192;
    return data;
}

// Runs `action` inside the application's event loop and tells whether it asked the
// application to quit. The application's own exec() clears the quit request afterwards.
bool requestsQuit(const std::function<void()>& action)
{
    bool timedOut = false;
    QTimer guard;
    guard.setSingleShot(true);
    QObject::connect(&guard, &QTimer::timeout, [&timedOut]() {
        timedOut = true;
        QCoreApplication::exit(1);
    });
    guard.start(300);
    QTimer::singleShot(0, action);
    const int code = QCoreApplication::exec();
    return !timedOut && code == 0;
}

QLabel* pageLabel(QWidget* page, const char* name)
{
    return page->findChild<QLabel*>(QString::fromLatin1(name), Qt::FindDirectChildrenOnly);
}

int visibleStrips(Lighting_View* page)
{
    int visible = 0;
    for (Memory_RGB_View* strip : page->findChildren<Memory_RGB_View*>()) {
        if (strip->isVisibleTo(page))
            ++visible;
    }
    return visible;
}
} // namespace

class TestMainView : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();
    void init();
    void cleanup();

    void construction();
    void relayInterface();
    void menuSwitchesPagesAndCreatesEachOnce();
    void lightingPageIsLaidOutAndRequestsItsState();
    void leavingLightingCancelsAnUnfinishedEdit();
    void dragging_data();
    void dragging();
    void moduleTypes_data();
    void moduleTypes();
    void flagsAreOnlyRaised();
    void slotNumbers_data();
    void slotNumbers();
    void relaysReachPagesAndController();
    void languageChange();
    void menuTextsFitInEveryLanguage();
    void updateViewDataAsksForTheVisiblePage();
    void raiseMessageBringsTheWindowBack();
    void messagesStopWithTheFrame();
    void quitMessages();

private:
    std::unique_ptr<Main_View> frame;
    std::unique_ptr<QTranslator> translator;
};

void TestMainView::initTestCase()
{
    QStandardPaths::setTestModeEnabled(true);
}

void TestMainView::init()
{
    extendedFeatures = false;
    isNewMode = false;
    programStarted = false;
    currentLanguage = 0;
    frame = std::make_unique<Main_View>();
}

void TestMainView::cleanup()
{
    frame.reset();
    if (translator)
        QCoreApplication::removeTranslator(translator.get());
    translator.reset();
}

void TestMainView::construction()
{
    QCOMPARE(frame->windowTitle(), QStringLiteral("NORVALEX RGB"));
    QVERIFY(frame->windowFlags() & Qt::FramelessWindowHint);
    QCOMPARE(frame->size(), QSize(1000, 600));
    QCOMPARE(frame->objectName(), QStringLiteral("Main_View"));
    QCOMPARE(frame->focusPolicy(), Qt::ClickFocus);

    QCOMPARE(frame->label_Logo->geometry(), QRect(480, 10, 146, 23));
    QCOMPARE(frame->widget_Menu->objectName(), QStringLiteral("Widget_Menu"));
    QCOMPARE(frame->widget_Menu->geometry(), QRect(30, 70, 156, 218));
    QCOMPARE(frame->btn_Close->geometry(), QRect(965, 15, 15, 15));
    QCOMPARE(frame->btn_Min->geometry(), QRect(940, 15, 18, 15));

    QButtonGroup* group = frame->buttonGroup_Menu;
    QVERIFY(group->exclusive());
    QCOMPARE(group->id(frame->btn_Info), 0);
    QCOMPARE(group->id(frame->btn_Lighting), 1);
    QCOMPARE(group->id(frame->btn_Noti), 2);
    QCOMPARE(group->id(frame->btn_Setting), 4);
    QCOMPARE(group->button(3), nullptr);
    QCOMPARE(group->checkedButton(), frame->btn_Info);
    for (QAbstractButton* button : group->buttons())
        QCOMPARE(button->size(), QSize(186, 40));

    // The Information page exists from the start; the others wait for their first use.
    QVERIFY(frame->information_View);
    QCOMPARE(frame->information_View->geometry(), QRect(200, 80, 800, 510));
    QVERIFY(!frame->information_View->isHidden());
    QVERIFY(!frame->lighting_View);
    QVERIFY(!frame->noti_View);
    QVERIFY(!frame->clean_View);
    QVERIFY(!frame->setting_View);

    // The loading overlay covers everything and spins.
    QVERIFY(frame->loading_View);
    QCOMPARE(frame->loading_View->geometry(), QRect(0, 0, 1000, 600));
    QVERIFY(frame->loading_View->loading());
    QVERIFY(!frame->loading_View->isHidden());
    QCOMPARE(frame->childAt(500, 300), frame->loading_View);

    // The background picture fills the window.
    const QImage background = frame->palette().brush(QPalette::Window).textureImage();
    QCOMPARE(background.size(), QSize(1000, 600));
}

void TestMainView::relayInterface()
{
    const QStringList signalsInOrder = {
        "setSystemData(HWData*)",
        "setSystemData1(HWData)",
        "changeColor(int,COLORREF*,COLORREF,float*,float)",
        "setHWData(HWData)",
        "updatePreview(int,COLORREF*)",
        "updatePreviewList(QList<COLORREF*>)",
        "changeLightMode(int,int,int,int,bool)",
        "setRGB(int,COLORREF*,COLORREF,float*,float)",
        "requestSetRGB()",
        "requestSetLighting()",
        "setLighting(int,int,int,int,bool)",
        "slot_Close()",
        "changeMemorySlotNumber(int,int*)",
        "sendNotiData(NotiEventData)",
        "setMemorySlotNumber(int,int*)",
        "setMemoryLEDNumber(int,int*)",
        "requestSetSlotNum()",
        "requestSetLEDNum()",
        "requestNotiData()",
        "setNotiData(NotiEventData)",
        "select_Profile(int)",
        "setProfile(int)",
        "requestSetProfile()",
        "changeSettingData(SettingData)",
        "requestSettingData()",
        "setSettingData(SettingData)",
        "updateLanguage()",
    };
    const QStringList slotsInOrder = {
        "slot_show_Info()",       "slot_show_Lighting()",
        "slot_show_Noti()",       "slot_show_Clean()",
        "slot_show_Setting()",    "slot_show_Menu()",
        "setSlotNumber(int,int)", "updateLanguage_MainView()",
        "updateViewData()",       "setQXModuleType(QStringList)",
    };
    QStringList declaredSignals;
    QStringList declaredSlots;
    const QMetaObject& meta = Main_View::staticMetaObject;
    for (int i = meta.methodOffset(); i < meta.methodCount(); ++i) {
        const QMetaMethod method = meta.method(i);
        const QString signature = QString::fromLatin1(method.methodSignature());
        if (method.methodType() == QMetaMethod::Signal)
            declaredSignals << signature;
        else if (method.methodType() == QMetaMethod::Slot && method.access() == QMetaMethod::Public)
            declaredSlots << signature;
    }
    QCOMPARE(declaredSignals, signalsInOrder);
    QCOMPARE(declaredSlots, slotsInOrder);
}

void TestMainView::menuSwitchesPagesAndCreatesEachOnce()
{
    frame->show();
    QVERIFY(QTest::qWaitForWindowExposed(frame.get()));
    frame->setSlotNumber(4, 4);

    QStringList requests;
    connect(frame.get(), &Main_View::requestNotiData, this, [&]() { requests << "noti"; });
    connect(frame.get(), &Main_View::requestSettingData, this, [&]() { requests << "setting"; });

    QTest::mouseClick(frame->btn_Noti, Qt::LeftButton);
    Noti_View* noti = frame->noti_View;
    QVERIFY(noti);
    QCOMPARE(noti->geometry(), QRect(186, 80, 814, 510));
    QVERIFY(noti->isVisible());
    QVERIFY(frame->information_View->isHidden());
    QVERIFY(frame->btn_Noti->isChecked());
    QCOMPARE(requests, QStringList{"noti"});

    QTest::mouseClick(frame->btn_Setting, Qt::LeftButton);
    Setting_View* setting = frame->setting_View;
    QVERIFY(setting);
    QCOMPARE(setting->geometry(), QRect(186, 80, 814, 510));
    QVERIFY(setting->isVisible());
    QVERIFY(noti->isHidden());
    QCOMPARE(requests, (QStringList{"noti", "setting"}));

    QTest::mouseClick(frame->btn_Info, Qt::LeftButton);
    QVERIFY(frame->information_View->isVisible());
    QVERIFY(setting->isHidden());
    // Showing the page re-lays its slot buttons with the stored slot count.
    auto* fifth = frame->information_View->slotsView()->findChild<QPushButton*>("5");
    QVERIFY(fifth && fifth->isHidden());

    QTest::mouseClick(frame->btn_Noti, Qt::LeftButton);
    QTest::mouseClick(frame->btn_Setting, Qt::LeftButton);
    QCOMPARE(frame->noti_View, noti);
    QCOMPARE(frame->setting_View, setting);

    frame->slot_show_Clean();
    QVERIFY(frame->clean_View);
    QCOMPARE(frame->clean_View->geometry(), QRect(186, 80, 814, 510));
    QVERIFY(frame->clean_View->isVisible());
    QVERIFY(setting->isHidden());
    frame->slot_show_Menu();

    // Pages shown by code are marked in the menu too, with the accent bar beside the entry.
    frame->slot_show_Noti();
    QVERIFY(frame->btn_Noti->isChecked());
    const QRect entry(frame->btn_Noti->mapTo(frame.get(), QPoint()), frame->btn_Noti->size());
    QVERIFY(frame->label_MenuBar_Image->isVisible());
    QCOMPARE(frame->label_MenuBar_Image->geometry().center().y(), entry.center().y());
    QVERIFY(frame->label_MenuBar_Image->geometry().right() < entry.left());

    QCOMPARE(frame->findChildren<Information_View*>().size(), 1);
    QCOMPARE(frame->findChildren<Noti_View*>().size(), 1);
    QCOMPARE(frame->findChildren<Setting_View*>().size(), 1);
    QCOMPARE(frame->findChildren<Clean_View*>().size(), 1);

    // The menu stays clickable above pages created later.
    QCOMPARE(frame->childAt(frame->btn_Info->mapTo(frame.get(), QPoint(100, 20))),
             static_cast<QWidget*>(frame->btn_Info));
}

void TestMainView::lightingPageIsLaidOutAndRequestsItsState()
{
    frame->show();
    frame->setQXModuleType({QStringLiteral("KX44")});
    frame->setSlotNumber(6, 4);

    QStringList emitted;
    const auto track = [&](void (Main_View::*signal)(), const char* name) {
        connect(frame.get(), signal, this, [&emitted, name]() { emitted << name; });
    };
    track(&Main_View::requestSetSlotNum, "slotNum");
    track(&Main_View::requestSetLEDNum, "ledNum");
    track(&Main_View::requestSetRGB, "rgb");
    track(&Main_View::requestSetLighting, "lighting");
    track(&Main_View::requestSetProfile, "profile");
    track(&Main_View::updateLanguage, "language");

    QTest::mouseClick(frame->btn_Lighting, Qt::LeftButton);
    Lighting_View* lighting = frame->lighting_View;
    QVERIFY(lighting);
    QCOMPARE(lighting->geometry(), QRect(86, 40, 914, 560));
    QVERIFY(lighting->isVisible());
    QVERIFY(frame->information_View->isHidden());
    QCOMPARE(emitted, (QStringList{"slotNum", "ledNum", "rgb", "lighting", "profile", "language"}));
    QCOMPARE(visibleStrips(lighting), 6);

    // Later slot counts reach the page that exists.
    frame->setSlotNumber(3, 3);
    QCOMPARE(visibleStrips(lighting), 3);

    emitted.clear();
    QTest::mouseClick(frame->btn_Info, Qt::LeftButton);
    QTest::mouseClick(frame->btn_Lighting, Qt::LeftButton);
    QCOMPARE(frame->lighting_View, lighting);
    QCOMPARE(frame->findChildren<Lighting_View*>().size(), 1);
    QCOMPARE(emitted.size(), 6);

    // The menu and the window buttons stay above the wide page.
    QCOMPARE(frame->childAt(frame->btn_Noti->mapTo(frame.get(), QPoint(100, 20))),
             static_cast<QWidget*>(frame->btn_Noti));
}

void TestMainView::leavingLightingCancelsAnUnfinishedEdit()
{
    frame->show();
    frame->setQXModuleType({QStringLiteral("KX31")});
    frame->setSlotNumber(4, 4);
    QTest::mouseClick(frame->btn_Lighting, Qt::LeftButton);
    Lighting_View* lighting = frame->lighting_View;
    QVERIFY(lighting);
    QSignalSpy cancels(lighting->btn_Edit_Cancel, &QPushButton::released);

    // Not editing: leaving cancels nothing.
    QTest::mouseClick(frame->btn_Noti, Qt::LeftButton);
    QCOMPARE(cancels.count(), 0);

    QTest::mouseClick(frame->btn_Lighting, Qt::LeftButton);
    QTest::mouseClick(lighting->btn_Edit, Qt::LeftButton);
    QVERIFY(lighting->btn_Edit_Cancel->isVisible());
    QVERIFY(lighting->btn_Edit->isHidden());

    QTest::mouseClick(frame->btn_Setting, Qt::LeftButton);
    QCOMPARE(cancels.count(), 1);
    QVERIFY(lighting->btn_Edit_Cancel->isHidden());
    QVERIFY(!lighting->btn_Edit->isHidden());

    QTest::mouseClick(frame->btn_Info, Qt::LeftButton);
    QCOMPARE(cancels.count(), 1);
}

void TestMainView::dragging_data()
{
    QTest::addColumn<QPoint>("press");
    QTest::addColumn<bool>("moves");

    QTest::newRow("title strip") << QPoint(100, 20) << true;
    QTest::newRow("over the logo") << QPoint(520, 20) << true;
    QTest::newRow("last row of the strip") << QPoint(300, 44) << true;
    QTest::newRow("left of the window buttons") << QPoint(924, 5) << true;
    QTest::newRow("first row below the strip") << QPoint(300, 45) << false;
    QTest::newRow("window buttons' column") << QPoint(925, 5) << false;
    QTest::newRow("under the window buttons") << QPoint(930, 40) << false;
    QTest::newRow("page area") << QPoint(500, 300) << false;
    QTest::newRow("menu column") << QPoint(15, 400) << false;
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
    QTest::newRow("eight empty texts")
        << QStringList{none, none, none, none, none, none, none, none} << false << false;
    QTest::newRow("unsupported") << QStringList{"DDR4-3200", "KX30", "KZ70"} << false << false;
    QTest::newRow("case matters") << QStringList{"kx44"} << false << false;
    QTest::newRow("KX44 alone") << QStringList{"KX44"} << true << true;
    QTest::newRow("KX44 inside a model text") << QStringList{none, "NVX-KX44-16G"} << true << true;
    const QStringList older = {"KX31", "KX52", "KX67", "KZ71", "KZ72", "KZ73", "KZ74"};
    for (const QString& code : older)
        QTest::newRow(qPrintable(code)) << QStringList{none, none, code + "-8G"} << true << false;
    QTest::newRow("mixed") << QStringList{"KZ74", "OTHER", "KX44"} << true << true;
}

void TestMainView::moduleTypes()
{
    QFETCH(QStringList, types);
    QFETCH(bool, extended);
    QFETCH(bool, newMode);

    frame->show();
    frame->setQXModuleType(types);
    QCOMPARE(extendedFeatures, extended);
    QCOMPARE(isNewMode, newMode);
    QCOMPARE(frame->btn_Lighting->isHidden(), !extended);

    // The other entries keep working either way.
    QTest::mouseClick(frame->btn_Setting, Qt::LeftButton);
    QVERIFY(frame->setting_View && frame->setting_View->isVisible());
    QVERIFY(frame->btn_Noti->isVisible());
    QVERIFY(frame->btn_Info->isVisible());
}

void TestMainView::flagsAreOnlyRaised()
{
    frame->setQXModuleType({"KX44"});
    QVERIFY(extendedFeatures);
    QVERIFY(isNewMode);

    frame->setQXModuleType({"KX31"});
    QVERIFY(extendedFeatures);
    QVERIFY(isNewMode);

    // Each call decides extendedFeatures afresh; isNewMode never falls.
    frame->setQXModuleType({"GENERIC"});
    QVERIFY(!extendedFeatures);
    QVERIFY(isNewMode);
    QVERIFY(frame->btn_Lighting->isHidden());

    frame->setQXModuleType({});
    QVERIFY(!extendedFeatures);
    QVERIFY(isNewMode);

    frame->setQXModuleType({"KZ72"});
    QVERIFY(extendedFeatures);
}

void TestMainView::slotNumbers_data()
{
    QTest::addColumn<int>("slotCount");
    QTest::addColumn<int>("modules");
    QTest::addColumn<int>("slotButtons");

    QTest::newRow("slots but no module") << 4 << 0 << 4;
    QTest::newRow("four of four") << 4 << 4 << 4;
    QTest::newRow("eight slots, two modules") << 8 << 2 << 8;
    QTest::newRow("nothing") << 0 << 0 << 0;
    QTest::newRow("two slots") << 2 << 2 << 2;
}

void TestMainView::slotNumbers()
{
    QFETCH(int, slotCount);
    QFETCH(int, modules);
    QFETCH(int, slotButtons);

    frame->show();
    frame->setSlotNumber(slotCount, modules);
    QCOMPARE(frame->storedSlotCount(), slotCount);
    QCOMPARE(frame->storedMemoryCount(), modules);

    // Loading ends in every case; the missing-module warning is never left on screen.
    Loading_View* loading = frame->loading_View;
    QVERIFY(loading->isHidden());
    QVERIFY(!loading->loading());
    QVERIFY(!loading->spinnerTimer()->isActive());
    QVERIFY(!loading->label_Warning->isVisible());

    Information_Slots_View* grid = frame->information_View->slotsView();
    for (int number = 1; number <= 8; ++number) {
        auto* button = grid->findChild<QPushButton*>(QString::number(number));
        QVERIFY(button);
        QCOMPARE(button->isVisible(), number <= slotButtons);
    }
}

void TestMainView::relaysReachPagesAndController()
{
    frame->show();
    frame->setQXModuleType({"KX44"});
    frame->setSlotNumber(4, 4);

    // Controller -> frame -> Information page.
    emit frame->setHWData(sampleData());
    QCOMPARE(pageLabel(frame->information_View, "label_Percent")->text(), QStringLiteral("42.50"));
    QCOMPARE(pageLabel(frame->information_View, "label_Total")->text(), QStringLiteral(" / 32 GB"));
    HWData older = sampleData();
    older.frequency = 2400;
    emit frame->setSystemData1(older);
    QCOMPARE(pageLabel(frame->information_View, "label_Frequency")->text(),
             QStringLiteral("Clock: 2400"));
    emit frame->setSystemData(&older);

    // Notification page -> frame.
    frame->slot_show_Noti();
    int notiCount = 0;
    NotiEventData sentNoti{};
    connect(frame.get(), &Main_View::sendNotiData, this, [&](NotiEventData data) {
        ++notiCount;
        sentNoti = data;
    });
    NotiEventData noti{};
    noti.changedItem = 1;
    noti.loadingValue = 77;
    emit frame->noti_View->sendNotiData(noti);
    QCOMPARE(notiCount, 1);
    QCOMPARE(sentNoti.loadingValue, 77);

    // Settings page -> frame.
    frame->slot_show_Setting();
    int settingCount = 0;
    SettingData sentSetting{};
    connect(frame.get(), &Main_View::changeSettingData, this, [&](SettingData data) {
        ++settingCount;
        sentSetting = data;
    });
    SettingData setting{};
    setting.languageIndex = 5;
    emit frame->setting_View->changeSettingData(setting);
    QCOMPARE(settingCount, 1);
    QCOMPARE(sentSetting.languageIndex, 5);

    // Lighting page <-> frame.
    frame->slot_show_Lighting();
    Lighting_View* lighting = frame->lighting_View;
    COLORREF colours[8] = {};
    float brights[8] = {};
    int colourSlot = -1;
    COLORREF* colourPointer = nullptr;
    COLORREF singleColour = 0;
    connect(frame.get(), &Main_View::changeColor, this,
            [&](int slot, COLORREF* rgb, COLORREF single, float*, float) {
                colourSlot = slot;
                colourPointer = rgb;
                singleColour = single;
            });
    emit lighting->changeColor(3, colours, 0x00FF8800, brights, 0.5f);
    QCOMPARE(colourSlot, 3);
    QCOMPARE(colourPointer, colours);
    QCOMPARE(singleColour, COLORREF(0x00FF8800));

    QList<int> modeArgs;
    connect(frame.get(), &Main_View::changeLightMode, this,
            [&](int slot, int mode, int colorMode, int speed, bool off) {
                modeArgs = {slot, mode, colorMode, speed, int(off)};
            });
    emit lighting->changeLightMode(2, 31, 1, 3, true);
    QCOMPARE(modeArgs, (QList<int>{2, 31, 1, 3, 1}));

    int orderCount = 0;
    int profile = -1;
    connect(frame.get(), &Main_View::changeMemorySlotNumber, this,
            [&](int count, int*) { orderCount = count; });
    connect(frame.get(), &Main_View::select_Profile, this, [&](int id) { profile = id; });
    int order[8] = {0, 1, 2, 3, 4, 5, 6, 7};
    emit lighting->changeMemorySlotNumber(8, order);
    emit lighting->select_Profile(3);
    QCOMPARE(orderCount, 8);
    QCOMPARE(profile, 3);

    // Frame -> Lighting page.
    emit frame->setProfile(2);
    auto* profileButton = lighting->findChild<QPushButton*>(QStringLiteral("btn_Profile2"));
    QVERIFY(profileButton);
    QVERIFY(profileButton->isChecked());

    int previewLists = 0;
    connect(lighting, &Lighting_View::sendUpdatePreviewList, this,
            [&](QList<COLORREF*> list) { previewLists += list.size(); });
    emit frame->updatePreviewList(QList<COLORREF*>{colours, colours});
    QCOMPARE(previewLists, 2);
    emit frame->updatePreview(0, colours);

    // The close button reaches the controller through the frame's signal.
    QSignalSpy closes(frame.get(), &Main_View::slot_Close);
    QTest::mouseClick(frame->btn_Close, Qt::LeftButton);
    QCOMPARE(closes.count(), 1);
}

void TestMainView::languageChange()
{
    frame->show();
    frame->slot_show_Clean();
    frame->slot_show_Info();

    translator = std::make_unique<QTranslator>();
    QVERIFY(translator->load(QStringLiteral(":/QXRGBMemory/NORVALEX_de.qm")));
    QCoreApplication::installTranslator(translator.get());
    currentLanguage = 3;

    QSignalSpy pagesTold(frame.get(), &Main_View::updateLanguage);
    frame->updateLanguage_MainView();
    QCOMPARE(pagesTold.count(), 1);
    QCOMPARE(frame->btn_Info->text(), QStringLiteral("Information"));
    QCOMPARE(frame->btn_Lighting->text(), QStringLiteral("Beleuchtung"));
    QCOMPARE(frame->btn_Noti->text(), QStringLiteral("Hinweise"));
    QCOMPARE(frame->btn_Setting->text(), QStringLiteral("Einstellungen"));
    QCOMPARE(pageLabel(frame->information_View, "label_Dashboard")->text(), QStringLiteral("Last"));
    QCOMPARE(frame->clean_View->label_Clean->text(), QStringLiteral("Bereinigen"));
}

void TestMainView::menuTextsFitInEveryLanguage()
{
    frame->show();
    const char* const codes[] = {"en", "zh", "cn", "de", "fr", "jp", "th", "ru", "kr", "es"};
    translator = std::make_unique<QTranslator>();
    for (const char* code : codes) {
        QVERIFY(translator->load(QStringLiteral(":/QXRGBMemory/NORVALEX_") +
                                 QString::fromLatin1(code) + QStringLiteral(".qm")));
        QCoreApplication::installTranslator(translator.get());
        frame->updateLanguage_MainView();
        // The buttons are wider than the menu column; the text must fit the visible part.
        for (QAbstractButton* button : frame->buttonGroup_Menu->buttons()) {
            const int textWidth = button->fontMetrics().horizontalAdvance(button->text());
            QVERIFY2(textWidth < frame->widget_Menu->width(),
                     qPrintable(QString::fromLatin1(code) + QLatin1Char(' ') + button->text()));
        }
        QCoreApplication::removeTranslator(translator.get());
    }
}

void TestMainView::updateViewDataAsksForTheVisiblePage()
{
    frame->show();
    frame->setQXModuleType({"KX44"});
    frame->setSlotNumber(4, 4);
    QStringList requests;
    const auto track = [&](void (Main_View::*signal)(), const char* name) {
        connect(frame.get(), signal, this, [&requests, name]() { requests << name; });
    };
    track(&Main_View::requestSetSlotNum, "slotNum");
    track(&Main_View::requestSetLEDNum, "ledNum");
    track(&Main_View::requestSetRGB, "rgb");
    track(&Main_View::requestSetLighting, "lighting");
    track(&Main_View::requestSetProfile, "profile");
    track(&Main_View::requestNotiData, "noti");
    track(&Main_View::requestSettingData, "setting");

    frame->updateViewData();
    QCOMPARE(requests, QStringList());

    frame->slot_show_Lighting();
    requests.clear();
    frame->updateViewData();
    QCOMPARE(requests, (QStringList{"slotNum", "rgb", "lighting", "profile"}));

    frame->slot_show_Noti();
    requests.clear();
    frame->updateViewData();
    QCOMPARE(requests, QStringList{"noti"});

    frame->slot_show_Setting();
    requests.clear();
    frame->updateViewData();
    QCOMPARE(requests, QStringList{"setting"});

    frame->slot_show_Info();
    requests.clear();
    frame->updateViewData();
    QCOMPARE(requests, QStringList());
}

void TestMainView::raiseMessageBringsTheWindowBack()
{
    const Platform::WindowHandle window = Platform::findWindow(L"NORVALEX RGB");
    QVERIFY(window != 0);
    QVERIFY(!frame->isVisible());
    Platform::sendMessage(window, Platform::kMessageRaise, 0, 0);
    QVERIFY(frame->isVisible());

    frame->showMinimized();
    QTRY_VERIFY(frame->windowState() & Qt::WindowMinimized);
    Platform::sendMessage(window, Platform::kMessageRaise, 0, 0);
    QVERIFY(!(frame->windowState() & Qt::WindowMinimized));
    QVERIFY(frame->isVisible());
}

void TestMainView::messagesStopWithTheFrame()
{
    QVERIFY(Platform::findWindow(L"NORVALEX RGB") != 0);
    frame.reset();
    QCOMPARE(Platform::findWindow(L"NORVALEX RGB"), Platform::WindowHandle(0));
}

void TestMainView::quitMessages()
{
    Main_View* view = frame.get();
    const auto message = [view](unsigned id, quintptr wParam) {
        return [view, id, wParam]() { view->handleNativeMessage(id, wParam, 0); };
    };

    QVERIFY(!requestsQuit(message(Platform::kMessageQuitIfOpened, 1)));
    QVERIFY(!requestsQuit(message(Platform::kMessageRaise, 1)));
    QVERIFY(!requestsQuit(message(0x8304, 1)));
    programStarted = true;
    QVERIFY(!requestsQuit(message(Platform::kMessageQuitIfOpened, 0)));
    QVERIFY(requestsQuit(message(Platform::kMessageQuitIfOpened, 1)));
    programStarted = false;
    QVERIFY(requestsQuit(message(Platform::kMessageQuit, 0)));

    // The same messages arrive through the platform layer.
    QVERIFY(requestsQuit([]() {
        Platform::sendMessage(Platform::findWindow(L"NORVALEX RGB"), Platform::kMessageQuit, 1, 1);
    }));
}

QTEST_MAIN(TestMainView)
#include "tst_main_view.moc"
