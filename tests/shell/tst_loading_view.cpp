#include "TestEnvironment.h"

#include "Loading_View.h"
#include "Platform.h"

#include <QLabel>
#include <QPushButton>
#include <QStandardPaths>
#include <QThread>
#include <QTimer>
#include <QTranslator>
#include <QtTest>

#include <functional>
#include <vector>

namespace {
struct Received {
    unsigned message;
    std::uintptr_t wParam;
    std::intptr_t lParam;
};

void record(void* context, unsigned message, std::uintptr_t wParam, std::intptr_t lParam)
{
    static_cast<std::vector<Received>*>(context)->push_back({message, wParam, lParam});
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
    guard.start(3000);
    QTimer::singleShot(0, action);
    const int code = QCoreApplication::exec();
    return !timedOut && code == 0;
}

// Brightest grey value on a circle of the given radius around a centre.
int brightestOnCircle(const QImage& image, const QPoint& centre, int radius)
{
    int brightest = 0;
    for (int degree = 0; degree < 360; degree += 3) {
        const double radians = qDegreesToRadians(double(degree));
        const QPoint point(qRound(centre.x() + radius * std::cos(radians)),
                           qRound(centre.y() + radius * std::sin(radians)));
        brightest = qMax(brightest, qGray(image.pixel(point)));
    }
    return brightest;
}
} // namespace

class TestLoadingView : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();
    void construction();
    void startAndStop();
    void startingTwiceKeepsTheRunningTimer();
    void angleSequence();
    void timerTurnsTheRing();
    void spinnerIsDrawnRightOfTheMiddleOnlyWhileLoading();
    void productWarning();
    void warningFollowsTheLanguage();
    void closeAppQuitsAndTellsTheRunningPrograms();
};

void TestLoadingView::initTestCase()
{
    QStandardPaths::setTestModeEnabled(true);
}

void TestLoadingView::construction()
{
    Loading_View view;
    QCOMPARE(view.size(), QSize(1000, 600));
    QCOMPARE(view.spinnerAngle(), 20);
    QVERIFY(!view.loading());
    QVERIFY(!view.spinnerTimer()->isActive());

    QVERIFY(view.label_Warning->isHidden());
    QCOMPARE(view.label_Warning->objectName(), QStringLiteral("label_Warning"));
    QCOMPARE(view.label_Warning->geometry(), QRect(283, 235, 434, 130));
    QCOMPARE(view.label_Warning_Content->parentWidget(), view.label_Warning);
    QCOMPARE(view.label_Warning_Content->geometry(), QRect(0, 0, 434, 65));
    QCOMPARE(view.label_Warning_Content->text(), QStringLiteral("Can not Find QX NORVALEX"));
    QCOMPARE(view.label_Warning_Content->alignment(), Qt::AlignHCenter | Qt::AlignVCenter);
    QCOMPARE(view.btn_OK->parentWidget(), view.label_Warning);
    QCOMPARE(view.btn_OK->geometry(), QRect(192, 100, 50, 20));
    QCOMPARE(view.btn_OK->text(), QStringLiteral("OK"));
}

void TestLoadingView::startAndStop()
{
    Loading_View view;
    view.isStartLoading(true);
    QVERIFY(view.isVisible());
    QVERIFY(view.loading());
    QVERIFY(view.spinnerTimer()->isActive());
    QCOMPARE(view.spinnerTimer()->interval(), 40);

    view.isStartLoading(false);
    QVERIFY(view.isHidden());
    QVERIFY(!view.loading());
    QVERIFY(!view.spinnerTimer()->isActive());

    // Stopping again is harmless; starting again resumes.
    view.isStartLoading(false);
    QVERIFY(!view.spinnerTimer()->isActive());
    view.isStartLoading(true);
    QVERIFY(view.spinnerTimer()->isActive());
}

void TestLoadingView::startingTwiceKeepsTheRunningTimer()
{
    Loading_View view;
    view.isStartLoading(true);
    // No event processing here: the timer cannot fire, only run down.
    QThread::msleep(25);
    const int remaining = view.spinnerTimer()->remainingTime();
    QVERIFY2(remaining < 30, qPrintable(QString::number(remaining)));
    view.isStartLoading(true);
    QVERIFY(view.spinnerTimer()->isActive());
    QVERIFY(view.spinnerTimer()->remainingTime() <= remaining);
}

void TestLoadingView::angleSequence()
{
    Loading_View view;
    QList<int> angles;
    for (int i = 0; i < 19; ++i) {
        view.rotate();
        angles << view.spinnerAngle();
    }
    const QList<int> expected = {40,  60,  80,  100, 120, 140, 160, 180, 200, 220,
                                 240, 260, 280, 300, 320, 340, 0,   20,  40};
    QCOMPARE(angles, expected);
}

void TestLoadingView::timerTurnsTheRing()
{
    Loading_View view;
    view.isStartLoading(true);
    QTRY_VERIFY_WITH_TIMEOUT(view.spinnerAngle() != 20, 1000);
    view.isStartLoading(false);
    const int stopped = view.spinnerAngle();
    QTest::qWait(120);
    QCOMPARE(view.spinnerAngle(), stopped);
}

void TestLoadingView::spinnerIsDrawnRightOfTheMiddleOnlyWhileLoading()
{
    Loading_View view;
    view.isStartLoading(true);
    const QImage loading = view.grab().toImage();
    const QPoint ringCentre(553, 300);
    const QPoint mirrored(447, 300);
    const int shade = qGray(loading.pixel(10, 10));
    QVERIFY2(brightestOnCircle(loading, ringCentre, 40) > shade + 50,
             qPrintable(QString::number(shade)));
    QVERIFY(brightestOnCircle(loading, mirrored, 40) <= shade + 5);
    // The ring is thin: its centre stays dark.
    QVERIFY(qGray(loading.pixel(ringCentre)) <= shade + 5);

    view.isStartLoading(false);
    const QImage idle = view.grab().toImage();
    QVERIFY(brightestOnCircle(idle, ringCentre, 40) <= qGray(idle.pixel(10, 10)) + 5);
}

void TestLoadingView::productWarning()
{
    Loading_View view;
    view.show();
    view.isProductWarning(true);
    QVERIFY(view.label_Warning->isVisible());
    QVERIFY(view.btn_OK->isVisible());
    view.isProductWarning(false);
    QVERIFY(!view.label_Warning->isVisible());
}

void TestLoadingView::warningFollowsTheLanguage()
{
    Loading_View view;
    QTranslator german;
    QVERIFY(german.load(QStringLiteral(":/QXRGBMemory/NORVALEX_de.qm")));
    QCoreApplication::installTranslator(&german);
    QTRY_COMPARE(view.label_Warning_Content->text(),
                 QStringLiteral("Kein NORVALEX-Speichermodul gefunden"));
    QCOMPARE(view.btn_OK->text(), QStringLiteral("OK"));
    QCoreApplication::removeTranslator(&german);
    QTRY_COMPARE(view.label_Warning_Content->text(), QStringLiteral("Can not Find QX NORVALEX"));
}

void TestLoadingView::closeAppQuitsAndTellsTheRunningPrograms()
{
    std::vector<Received> panel;
    std::vector<Received> control;
    void* panelWindow = Platform::listenForMessages(L"NORVALEX RGB", &record, &panel);
    void* controlWindow = Platform::listenForMessages(L"NORVALEX RGB Control", &record, &control);

    Loading_View view;
    view.show();
    view.isProductWarning(true);

    const auto clickOK = [&view]() { QTest::mouseClick(view.btn_OK, Qt::LeftButton); };

    // Neither program holds its name: nobody is told, the application still quits.
    QVERIFY(requestsQuit(clickOK));
    QVERIFY(panel.empty());
    QVERIFY(control.empty());

    // Both running: each window gets the quit message with 1, 1.
    bool existed = true;
    Platform::MutexHandle panelName = Platform::createMutex(L"NORVALEX RGB.exe", &existed);
    QVERIFY(!existed);
    Platform::MutexHandle controlName = Platform::createMutex(L"NORVALEX Control.exe", &existed);
    QVERIFY(!existed);
    QVERIFY(requestsQuit(clickOK));
    QCOMPARE(int(panel.size()), 1);
    QCOMPARE(panel[0].message, Platform::kMessageQuit);
    QCOMPARE(panel[0].wParam, std::uintptr_t(1));
    QCOMPARE(panel[0].lParam, std::intptr_t(1));
    QCOMPARE(int(control.size()), 1);
    QCOMPARE(control[0].message, Platform::kMessageQuit);

    // Only the control service running.
    Platform::closeHandle(panelName);
    QVERIFY(requestsQuit(clickOK));
    QCOMPARE(int(panel.size()), 1);
    QCOMPARE(int(control.size()), 2);

    Platform::closeHandle(controlName);
    Platform::stopListening(controlWindow);
    Platform::stopListening(panelWindow);
}

QTEST_MAIN(TestLoadingView)
#include "tst_loading_view.moc"
