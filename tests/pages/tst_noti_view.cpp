#include "TestEnvironment.h"

#include "AppGlobals.h"
#include "Noti_View.h"
#include "Platform.h"
#include "SwitchButton.h"
#include "Widget_Select_Palette.h"

#include <QLineEdit>
#include <QPushButton>
#include <QStandardPaths>
#include <QtTest>

#include <cstring>
#include <memory>

Q_DECLARE_METATYPE(NotiEventData)

namespace {

const wchar_t kFanSoftwareMutex[] = L"Prismveil";

// Holds the fan-control program's mutex while alive, as that program would.
struct FanProgram {
    Platform::MutexHandle handle = Platform::createMutex(kFanSoftwareMutex, nullptr);
    ~FanProgram() { Platform::closeHandle(handle); }
};

NotiEventData sampleRecord()
{
    NotiEventData data{};
    data.reserved0 = 77;
    data.loadingSwitch = true;
    data.loadingValue = 60;
    data.loadingColor = 0x00336699;
    data.reserved20 = -5;
    data.shutdownMemorySwitch = true;
    data.shutdownMemoryValue = 55;
    data.fanSpeedSwitch = true;
    data.fanSpeedValue = 65;
    data.shutdownCPUValue = 85;
    return data;
}

bool sameRecord(const NotiEventData& a, const NotiEventData& b)
{
    return std::memcmp(&a, &b, sizeof(NotiEventData)) == 0;
}

NotiEventData recordAt(const QSignalSpy& spy, int index)
{
    return spy.at(index).at(0).value<NotiEventData>();
}

} // namespace

class TestNotiView : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();
    void cleanup() { page.reset(); }

    void returnSendsWholeRecord_data();
    void returnSendsWholeRecord();
    void focusLossRestoresStoredValue();
    void switchesSendTheirRule();
    void unitCaptions_data();
    void unitCaptions();
    void fanRuleFollowsTheFanProgram();
    void colourPickPath();

private:
    // Shows a fresh, active page, hands it sampleRecord() and returns the record it holds then:
    // the same, or its answer when the fan rule had to be switched off.
    NotiEventData open();
    template <typename T = QWidget> T* child(const char* name)
    {
        return page->findChild<T*>(QLatin1String(name));
    }
    void focusEdit(QLineEdit* edit)
    {
        QTest::mouseClick(edit, Qt::LeftButton, Qt::NoModifier, edit->rect().center());
        QTRY_VERIFY(edit->hasFocus());
        edit->selectAll();
    }

    std::unique_ptr<Noti_View> page;
};

void TestNotiView::initTestCase()
{
    QStandardPaths::setTestModeEnabled(true);
    qRegisterMetaType<NotiEventData>();
    qRegisterMetaType<COLORREF>("COLORREF");
    QVERIFY2(!Platform::mutexExists(kFanSoftwareMutex), "a fan-control program is running");
    // The load rule's row shows only then.
    extendedFeatures = true;
}

NotiEventData TestNotiView::open()
{
    page = std::make_unique<Noti_View>();
    page->show();
    page->activateWindow();
    if (!QTest::qWaitForWindowActive(page.get()))
        qWarning("page window did not become active");
    QSignalSpy spy(page.get(), &Noti_View::sendNotiData);
    page->setNotiData(sampleRecord());
    return spy.isEmpty() ? sampleRecord() : recordAt(spy, spy.count() - 1);
}

void TestNotiView::returnSendsWholeRecord_data()
{
    QTest::addColumn<QString>("edit");
    QTest::addColumn<bool>("fanProgram");
    QTest::addColumn<QString>("typed");
    QTest::addColumn<int>("changedItem"); // 0: nothing sent
    QTest::addColumn<int>("value");

    QTest::newRow("load 75") << "lineEdit_Loading" << false << "75" << 1 << 75;
    QTest::newRow("load over range is not taken") << "lineEdit_Loading" << false << "150" << 0 << 0;
    QTest::newRow("memory below range stops at -4")
        << "lineEdit_Shutdown_Memory" << false << "-40" << 2 << -4;
    QTest::newRow("cpu highest") << "lineEdit_Shutdown_CPU" << false << "1000" << 4 << 1000;
    QTest::newRow("fan") << "lineEdit_FanSpeed" << true << "81" << 3 << 81;
}

void TestNotiView::returnSendsWholeRecord()
{
    QFETCH(QString, edit);
    QFETCH(bool, fanProgram);
    QFETCH(QString, typed);
    QFETCH(int, changedItem);
    QFETCH(int, value);

    std::unique_ptr<FanProgram> fan;
    if (fanProgram)
        fan = std::make_unique<FanProgram>();
    NotiEventData expected = open();
    QSignalSpy spy(page.get(), &Noti_View::sendNotiData);

    auto* lineEdit = child<QLineEdit>(qPrintable(edit));
    focusEdit(lineEdit);
    QTest::keyClick(lineEdit, Qt::Key_Backspace);
    QTest::keyClicks(lineEdit, typed);
    QTest::keyClick(lineEdit, Qt::Key_Return);
    QCOMPARE(spy.count(), changedItem ? 1 : 0);
    if (!changedItem)
        return;

    int* values[] = {nullptr, &expected.loadingValue, &expected.shutdownMemoryValue,
                     &expected.fanSpeedValue, &expected.shutdownCPUValue};
    *values[changedItem] = value;
    expected.changedItem = changedItem;
    QVERIFY(sameRecord(recordAt(spy, 0), expected));
    QVERIFY(!lineEdit->hasFocus());
    QCOMPARE(lineEdit->text(), QString::number(value));
}

void TestNotiView::focusLossRestoresStoredValue()
{
    open();
    QSignalSpy spy(page.get(), &Noti_View::sendNotiData);
    auto* lineEdit = child<QLineEdit>("lineEdit_Loading");
    focusEdit(lineEdit);
    QTest::keyClicks(lineEdit, QStringLiteral("80"));
    QCOMPARE(lineEdit->text(), QStringLiteral("80"));

    // A click on an empty part of the page takes the focus away.
    QTest::mouseClick(page.get(), Qt::LeftButton, Qt::NoModifier, QPoint(700, 470));
    QTRY_VERIFY(!lineEdit->hasFocus());
    QCOMPARE(lineEdit->text(), QStringLiteral("60"));
    QCOMPARE(spy.count(), 0);

    // The thrown-away text is not what a later change sends either.
    auto* button = child<SwitchButton>("switch_Loading");
    QTest::mouseClick(button, Qt::LeftButton, Qt::NoModifier, button->rect().center());
    QCOMPARE(spy.count(), 1);
    QCOMPARE(recordAt(spy, 0).loadingValue, 60);
}

void TestNotiView::switchesSendTheirRule()
{
    FanProgram fan;
    NotiEventData held = open();
    const struct {
        const char* name;
        int changedItem;
        bool NotiEventData::*flag;
    } rules[] = {{"switch_Loading", 1, &NotiEventData::loadingSwitch},
                 {"switch_Shutdown_Memory", 2, &NotiEventData::shutdownMemorySwitch},
                 {"switch_FanSpeed", 3, &NotiEventData::fanSpeedSwitch},
                 {"switch_Shutdown_CPU", 4, &NotiEventData::shutdownCPUSwitch}};
    for (const auto& rule : rules) {
        QSignalSpy spy(page.get(), &Noti_View::sendNotiData);
        auto* button = child<SwitchButton>(rule.name);
        QTest::mouseClick(button, Qt::LeftButton, Qt::NoModifier, button->rect().center());
        QCOMPARE(spy.count(), 1);
        held.changedItem = rule.changedItem;
        held.*rule.flag = !(held.*rule.flag);
        QVERIFY2(sameRecord(recordAt(spy, 0), held), rule.name);
    }
}

void TestNotiView::unitCaptions_data()
{
    QTest::addColumn<int>("first");
    QTest::addColumn<int>("second");
    QTest::addColumn<QString>("caption");
    const QString celsius = QString::fromUtf8("°C");
    const QString fahrenheit = QString::fromUtf8("°F");
    QTest::newRow("0 is C") << 1 << 0 << celsius;
    QTest::newRow("1 is F") << 0 << 1 << fahrenheit;
    QTest::newRow("2 keeps F") << 1 << 2 << fahrenheit;
}

void TestNotiView::unitCaptions()
{
    QFETCH(int, first);
    QFETCH(int, second);

    FanProgram fan;
    open();
    const char* const buttons[] = {"btn_Unit_Memory", "btn_Unit_CPU", "btn_Unit_FanSpeed"};
    for (int row = 0; row < 3; ++row) {
        NotiEventData data = sampleRecord();
        // One row's unit changes at a time; the others stay Celsius.
        int* units[] = {&data.shutdownMemoryUnit, &data.shutdownCPUUnit, &data.fanSpeedUnit};
        *units[row] = first;
        page->setNotiData(data);
        *units[row] = second;
        page->setNotiData(data);
        QTEST(child<QPushButton>(buttons[row])->text(), "caption");
    }
}

void TestNotiView::fanRuleFollowsTheFanProgram()
{
    open();
    QSignalSpy spy(page.get(), &Noti_View::sendNotiData);
    // Without the program every record is answered with the fan rule switched off.
    for (int round = 0; round < 2; ++round) {
        NotiEventData data = sampleRecord();
        data.reserved0 = round;
        page->setNotiData(data);
        QCOMPARE(spy.count(), round + 1);
        const NotiEventData sent = recordAt(spy, round);
        data.changedItem = 3;
        data.fanSpeedSwitch = false;
        data.fanSpeedValue = sent.fanSpeedValue; // whatever the hidden row shows
        QVERIFY(sameRecord(sent, data));
        QVERIFY(!child<SwitchButton>("switch_FanSpeed")->isChecked());
        QVERIFY(child("switch_FanSpeed")->isHidden() && child("lineEdit_FanSpeed")->isHidden());
    }

    {
        FanProgram fan;
        NotiEventData data = sampleRecord();
        data.fanSpeedValue = 66;
        page->setNotiData(data);
        QCOMPARE(spy.count(), 2);
        QVERIFY(!child("switch_FanSpeed")->isHidden() && !child("label_FanSpeed")->isHidden());
        QCOMPARE(child<QLineEdit>("lineEdit_FanSpeed")->text(), QStringLiteral("66"));
    }

    // The program has gone, and the page's probe holds nothing either.
    QVERIFY(!Platform::mutexExists(kFanSoftwareMutex));
    page->setNotiData(sampleRecord());
    QCOMPARE(spy.count(), 3);
    QVERIFY(child("lineEdit_FanSpeed")->isHidden());
}

void TestNotiView::colourPickPath()
{
    NotiEventData expected = open();
    QSignalSpy spy(page.get(), &Noti_View::sendNotiData);
    auto* swatch = child<QPushButton>("btn_Loading_Color");
    auto* popup = child<Widget_Select_Palette>("palette_Select");

    // The swatch opens the pop-up; a click elsewhere closes it without a choice.
    QTest::mouseClick(swatch, Qt::LeftButton);
    QTRY_VERIFY(popup->isVisible() && popup->hasFocus());
    QTest::mouseClick(page.get(), Qt::LeftButton, Qt::NoModifier, QPoint(100, 480));
    QTRY_VERIFY(popup->isHidden());
    QCOMPARE(spy.count(), 0);

    // Choosing a colour from the wheel sends it with the load rule and paints the swatch.
    QTest::mouseClick(swatch, Qt::LeftButton);
    QSignalSpy picked(popup, &Widget_Select_Palette::pressRGB);
    QTest::mouseClick(popup, Qt::LeftButton, Qt::NoModifier, QPoint(150, 100));
    QCOMPARE(picked.count(), 1);
    const COLORREF colour = picked.at(0).at(0).value<COLORREF>();
    QVERIFY(popup->isHidden());
    QCOMPARE(spy.count(), 1);
    expected.changedItem = 1;
    expected.loadingColor = colour;
    QVERIFY(sameRecord(recordAt(spy, 0), expected));
    const QString rgb = QStringLiteral("rgb(%1,%2,%3)")
                            .arg(colour & 255)
                            .arg((colour >> 8) & 255)
                            .arg((colour >> 16) & 255);
    QVERIFY2(swatch->styleSheet().contains(rgb), qPrintable(swatch->styleSheet()));
    QTRY_VERIFY(page->hasFocus());
}

QTEST_MAIN(TestNotiView)
#include "tst_noti_view.moc"
