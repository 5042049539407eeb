// The real panel, service and library under a private X server, treated as a desktop session
// treats them: started minimised, closed by the window manager, started again, left running on
// each page with its standard error watched, started for the first time in German.
#include "Platform.h"
#include "TestEnvironment.h"
#include "XSession.h"

#include <QtTest>

namespace {

constexpr int kWaitMs = 30000;
// Seconds each page is watched.
constexpr int kPageSeconds = 4;

// Centres of the menu buttons in the frame: Information, Lighting, Notification, Settings.
const QPoint kMenuButtons[] = {{90, 90}, {90, 142}, {90, 194}, {90, 246}};
const char* const kPageSlots[] = {"slot_show_Info", "slot_show_Lighting", "slot_show_Noti",
                                  "slot_show_Setting"};

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
        if (m_process.state() != QProcess::NotRunning) {
            m_process.kill();
            m_process.waitForFinished(5000);
        }
    }

    // Starts the panel and waits for its frame on screen.
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
    // Standard error since the last call.
    QList<QByteArray> newErrorLines()
    {
        m_error += m_process.readAllStandardError();
        const int end = m_error.lastIndexOf('\n') + 1;
        QList<QByteArray> lines = m_error.left(end).split('\n');
        lines.removeAll(QByteArray());
        m_error.remove(0, end);
        return lines;
    }
    // Standard error until `needle` appears in it or the time is up.
    QByteArray waitForError(const QByteArray& needle, int timeoutMs = kWaitMs)
    {
        QByteArray seen;
        QElapsedTimer clock;
        clock.start();
        while (!seen.contains(needle) && clock.elapsed() < timeoutMs) {
            QTest::qWait(100);
            seen += newErrorLines().join('\n') + '\n';
        }
        return seen;
    }

private:
    XSession& m_x;
    QProcess m_process;
    QByteArray m_error;
};

} // namespace

class tst_Desktop : public QObject
{
    Q_OBJECT

    XSession m_x;

private slots:
    void initTestCase()
    {
        QVERIFY2(m_x.start(), "Xvfb did not start");
        QVERIFY(!Platform::mutexExists(L"NORVALEX RGB.exe"));
    }

    void cleanup() { stopService(); }

    // --background maps the frame iconic. Alt+F4 or the taskbar's Close ends the process, and
    // the next start shows a normal window again.
    void minimisedStartClosedAndStartedAgain()
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
        QVERIFY(again.close());
    }

    // A first start under a German desktop stores and shows German; later starts keep the
    // stored choice whatever the desktop says. Diagnostic lines, asked for here, show each
    // click reaching its page.
    void firstStartInTheDesktopLanguage()
    {
        QTemporaryDir config;
        const auto run = [&](const QString& lang, bool visitPages) {
            Panel panel(m_x, {{"LANG", lang},
                              {"XDG_CONFIG_HOME", config.path()},
                              {"QT_LOGGING_RULES", "norvalex.panel.debug=true"}});
            if (!panel.start())
                return QByteArray("no window");
            QByteArray seen = panel.waitForError("changeLanguage");
            for (int page = 0; visitPages && page < 4; ++page) {
                QTest::qWait(page == 0 ? 3000 : 500);
                if (!m_x.click(kMenuButtons[page]))
                    return QByteArray("no click");
                seen += panel.waitForError(kPageSlots[page], 10000);
            }
            QTest::qWait(500);
            seen += panel.newErrorLines().join('\n');
            panel.close();
            return seen;
        };
        const QByteArray german = run(QStringLiteral("de_DE.UTF-8"), true);
        QVERIFY(german.contains("QXRGBMemory::changeLanguage 3"));
        for (const char* slot : kPageSlots)
            QVERIFY2(german.contains(slot), slot);
        stopService();
        QFile state(config.path() + QStringLiteral("/norvalex/control-state.json"));
        QVERIFY(state.open(QIODevice::ReadOnly));
        QVERIFY(state.readAll().contains("\"languageIndex\": 3"));

        QVERIFY(
            run(QStringLiteral("fr_FR.UTF-8"), false).contains("QXRGBMemory::changeLanguage 3"));
    }

    // Without QT_LOGGING_RULES every page stays under a line of standard error a second.
    void standardErrorStaysQuiet()
    {
        Panel quiet(m_x);
        QVERIFY(quiet.start());
        QTest::qWait(3000);
        quiet.newErrorLines();
        for (int page = 0; page < 4; ++page) {
            QVERIFY(m_x.click(kMenuButtons[page]));
            QTest::qWait(kPageSeconds * 1000);
            const QList<QByteArray> lines = quiet.newErrorLines();
            QVERIFY2(lines.size() < kPageSeconds,
                     qPrintable(QStringLiteral("%1: %2 lines, the first: %3")
                                    .arg(QLatin1String(kPageSlots[page]))
                                    .arg(lines.size())
                                    .arg(QString::fromLocal8Bit(lines.value(0)))));
        }
        QVERIFY(quiet.close());
    }
};

QTEST_GUILESS_MAIN(tst_Desktop)
#include "tst_desktop.moc"
