// The real panel, service and library under a private X server, treated as a desktop session
// treats them: closed by the window manager, started again, started minimised, left running on
// each page with its standard error watched, started for the first time in German.
#include "Platform.h"
#include "TestEnvironment.h"
#include "XDisplay.h"

#include <QtTest>

#include <memory>

namespace {

constexpr int kWaitMs = 30000;
// Seconds each page is watched.
constexpr int kPageSeconds = 4;

// Centres of the menu buttons in the frame: Information, Lighting, Notification, Settings.
const QPoint kMenuButtons[] = {{90, 90}, {90, 142}, {90, 194}, {90, 246}};
const char* const kPageSlots[] = {"slot_show_Info", "slot_show_Lighting", "slot_show_Noti",
                                  "slot_show_Setting"};

// One run of norvalex-rgb on the test's display; the service it starts is told to quit when
// the run ends.
class Panel
{
public:
    Panel(const XDisplay& x, const QProcessEnvironment& extra = {}) : m_x(x)
    {
        QProcessEnvironment env = QProcessEnvironment::systemEnvironment();
        for (const char* name : {"QT_LOGGING_RULES", "QT_QPA_PLATFORM", "WAYLAND_DISPLAY",
                                 "LANGUAGE", "LC_ALL", "LC_MESSAGES"})
            env.remove(QString::fromLatin1(name));
        env.insert(QStringLiteral("LANG"), QStringLiteral("C.UTF-8"));
        env.insert(QStringLiteral("DISPLAY"), x.name());
        for (const QString& key : extra.keys())
            env.insert(key, extra.value(key));
        m_process.setProcessEnvironment(env);
    }
    ~Panel()
    {
        if (m_process.state() != QProcess::NotRunning) {
            m_process.kill();
            m_process.waitForFinished(5000);
        }
        stopService();
    }

    void start(const QStringList& arguments = {})
    {
        m_process.start(QStringLiteral(NX_BIN_DIR "/norvalex-rgb"), arguments);
    }
    // The frame, once it is on screen.
    unsigned long waitForFrame()
    {
        QElapsedTimer clock;
        clock.start();
        while (clock.elapsed() < kWaitMs && m_process.state() != QProcess::NotRunning) {
            const unsigned long window = m_x.findWindow("NORVALEX RGB");
            if (window && m_x.isViewable(window))
                return window;
            QTest::qWait(100);
        }
        return 0;
    }
    bool waitForExit() { return m_process.waitForFinished(kWaitMs); }
    int exitCode() const
    {
        return m_process.exitStatus() == QProcess::NormalExit ? m_process.exitCode() : -1;
    }
    QProcess::ProcessState state() const { return m_process.state(); }
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
    void click(unsigned long window, QPoint at) const
    {
        QProcess xdotool;
        QProcessEnvironment env = QProcessEnvironment::systemEnvironment();
        env.insert(QStringLiteral("DISPLAY"), m_x.name());
        xdotool.setProcessEnvironment(env);
        xdotool.start(QStringLiteral("xdotool"),
                      {QStringLiteral("mousemove"), QStringLiteral("--window"),
                       QString::number(window), QString::number(at.x()), QString::number(at.y()),
                       QStringLiteral("click"), QStringLiteral("1")});
        xdotool.waitForFinished(10000);
    }
    static void stopService()
    {
        if (!Platform::mutexExists(L"NORVALEX Control.exe"))
            return;
        // A service still starting holds its mutex before it listens for messages: ask again
        // until it has gone.
        QElapsedTimer clock;
        clock.start();
        while (Platform::mutexExists(L"NORVALEX Control.exe") && clock.elapsed() < kWaitMs) {
            Platform::sendMessage(Platform::findWindow(L"NORVALEX RGB Control"),
                                  Platform::kMessageQuit, 0, 0);
            QTest::qWait(500);
        }
        QVERIFY(!Platform::mutexExists(L"NORVALEX Control.exe"));
    }

private:
    const XDisplay& m_x;
    QProcess m_process;
    QByteArray m_error;
};

QProcessEnvironment environment(std::initializer_list<std::pair<const char*, QString>> values)
{
    QProcessEnvironment env;
    for (const auto& value : values)
        env.insert(QString::fromLatin1(value.first), value.second);
    return env;
}

} // namespace

class tst_Desktop : public QObject
{
    Q_OBJECT

    XDisplay m_x;

private slots:
    void initTestCase()
    {
        QVERIFY2(m_x.start(), "Xvfb did not start");
        QVERIFY(!Platform::mutexExists(L"NORVALEX RGB.exe"));
    }

    void cleanup() { Panel::stopService(); }

    // Alt+F4 or the taskbar's Close ends the process, and the next start shows a window again.
    void closedByTheWindowManager()
    {
        {
            Panel panel(m_x);
            panel.start();
            const unsigned long frame = panel.waitForFrame();
            QVERIFY(frame);
            m_x.sendDeleteWindow(frame);
            QVERIFY2(panel.waitForExit(), "the panel kept running after WM_DELETE_WINDOW");
            QCOMPARE(panel.exitCode(), 0);
            QVERIFY(!Platform::mutexExists(L"NORVALEX RGB.exe"));
        }
        Panel again(m_x);
        again.start();
        const unsigned long frame = again.waitForFrame();
        QVERIFY2(frame, "a second start showed no window");
        QCOMPARE(again.state(), QProcess::Running);
        m_x.sendDeleteWindow(frame);
        QVERIFY(again.waitForExit());
    }

    // --background maps the frame iconic; it still answers a close.
    void backgroundStartsMinimised()
    {
        Panel panel(m_x);
        panel.start({QStringLiteral("--background")});
        const unsigned long frame = panel.waitForFrame();
        QVERIFY(frame);
        QVERIFY(m_x.startsIconic(frame));
        m_x.sendDeleteWindow(frame);
        QVERIFY(panel.waitForExit());

        Panel normal(m_x);
        normal.start();
        const unsigned long shown = normal.waitForFrame();
        QVERIFY(shown);
        QVERIFY(!m_x.startsIconic(shown));
        m_x.sendDeleteWindow(shown);
        QVERIFY(normal.waitForExit());
    }

    // Diagnostic lines reach standard error only when QT_LOGGING_RULES asks for them; without,
    // every page stays under a line a second.
    void standardErrorStaysQuiet()
    {
        // Asked for: each click below reaches its page.
        {
            Panel loud(m_x, environment({{"QT_LOGGING_RULES", "norvalex.panel.debug=true"}}));
            loud.start();
            const unsigned long frame = loud.waitForFrame();
            QVERIFY(frame);
            QTest::qWait(3000);
            for (int page = 0; page < 4; ++page) {
                loud.click(frame, kMenuButtons[page]);
                QVERIFY2(loud.waitForError(kPageSlots[page], 10000).contains(kPageSlots[page]),
                         kPageSlots[page]);
            }
            m_x.sendDeleteWindow(frame);
            QVERIFY(loud.waitForExit());
        }
        Panel::stopService();

        Panel quiet(m_x);
        quiet.start();
        const unsigned long frame = quiet.waitForFrame();
        QVERIFY(frame);
        QTest::qWait(3000);
        quiet.newErrorLines();
        for (int page = 0; page < 4; ++page) {
            quiet.click(frame, kMenuButtons[page]);
            QTest::qWait(kPageSeconds * 1000);
            const QList<QByteArray> lines = quiet.newErrorLines();
            QVERIFY2(lines.size() < kPageSeconds,
                     qPrintable(QStringLiteral("%1: %2 lines, the first: %3")
                                    .arg(QLatin1String(kPageSlots[page]))
                                    .arg(lines.size())
                                    .arg(QString::fromLocal8Bit(lines.value(0)))));
        }
        m_x.sendDeleteWindow(frame);
        QVERIFY(quiet.waitForExit());
    }

    // A first start under a German desktop stores and shows German; later starts keep the
    // stored choice whatever the desktop says.
    void firstStartInTheDesktopLanguage()
    {
        QTemporaryDir config;
        const QString statePath = config.path() + QStringLiteral("/norvalex/control-state.json");
        const auto run = [&](const QString& lang) {
            Panel panel(m_x, environment({{"LANG", lang},
                                          {"XDG_CONFIG_HOME", config.path()},
                                          {"QT_LOGGING_RULES", "norvalex.panel.debug=true"}}));
            panel.start();
            const unsigned long frame = panel.waitForFrame();
            QByteArray seen = panel.waitForError("changeLanguage");
            QTest::qWait(500);
            seen += panel.newErrorLines().join('\n');
            m_x.sendDeleteWindow(frame);
            panel.waitForExit();
            return seen;
        };
        QVERIFY(run(QStringLiteral("de_DE.UTF-8")).contains("QXRGBMemory::changeLanguage 3"));
        Panel::stopService();
        QFile state(statePath);
        QVERIFY(state.open(QIODevice::ReadOnly));
        QVERIFY(state.readAll().contains("\"languageIndex\": 3"));

        QVERIFY(run(QStringLiteral("fr_FR.UTF-8")).contains("QXRGBMemory::changeLanguage 3"));
    }
};

QTEST_GUILESS_MAIN(tst_Desktop)
#include "tst_desktop.moc"
