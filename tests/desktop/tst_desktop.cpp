// The real panel, service and library under a private X server, treated as a desktop session
// treats them: started minimised, closed by the window manager, started again and watched on
// each page, started for the first time in German.
#include "Platform.h"
#include "XSession.h"

#include <QtTest>

namespace {

constexpr int kWaitMs = 30000;
constexpr int kPageSeconds = 3;

void stopService()
{
    // A service still starting holds its mutex before it listens for messages: ask again until
    // it has gone.
    QElapsedTimer clock;
    clock.start();
    while (Platform::mutexExists(L"NORVALEX Control.exe") && clock.elapsed() < kWaitMs) {
        Platform::sendMessage(Platform::findWindow(L"NORVALEX RGB Control"), Platform::kMessageQuit,
                              0, 0);
        QTest::qWait(500);
    }
    QVERIFY(!Platform::mutexExists(L"NORVALEX Control.exe"));
}

// One run of norvalex-rgb on the session's display, with extra environment variables.
class Panel
{
public:
    Panel(XSession& x, std::initializer_list<std::pair<const char*, QString>> extra = {}) : m_x(x)
    {
        QProcessEnvironment env = QProcessEnvironment::systemEnvironment();
        for (const char* name : {"QT_LOGGING_RULES", "QT_QPA_PLATFORM", "WAYLAND_DISPLAY",
                                 "LANGUAGE", "LC_ALL", "LC_MESSAGES"})
            env.remove(QString::fromLatin1(name));
        env.insert(QStringLiteral("LANG"), QStringLiteral("C.UTF-8"));
        for (const auto& [name, value] : extra)
            env.insert(QString::fromLatin1(name), value);
        m_process.setProcessEnvironment(env);
    }
    ~Panel()
    {
        m_process.kill();
        m_process.waitForFinished(5000);
    }
    bool start(const QStringList& arguments = {})
    {
        m_process.start(QStringLiteral(NX_BIN_DIR "/norvalex-rgb"), arguments);
        return m_x.waitForWindow("NORVALEX RGB", kWaitMs);
    }
    // Closes the frame as a window manager does; true when the panel then ended cleanly.
    bool close()
    {
        m_x.sendDeleteWindow();
        return m_process.waitForFinished(kWaitMs) &&
               m_process.exitStatus() == QProcess::NormalExit && m_process.exitCode() == 0;
    }
    // Standard error since the last call, or until `needle` appears in it.
    QByteArray error(const QByteArray& needle = {})
    {
        QByteArray seen = m_process.readAllStandardError();
        QElapsedTimer clock;
        clock.start();
        while (!needle.isEmpty() && !seen.contains(needle) && clock.elapsed() < kWaitMs) {
            QTest::qWait(100);
            seen += m_process.readAllStandardError();
        }
        return seen;
    }

private:
    XSession& m_x;
    QProcess m_process;
};

} // namespace

class tst_Desktop : public QObject
{
    Q_OBJECT

    XSession m_x;

private slots:
    void initTestCase() { QVERIFY2(m_x.start(), "Xvfb did not start"); }
    void cleanup() { stopService(); }

    // --background maps the frame iconic, and Alt+F4 or the taskbar's Close ends the process.
    // The next start shows a normal window, and without QT_LOGGING_RULES every page stays
    // under a line of standard error a second.
    void minimisedStartThenQuietPages()
    {
        {
            Panel panel(m_x);
            QVERIFY(panel.start({QStringLiteral("--background")}));
            QVERIFY(m_x.startsIconic());
            QVERIFY2(panel.close(), "the panel did not end cleanly after WM_DELETE_WINDOW");
            QVERIFY(!Platform::mutexExists(L"NORVALEX RGB.exe"));
        }
        stopService();
        Panel again(m_x);
        QVERIFY2(again.start(), "a second start showed no window");
        QVERIFY(!m_x.startsIconic());
        QTest::qWait(3000);
        again.error();
        // The menu buttons: Information, Lighting, Notification, Settings.
        for (const QPoint button :
             {QPoint(90, 90), QPoint(90, 142), QPoint(90, 194), QPoint(90, 246)}) {
            QVERIFY(m_x.click(button));
            QTest::qWait(kPageSeconds * 1000);
            const QByteArray lines = again.error();
            QVERIFY2(lines.count('\n') < kPageSeconds, lines.constData());
        }
        QVERIFY(again.close());
    }

    // A first start under a German desktop stores and shows German; later starts keep the
    // stored choice whatever the desktop says.
    void firstStartInTheDesktopLanguage()
    {
        QTemporaryDir config;
        const auto run = [&](const QString& lang) {
            Panel panel(m_x, {{"LANG", lang},
                              {"XDG_CONFIG_HOME", config.path()},
                              {"QT_LOGGING_RULES", "norvalex.panel.debug=true"}});
            const QByteArray seen = panel.start() ? panel.error("changeLanguage 3") : "no window";
            panel.close();
            return seen;
        };
        QVERIFY(run(QStringLiteral("de_DE.UTF-8")).contains("QXRGBMemory::changeLanguage 3"));
        stopService();
        QFile state(config.path() + QStringLiteral("/norvalex/control-state.json"));
        QVERIFY(state.open(QIODevice::ReadOnly));
        QVERIFY(state.readAll().contains("\"languageIndex\": 3"));
        QVERIFY(run(QStringLiteral("fr_FR.UTF-8")).contains("QXRGBMemory::changeLanguage 3"));
    }
};

QTEST_GUILESS_MAIN(tst_Desktop)
#include "tst_desktop.moc"
