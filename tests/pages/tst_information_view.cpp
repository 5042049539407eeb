#include "TestEnvironment.h"

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
    void init()
    {
        page = std::make_unique<Information_View>();
        page->show();
    }
    void cleanup()
    {
        QCoreApplication::removeTranslator(&translator);
        page.reset();
    }

    void labels_data();
    void labels();
    void valueArcSpan_data();
    void valueArcSpan();
    void slotButtons_data();
    void slotButtons();

private:
    QLabel* label(const char* name) const { return page->findChild<QLabel*>(name); }
    QPushButton* slotButton(int number) const
    {
        return page->slotsView()->findChild<QPushButton*>(QString::number(number));
    }

    std::unique_ptr<Information_View> page;
    QTranslator translator;
};

void TestInformationView::labels_data()
{
    QTest::addColumn<bool>("english");
    QTest::addColumn<int>("channel");
    QTest::addColumn<int>("size");
    QTest::addColumn<int>("temperature");
    QTest::addColumn<double>("load");
    // Channel, total, size, temperature and load labels.
    QTest::addColumn<QString>("texts");

    const auto row = [](const char* name, bool english, int channel, int size, int temperature,
                        double load, const char* texts) {
        QTest::newRow(name) << english << channel << size << temperature << load
                            << QString::fromUtf8(texts);
    };
    row("source, dual, 8192 MB, 31 C", false, 2, 8192, 31, 42.5,
        "Channel:Dual| / 8 GB|Size:8 GByte|Temperature:31°C / 87°F|42.50");
    row("english, dual, 8192 MB, 31 C", true, 2, 8192, 31, 42.5,
        "Channel: Dual| / 8 GB|Size: 8 GByte|TEMP: 31°C / 87°F|42.50");
    row("source, quad, 1023 MB, 0 C, 99.99", false, 4, 1023, 0, 99.99,
        "Channel:Quad| / 0 GB|Size:0 GByte|Temperature:N/A|99.99");
    row("english, channel 0, -5 C", true, 0, 1023, -5, 99.99,
        "Channel:  N/A| / 0 GB|Size: 0 GByte|TEMP: N/A|99.99");
    row("source, channel 1, negative load", false, 1, 8192, 31, -1.0,
        "Channel:N/A| / 8 GB|Size:8 GByte|Temperature:31°C / 87°F|N/A");
    row("english, channel 3, negative load", true, 3, 8192, 0, -0.01,
        "Channel: N/A| / 8 GB|Size: 8 GByte|TEMP: N/A|N/A");
}

void TestInformationView::labels()
{
    QFETCH(bool, english);
    QFETCH(int, channel);
    QFETCH(int, size);
    QFETCH(int, temperature);
    QFETCH(double, load);
    if (english)
        QVERIFY(translator.load(QStringLiteral(":/QXRGBMemory/NORVALEX_en.qm")) &&
                QCoreApplication::installTranslator(&translator));

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

    QStringList texts;
    for (const char* name : {"label_Channel", "label_Total", "label_Memory_Size",
                             "label_Memory_Temperature", "label_Percent"})
        texts << label(name)->text();
    QTEST(texts.join(QLatin1Char('|')), "texts");
    QCOMPARE(page->currentMemoryLoad(), load);
}

void TestInformationView::valueArcSpan_data()
{
    QTest::addColumn<double>("load");
    QTest::addColumn<int>("span");

    QTest::newRow("empty") << 0.0 << 0;
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

    QTest::newRow("none") << 0 << 0;
    QTest::newRow("four") << 4 << 4;
    QTest::newRow("more than there are buttons") << 12 << 8;
}

void TestInformationView::slotButtons()
{
    QFETCH(int, count);
    QFETCH(int, shown);

    // Start from another layout so that every button really changes.
    Information_Slots_View* view = page->slotsView();
    view->resetSlotButtons(count <= 4 ? 8 : 2);
    view->resetSlotButtons(count);
    for (int number = 1; number <= 8; ++number)
        QCOMPARE(slotButton(number)->isVisible(), number <= shown);

    // The first module's type fills its field without a terminator; the text stops there.
    MemoryModuleData modules[NX_MODULE_COUNT] = {};
    std::memset(modules[0].type, 'X', sizeof(modules[0].type));
    std::memset(modules[0].text216, 'Y', sizeof(modules[0].text216));
    std::strcpy(modules[2].type, "DDR5");
    view->setModuleData(modules);
    // The first slot is chosen; without buttons the first module shows all the same.
    QCOMPARE(label("label_Memory_Type")->text(),
             QStringLiteral("Type:") + QString(NX_TEXT_LEN, QLatin1Char('X')));
    if (shown == 0)
        return;

    QTest::mouseClick(slotButton(3), Qt::LeftButton);
    QVERIFY(slotButton(3)->isChecked() && !slotButton(1)->isChecked());
    QCOMPARE(label("label_Memory_Type")->text(), QStringLiteral("Type:DDR5"));
}

QTEST_MAIN(TestInformationView)
#include "tst_information_view.moc"
