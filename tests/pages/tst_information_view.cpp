#include "TestEnvironment.h"

#include "Information_Slots_View.h"
#include "Information_View.h"

#include <QLabel>
#include <QPaintEvent>
#include <QPushButton>
#include <QScreen>
#include <QStandardPaths>
#include <QWindow>
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
    void cleanup() { page.reset(); }

    void labels_data();
    void labels();
    void slotButtons();
    void refreshRepaintsOnlyTheGauge();

private:
    QLabel* label(const char* name) const { return page->findChild<QLabel*>(name); }
    QPushButton* slotButton(int number) const
    {
        return page->slotsView()->findChild<QPushButton*>(QString::number(number));
    }

    std::unique_ptr<Information_View> page;
};

void TestInformationView::labels_data()
{
    QTest::addColumn<int>("channel");
    QTest::addColumn<int>("size");
    QTest::addColumn<int>("temperature");
    QTest::addColumn<double>("load");
    // Channel, total, size, temperature and load labels.
    QTest::addColumn<QString>("texts");

    const auto row = [](const char* name, int channel, int size, int temperature, double load,
                        const char* texts) {
        QTest::newRow(name) << channel << size << temperature << load << QString::fromUtf8(texts);
    };
    row("dual, 8192 MB, 31 C", 2, 8192, 31, 42.5,
        "Channel:Dual| / 8 GB|Size:8 GByte|Temperature:31°C / 87°F|42.50");
    row("channel 0, 1023 MB, -5 C", 0, 1023, -5, 99.99,
        "Channel: N/A| / 0 GB|Size:0 GByte|Temperature:N/A|99.99");
    row("channel 1, negative load", 1, 8192, 31, -1.0,
        "Channel:N/A| / 8 GB|Size:8 GByte|Temperature:31°C / 87°F|N/A");
}

void TestInformationView::labels()
{
    QFETCH(int, channel);
    QFETCH(int, size);
    QFETCH(int, temperature);
    QFETCH(double, load);

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
    // The gauge's arc: whole percents of 240 degrees, none for a load that is not a number.
    QCOMPARE(Information_View::valueArcSpan(42.5), -102 * 16);
    QCOMPARE(Information_View::valueArcSpan(std::nan("")), 0);
}

// More modules than buttons show eight; the first slot is chosen. The first module's type fills
// its field without a terminator and its text stops there.
void TestInformationView::slotButtons()
{
    // From a layout of two, so that every button really changes.
    Information_Slots_View* view = page->slotsView();
    view->resetSlotButtons(2);
    view->resetSlotButtons(12);
    QVERIFY(slotButton(3)->isVisible() && slotButton(8)->isVisible());
    MemoryModuleData modules[NX_MODULE_COUNT] = {};
    std::memset(modules[0].type, 'X', sizeof(modules[0].type));
    std::memset(modules[0].text216, 'Y', sizeof(modules[0].text216));
    std::strcpy(modules[2].type, "DDR5");
    view->setModuleData(modules);
    QCOMPARE(label("label_Memory_Type")->text(),
             QStringLiteral("Type:") + QString(NX_TEXT_LEN, QLatin1Char('X')));
    QTest::mouseClick(slotButton(3), Qt::LeftButton);
    QVERIFY(slotButton(3)->isChecked() && !slotButton(1)->isChecked());
    QCOMPARE(label("label_Memory_Type")->text(), QStringLiteral("Type:DDR5"));
}

namespace {

// The region of the page repainted since the last take().
struct PaintedRegion : QObject {
    QRegion region;
    explicit PaintedRegion(QWidget* page) { page->installEventFilter(this); }
    bool eventFilter(QObject*, QEvent* event) override
    {
        if (event->type() == QEvent::Paint)
            region += static_cast<QPaintEvent*>(event)->region();
        return false;
    }
    QRegion take()
    {
        QTest::qWait(30);
        return std::exchange(region, QRegion());
    }
};

} // namespace

// The page paints only the gauge: a refresh repaints the gauge when its arc changes and nothing
// of the page otherwise, and the screen then equals a full repaint.
void TestInformationView::refreshRepaintsOnlyTheGauge()
{
    QVERIFY(QTest::qWaitForWindowExposed(page.get()));
    HWData data{};
    data.slotIndex[0] = 0;
    data.memoryData[0].memoryModuleSize = 8192;
    data.channel = 2;
    data.memoryLoad = 40.0;
    page->setHWData(data);
    PaintedRegion painted(page.get());
    painted.take();

    // The same whole degrees of arc: only the figures' labels change.
    data.memoryLoad = 40.1;
    page->setHWData(data);
    const QRect circle(450, 165, 240, 240);
    // (QRegion::contains only tells whether a rectangle overlaps.)
    const auto covers = [](const QRegion& region, const QRect& rect) {
        return QRegion(rect).subtracted(region).isEmpty();
    };
    QVERIFY2(!covers(painted.take(), circle), "an unchanged gauge was repainted");

    data.memoryLoad = 75.0;
    page->setHWData(data);
    const QRect repainted = painted.take().boundingRect();
    const QRect gauge(430, 145, 280, 280);
    QVERIFY2(gauge.contains(repainted) && covers(repainted, circle),
             qPrintable(QStringLiteral("%1,%2 %3x%4")
                            .arg(repainted.x())
                            .arg(repainted.y())
                            .arg(repainted.width())
                            .arg(repainted.height())));
    const QImage shown = page->windowHandle()
                             ->screen()
                             ->grabWindow(page->winId())
                             .toImage()
                             .convertToFormat(QImage::Format_RGB32);
    QCOMPARE(shown, page->grab().toImage().convertToFormat(QImage::Format_RGB32));
}

QTEST_MAIN(TestInformationView)
#include "tst_information_view.moc"
