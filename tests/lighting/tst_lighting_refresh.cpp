// A state refresh of the lighting page (what the controller sends when the library reports a
// change: slot order, colours, modes and profile of every slot) repaints only what changed.

#include "Lighting_View.h"
#include "Memory_RGB_View.h"
#include "TestEnvironment.h"

#include <QHash>
#include <QPushButton>
#include <QScreen>
#include <QTest>
#include <QWindow>

#include <algorithm>

namespace {

// Counts paint and style-change events per widget, application-wide.
struct EventCounter : QObject {
    QHash<const QObject*, int> paints;
    QHash<const QObject*, int> restyles;
    EventCounter() { qApp->installEventFilter(this); }
    ~EventCounter() override { qApp->removeEventFilter(this); }
    bool eventFilter(QObject* watched, QEvent* event) override
    {
        if (event->type() == QEvent::Paint)
            ++paints[watched];
        else if (event->type() == QEvent::StyleChange)
            ++restyles[watched];
        return false;
    }
    void clear()
    {
        paints.clear();
        restyles.clear();
    }
};

// Eight slots, four 8-LED modules in Cross (15), RGB colour mode; LED n of slot s shows
// (16 s, 16 n, 100) until `shift` changes slot 0's colours.
struct Page {
    Lighting_View page;
    int order[8] = {0, 1, 2, 3, 4, 5, 6, 7};

    Page()
    {
        page.show();
        if (!QTest::qWaitForWindowExposed(&page))
            qWarning("the page was not exposed");
        page.setMemorySlots(8, 4);
        int counts[8] = {8, 8, 8, 8, -1, -1, -1, -1};
        page.setMemoryLEDNumber(8, counts);
        refresh(0);
        settle();
    }

    // What the controller sends after a light-mode event.
    void refresh(int shift)
    {
        page.setMemorySlotNumber(8, order);
        float brights[8] = {1, 1, 1, 1, 1, 1, 1, 1};
        for (int slot = 0; slot < 8; ++slot) {
            COLORREF colors[8];
            for (int led = 0; led < 8; ++led)
                colors[led] =
                    COLORREF(16 * slot | (16 * led + (slot ? 0 : shift)) << 8 | 100 << 16);
            page.setRGB(slot, colors, 0x0000FF, brights, 1.0f);
            page.setLighting(slot, 15, 0, 1, false);
        }
        page.slot_setProfile(0);
    }

    static void settle()
    {
        QTest::qWait(30);
        QCoreApplication::processEvents();
    }

    Memory_RGB_View* strip(int slot)
    {
        const auto strips = page.findChildren<Memory_RGB_View*>();
        return *std::find_if(strips.begin(), strips.end(),
                             [slot](Memory_RGB_View* strip) { return strip->slotNumber == slot; });
    }

    // The page as the screen shows it after partial repaints, and as a full repaint draws it.
    bool screenMatchesFullRepaint()
    {
        settle();
        const QImage shown = page.windowHandle()
                                 ->screen()
                                 ->grabWindow(page.winId())
                                 .toImage()
                                 .convertToFormat(QImage::Format_RGB32);
        const QImage full = page.grab().toImage().convertToFormat(QImage::Format_RGB32);
        return shown == full;
    }
};

} // namespace

class TestLightingRefresh : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase() { QVERIFY(TestEnvironment::prepare()); }

    // An unchanged refresh neither re-styles the LEDs nor repaints the page's controls; a
    // changed colour re-styles exactly the LEDs that show it.
    void unchangedRefreshRepaintsNothingAway()
    {
        Page page;
        EventCounter counter;
        page.refresh(0);
        Page::settle();

        const QStringList untouched{QStringLiteral("btn_Apply"), QStringLiteral("btn_Default"),
                                    QStringLiteral("btn_Edit"), QStringLiteral("label_Preview"),
                                    QStringLiteral("btn_LightMode")};
        for (const QString& name : untouched) {
            const QWidget* widget = page.page.findChild<QWidget*>(name);
            QVERIFY2(widget, qPrintable(name));
            QVERIFY2(counter.paints.value(widget) == 0, qPrintable(name));
        }
        for (int slot = 0; slot < 4; ++slot) {
            for (const QPushButton* led : page.strip(slot)->btn_Led) {
                QCOMPARE(counter.restyles.value(led), 0);
                QCOMPARE(counter.paints.value(led), 0);
            }
        }

        counter.clear();
        page.refresh(8);
        Page::settle();
        Memory_RGB_View* changed = page.strip(0);
        for (int led = 0; led < 8; ++led) {
            QVERIFY(counter.restyles.value(changed->btn_Led[led]) > 0);
            QCOMPARE(changed->btn_Led[led]->styleSheet(),
                     Memory_RGB_View::ledStyleSheet(COLORREF(0 | (16 * led + 8) << 8 | 100 << 16)));
        }
        for (const QPushButton* led : page.strip(1)->btn_Led)
            QCOMPARE(counter.restyles.value(led), 0);
    }

    // The page draws the outline of the selected strips itself: it appears and disappears on
    // screen with the selection, though the page repaints only where it was and is.
    void selectionOutlineLeavesNothingStale()
    {
        Page page;
        for (int slot : {1, 2, 1, 3, 2, 3}) {
            QTest::mouseClick(page.strip(slot)->btn_MemorySlot, Qt::LeftButton);
            QVERIFY(page.screenMatchesFullRepaint());
        }
        page.refresh(0);
        QVERIFY(page.screenMatchesFullRepaint());
    }
};

QTEST_MAIN(TestLightingRefresh)
#include "tst_lighting_refresh.moc"
