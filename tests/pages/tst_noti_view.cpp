#include "TestEnvironment.h"

#include "AppGlobals.h"
#include "FocusRing.h"
#include "Noti_View.h"
#include "Platform.h"
#include "RGB_Palette.h"
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
    // Reserved cells set too: a rule sent back keeps every field as held.
    NotiEventData data{};
    data.reserved0 = 77;
    data.reserved20 = -5;
    data.loadingSwitch = data.shutdownMemorySwitch = data.fanSpeedSwitch = true;
    data.loadingValue = 60;
    data.loadingColor = 0x00336699;
    data.shutdownMemoryValue = 55;
    data.fanSpeedValue = 65;
    data.shutdownCPUValue = 85;
    return data;
}

bool sameRecord(const NotiEventData& a, const NotiEventData& b)
{
    return std::memcmp(&a, &b, sizeof(NotiEventData)) == 0;
}

// Collects the regions a widget is asked to paint.
class PaintRecorder : public QObject
{
public:
    QRegion painted;
    bool covers(const QRect& rect) const { return QRegion(rect).subtracted(painted).isEmpty(); }

protected:
    bool eventFilter(QObject* watched, QEvent* event) override
    {
        if (event->type() == QEvent::Paint)
            painted += static_cast<QPaintEvent*>(event)->region();
        return QObject::eventFilter(watched, event);
    }
};

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
    void cleanup()
    {
        page.reset();
        fan.reset();
    }

    void rowsSendWholeRecord();
    void fanRowFollowsTheFanProgram();
    void loadColourPick();

private:
    // Shows a fresh, active page (with the fan-control program running unless told otherwise)
    // and hands it sampleRecord().
    void open(bool fanProgram = true);
    template <typename T = QWidget> T* child(const QString& name)
    {
        return page->findChild<T*>(name);
    }
    void click(QWidget* widget)
    {
        QTest::mouseClick(widget, Qt::LeftButton, Qt::NoModifier, widget->rect().center());
    }
    void type(QLineEdit* edit, const QString& text)
    {
        click(edit);
        QTRY_VERIFY(edit->hasFocus());
        edit->selectAll();
        QTest::keyClick(edit, Qt::Key_Backspace);
        QTest::keyClicks(edit, text);
    }

    std::unique_ptr<FanProgram> fan;
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

void TestNotiView::open(bool fanProgram)
{
    if (fanProgram)
        fan = std::make_unique<FanProgram>();
    page = std::make_unique<Noti_View>();
    page->show();
    page->activateWindow();
    if (!QTest::qWaitForWindowActive(page.get()))
        qWarning("page window did not become active");
    page->setNotiData(sampleRecord());
}

// Text left without Return is put back and not sent, a value out of range is not taken, a low
// one stops at the row's lowest; Return sends the row's rule with the value, the switch the rule
// with its flag flipped, each time with every other field as held. The unit buttons follow the
// record.
void TestNotiView::rowsSendWholeRecord()
{
    open();
    QSignalSpy spy(page.get(), &Noti_View::sendNotiData);
    auto* load = child<QLineEdit>("lineEdit_Loading");
    type(load, QStringLiteral("80"));
    QTest::mouseClick(page.get(), Qt::LeftButton, Qt::NoModifier, QPoint(700, 470));
    QTRY_VERIFY(!load->hasFocus());
    QCOMPARE(load->text(), QStringLiteral("60"));
    type(load, QStringLiteral("150"));
    QTest::keyClick(load, Qt::Key_Return);
    QCOMPARE(spy.count(), 0);

    auto* memory = child<QLineEdit>("lineEdit_Shutdown_Memory");
    type(memory, QStringLiteral("-40"));
    QTest::keyClick(memory, Qt::Key_Return);
    NotiEventData expected = sampleRecord();
    expected.changedItem = 2;
    expected.shutdownMemoryValue = -4;
    QCOMPARE(spy.count(), 1);
    QVERIFY(sameRecord(recordAt(spy, 0), expected));
    QVERIFY(!memory->hasFocus());
    QCOMPARE(memory->text(), QStringLiteral("-4"));

    click(child("switch_Shutdown_CPU"));
    expected.changedItem = 4;
    expected.shutdownCPUSwitch = true;
    QCOMPARE(spy.count(), 2);
    QVERIFY(sameRecord(recordAt(spy, 1), expected));

    // Unit 1 shows Fahrenheit on the row's button, an unknown unit keeps the caption, 0 Celsius.
    for (int unit : {1, 2, 0}) {
        expected.shutdownCPUUnit = unit;
        page->setNotiData(expected);
        QCOMPARE(child<QPushButton>("btn_Unit_CPU")->text(), QString::fromUtf8(unit ? "°F" : "°C"));
    }
}

// Without the fan-control program every record is answered with the fan rule switched off and
// the fan row hidden; the row's 1-pixel underlines are repainted as it comes and goes.
void TestNotiView::fanRowFollowsTheFanProgram()
{
    open(false);
    QSignalSpy spy(page.get(), &Noti_View::sendNotiData);
    NotiEventData data = sampleRecord();
    page->setNotiData(data);
    QCOMPARE(spy.count(), 1);
    data.changedItem = 3;
    data.fanSpeedSwitch = false;
    data.fanSpeedValue = recordAt(spy, 0).fanSpeedValue; // whatever the hidden row shows
    QVERIFY(sameRecord(recordAt(spy, 0), data));

    QVERIFY(QTest::qWaitForWindowExposed(page.get()));
    PaintRecorder recorder;
    page->installEventFilter(&recorder);
    const auto underline = [this](const char* name) {
        const QWidget* widget = child(QString::fromLatin1(name));
        return QRect(widget->mapTo(page.get(), QPoint(0, widget->height())),
                     QSize(widget->width(), 1));
    };
    for (bool running : {true, false}) {
        fan.reset(running ? new FanProgram : nullptr);
        QCoreApplication::processEvents();
        recorder.painted = QRegion();
        data = sampleRecord();
        data.fanSpeedValue = 66;
        page->setNotiData(data);
        // Answered only while the program is missing.
        QCOMPARE(spy.count(), running ? 1 : 2);
        QCOMPARE(child("lineEdit_FanSpeed")->isHidden() && child("switch_FanSpeed")->isHidden(),
                 !running);
        if (running)
            QCOMPARE(child<QLineEdit>("lineEdit_FanSpeed")->text(), QStringLiteral("66"));
        QTRY_VERIFY(recorder.covers(underline("lineEdit_FanSpeed")) &&
                    recorder.covers(underline("btn_Unit_FanSpeed")));
    }
}

// The load colour's swatch opens the wheel by mouse or keyboard; Escape closes it without a
// choice; a click picks a colour that is sent with the load rule and painted
// on the swatch. The keyboard cursor shows only when the keyboard opened the wheel, and Escape
// gives the focus back to the swatch.
void TestNotiView::loadColourPick()
{
    open();
    NotiEventData expected = sampleRecord();
    QSignalSpy spy(page.get(), &Noti_View::sendNotiData);
    auto* swatch = child<QPushButton>("btn_Loading_Color");
    auto* popup = child<Widget_Select_Palette>("palette_Select");
    RGB_Palette* wheel = popup->wheel();
    auto* cursorMark = wheel->findChild<FocusRing*>();

    QTest::mouseClick(swatch, Qt::LeftButton);
    QTRY_VERIFY(popup->isVisible() && popup->hasFocus());
    QVERIFY(!cursorMark->isVisible());
    QTest::mouseClick(popup, Qt::LeftButton, Qt::NoModifier, QPoint(150, 100));
    QTRY_VERIFY(popup->isHidden());
    QCOMPARE(spy.count(), 1);
    expected.changedItem = 1;
    expected.loadingColor = recordAt(spy, 0).loadingColor;
    QVERIFY(sameRecord(recordAt(spy, 0), expected));
    const COLORREF c = expected.loadingColor;
    const QString rgb = QStringLiteral("rgb(%1,%2,%3)").arg(c & 255).arg(c >> 8 & 255).arg(c >> 16);
    QVERIFY2(swatch->styleSheet().contains(rgb), qPrintable(swatch->styleSheet()));

    swatch->setFocus(Qt::TabFocusReason);
    QTRY_VERIFY(swatch->hasFocus());
    QTest::keyClick(swatch, Qt::Key_Space);
    QTRY_VERIFY(popup->isVisible() && wheel->hasFocus() && cursorMark->isVisible());
    QTest::keyClick(wheel, Qt::Key_Escape);
    QTRY_VERIFY(popup->isHidden() && swatch->hasFocus());
    QCOMPARE(spy.count(), 1);
}

QTEST_MAIN(TestNotiView)
#include "tst_noti_view.moc"
