#include "AppGlobals.h"
#include "Information_Slots_View.h"
#include "Information_View.h"

#include <QLabel>
#include <QPainter>
#include <QStandardPaths>
#include <QTranslator>
#include <QtTest>

#include <cstring>
#include <memory>

namespace {
// Four 8 GB DDR4 modules in slots 0..3, the other slots empty.
HWData fourModules()
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
    for (int i = 0; i < 4; ++i) {
        MemoryModuleData& module = data.memoryData[i];
        module.memorySlot = i;
        module.temperature = 38;
        module.memoryModuleSize = 8192;
        module.frequency = 3200;
        std::strcpy(module.type, "DDR4");
    }
    return data;
}
} // namespace

class TestInformationView : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();
    void init();
    void cleanup();

    void systemFigures_data();
    void systemFigures();
    void capacityAndLoad_data();
    void capacityAndLoad();
    void moduleDataReachesTheSlotGrid();
    void valueArcSpan_data();
    void valueArcSpan();
    void gaugeIsPaintedClockwiseFromTheLeft_data();
    void gaugeIsPaintedClockwiseFromTheLeft();
    void languageRefresh();
    void gaugeCaptionsFitInEveryLanguage_data();
    void gaugeCaptionsFitInEveryLanguage();
    void olderPresentationOfTheRecord();

private:
    QLabel* label(const char* name) const
    {
        return page->findChild<QLabel*>(QString::fromLatin1(name), Qt::FindDirectChildrenOnly);
    }
    void installEnglish();
    QImage paintedPage() const;

    std::unique_ptr<Information_View> page;
    std::unique_ptr<QTranslator> translator;
};

void TestInformationView::initTestCase()
{
    QStandardPaths::setTestModeEnabled(true);
}

void TestInformationView::init()
{
    currentLanguage = 0;
    page = std::make_unique<Information_View>();
    page->show();
}

void TestInformationView::cleanup()
{
    if (translator)
        QCoreApplication::removeTranslator(translator.get());
    translator.reset();
    page.reset();
}

void TestInformationView::installEnglish()
{
    translator = std::make_unique<QTranslator>();
    QVERIFY(translator->load(QStringLiteral(":/QXRGBMemory/NORVALEX_en.qm")));
    QCoreApplication::installTranslator(translator.get());
}

QImage TestInformationView::paintedPage() const
{
    // Only the page's own painting: no background, no labels.
    QImage image(page->size(), QImage::Format_ARGB32_Premultiplied);
    image.fill(Qt::transparent);
    page->render(&image, QPoint(), QRegion(), QWidget::RenderFlags());
    return image;
}

void TestInformationView::systemFigures_data()
{
    QTest::addColumn<bool>("translated");
    QTest::addColumn<int>("channel");
    QTest::addColumn<double>("casLatency");
    QTest::addColumn<int>("tRCD");
    QTest::addColumn<double>("frequency");
    QTest::addColumn<QString>("channelText");
    QTest::addColumn<QString>("clText");
    QTest::addColumn<QString>("tRCDText");
    QTest::addColumn<QString>("frequencyText");

    QTest::newRow("source, dual") << false << 2 << 16.0 << 18 << 3200.0 << "Channel:Dual"
                                  << "CAS# Latency (CL):16"
                                  << "RAS# to CAS# Delay (tRCD):18"
                                  << "Frequency:3200";
    QTest::newRow("source, channel 0 keeps its blank")
        << false << 0 << 0.0 << 0 << 0.0 << "Channel: N/A"
        << "CAS# Latency (CL):0"
        << "RAS# to CAS# Delay (tRCD):0"
        << "Frequency:0";
    QTest::newRow("source, channel 1") << false << 1 << -1.0 << -1 << -1.0 << "Channel:N/A"
                                       << "CAS# Latency (CL):N/A"
                                       << "RAS# to CAS# Delay (tRCD):N/A"
                                       << "Frequency:N/A";
    QTest::newRow("source, channel 3") << false << 3 << 15.5 << 22 << 2666.6666 << "Channel:N/A"
                                       << "CAS# Latency (CL):15.5"
                                       << "RAS# to CAS# Delay (tRCD):22"
                                       << "Frequency:2666.67";
    QTest::newRow("source, quad") << false << 4 << 40.0 << 39 << 6000.0 << "Channel:Quad"
                                  << "CAS# Latency (CL):40"
                                  << "RAS# to CAS# Delay (tRCD):39"
                                  << "Frequency:6000";
    QTest::newRow("english, dual") << true << 2 << 16.0 << 18 << 3200.0 << "Channel: Dual"
                                   << "CAS# Latency (CL): 16"
                                   << "RAS# to CAS# Delay (tRCD): 18"
                                   << "Frequency: 3200";
    QTest::newRow("english, channel 0") << true << 0 << 16.0 << 18 << 3200.0 << "Channel:  N/A"
                                        << "CAS# Latency (CL): 16"
                                        << "RAS# to CAS# Delay (tRCD): 18"
                                        << "Frequency: 3200";
    QTest::newRow("english, unknown figures")
        << true << 4 << -0.5 << -7 << -3200.0 << "Channel: Quad"
        << "CAS# Latency (CL): N/A"
        << "RAS# to CAS# Delay (tRCD): N/A"
        << "Frequency: N/A";
}

void TestInformationView::systemFigures()
{
    QFETCH(bool, translated);
    if (translated)
        installEnglish();

    HWData data = fourModules();
    QFETCH(int, channel);
    QFETCH(double, casLatency);
    QFETCH(int, tRCD);
    QFETCH(double, frequency);
    data.channel = channel;
    data.casLatency = casLatency;
    data.tRCD = tRCD;
    data.frequency = frequency;
    page->setHWData(data);

    QTEST(label("label_Channel")->text(), "channelText");
    QTEST(label("label_CL")->text(), "clText");
    QTEST(label("label_tRCD")->text(), "tRCDText");
    QTEST(label("label_Frequency")->text(), "frequencyText");
}

void TestInformationView::capacityAndLoad_data()
{
    QTest::addColumn<int>("populatedSlots");
    QTest::addColumn<int>("moduleSize");
    QTest::addColumn<int>("used");
    QTest::addColumn<double>("load");
    QTest::addColumn<QString>("totalText");
    QTest::addColumn<QString>("usageText");
    QTest::addColumn<QString>("percentText");

    QTest::newRow("4 x 8 GB") << 4 << 8192 << 13926 << 42.5 << " / 32 GB"
                              << "13GB"
                              << "42.50";
    QTest::newRow("rounding down") << 1 << 1023 << 1023 << 99.99 << " / 0 GB"
                                   << "0GB"
                                   << "99.99";
    QTest::newRow("1 GB exactly") << 1 << 1024 << 2047 << 0.004 << " / 1 GB"
                                  << "1GB"
                                  << "0.00";
    QTest::newRow("no module") << 0 << 8192 << 4096 << 0.0 << "N/A"
                               << ""
                               << "0.00";
    QTest::newRow("negative load") << 2 << 16384 << 0 << -1.0 << " / 32 GB"
                                   << "0GB"
                                   << "N/A";
    QTest::newRow("full") << 8 << 32768 << 262144 << 100.0 << " / 256 GB"
                          << "256GB"
                          << "100.00";
}

void TestInformationView::capacityAndLoad()
{
    QFETCH(int, populatedSlots);
    QFETCH(int, moduleSize);
    QFETCH(int, used);
    QFETCH(double, load);

    HWData data{};
    for (int i = 0; i < NX_MODULE_COUNT; ++i) {
        // Every record holds a size; only populated slots may count.
        data.slotIndex[i] = i < populatedSlots ? i : -1;
        data.memoryData[i].memoryModuleSize = moduleSize;
    }
    data.physicalMemoryUsed = used;
    data.memoryLoad = load;
    data.channel = 2;
    page->setHWData(data);

    QTEST(label("label_Total")->text(), "totalText");
    QTEST(label("label_Usage")->text(), "usageText");
    QTEST(label("label_Percent")->text(), "percentText");
    QCOMPARE(page->currentMemoryLoad(), load);
}

void TestInformationView::moduleDataReachesTheSlotGrid()
{
    installEnglish();
    HWData data = fourModules();
    data.memoryData[0].temperature = 31;
    page->slotsView()->resetSlotButtons(4);
    page->setHWData(data);

    auto* size = page->slotsView()->findChild<QLabel*>(QStringLiteral("label_Memory_Size"));
    auto* temperature =
        page->slotsView()->findChild<QLabel*>(QStringLiteral("label_Memory_Temperature"));
    QVERIFY(size && temperature);
    QCOMPARE(size->text(), QStringLiteral("Size: 8 GByte"));
    QCOMPARE(temperature->text(),
             QString(QStringLiteral("TEMP: 31") + QChar(0x00B0) + QStringLiteral("C / 87") +
                     QChar(0x00B0) + QStringLiteral("F")));
}

void TestInformationView::valueArcSpan_data()
{
    QTest::addColumn<double>("load");
    QTest::addColumn<int>("span");

    QTest::newRow("empty") << 0.0 << 0;
    QTest::newRow("below one degree") << 0.4 << 0;
    QTest::newRow("half") << 50.0 << -120 * 16;
    QTest::newRow("42.5 truncates") << 42.5 << -102 * 16;
    QTest::newRow("99.99") << 99.99 << -3824;
    QTest::newRow("full track") << 100.0 << -3840;
    QTest::newRow("negative turns the other way") << -10.0 << 24 * 16;
    QTest::newRow("not a number") << std::nan("") << 0;
}

void TestInformationView::valueArcSpan()
{
    QFETCH(double, load);
    QTEST(Information_View::valueArcSpan(load), "span");
}

void TestInformationView::gaugeIsPaintedClockwiseFromTheLeft_data()
{
    QTest::addColumn<double>("load");
    QTest::addColumn<bool>("lowerLeft");
    QTest::addColumn<bool>("upperLeft");
    QTest::addColumn<bool>("upperRight");

    // Sample points sit inside the 20 px value pen but off the 3 px track.
    QTest::newRow("empty") << 0.0 << false << false << false;
    QTest::newRow("a quarter") << 25.0 << true << false << false;
    QTest::newRow("half") << 50.0 << true << true << false;
    QTest::newRow("full") << 100.0 << true << true << true;
    QTest::newRow("unknown") << -1.0 << false << false << false;
}

void TestInformationView::gaugeIsPaintedClockwiseFromTheLeft()
{
    QFETCH(double, load);
    HWData data = fourModules();
    data.memoryLoad = load;
    page->setHWData(data);
    const QImage image = paintedPage();

    // Gauge centre (570, 285); the value pen covers radii 110..130, the track 118.5..121.5.
    const auto painted = [&image](double degrees) {
        const double radians = qDegreesToRadians(degrees);
        const QPoint point(qRound(570 + 114 * std::cos(radians)),
                           qRound(285 - 114 * std::sin(radians)));
        return qAlpha(image.pixel(point)) > 128;
    };
    QTEST(painted(200.0), "lowerLeft");
    QTEST(painted(130.0), "upperLeft");
    QTEST(painted(30.0), "upperRight");

    // The rules and markers are always there.
    QCOMPARE(QColor(image.pixel(500, 76)), QColor(Qt::gray));
    QCOMPARE(QColor(image.pixel(440, 337)), QColor(Qt::green));
    QCOMPARE(QColor(image.pixel(695, 337)), QColor(Qt::red));
}

void TestInformationView::languageRefresh()
{
    QLabel* high = label("label_Dashboard_High");
    QVERIFY(high->styleSheet().contains(QStringLiteral("font-size:28px")));

    auto german = std::make_unique<QTranslator>();
    QVERIFY(german->load(QStringLiteral(":/QXRGBMemory/NORVALEX_de.qm")));
    translator = std::move(german);
    QCoreApplication::installTranslator(translator.get());
    currentLanguage = 3;
    page->updateLanguage_Info();
    QCOMPARE(label("label_Dashboard")->text(), QStringLiteral("Last"));
    QCOMPARE(label("label_Dashboard_Low")->text(), QStringLiteral("Niedrig"));
    QCOMPARE(high->text(), QStringLiteral("Hoch"));
    QVERIFY(high->styleSheet().contains(QStringLiteral("font-size:28px")));

    QCoreApplication::removeTranslator(translator.get());
    QVERIFY(translator->load(QStringLiteral(":/QXRGBMemory/NORVALEX_ru.qm")));
    QCoreApplication::installTranslator(translator.get());
    currentLanguage = 7;
    page->updateLanguage_Info();
    QVERIFY(high->styleSheet().contains(QStringLiteral("font-size:24px")));
    QVERIFY(high->text() != QStringLiteral("High"));
}

void TestInformationView::gaugeCaptionsFitInEveryLanguage_data()
{
    QTest::addColumn<int>("language");
    QTest::addColumn<QString>("code");
    const char* const codes[] = {"en", "zh", "cn", "de", "fr", "jp", "th", "ru", "kr", "es"};
    for (int index = 0; index < 10; ++index)
        QTest::newRow(codes[index]) << index << QString::fromLatin1(codes[index]);
}

void TestInformationView::gaugeCaptionsFitInEveryLanguage()
{
    QFETCH(int, language);
    QFETCH(QString, code);
    translator = std::make_unique<QTranslator>();
    QVERIFY(
        translator->load(QStringLiteral(":/QXRGBMemory/NORVALEX_") + code + QStringLiteral(".qm")));
    QCoreApplication::installTranslator(translator.get());
    currentLanguage = language;
    page->updateLanguage_Info();

    for (const char* name : {"label_Dashboard", "label_Dashboard_Low", "label_Dashboard_High"}) {
        QLabel* caption = label(name);
        QVERIFY(caption->text() != QString());
        const int textWidth = caption->fontMetrics().horizontalAdvance(caption->text());
        QVERIFY2(textWidth <= caption->width(),
                 qPrintable(caption->text() + QLatin1Char(' ') + QString::number(textWidth)));
    }
}

void TestInformationView::olderPresentationOfTheRecord()
{
    HWData data = fourModules();
    data.slotIndex[3] = -1;
    page->setSystemData(&data);
    page->setSystemData1(data);

    QCOMPARE(label("label_Frequency")->text(), QStringLiteral("Clock: 3200"));
    QCOMPARE(label("label_tRCD")->text(), QStringLiteral("RAS# to CAS# Delay (tRCD): 18"));
    QCOMPARE(label("label_Percent")->text(), QStringLiteral("42.5"));
    QCOMPARE(label("label_Total")->text(), QStringLiteral("24 GB / 13GB"));
    // Channel and CL keep their placeholders.
    QCOMPARE(label("label_Channel")->text(), QStringLiteral("Channel:Dual"));
    QCOMPARE(label("label_CL")->text(), QStringLiteral("CAS# Latency (CL):8"));
    QCOMPARE(page->currentMemoryLoad(), 42.5);
}

QTEST_MAIN(TestInformationView)
#include "tst_information_view.moc"
