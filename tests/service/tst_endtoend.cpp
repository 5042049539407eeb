// The panel, our lighting library and our control service together: a user's choice on the
// Lighting page reaches the service.
#include "Lighting_View.h"
#include "Loading_View.h"
#include "Main_View.h"
#include "Memory_RGB_View.h"
#include "Noti_View.h"
#include "Platform.h"
#include "QXRGBMemory.h"
#include "RawClient.h"
#include "ServiceProcess.h"

#include <QtTest>

#include <QLineEdit>
#include <QPushButton>
#include <QTemporaryDir>

#include <ctime>
#include <memory>

namespace {

QStringList boxes;

void recordBox(const std::wstring& text, const std::wstring&, Platform::MessageIcon)
{
    boxes << QString::fromStdWString(text);
}

template <typename T> T* child(QWidget* parent, const char* name)
{
    T* found = parent->findChild<T*>(QLatin1String(name));
    if (!found)
        qWarning() << "no child named" << name;
    return found;
}

void typeInto(QLineEdit* edit, const QString& text)
{
    edit->setFocus();
    edit->selectAll();
    QTest::keyClicks(edit, text);
    QTest::keyClick(edit, Qt::Key_Return);
}

} // namespace

class tst_EndToEnd : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();
    void cleanupTestCase();
    void staticColourOnTwoModulesReachesTheService();
    void notificationPageSettlesAndKeepsTypedThresholds();

private:
    QTemporaryDir m_root;
    std::unique_ptr<ServiceProcess> m_service;
};

void tst_EndToEnd::initTestCase()
{
    QStandardPaths::setTestModeEnabled(true);
    QVERIFY(m_root.isValid());
    const QString runtime = m_root.path() + "/runtime";
    const QString config = m_root.path() + "/config";
    QVERIFY(QDir().mkpath(runtime));
    QVERIFY(QDir().mkpath(config));
    QFile::setPermissions(runtime,
                          QFileDevice::ReadOwner | QFileDevice::WriteOwner | QFileDevice::ExeOwner);
    // The panel's own platform layer and the library find the service through these.
    qputenv("XDG_RUNTIME_DIR", runtime.toLocal8Bit());
    qputenv("XDG_CONFIG_HOME", config.toLocal8Bit());
    Platform::setMessageBoxHook(recordBox);

    m_service = std::make_unique<ServiceProcess>(runtime, config);
    QVERIFY(m_service->start({"--modules", "4", "--leds", "8"}));
}

void tst_EndToEnd::cleanupTestCase()
{
    if (m_service)
        m_service->quitByMessage();
}

void tst_EndToEnd::staticColourOnTwoModulesReachesTheService()
{
    QXRGBMemory controller(QStringLiteral(NX_LIGHTING_LIBRARY));
    // The running service was found, so nothing was launched and nothing failed.
    QVERIFY2(boxes.isEmpty(), qPrintable(boxes.join(';')));
    QTRY_VERIFY_WITH_TIMEOUT(controller.isInitDone(), 10000);
    Main_View* frame = controller.mainView();
    QTRY_VERIFY_WITH_TIMEOUT(!frame->loading_View->isVisible(), 5000);
    QVERIFY(!frame->btn_Lighting->isHidden());

    QTest::mouseClick(frame->btn_Lighting, Qt::LeftButton);
    QWidget* page = frame->lighting_View;
    QVERIFY(page && page->isVisible());

    // Select the modules in slots 0 and 1 by their slot buttons.
    const auto strips = page->findChildren<Memory_RGB_View*>();
    QCOMPARE(strips.size(), 8);
    for (Memory_RGB_View* strip : strips) {
        if (strip->slotNumber == 0 || strip->slotNumber == 1) {
            QTRY_VERIFY(strip->available);
            QTest::mouseClick(strip->btn_MemorySlot, Qt::LeftButton);
            QVERIFY(strip->btn_MemorySlot->isChecked());
        }
    }

    // "Static" from the light-mode list.
    QPushButton* lightMode = child<QPushButton>(page, "btn_LightMode");
    QVERIFY(lightMode);
    QTest::mouseClick(lightMode, Qt::LeftButton);
    QPushButton* staticMode = child<QPushButton>(page, "6");
    QVERIFY(staticMode);
    QTRY_VERIFY(staticMode->isVisible());
    QTest::mouseClick(staticMode, Qt::LeftButton);
    QCOMPARE(lightMode->text(), QStringLiteral("Static"));

    // A colour typed into the R, G and B fields: rgb(0, 200, 50).
    typeInto(child<QLineEdit>(page, "lineEdit_R_Value"), "0");
    typeInto(child<QLineEdit>(page, "lineEdit_G_Value"), "200");
    typeInto(child<QLineEdit>(page, "lineEdit_B_Value"), "50");

    QPushButton* apply = child<QPushButton>(page, "btn_Apply");
    QVERIFY(apply);
    QTest::mouseClick(apply, Qt::LeftButton);

    // Read back from the service itself, over its own protocol.
    const COLORREF expected = 0 | (200u << 8) | (50u << 16);
    bool reached = false;
    nxproto::StateMessage state;
    for (int attempt = 0; attempt < 20 && !reached; ++attempt) {
        RawClient client;
        QVERIFY(client.connectTo(m_service->socketPath()));
        QVERIFY(client.waitForState(&state));
        reached = state.state.module(0).lightMode == 6 && state.state.module(1).lightMode == 6;
        if (!reached)
            QTest::qWait(100);
    }
    QVERIFY(reached);
    for (int slot : {0, 1}) {
        const nxproto::ModuleLighting& module = state.state.module(slot);
        QCOMPARE(module.colorMode, 0);
        QCOMPARE(module.turnOff, false);
        for (int led = 0; led < 8; ++led)
            QCOMPARE(module.rgb[led], expected);
    }
    // The modules that were not selected keep their mode.
    QCOMPARE(state.state.module(2).lightMode, 5);
    QCOMPARE(state.state.module(3).lightMode, 5);
}

// The Notification page answers every record with one of its own; when that changes nothing
// the exchange ends, and a threshold typed into the page reaches the service.
void tst_EndToEnd::notificationPageSettlesAndKeepsTypedThresholds()
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
    timespec before{};
    timespec after{};
    clock_gettime(CLOCK_PROCESS_CPUTIME_ID, &before);
    QElapsedTimer wall;
    wall.start();
    QTest::qWait(1000);
    clock_gettime(CLOCK_PROCESS_CPUTIME_ID, &after);
    const double cpuMs =
        double(after.tv_sec - before.tv_sec) * 1e3 + double(after.tv_nsec - before.tv_nsec) / 1e6;
    qInfo("Notification page shown: %d records, panel CPU %.1f %% of a core", records.count(),
          cpuMs * 100.0 / double(wall.elapsed()));
    QVERIFY2(records.count() <= 1, qPrintable(QString::number(records.count())));

    auto* threshold = child<QLineEdit>(frame->noti_View, "lineEdit_Shutdown_Memory");
    QVERIFY(threshold);
    typeInto(threshold, "77");
    bool reached = false;
    for (int attempt = 0; attempt < 20 && !reached; ++attempt) {
        RawClient client;
        nxproto::StateMessage state;
        QVERIFY(client.connectTo(m_service->socketPath()));
        QVERIFY(client.waitForState(&state));
        reached = state.state.noti.shutdownMemoryValue == 77;
        if (!reached)
            QTest::qWait(100);
    }
    QVERIFY(reached);
    QCOMPARE(threshold->text(), QStringLiteral("77"));
}

QTEST_MAIN(tst_EndToEnd)
#include "tst_endtoend.moc"
