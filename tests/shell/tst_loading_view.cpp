#include "TestEnvironment.h"

#include "Loading_View.h"
#include "Platform.h"
#include "QuitRequest.h"

#include <QLabel>
#include <QPushButton>
#include <QStandardPaths>
#include <QThread>
#include <QTimer>
#include <QTranslator>
#include <QtTest>

#include <functional>

namespace {
// Each message a window receives as "message wParam lParam", the message in hex.
void record(void* context, unsigned message, std::uintptr_t wParam, std::intptr_t lParam)
{
    *static_cast<QStringList*>(context)
        << QStringLiteral("%1 %2 %3").arg(message, 0, 16).arg(wParam).arg(lParam);
}

} // namespace

class TestLoadingView : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase() { QStandardPaths::setTestModeEnabled(true); }
    void spinner();
    void warningFollowsTheLanguage();
    void closeAppTellsTheRunningPrograms();
};

void TestLoadingView::spinner()
{
    Loading_View view;
    QList<int> angles;
    for (int i = 0; i < 18; ++i) {
        view.rotate();
        angles << view.spinnerAngle();
    }
    QCOMPARE(angles, (QList<int>{40, 60, 80, 100, 120, 140, 160, 180, 200, 220, 240, 260, 280, 300,
                                 320, 340, 0, 20}));

    view.isStartLoading(true);
    QVERIFY(view.isVisible() && view.loading());
    // No event processing here: the timer cannot fire, only run down. Starting again keeps it.
    QThread::msleep(25);
    const int remaining = view.spinnerTimer()->remainingTime();
    QVERIFY2(remaining < 30, qPrintable(QString::number(remaining)));
    view.isStartLoading(true);
    QVERIFY(view.spinnerTimer()->isActive());
    QVERIFY(view.spinnerTimer()->remainingTime() <= remaining);
    QTRY_VERIFY_WITH_TIMEOUT(view.spinnerAngle() != 20, 1000);

    view.isStartLoading(false);
    QVERIFY(view.isHidden() && !view.loading() && !view.spinnerTimer()->isActive());
    const int stopped = view.spinnerAngle();
    QTest::qWait(120);
    QCOMPARE(view.spinnerAngle(), stopped);
}

void TestLoadingView::warningFollowsTheLanguage()
{
    // The overlay exists before the stored language is known.
    Loading_View view;
    QTranslator german;
    QVERIFY(german.load(QStringLiteral(":/QXRGBMemory/NORVALEX_de.qm")));
    QCoreApplication::installTranslator(&german);
    QTRY_COMPARE(view.label_Warning_Content->text(),
                 QStringLiteral("Kein NORVALEX-Speichermodul gefunden"));
    QCoreApplication::removeTranslator(&german);
    QTRY_COMPARE(view.label_Warning_Content->text(), QStringLiteral("Can not Find QX NORVALEX"));
}

void TestLoadingView::closeAppTellsTheRunningPrograms()
{
    QStringList panel;
    QStringList control;
    void* panelWindow = Platform::listenForMessages(L"NORVALEX RGB", &record, &panel);
    void* controlWindow = Platform::listenForMessages(L"NORVALEX RGB Control", &record, &control);

    Loading_View view;
    view.show();
    view.isProductWarning(true);
    const auto clickOK = [&view]() { QTest::mouseClick(view.btn_OK, Qt::LeftButton); };

    // Neither program holds its name: nobody is told, the application still quits.
    QVERIFY(QuitRequest::during(clickOK, 3000));
    QVERIFY(panel.isEmpty() && control.isEmpty());

    // Both running: each window gets the quit message with 1, 1.
    bool existed = true;
    Platform::MutexHandle panelName = Platform::createMutex(L"NORVALEX RGB.exe", &existed);
    QVERIFY(!existed);
    Platform::MutexHandle controlName = Platform::createMutex(L"NORVALEX Control.exe", &existed);
    QVERIFY(!existed);
    QVERIFY(QuitRequest::during(clickOK, 3000));
    QCOMPARE(panel, QStringList{"8301 1 1"});
    QCOMPARE(control, QStringList{"8301 1 1"});

    // Only the control service running.
    Platform::closeHandle(panelName);
    QVERIFY(QuitRequest::during(clickOK, 3000));
    QCOMPARE(panel.size(), 1);
    QCOMPARE(control.size(), 2);

    Platform::closeHandle(controlName);
    Platform::stopListening(controlWindow);
    Platform::stopListening(panelWindow);
}

QTEST_MAIN(TestLoadingView)
#include "tst_loading_view.moc"
