#include "TestEnvironment.h"

#include "AppGlobals.h"
#include "Noti_View.h"
#include "Platform.h"
#include "SwitchButton.h"
#include "Widget_Select_Palette.h"

#include <QApplication>
#include <QImage>
#include <QLabel>
#include <QLayout>
#include <QLineEdit>
#include <QPushButton>
#include <QSignalSpy>
#include <QStandardPaths>
#include <QTranslator>
#include <QtTest>

#include <cstring>
#include <memory>

Q_DECLARE_METATYPE(NotiEventData)

namespace {

const wchar_t kFanSoftwareMutex[] = L"Prismveil";

// Holds the fan-control program's mutex while alive, as that program would.
class FanProgram
{
public:
    FanProgram()
    {
        bool exists = true;
        handle = Platform::createMutex(kFanSoftwareMutex, &exists);
        QVERIFY2(!exists, "the probe mutex is held by someone else");
    }
    ~FanProgram() { Platform::closeHandle(handle); }
    FanProgram(const FanProgram&) = delete;
    FanProgram& operator=(const FanProgram&) = delete;

private:
    Platform::MutexHandle handle = nullptr;
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
    data.shutdownMemoryUnit = 0;
    data.fanSpeedSwitch = true;
    data.fanSpeedValue = 65;
    data.fanSpeedUnit = 0;
    data.shutdownCPUSwitch = false;
    data.shutdownCPUValue = 85;
    data.shutdownCPUUnit = 0;
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

// Hands the page a record and returns what it holds afterwards: the record itself, or its
// answer when the fan rule had to be switched off.
NotiEventData load(Noti_View* page, const NotiEventData& data)
{
    QSignalSpy spy(page, &Noti_View::sendNotiData);
    page->setNotiData(data);
    return spy.isEmpty() ? data : recordAt(spy, spy.count() - 1);
}

} // namespace

class TestNotiView : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();
    void init();

    void returnSendsWholeRecord_data();
    void returnSendsWholeRecord();
    void focusLossRestoresStoredValue_data();
    void focusLossRestoresStoredValue();
    void switchesSendTheirRule_data();
    void switchesSendTheirRule();
    void unitCaptions_data();
    void unitCaptions();
    void withoutFanProgramEveryRecordTurnsFanRuleOff();
    void withFanProgramTheFanRowShows();
    void colourPickPath();
    void swatchShowsRedGreenBlue();
    void loadRowNeedsExtendedFeatures();
    void underlinesFollowFocus();
    void titleSizePerLanguage_data();
    void titleSizePerLanguage();
    void englishCaptions();
    void captionsFitInEveryLanguage_data();
    void captionsFitInEveryLanguage();

private:
    // A shown, active page; its construction-time answer is already out of the way.
    std::unique_ptr<Noti_View> makePage();
    template <typename T> T* child(Noti_View* page, const char* name)
    {
        T* widget = page->findChild<T*>(QLatin1String(name));
        if (!widget)
            qFatal("missing child %s", name);
        return widget;
    }
    void focusEdit(QLineEdit* edit);

    QTranslator english;
};

void TestNotiView::initTestCase()
{
    QStandardPaths::setTestModeEnabled(true);
    qRegisterMetaType<NotiEventData>();
    qRegisterMetaType<COLORREF>("COLORREF");
    QVERIFY(english.load(QStringLiteral(":/QXRGBMemory/NORVALEX_en.qm")));
    QCoreApplication::installTranslator(&english);
    QVERIFY2(!Platform::mutexExists(kFanSoftwareMutex), "a fan-control program is running");
}

void TestNotiView::init()
{
    extendedFeatures = true;
    currentLanguage = 0;
}

std::unique_ptr<Noti_View> TestNotiView::makePage()
{
    auto page = std::make_unique<Noti_View>();
    page->show();
    page->activateWindow();
    if (!QTest::qWaitForWindowActive(page.get()))
        qWarning("page window did not become active");
    return page;
}

void TestNotiView::focusEdit(QLineEdit* edit)
{
    QTest::mouseClick(edit, Qt::LeftButton, Qt::NoModifier, edit->rect().center());
    QTRY_VERIFY(edit->hasFocus());
    edit->selectAll();
}

void TestNotiView::returnSendsWholeRecord_data()
{
    QTest::addColumn<QString>("edit");
    QTest::addColumn<bool>("fanProgram");
    QTest::addColumn<QString>("typed");
    QTest::addColumn<bool>("accepted");
    QTest::addColumn<int>("changedItem");
    QTest::addColumn<int>("value");

    QTest::newRow("load 75") << "lineEdit_Loading" << false << "75" << true << 1 << 75;
    QTest::newRow("load over range is not taken")
        << "lineEdit_Loading" << false << "150" << false << 1 << 0;
    QTest::newRow("load fourth digit refused")
        << "lineEdit_Loading" << false << "1000" << true << 1 << 100;
    QTest::newRow("load empty is not taken")
        << "lineEdit_Loading" << false << "" << false << 1 << 0;
    QTest::newRow("memory") << "lineEdit_Shutdown_Memory" << false << "72" << true << 2 << 72;
    QTest::newRow("memory lowest")
        << "lineEdit_Shutdown_Memory" << false << "-30" << true << 2 << -30;
    QTest::newRow("memory below range stops at -4")
        << "lineEdit_Shutdown_Memory" << false << "-40" << true << 2 << -4;
    QTest::newRow("cpu highest") << "lineEdit_Shutdown_CPU" << false << "1000" << true << 4 << 1000;
    QTest::newRow("fan") << "lineEdit_FanSpeed" << true << "81" << true << 3 << 81;
}

void TestNotiView::returnSendsWholeRecord()
{
    QFETCH(QString, edit);
    QFETCH(bool, fanProgram);
    QFETCH(QString, typed);
    QFETCH(bool, accepted);
    QFETCH(int, changedItem);
    QFETCH(int, value);

    std::unique_ptr<FanProgram> fan;
    if (fanProgram)
        fan = std::make_unique<FanProgram>();
    auto page = makePage();
    const NotiEventData before = load(page.get(), sampleRecord());
    QSignalSpy spy(page.get(), &Noti_View::sendNotiData);

    auto* lineEdit = child<QLineEdit>(page.get(), qPrintable(edit));
    focusEdit(lineEdit);
    QTest::keyClick(lineEdit, Qt::Key_Backspace);
    QTest::keyClicks(lineEdit, typed);
    QTest::keyClick(lineEdit, Qt::Key_Return);

    if (!accepted) {
        // Not acceptable to the validator: Return sends nothing.
        QCOMPARE(spy.count(), 0);
        return;
    }
    QCOMPARE(spy.count(), 1);
    const NotiEventData sent = recordAt(spy, 0);
    QCOMPARE(sent.changedItem, changedItem);

    NotiEventData expected = before;
    expected.changedItem = changedItem;
    switch (changedItem) {
    case 1:
        expected.loadingValue = value;
        break;
    case 2:
        expected.shutdownMemoryValue = value;
        break;
    case 3:
        expected.fanSpeedValue = value;
        break;
    case 4:
        expected.shutdownCPUValue = value;
        break;
    }
    QVERIFY(sameRecord(sent, expected));
    QVERIFY(!lineEdit->hasFocus());
    QCOMPARE(lineEdit->text(), QString::number(value));
}

void TestNotiView::focusLossRestoresStoredValue_data()
{
    QTest::addColumn<QString>("edit");
    QTest::addColumn<QString>("stored");

    QTest::newRow("cpu") << "lineEdit_Shutdown_CPU"
                         << "85";
    QTest::newRow("memory") << "lineEdit_Shutdown_Memory"
                            << "55";
    QTest::newRow("load") << "lineEdit_Loading"
                          << "60";
}

void TestNotiView::focusLossRestoresStoredValue()
{
    QFETCH(QString, edit);
    QFETCH(QString, stored);

    auto page = makePage();
    page->setNotiData(sampleRecord());
    QSignalSpy spy(page.get(), &Noti_View::sendNotiData);

    auto* lineEdit = child<QLineEdit>(page.get(), qPrintable(edit));
    focusEdit(lineEdit);
    QTest::keyClicks(lineEdit, QStringLiteral("80"));
    QCOMPARE(lineEdit->text(), QStringLiteral("80"));

    // A click on an empty part of the page takes the focus away.
    QTest::mouseClick(page.get(), Qt::LeftButton, Qt::NoModifier, QPoint(700, 470));
    QTRY_VERIFY(!lineEdit->hasFocus());
    QCOMPARE(lineEdit->text(), stored);
    QCOMPARE(spy.count(), 0);

    // The thrown-away text is not what a later change sends either.
    child<SwitchButton>(page.get(), "switch_Shutdown_Memory")->setChecked(false);
    page->slot_Shutdown_Switch(true);
    QCOMPARE(spy.count(), 1);
    const NotiEventData sent = recordAt(spy, 0);
    QCOMPARE(sent.loadingValue, sampleRecord().loadingValue);
    QCOMPARE(sent.shutdownCPUValue, sampleRecord().shutdownCPUValue);
}

void TestNotiView::switchesSendTheirRule_data()
{
    QTest::addColumn<QString>("switchName");
    QTest::addColumn<int>("changedItem");

    QTest::newRow("load") << "switch_Loading" << 1;
    QTest::newRow("memory") << "switch_Shutdown_Memory" << 2;
    QTest::newRow("cpu") << "switch_Shutdown_CPU" << 4;
    QTest::newRow("fan") << "switch_FanSpeed" << 3;
}

void TestNotiView::switchesSendTheirRule()
{
    QFETCH(QString, switchName);
    QFETCH(int, changedItem);

    FanProgram fan;
    auto page = makePage();
    const NotiEventData base = load(page.get(), sampleRecord());
    QSignalSpy spy(page.get(), &Noti_View::sendNotiData);

    auto* button = child<SwitchButton>(page.get(), qPrintable(switchName));
    const bool wasOn = button->isChecked();
    QTest::mouseClick(button, Qt::LeftButton, Qt::NoModifier, button->rect().center());
    QCOMPARE(spy.count(), 1);

    NotiEventData expected = base;
    expected.changedItem = changedItem;
    switch (changedItem) {
    case 1:
        expected.loadingSwitch = !wasOn;
        break;
    case 2:
        expected.shutdownMemorySwitch = !wasOn;
        break;
    case 3:
        expected.fanSpeedSwitch = !wasOn;
        break;
    case 4:
        expected.shutdownCPUSwitch = !wasOn;
        break;
    }
    QVERIFY(sameRecord(recordAt(spy, 0), expected));
}

void TestNotiView::unitCaptions_data()
{
    QTest::addColumn<int>("first");
    QTest::addColumn<int>("second");
    QTest::addColumn<QString>("caption");

    const QString celsius = QString(QChar(0x00B0)) + QLatin1Char('C');
    const QString fahrenheit = QString(QChar(0x00B0)) + QLatin1Char('F');
    QTest::newRow("C") << 1 << 0 << celsius;
    QTest::newRow("F") << 0 << 1 << fahrenheit;
    QTest::newRow("2 keeps F") << 1 << 2 << fahrenheit;
    QTest::newRow("2 keeps C") << 0 << 2 << celsius;
    QTest::newRow("-1 keeps F") << 1 << -1 << fahrenheit;
}

void TestNotiView::unitCaptions()
{
    QFETCH(int, first);
    QFETCH(int, second);
    QFETCH(QString, caption);

    FanProgram fan;
    auto page = makePage();
    const char* const buttons[] = {"btn_Unit_Memory", "btn_Unit_CPU", "btn_Unit_FanSpeed"};
    for (int row = 0; row < 3; ++row) {
        NotiEventData data = sampleRecord();
        // Only one row's unit changes at a time; the others stay Celsius.
        int* units[] = {&data.shutdownMemoryUnit, &data.shutdownCPUUnit, &data.fanSpeedUnit};
        *units[row] = first;
        page->setNotiData(data);
        *units[row] = second;
        page->setNotiData(data);
        QCOMPARE(child<QPushButton>(page.get(), buttons[row])->text(), caption);
    }
}

void TestNotiView::withoutFanProgramEveryRecordTurnsFanRuleOff()
{
    auto page = makePage();
    QSignalSpy spy(page.get(), &Noti_View::sendNotiData);

    const char* const fanRow[] = {"switch_FanSpeed",        "label_FanSpeed_CPU",
                                  "label_Greater_FanSpeed", "lineEdit_FanSpeed",
                                  "btn_Unit_FanSpeed",      "label_FanSpeed"};
    for (int round = 0; round < 3; ++round) {
        NotiEventData data = sampleRecord();
        data.fanSpeedSwitch = true;
        data.fanSpeedValue = 40 + round;
        data.reserved0 = round;
        page->setNotiData(data);

        QCOMPARE(spy.count(), round + 1);
        const NotiEventData sent = recordAt(spy, round);
        QCOMPARE(sent.changedItem, 3);
        QCOMPARE(sent.fanSpeedSwitch, false);
        QCOMPARE(sent.reserved0, round);
        QCOMPARE(sent.loadingColor, data.loadingColor);
        QCOMPARE(sent.shutdownCPUValue, data.shutdownCPUValue);
        QVERIFY(!child<SwitchButton>(page.get(), "switch_FanSpeed")->isChecked());
        for (const char* name : fanRow)
            QVERIFY2(child<QWidget>(page.get(), name)->isHidden(), name);
    }
    QVERIFY(!Platform::mutexExists(kFanSoftwareMutex));
}

void TestNotiView::withFanProgramTheFanRowShows()
{
    auto page = makePage();
    QVERIFY(child<QWidget>(page.get(), "lineEdit_FanSpeed")->isHidden());
    QSignalSpy spy(page.get(), &Noti_View::sendNotiData);

    {
        FanProgram fan;
        NotiEventData data = sampleRecord();
        data.fanSpeedSwitch = true;
        data.fanSpeedValue = 66;
        data.fanSpeedUnit = 1;
        page->setNotiData(data);

        QCOMPARE(spy.count(), 0);
        QVERIFY(!child<QWidget>(page.get(), "lineEdit_FanSpeed")->isHidden());
        QVERIFY(!child<QWidget>(page.get(), "label_FanSpeed")->isHidden());
        QVERIFY(child<SwitchButton>(page.get(), "switch_FanSpeed")->isChecked());
        QCOMPARE(child<QLineEdit>(page.get(), "lineEdit_FanSpeed")->text(), QStringLiteral("66"));
        QCOMPARE(child<QPushButton>(page.get(), "btn_Unit_FanSpeed")->text(),
                 QString(QChar(0x00B0)) + QLatin1Char('F'));
        // The probe closes what it opened: the program's own hold is the only one.
        QVERIFY(Platform::mutexExists(kFanSoftwareMutex));
    }

    // The program has gone: the next record is answered with the rule off.
    page->setNotiData(sampleRecord());
    QCOMPARE(spy.count(), 1);
    QCOMPARE(recordAt(spy, 0).changedItem, 3);
    QVERIFY(child<QWidget>(page.get(), "lineEdit_FanSpeed")->isHidden());
}

void TestNotiView::colourPickPath()
{
    auto page = makePage();
    const NotiEventData before = load(page.get(), sampleRecord());
    QSignalSpy spy(page.get(), &Noti_View::sendNotiData);

    auto* swatch = child<QPushButton>(page.get(), "btn_Loading_Color");
    auto* popup = child<Widget_Select_Palette>(page.get(), "palette_Select");
    auto* grid = child<QWidget>(page.get(), "widget_Grid");
    QVERIFY(popup->isHidden());

    // The swatch toggles the pop-up, which opens just below it.
    QTest::mouseClick(swatch, Qt::LeftButton);
    QVERIFY(popup->isVisible());
    QCOMPARE(popup->pos(), grid->pos() + swatch->pos() + QPoint(0, swatch->height()));
    QTRY_VERIFY(popup->hasFocus());
    QTest::mouseClick(swatch, Qt::LeftButton);
    QVERIFY(popup->isHidden());
    QCOMPARE(spy.count(), 0);

    // A click elsewhere closes it without a choice.
    QTest::mouseClick(swatch, Qt::LeftButton);
    QVERIFY(popup->isVisible());
    QTest::mouseClick(page.get(), Qt::LeftButton, Qt::NoModifier, QPoint(100, 480));
    QTRY_VERIFY(popup->isHidden());
    QCOMPARE(spy.count(), 0);

    // Choosing a colour from the wheel.
    QTest::mouseClick(swatch, Qt::LeftButton);
    QVERIFY(popup->isVisible());
    QSignalSpy picked(popup, &Widget_Select_Palette::pressRGB);
    QTest::mouseClick(popup, Qt::LeftButton, Qt::NoModifier, QPoint(150, 100));
    QCOMPARE(picked.count(), 1);
    const COLORREF colour = picked.at(0).at(0).value<COLORREF>();

    QVERIFY(popup->isHidden());
    QCOMPARE(spy.count(), 1);
    NotiEventData expected = before;
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

void TestNotiView::swatchShowsRedGreenBlue()
{
    auto page = makePage();
    page->setNotiData(sampleRecord());
    auto* swatch = child<QPushButton>(page.get(), "btn_Loading_Color");

    // 0x00BBGGRR: 0x40 red, 0x80 green, 0xFF blue.
    page->slot_Palette_Color(0x00FF8040);
    QCOMPARE(swatch->styleSheet(),
             QStringLiteral("QPushButton{background-color:rgb(64,128,255); border-radius:10px; "
                            "margin:5 5 5 5;}"));
    QImage shot = page->grab().toImage();
    const QWidget* grid = child<QWidget>(page.get(), "widget_Grid");
    const QPoint centre = grid->pos() + swatch->geometry().center();
    QCOMPARE(QColor(shot.pixel(centre)), QColor(64, 128, 255));

    // A received record restyles it too.
    NotiEventData data = sampleRecord();
    data.loadingColor = 0x000000FF;
    page->setNotiData(data);
    QVERIFY(swatch->styleSheet().contains(QStringLiteral("rgb(255,0,0)")));
}

void TestNotiView::loadRowNeedsExtendedFeatures()
{
    const char* const loadRow[] = {"label_Greater_Loading", "switch_Loading", "label_Loading",
                                   "lineEdit_Loading",      "btn_Percent",    "label_Trigger_LED",
                                   "btn_Loading_Color"};
    auto page = makePage();
    page->setNotiData(sampleRecord());
    for (const char* name : loadRow)
        QVERIFY2(!child<QWidget>(page.get(), name)->isHidden(), name);

    extendedFeatures = false;
    page->setNotiData(sampleRecord());
    for (const char* name : loadRow)
        QVERIFY2(child<QWidget>(page.get(), name)->isHidden(), name);
    QVERIFY(!child<QWidget>(page.get(), "lineEdit_Shutdown_CPU")->isHidden());

    // Once hidden, it stays hidden.
    extendedFeatures = true;
    page->setNotiData(sampleRecord());
    for (const char* name : loadRow)
        QVERIFY2(child<QWidget>(page.get(), name)->isHidden(), name);
}

void TestNotiView::underlinesFollowFocus()
{
    const QColor accent(32, 158, 199);
    const QColor grey(Qt::darkGray);
    auto page = makePage();
    page->setNotiData(sampleRecord());
    const QWidget* grid = child<QWidget>(page.get(), "widget_Grid");
    const auto lineColour = [&](const char* name) {
        const QWidget* widget = child<QWidget>(page.get(), name);
        const QPoint at = grid->pos() + widget->geometry().bottomLeft() + QPoint(5, 1);
        return QColor(page->grab().toImage().pixel(at));
    };

    QCOMPARE(lineColour("lineEdit_Shutdown_CPU"), grey);
    QCOMPARE(lineColour("lineEdit_Loading"), grey);
    QCOMPARE(lineColour("btn_Unit_Memory"), grey);

    auto* cpu = child<QLineEdit>(page.get(), "lineEdit_Shutdown_CPU");
    focusEdit(cpu);
    QCOMPARE(lineColour("lineEdit_Shutdown_CPU"), accent);
    QCOMPARE(lineColour("lineEdit_Shutdown_Memory"), grey);

    // The load edit's line stays grey even with the focus.
    focusEdit(child<QLineEdit>(page.get(), "lineEdit_Loading"));
    QCOMPARE(lineColour("lineEdit_Loading"), grey);
    QCOMPARE(lineColour("lineEdit_Shutdown_CPU"), grey);
}

void TestNotiView::titleSizePerLanguage_data()
{
    QTest::addColumn<int>("language");
    QTest::addColumn<int>("pixels");

    QTest::newRow("en") << 0 << 22;
    QTest::newRow("de") << 3 << 16;
    QTest::newRow("fr") << 4 << 22;
    QTest::newRow("ru") << 7 << 20;
    QTest::newRow("es") << 9 << 14;
}

void TestNotiView::titleSizePerLanguage()
{
    QFETCH(int, language);
    QFETCH(int, pixels);

    auto page = makePage();
    currentLanguage = language;
    page->updateLanguage_Noti();
    auto* title = child<QLabel>(page.get(), "label_Title");
    QCOMPARE(title->styleSheet(),
             QStringLiteral("QLabel {font-family: Arial; color:Lightgray; font-size:%1px;}")
                 .arg(pixels));
    title->ensurePolished();
    QCOMPARE(title->font().pixelSize(), pixels);
}

void TestNotiView::englishCaptions()
{
    FanProgram fan;
    auto page = makePage();
    page->updateLanguage_Noti();
    const struct {
        const char* name;
        const char* text;
    } captions[] = {
        {"label_Title", "Set Notifications"},
        {"label_Loading", "Load"},
        {"label_Trigger_LED", "switches all LEDs to"},
        {"label_Memory", "Memory"},
        {"label_Shutdown_Memory", "prompts the user to shut down the PC to avoid damage"},
        {"label_CPU", "CPU"},
        {"label_Shutdown_CPU", "prompts the user to shut down the PC to avoid damage"},
        {"label_FanSpeed_CPU", "CPU"},
        {"label_FanSpeed", "sets all fans to full speed"},
    };
    for (const auto& caption : captions)
        QCOMPARE(child<QLabel>(page.get(), caption.name)->text(), QString::fromUtf8(caption.text));
    QCOMPARE(page->objectName(), QStringLiteral("Information_View"));

    // Every caption fits on the page.
    for (QLabel* label : page->findChildren<QLabel*>()) {
        if (label->isHidden() || label->text().isEmpty())
            continue;
        const QRect onPage(label->mapTo(page.get(), QPoint(0, 0)), label->size());
        QVERIFY2(page->rect().contains(onPage), qPrintable(label->text()));
        QVERIFY2(label->sizeHint().width() <= label->width() || label->wordWrap(),
                 qPrintable(label->text()));
    }
}

void TestNotiView::captionsFitInEveryLanguage_data()
{
    QTest::addColumn<int>("language");
    QTest::addColumn<QString>("code");

    const char* const codes[] = {"en", "zh", "cn", "de", "fr", "jp", "th", "ru", "kr", "es"};
    for (int i = 0; i < 10; ++i)
        QTest::newRow(codes[i]) << i << QString::fromLatin1(codes[i]);
}

void TestNotiView::captionsFitInEveryLanguage()
{
    QFETCH(int, language);
    QFETCH(QString, code);

    QTranslator translator;
    QVERIFY(
        translator.load(QStringLiteral(":/QXRGBMemory/NORVALEX_") + code + QStringLiteral(".qm")));
    QCoreApplication::installTranslator(&translator);
    FanProgram fan;
    auto page = makePage();
    currentLanguage = language;
    page->updateLanguage_Noti();
    page->setNotiData(sampleRecord());
    child<QWidget>(page.get(), "widget_Grid")->layout()->activate();

    auto* title = child<QLabel>(page.get(), "label_Title");
    QVERIFY(title->text() != QLatin1String("Setting Notification"));
    title->ensurePolished();
    QVERIFY2(title->sizeHint().width() <= title->width(), qPrintable(title->text()));

    auto* trigger = child<QLabel>(page.get(), "label_Trigger_LED");
    QVERIFY2(trigger->sizeHint().width() <= trigger->width(), qPrintable(trigger->text()));
    const char* const actions[] = {"label_Shutdown_Memory", "label_Shutdown_CPU", "label_FanSpeed"};
    for (const char* name : actions) {
        auto* label = child<QLabel>(page.get(), name);
        QVERIFY2(label->heightForWidth(label->width()) <= label->height(),
                 qPrintable(label->text()));
    }
    QCoreApplication::removeTranslator(&translator);
}

QTEST_MAIN(TestNotiView)
#include "tst_noti_view.moc"
