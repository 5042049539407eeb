// A user's journey through the real panel under X: start in a clean home (the panel launches
// the service), read the Information page, light two modules, switch profiles, reorder slots,
// change a notification rule and the language, quit, start again and find every choice kept.
// Each step is checked in the service's state, read through our lighting library, and where
// the user would look, in the pixels of a screenshot. Then the panel as a desktop session
// treats it: quiet on standard error, closed by the window manager, started minimised, started
// for the first time under a German desktop.
#include "LightingApi.h"
#include "PanelLayout.h"
#include "Pixels.h"
#include "Platform.h"
#include "TestEnvironment.h"
#include "XSession.h"

#include <QtTest>

#include <csignal>
#include <functional>

namespace {

constexpr int kModules = 4;
constexpr int kLeds = 8;
constexpr int kStatic = 6;
constexpr int kStartMs = 60000;
constexpr int kStepMs = 15000;
const QColor kChosen(40, 200, 120);
constexpr int kBrightness = 6; // of 10

} // namespace

class tst_Journey : public QObject
{
    Q_OBJECT

    QProcess m_panel;
    XSession m_x;
    LightingApi m_api;
    std::unique_ptr<PanelLayout> m_layout;
    QImage m_germanMenu;
    QTemporaryDir m_probeRuntime; // private to its owner, as a runtime directory must be

    qint64 servicePid() const
    {
        QFile lock(TestEnvironment::runtimeDir() + "/norvalex-mutex-NORVALEX_Control.exe.lock");
        const qint64 pid =
            lock.open(QIODevice::ReadOnly) ? lock.readLine().trimmed().toLongLong() : 0;
        return pid > 0 && QFile::exists(QStringLiteral("/proc/%1").arg(pid)) ? pid : -1;
    }

    // How often Qt's X thread in the panel went to sleep and was woken so far.
    qint64 xThreadWakeUps() const
    {
        const QString tasks = QStringLiteral("/proc/%1/task").arg(m_panel.processId());
        for (const QString& task : QDir(tasks).entryList(QDir::Dirs | QDir::NoDotAndDotDot)) {
            QFile comm(tasks + '/' + task + "/comm");
            if (!comm.open(QIODevice::ReadOnly) || comm.readAll().trimmed() != "QXcbEventQueue")
                continue;
            QFile status(tasks + '/' + task + "/status");
            status.open(QIODevice::ReadOnly);
            for (const QByteArray& line : status.readAll().split('\n'))
                if (line.startsWith("voluntary_ctxt_switches:"))
                    return line.mid(line.indexOf(':') + 1).trimmed().toLongLong();
        }
        return -1;
    }

    // As a user starts it: the panel from the build, on the X display, in the clean home, under
    // an English desktop unless `extra` says otherwise.
    void startPanel(const QStringList& arguments = {}, const QProcessEnvironment& extra = {})
    {
        QProcessEnvironment env = QProcessEnvironment::systemEnvironment();
        for (const char* name : {"QT_LOGGING_RULES", "LANGUAGE", "LC_ALL", "LC_MESSAGES"})
            env.remove(QString::fromLatin1(name));
        env.insert("QT_QPA_PLATFORM", "xcb");
        env.insert("LANG", "C.UTF-8");
        env.insert(extra);
        m_panel.setProcessEnvironment(env);
        m_panel.start(QStringLiteral(NX_PANEL_EXECUTABLE), arguments);
        QVERIFY(m_panel.waitForStarted(kStepMs));
        QVERIFY2(m_x.waitForWindow("NORVALEX RGB", kStartMs), "no panel window");
        // Without a window manager the keyboard follows the X input focus, given once here: a
        // focus change later would end the editing of a field.
        QVERIFY(m_x.focus());
    }
    // Closes the frame as a window manager does (Alt+F4, the taskbar's Close).
    void closeByWindowManager()
    {
        m_x.sendDeleteWindow();
        QVERIFY(m_panel.waitForFinished(kStepMs));
        QCOMPARE(m_panel.exitStatus(), QProcess::NormalExit);
        QCOMPARE(m_panel.exitCode(), 0);
        QVERIFY(!Platform::mutexExists(L"NORVALEX RGB.exe"));
    }
    // A service still starting holds its lock before it listens for messages: ask again until
    // it has gone.
    void stopService()
    {
        QElapsedTimer clock;
        clock.start();
        while (servicePid() > 0 && clock.elapsed() < kStartMs) {
            Platform::sendMessage(Platform::findWindow(L"NORVALEX RGB Control"),
                                  Platform::kMessageQuit, 0, 0);
            QTest::qWait(500);
        }
        QVERIFY(servicePid() < 0);
    }

    // Takes screenshots until one passes the check or the time is up; the last fault, empty when
    // one passed. With NX_E2E_SHOTS set to a directory, the last screenshot is kept there.
    QString waitForShot(const std::function<QString(const QImage&)>& fault, const char* name,
                        int timeoutMs = kStepMs)
    {
        QElapsedTimer clock;
        clock.start();
        QString last;
        QImage shot;
        for (;;) {
            shot = m_x.screenshot();
            last = shot.isNull() ? QStringLiteral("no screenshot") : fault(shot);
            if (last.isEmpty() || clock.elapsed() > timeoutMs)
                break;
            QTest::qWait(200);
        }
        const QString keep = qEnvironmentVariable("NX_E2E_SHOTS");
        if (!keep.isEmpty())
            shot.save(keep + QStringLiteral("/%1-%2.png").arg(QTest::currentTestFunction(), name));
        return last;
    }

    QString waitFor(QString (tst_Journey::*fault)(const QImage&) const, const char* name,
                    int timeoutMs = kStepMs)
    {
        return waitForShot([=](const QImage& shot) { return (this->*fault)(shot); }, name,
                           timeoutMs);
    }

    // The LED discs of the two modules show the chosen colour, the other strips do not, and
    // the preview shows it at the chosen brightness. Empty when so, else what is wrong.
    QString litModulesFault(const QImage& shot) const
    {
        for (int slot = 0; slot < kModules; ++slot) {
            for (int led : {0, kLeds - 1}) {
                const int near = Pixels::countNear(shot, m_layout->ledRect(slot, led), kChosen, 40);
                if ((slot < 2) != (near > 20))
                    return QStringLiteral("slot %1 LED %2: %3 pixels").arg(slot).arg(led).arg(near);
            }
        }
        const QColor dimmed(kChosen.red() * kBrightness / 10, kChosen.green() * kBrightness / 10,
                            kChosen.blue() * kBrightness / 10);
        const QRect preview = m_layout->rectOf(m_layout->lighting("widget_Preview"));
        const int near = Pixels::countNear(shot, preview, dimmed, 30);
        return near > 300 ? QString() : QStringLiteral("preview: %1 pixels").arg(near);
    }

    // The loading view shades the whole window; the logo shows white once it is gone.
    QString loadingFault(const QImage& shot) const
    {
        const QRect logo = m_layout->rectOf(m_layout->frame()->label_Logo);
        return Pixels::brightest(shot, logo) > 200 ? QString() : QStringLiteral("loading");
    }
    QString germanMenuFault(const QImage& shot) const
    {
        const QRect menu = m_layout->rectOf(m_layout->frame()->btn_Noti);
        return shot.copy(menu) == m_germanMenu ? QString() : QStringLiteral("menu differs");
    }

    // What the service holds after the first Apply: the two selected modules static in the
    // chosen colour at 6 of 10, the others untouched.
    void checkState()
    {
        const COLORREF chosen = COLORREF(kChosen.red()) | COLORREF(kChosen.green()) << 8 |
                                COLORREF(kChosen.blue()) << 16;
        for (int slot = 0; slot < kModules; ++slot) {
            QCOMPARE(m_api.GetValueLightMode(slot) == kStatic, slot < 2);
            if (slot >= 2)
                continue;
            QCOMPARE(m_api.GetValueColorMode(slot), 0);
            QCOMPARE(m_api.GetValueTurnOff(slot), 0);
            for (int led = 0; led < kLeds; ++led) {
                QCOMPARE(m_api.GetValueRGB(slot)[led], chosen);
                QCOMPARE(qRound(m_api.GetValueBright(slot)[led] * 10), kBrightness);
            }
        }
    }

    void click(const QWidget* widget) { QVERIFY(m_x.click(m_layout->at(widget))); }
    void typeInto(QPoint field, int value)
    {
        QVERIFY(m_x.click(field));
        QVERIFY(m_x.clearField());
        QVERIFY(m_x.type(QString::number(value)));
        QVERIFY(m_x.keys(QStringLiteral("Return")));
    }

private slots:
    void initTestCase()
    {
        QVERIFY2(m_x.start(), "Xvfb did not start");
        const QString root = TestEnvironment::root().path();
        qputenv("XDG_DATA_HOME", QFile::encodeName(root + "/data"));
        // The off-screen frame listens for messages under the panel's title: in a runtime
        // directory of its own, so that it never answers for the real panel.
        qputenv("XDG_RUNTIME_DIR", QFile::encodeName(m_probeRuntime.path()));
        m_layout = std::make_unique<PanelLayout>(kModules, kLeds);
        qputenv("XDG_RUNTIME_DIR", QFile::encodeName(TestEnvironment::runtimeDir()));
        QString error;
        QVERIFY2(m_api.load(&error), qPrintable(error));
    }

    void cleanupTestCase()
    {
        m_panel.kill();
        m_panel.waitForFinished(5000);
        if (servicePid() > 0)
            ::kill(pid_t(servicePid()), SIGTERM);
    }

    void startsAndShowsInformation()
    {
        QVERIFY(servicePid() < 0);
        startPanel();
        const QImage loading = m_x.screenshot();
        QCOMPARE(waitFor(&tst_Journey::loadingFault, "loaded", kStartMs), QString());
        // The panel launched the service: the library reaches it and sees the simulated modules.
        QVERIFY(servicePid() > 0);
        m_api.SharedDLL_init();
        QTRY_COMPARE_WITH_TIMEOUT(m_api.GetValueHWData().memoryCount, kModules, kStartMs);
        QCOMPARE(m_api.GetValueHWData().memoryData[0].ledNum, kLeds);

        // The Information page is the first page: the gauge and the value columns show text in
        // white or grey, and the shade is gone from all of it.
        Main_View* frame = m_layout->frame();
        const QImage info = m_x.screenshot();
        QVERIFY(Pixels::changedShare(loading, info, QRect(0, 0, 1000, 600)) > 0.3);
        QVERIFY(Pixels::brightest(info, m_layout->rectOf(frame->information_View)) > 200);
        QVERIFY(Pixels::brightest(info, m_layout->rectOf(frame->btn_Info)) > 200);
    }

    void lightsTwoModules()
    {
        click(m_layout->frame()->btn_Lighting);
        QTest::qWait(500);
        // The preview's frames reach the screen without a round trip to the X server each: Qt's
        // X thread sleeps through a second of them.
        const qint64 woken = xThreadWakeUps();
        QVERIFY(woken >= 0);
        QTest::qWait(1000);
        QVERIFY2(xThreadWakeUps() - woken < 10,
                 qPrintable(QString::number(xThreadWakeUps() - woken)));
        // A band from above left of module 1's first LED to below right of module 2's last one.
        QVERIFY(m_x.drag(m_layout->ledRect(0, 0).topLeft() - QPoint(8, 8),
                         m_layout->ledRect(1, kLeds - 1).bottomRight() + QPoint(8, 8)));

        // Static, from the light-mode list; the colour typed into R, G and B.
        const QPoint staticEntry = m_layout->lightModeEntry(kStatic);
        click(m_layout->lighting("btn_LightMode"));
        QTest::qWait(500);
        QVERIFY(m_x.click(staticEntry));
        QTest::qWait(300);
        typeInto(m_layout->at(m_layout->lighting("lineEdit_R_Value")), kChosen.red());
        typeInto(m_layout->at(m_layout->lighting("lineEdit_G_Value")), kChosen.green());
        typeInto(m_layout->at(m_layout->lighting("lineEdit_B_Value")), kChosen.blue());

        // The brightness handle, 10 pixels wide, dragged from the full end to 6 of 10.
        const QRect groove = m_layout->rectOf(m_layout->lighting("slider_Light"));
        const int y = groove.center().y();
        QVERIFY(m_x.drag({groove.right() - 5, y},
                         {groove.left() + 5 + (groove.width() - 10) * kBrightness / 10, y}));

        click(m_layout->lighting("btn_Apply"));
        QTRY_VERIFY_WITH_TIMEOUT(m_api.GetValueLightMode(0) == kStatic &&
                                     m_api.GetValueLightMode(1) == kStatic,
                                 kStepMs);
        checkState();
        QCOMPARE(waitFor(&tst_Journey::litModulesFault, "lit"), QString());
    }

    void switchesProfileAndBack()
    {
        const int first = m_api.GetProfile();
        click(m_layout->lighting("btn_Profile1"));
        QTRY_COMPARE_WITH_TIMEOUT(m_api.GetProfile(), 1, kStepMs);
        // Another whole set-up: the first module is not the static one of profile 1.
        QTRY_VERIFY_WITH_TIMEOUT(m_api.GetValueLightMode(0) != kStatic, kStepMs);
        const auto unlit = [this](const QImage& shot) {
            const int near = Pixels::countNear(shot, m_layout->ledRect(0, 0), kChosen, 40);
            return near == 0 ? QString() : QStringLiteral("%1 pixels of the colour").arg(near);
        };
        QCOMPARE(waitForShot(unlit, "profile2"), QString());

        click(m_layout->lighting("btn_Profile0"));
        QTRY_COMPARE_WITH_TIMEOUT(m_api.GetProfile(), first, kStepMs);
        QTRY_COMPARE_WITH_TIMEOUT(m_api.GetValueLightMode(0), kStatic, kStepMs);
        checkState();
    }

    void reordersSlots()
    {
        click(m_layout->lighting("btn_Edit"));
        QTest::qWait(300);
        QVERIFY(m_x.drag(m_layout->rectOf(m_layout->strip(2)).center(),
                         m_layout->rectOf(m_layout->strip(3)).center(), 12));
        QTest::qWait(800);
        click(m_layout->lighting("btn_Edit_Apply"));
        QTRY_VERIFY_WITH_TIMEOUT(m_api.GetValueMemorySlotNumber(2) == 3 &&
                                     m_api.GetValueMemorySlotNumber(3) == 2,
                                 kStepMs);
        QCOMPARE(m_api.GetValueMemorySlotNumber(0), 0);
        QCOMPARE(m_api.GetValueMemorySlotNumber(1), 1);
    }

    void changesThresholdAndLanguage()
    {
        Main_View* frame = m_layout->frame();
        const QPoint loading = m_layout->notiField("lineEdit_Loading");
        click(frame->btn_Noti);
        QTest::qWait(500);
        const int chosen = m_api.GetNotiEvent().loadingValue == 65 ? 75 : 65;
        typeInto(loading, chosen);
        QTRY_COMPARE_WITH_TIMEOUT(m_api.GetNotiEvent().loadingValue, chosen, kStepMs);

        const QPoint german = m_layout->languageEntry(3);
        const QRect menu = m_layout->rectOf(frame->btn_Noti);
        const QImage english = m_x.screenshot();
        click(frame->btn_Setting);
        QTest::qWait(500);
        click(m_layout->named(frame->setting_View, "btn_Language"));
        QTest::qWait(500);
        QVERIFY(m_x.click(german));
        QTRY_COMPARE_WITH_TIMEOUT(m_api.GetSettingValue().languageIndex, 3, kStepMs);
        // The menu speaks German at once.
        const auto menuChanged = [&](const QImage& shot) {
            const double changed = Pixels::changedShare(english, shot, menu);
            return changed > 0.02 ? QString() : QStringLiteral("menu %1 changed").arg(changed);
        };
        QCOMPARE(waitForShot(menuChanged, "german"), QString());
        m_germanMenu = m_x.screenshot().copy(menu);
    }

    void keepsEverythingAfterRestart()
    {
        const int threshold = m_api.GetNotiEvent().loadingValue;
        const qint64 service = servicePid();
        QVERIFY(service > 0);
        // The close button ends the panel; the service stays until it is asked to quit, then
        // saves and leaves.
        click(m_layout->named(m_layout->frame(), "btn_Close"));
        QVERIFY(m_panel.waitForFinished(kStepMs));
        QCOMPARE(m_panel.exitCode(), 0);
        QCOMPARE(servicePid(), service);
        Platform::sendMessage(Platform::findWindow(L"NORVALEX RGB Control"), Platform::kMessageQuit,
                              0, 0);
        QTRY_VERIFY_WITH_TIMEOUT(servicePid() < 0, kStepMs);

        startPanel();
        QCOMPARE(waitFor(&tst_Journey::loadingFault, "loaded", kStartMs), QString());
        QTRY_VERIFY_WITH_TIMEOUT(servicePid() > 0 && servicePid() != service, kStartMs);
        // The library reconnects to the new service and mirrors its state.
        const quint32 stamp = m_api.GetValueHWData().updateTime;
        QTRY_VERIFY_WITH_TIMEOUT(m_api.GetValueHWData().updateTime != stamp, kStartMs);
        checkState();
        QCOMPARE(m_api.GetValueMemorySlotNumber(2), 3);
        QCOMPARE(m_api.GetValueMemorySlotNumber(3), 2);
        QCOMPARE(m_api.GetNotiEvent().loadingValue, threshold);
        QCOMPARE(m_api.GetSettingValue().languageIndex, 3);

        // The panel shows them: German menu, the two modules lit in the chosen colour.
        QCOMPARE(waitFor(&tst_Journey::germanMenuFault, "restart"), QString());
        click(m_layout->frame()->btn_Lighting);
        QCOMPARE(waitFor(&tst_Journey::litModulesFault, "lit"), QString());
    }

    // Without QT_LOGGING_RULES every page stays under a line of standard error a second; the
    // window manager's close ends the panel cleanly; --background maps the frame iconic.
    void behavesInADesktopSession()
    {
        constexpr int kSeconds = 3;
        Main_View* frame = m_layout->frame();
        m_panel.readAllStandardError();
        for (QPushButton* page :
             {frame->btn_Info, frame->btn_Lighting, frame->btn_Noti, frame->btn_Setting}) {
            click(page);
            QTest::qWait(kSeconds * 1000);
            const QByteArray lines = m_panel.readAllStandardError();
            QVERIFY2(lines.count('\n') < kSeconds, lines.constData());
        }
        QVERIFY(!m_x.startsIconic());
        closeByWindowManager();
        stopService();
        startPanel({QStringLiteral("--background")});
        QVERIFY(m_x.startsIconic());
        closeByWindowManager();
    }

    // A first start under a German desktop stores German and shows the menu the journey's
    // German choice showed.
    void firstStartInTheDesktopLanguage()
    {
        m_panel.kill(); // left running only by a failed step
        m_panel.waitForFinished(kStepMs);
        stopService();
        const QString config = TestEnvironment::root().path() + "/german-config";
        QProcessEnvironment german;
        german.insert("LANG", "de_DE.UTF-8");
        german.insert("XDG_CONFIG_HOME", config);
        startPanel({}, german);
        QCOMPARE(waitFor(&tst_Journey::loadingFault, "loaded", kStartMs), QString());
        QCOMPARE(waitFor(&tst_Journey::germanMenuFault, "german"), QString());
        closeByWindowManager();
        stopService();
        QFile state(config + "/norvalex/control-state.json");
        QVERIFY(state.open(QIODevice::ReadOnly));
        QVERIFY(state.readAll().contains("\"languageIndex\": 3"));
    }
};

QTEST_MAIN(tst_Journey)
#include "tst_journey.moc"
