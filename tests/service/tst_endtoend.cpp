// The panel, our lighting library and our control service together. A user's choice on the
// Lighting page reaching the service is the journey's to check (e2e.journey, under X).
#include "Loading_View.h"
#include "Main_View.h"
#include "Noti_View.h"
#include "Platform.h"
#include "QXRGBMemory.h"
#include "RawClient.h"
#include "ServiceProcess.h"
#include "TestEnvironment.h"

#include <QtTest>

#include <QLineEdit>
#include <QPushButton>

#include <memory>

class tst_EndToEnd : public QObject
{
    Q_OBJECT

    std::unique_ptr<ServiceProcess> m_service;

private slots:
    void initTestCase()
    {
        // TestEnvironment points the panel's platform layer and the library at private runtime
        // and config folders, where the service is started too.
        QStandardPaths::setTestModeEnabled(true);
        // A message box would wait for a click; the test reads its text instead.
        Platform::setMessageBoxHook(
            [](const std::wstring& text, const std::wstring&, Platform::MessageIcon) {
                qWarning("message box: %s", qPrintable(QString::fromStdWString(text)));
            });
        m_service = std::make_unique<ServiceProcess>(TestEnvironment::runtimeDir(),
                                                     TestEnvironment::configDir());
        QVERIFY(m_service->start());
    }

    void cleanupTestCase()
    {
        if (m_service)
            m_service->quitByMessage();
    }

    // The Notification page answers every record with one of its own; when that changes nothing
    // the exchange ends, and a threshold typed into the page reaches the service.
    void notificationPageSettlesAndKeepsTypedThresholds()
    {
        QXRGBMemory controller(QStringLiteral(NX_LIGHTING_LIBRARY));
        QTRY_VERIFY_WITH_TIMEOUT(controller.isInitDone(), 10000);
        Main_View* frame = controller.mainView();
        QTRY_VERIFY_WITH_TIMEOUT(!frame->loading_View->isVisible(), 5000);
        QSignalSpy records(&controller, &QXRGBMemory::setNotiData);
        QTest::mouseClick(frame->btn_Noti, Qt::LeftButton);
        QVERIFY(frame->noti_View->isVisible());
        QTest::qWait(1000);
        records.clear();
        QTest::qWait(1000);
        QVERIFY2(records.count() <= 1, qPrintable(QString::number(records.count())));

        auto* threshold = frame->noti_View->findChild<QLineEdit*>("lineEdit_Shutdown_Memory");
        QVERIFY(threshold);
        threshold->setFocus();
        threshold->selectAll();
        QTest::keyClicks(threshold, "77");
        QTest::keyClick(threshold, Qt::Key_Return);
        const auto reached = [&]() {
            RawClient client;
            nxproto::StateMessage state;
            return client.connectTo(m_service->socketPath()) && client.waitForState(&state) &&
                   state.state.noti.shutdownMemoryValue == 77;
        };
        QTRY_VERIFY_WITH_TIMEOUT(reached(), 5000);
        QCOMPARE(threshold->text(), QStringLiteral("77"));
    }
};

QTEST_MAIN(tst_EndToEnd)
#include "tst_endtoend.moc"
