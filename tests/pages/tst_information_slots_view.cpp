#include "Information_Slots_View.h"

#include <QButtonGroup>
#include <QLabel>
#include <QPushButton>
#include <QStandardPaths>
#include <QTranslator>
#include <QtTest>

#include <cstring>
#include <memory>

namespace {
const QString kDegree = QString(QChar(0x00B0));

MemoryModuleData module(int size, int temperature, double frequency, const char* type)
{
    MemoryModuleData data{};
    data.memoryModuleSize = size;
    data.temperature = temperature;
    data.frequency = frequency;
    std::strncpy(data.type, type, sizeof(data.type) - 1);
    return data;
}
} // namespace

class TestInformationSlotsView : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();
    void init();
    void cleanup();

    void moduleLabels_data();
    void moduleLabels();
    void unterminatedTypeStaysInsideItsField();
    void slotButtonsFollowTheSlotCount_data();
    void slotButtonsFollowTheSlotCount();
    void choosingASlotShowsItsModule();
    void noCheckedSlotShowsTheFirstModule();

private:
    QLabel* label(const char* name) const
    {
        return view->findChild<QLabel*>(QString::fromLatin1(name));
    }
    QPushButton* slotButton(int number) const
    {
        return view->findChild<QPushButton*>(QString::number(number));
    }

    std::unique_ptr<QWidget> page;
    Information_Slots_View* view = nullptr;
    std::unique_ptr<QTranslator> english;
};

void TestInformationSlotsView::initTestCase()
{
    QStandardPaths::setTestModeEnabled(true);
}

void TestInformationSlotsView::init()
{
    // The grid is built the way its page builds it: placed first, then set up for 8 slots.
    page = std::make_unique<QWidget>();
    page->resize(800, 510);
    view = new Information_Slots_View(page.get());
    view->setGeometry(20, 30, 380, 250);
    view->setupSlotButtons(8);
    page->show();
}

void TestInformationSlotsView::cleanup()
{
    if (english)
        QCoreApplication::removeTranslator(english.get());
    english.reset();
    page.reset();
    view = nullptr;
}

void TestInformationSlotsView::moduleLabels_data()
{
    QTest::addColumn<bool>("translated");
    QTest::addColumn<int>("size");
    QTest::addColumn<int>("temperature");
    QTest::addColumn<double>("frequency");
    QTest::addColumn<QString>("sizeText");
    QTest::addColumn<QString>("temperatureText");
    QTest::addColumn<QString>("frequencyText");
    QTest::addColumn<QString>("typeText");

    const QString na = QStringLiteral("N/A");
    QTest::newRow("source texts, 8 GB at 38 C")
        << false << 8192 << 38 << 3200.0 << QStringLiteral("Size:8 GByte")
        << QString(QStringLiteral("Temperature:38") + kDegree + QStringLiteral("C / 100") +
                   kDegree + QStringLiteral("F"))
        << QStringLiteral("Frequency:3200 MHz") << QStringLiteral("Type:DDR4");
    QTest::newRow("english, 8 GB at 31 C")
        << true << 8192 << 31 << 3200.0 << QStringLiteral("Size: 8 GByte")
        << QString(QStringLiteral("TEMP: 31") + kDegree + QStringLiteral("C / 87") + kDegree +
                   QStringLiteral("F"))
        << QStringLiteral("Frequency: 3200 MHz") << QStringLiteral("Type: DDR4");
    QTest::newRow("english, 1023 MB rounds down, 1 C")
        << true << 1023 << 1 << 2666.5 << QStringLiteral("Size: 0 GByte")
        << QString(QStringLiteral("TEMP: 1") + kDegree + QStringLiteral("C / 33") + kDegree +
                   QStringLiteral("F"))
        << QStringLiteral("Frequency: 2666.5 MHz") << QStringLiteral("Type: DDR4");
    QTest::newRow("english, no readings")
        << true << 0 << 0 << -1.0 << QStringLiteral("Size: N/A") << QStringLiteral("TEMP: N/A")
        << QStringLiteral("Frequency: N/A") << QStringLiteral("Type: DDR4");
    QTest::newRow("english, negative readings")
        << true << -1 << -5 << 0.0 << QStringLiteral("Size: N/A") << QStringLiteral("TEMP: N/A")
        << QStringLiteral("Frequency: 0 MHz") << QStringLiteral("Type: DDR4");
    QTest::newRow("source texts, no readings")
        << false << 0 << -5 << -0.5 << QString(QStringLiteral("Size:") + na)
        << QString(QStringLiteral("Temperature:") + na)
        << QString(QStringLiteral("Frequency:") + na) << QStringLiteral("Type:DDR4");
    QTest::newRow("source texts, 64 GB and 6 significant digits")
        << false << 65536 << 100 << 4800.123456 << QStringLiteral("Size:64 GByte")
        << QString(QStringLiteral("Temperature:100") + kDegree + QStringLiteral("C / 212") +
                   kDegree + QStringLiteral("F"))
        << QStringLiteral("Frequency:4800.12 MHz") << QStringLiteral("Type:DDR4");
}

void TestInformationSlotsView::moduleLabels()
{
    QFETCH(bool, translated);
    QFETCH(int, size);
    QFETCH(int, temperature);
    QFETCH(double, frequency);

    if (translated) {
        english = std::make_unique<QTranslator>();
        QVERIFY(english->load(QStringLiteral(":/QXRGBMemory/NORVALEX_en.qm")));
        QCoreApplication::installTranslator(english.get());
    }

    MemoryModuleData modules[NX_MODULE_COUNT] = {};
    modules[0] = module(size, temperature, frequency, "DDR4");
    view->setModuleData(modules);

    QTEST(label("label_Memory_Size")->text(), "sizeText");
    QTEST(label("label_Memory_Temperature")->text(), "temperatureText");
    QTEST(label("label_Memory_Frequency")->text(), "frequencyText");
    QTEST(label("label_Memory_Type")->text(), "typeText");
}

void TestInformationSlotsView::unterminatedTypeStaysInsideItsField()
{
    MemoryModuleData modules[NX_MODULE_COUNT] = {};
    std::memset(modules[0].type, 'X', sizeof(modules[0].type));
    std::memset(modules[0].text216, 'Y', sizeof(modules[0].text216));
    view->setModuleData(modules);
    QCOMPARE(label("label_Memory_Type")->text(),
             QString(QStringLiteral("Type:") + QString(NX_TEXT_LEN, QLatin1Char('X'))));
}

void TestInformationSlotsView::slotButtonsFollowTheSlotCount_data()
{
    QTest::addColumn<int>("count");
    QTest::addColumn<int>("shown");
    QTest::addColumn<QString>("fontSize");

    QTest::newRow("none") << 0 << 0 << QStringLiteral("font-size:36px");
    QTest::newRow("one") << 1 << 1 << QStringLiteral("font-size:36px");
    QTest::newRow("four, large digits") << 4 << 4 << QStringLiteral("font-size:36px");
    QTest::newRow("five, small digits") << 5 << 5 << QStringLiteral("font-size:20px");
    QTest::newRow("eight") << 8 << 8 << QStringLiteral("font-size:20px");
    QTest::newRow("more than there are buttons") << 12 << 8 << QStringLiteral("font-size:20px");
    QTest::newRow("negative") << -1 << 0 << QStringLiteral("font-size:36px");
}

void TestInformationSlotsView::slotButtonsFollowTheSlotCount()
{
    QFETCH(int, count);
    QFETCH(int, shown);
    QFETCH(QString, fontSize);

    // Start from another layout so that every button really changes.
    view->resetSlotButtons(count <= 4 ? 8 : 2);
    view->resetSlotButtons(count);

    for (int number = 1; number <= 8; ++number) {
        QPushButton* button = slotButton(number);
        QVERIFY2(button, qPrintable(QString::number(number)));
        const bool expectShown = number <= shown;
        QCOMPARE(button->isVisible(), expectShown);
        QButtonGroup* group = button->group();
        if (!expectShown)
            continue;
        QCOMPARE(button->text(), QString::number(number));
        QVERIFY(button->isCheckable());
        QVERIFY2(button->styleSheet().contains(fontSize), qPrintable(button->styleSheet()));
        QVERIFY(button->maximumSize() == QSize(36, 36));
        QVERIFY(group);
        QCOMPARE(group->id(button), number - 1);
        QVERIFY(group->exclusive());
    }
    if (shown > 0) {
        QVERIFY(slotButton(1)->isChecked());
        QCOMPARE(slotButton(1)->group()->buttons().size(), shown);
    }
}

void TestInformationSlotsView::choosingASlotShowsItsModule()
{
    view->resetSlotButtons(4);
    MemoryModuleData modules[NX_MODULE_COUNT] = {};
    modules[0] = module(8192, 40, 3200, "DDR4");
    modules[2] = module(16384, 45, 5600, "DDR5");
    view->setModuleData(modules);
    QCOMPARE(label("label_Memory_Type")->text(), QStringLiteral("Type:DDR4"));

    QTest::mouseClick(slotButton(3), Qt::LeftButton);
    QVERIFY(slotButton(3)->isChecked());
    QVERIFY(!slotButton(1)->isChecked());
    QCOMPARE(label("label_Memory_Type")->text(), QStringLiteral("Type:DDR5"));
    QCOMPARE(label("label_Memory_Size")->text(), QStringLiteral("Size:16 GByte"));
    QCOMPARE(label("label_Memory_Frequency")->text(), QStringLiteral("Frequency:5600 MHz"));

    // New data keeps the chosen slot; a new slot count goes back to the first.
    modules[2].temperature = 0;
    view->setModuleData(modules);
    QCOMPARE(label("label_Memory_Temperature")->text(), QStringLiteral("Temperature:N/A"));
    view->resetSlotButtons(4);
    view->refreshModuleLabels();
    QCOMPARE(label("label_Memory_Type")->text(), QStringLiteral("Type:DDR4"));
}

void TestInformationSlotsView::noCheckedSlotShowsTheFirstModule()
{
    MemoryModuleData modules[NX_MODULE_COUNT] = {};
    modules[0] = module(4096, 30, 2400, "DDR4");
    modules[1] = module(32768, 50, 6000, "DDR5");
    view->resetSlotButtons(0);
    view->setModuleData(modules);
    QCOMPARE(label("label_Memory_Type")->text(), QStringLiteral("Type:DDR4"));
    QCOMPARE(label("label_Memory_Size")->text(), QStringLiteral("Size:4 GByte"));
}

QTEST_MAIN(TestInformationSlotsView)
#include "tst_information_slots_view.moc"
