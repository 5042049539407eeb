#include "AppGlobals.h"
#include "Information_Slots_View.h"
#include "Information_View.h"

#include <QLabel>
#include <QPushButton>
#include <QStandardPaths>
#include <QTranslator>
#include <QtTest>

#include <cmath>
#include <cstring>
#include <memory>

class TestInformationView : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase() { QStandardPaths::setTestModeEnabled(true); }
    void init();
    void cleanup();

    void labels_data();
    void labels();
    void valueArcSpan_data();
    void valueArcSpan();
    void slotButtons_data();
    void slotButtons();
    void unterminatedTypeStaysInsideItsField();
    void gaugeCaptionsFitInEveryLanguage();

private:
    QLabel* label(const char* name) const { return page->findChild<QLabel*>(name); }
    QPushButton* slotButton(int number) const
    {
        return page->slotsView()->findChild<QPushButton*>(QString::number(number));
    }
    bool install(const char* code)
    {
        return translator.load(QStringLiteral(":/QXRGBMemory/NORVALEX_%1.qm").arg(code)) &&
               QCoreApplication::installTranslator(&translator);
    }

    std::unique_ptr<Information_View> page;
    QTranslator translator;
};

void TestInformationView::init()
{
    currentLanguage = 0;
    page = std::make_unique<Information_View>();
    page->show();
}

void TestInformationView::cleanup()
{
    QCoreApplication::removeTranslator(&translator);
    page.reset();
}

void TestInformationView::labels_data()
{
    QTest::addColumn<bool>("english");
    QTest::addColumn<int>("channel");
    QTest::addColumn<int>("size");
    QTest::addColumn<int>("temperature");
    QTest::addColumn<double>("load");
    QTest::addColumn<QString>("channelText");
    QTest::addColumn<QString>("totalText");
    QTest::addColumn<QString>("sizeText");
    QTest::addColumn<QString>("temperatureText");
    QTest::addColumn<QString>("percentText");

    const auto row = [](const char* name) -> QTestData& { return QTest::newRow(name); };
    const auto text = [](const char* utf8) { return QString::fromUtf8(utf8); };
    row("source, dual, 8192 MB, 31 C")
        << false << 2 << 8192 << 31 << 42.5 << text("Channel:Dual") << text(" / 8 GB")
        << text("Size:8 GByte") << text("Temperature:31°C / 87°F") << text("42.50");
    row("english, dual, 8192 MB, 31 C")
        << true << 2 << 8192 << 31 << 42.5 << text("Channel: Dual") << text(" / 8 GB")
        << text("Size: 8 GByte") << text("TEMP: 31°C / 87°F") << text("42.50");
    row("source, quad, 1023 MB, 0 C, 99.99")
        << false << 4 << 1023 << 0 << 99.99 << text("Channel:Quad") << text(" / 0 GB")
        << text("Size:0 GByte") << text("Temperature:N/A") << text("99.99");
    row("english, channel 0, -5 C") << true << 0 << 1023 << -5 << 99.99 << text("Channel:  N/A")
                                    << text(" / 0 GB") << text("Size: 0 GByte")
                                    << text("TEMP: N/A") << text("99.99");
    row("source, channel 0 keeps its blank")
        << false << 0 << 8192 << -5 << 0.0 << text("Channel: N/A") << text(" / 8 GB")
        << text("Size:8 GByte") << text("Temperature:N/A") << text("0.00");
    row("source, channel 1, negative load")
        << false << 1 << 8192 << 31 << -1.0 << text("Channel:N/A") << text(" / 8 GB")
        << text("Size:8 GByte") << text("Temperature:31°C / 87°F") << text("N/A");
    row("english, channel 3, negative load")
        << true << 3 << 8192 << 0 << -0.01 << text("Channel: N/A") << text(" / 8 GB")
        << text("Size: 8 GByte") << text("TEMP: N/A") << text("N/A");
}

void TestInformationView::labels()
{
    QFETCH(bool, english);
    QFETCH(int, channel);
    QFETCH(int, size);
    QFETCH(int, temperature);
    QFETCH(double, load);
    if (english)
        QVERIFY(install("en"));

    HWData data{};
    for (int i = 0; i < NX_MODULE_COUNT; ++i) {
        // Every record holds a size; only the populated slot counts.
        data.slotIndex[i] = i == 0 ? 0 : -1;
        data.memoryData[i].memoryModuleSize = size;
    }
    data.memoryData[0].temperature = temperature;
    data.channel = channel;
    data.memoryLoad = load;
    page->setHWData(data);

    QTEST(label("label_Channel")->text(), "channelText");
    QTEST(label("label_Total")->text(), "totalText");
    QTEST(label("label_Memory_Size")->text(), "sizeText");
    QTEST(label("label_Memory_Temperature")->text(), "temperatureText");
    QTEST(label("label_Percent")->text(), "percentText");
    QCOMPARE(page->currentMemoryLoad(), load);
}

void TestInformationView::valueArcSpan_data()
{
    QTest::addColumn<double>("load");
    QTest::addColumn<int>("span");

    QTest::newRow("empty") << 0.0 << 0;
    QTest::newRow("below one degree") << 0.4 << 0;
    QTest::newRow("42.5 truncates") << 42.5 << -102 * 16;
    QTest::newRow("99.99") << 99.99 << -239 * 16;
    QTest::newRow("full track") << 100.0 << -240 * 16;
    QTest::newRow("negative turns the other way") << -10.0 << 24 * 16;
    QTest::newRow("not a number") << std::nan("") << 0;
}

void TestInformationView::valueArcSpan()
{
    QFETCH(double, load);
    QTEST(Information_View::valueArcSpan(load), "span");
}

void TestInformationView::slotButtons_data()
{
    QTest::addColumn<int>("count");
    QTest::addColumn<int>("shown");
    QTest::addColumn<int>("pixels");

    QTest::newRow("none") << 0 << 0 << 36;
    QTest::newRow("four, large digits") << 4 << 4 << 36;
    QTest::newRow("five, small digits") << 5 << 5 << 20;
    QTest::newRow("more than there are buttons") << 12 << 8 << 20;
}

void TestInformationView::slotButtons()
{
    QFETCH(int, count);
    QFETCH(int, shown);
    QFETCH(int, pixels);

    // Start from another layout so that every button really changes.
    Information_Slots_View* view = page->slotsView();
    view->resetSlotButtons(count <= 4 ? 8 : 2);
    view->resetSlotButtons(count);
    for (int number = 1; number <= 8; ++number)
        QCOMPARE(slotButton(number)->isVisible(), number <= shown);

    MemoryModuleData modules[NX_MODULE_COUNT] = {};
    std::strcpy(modules[0].type, "DDR4");
    std::strcpy(modules[2].type, "DDR5");
    view->setModuleData(modules);
    // The first slot is chosen; without buttons the first module shows all the same.
    QCOMPARE(label("label_Memory_Type")->text(), QStringLiteral("Type:DDR4"));
    if (shown == 0)
        return;
    slotButton(shown)->ensurePolished();
    QCOMPARE(slotButton(shown)->font().pixelSize(), pixels);

    QTest::mouseClick(slotButton(3), Qt::LeftButton);
    QVERIFY(slotButton(3)->isChecked() && !slotButton(1)->isChecked());
    QCOMPARE(label("label_Memory_Type")->text(), QStringLiteral("Type:DDR5"));
}

void TestInformationView::unterminatedTypeStaysInsideItsField()
{
    MemoryModuleData modules[NX_MODULE_COUNT] = {};
    std::memset(modules[0].type, 'X', sizeof(modules[0].type));
    std::memset(modules[0].text216, 'Y', sizeof(modules[0].text216));
    page->slotsView()->setModuleData(modules);
    QCOMPARE(label("label_Memory_Type")->text(),
             QStringLiteral("Type:") + QString(NX_TEXT_LEN, QLatin1Char('X')));
}

void TestInformationView::gaugeCaptionsFitInEveryLanguage()
{
    const char* const codes[] = {"en", "zh", "cn", "de", "fr", "jp", "th", "ru", "kr", "es"};
    for (int language = 0; language < 10; ++language) {
        QVERIFY(install(codes[language]));
        currentLanguage = language;
        page->updateLanguage_Info();
        if (language == 3)
            QCOMPARE(label("label_Dashboard_High")->text(), QStringLiteral("Hoch"));
        for (const char* name : {"label_Dashboard", "label_Dashboard_Low", "label_Dashboard_High"}) {
            QLabel* caption = label(name);
            const int textWidth = caption->fontMetrics().horizontalAdvance(caption->text());
            QVERIFY2(textWidth <= caption->width(), qPrintable(caption->text()));
        }
        QCoreApplication::removeTranslator(&translator);
    }
}

QTEST_MAIN(TestInformationView)
#include "tst_information_view.moc"
