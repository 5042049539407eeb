// The panel's command line: the parser's answers, and the real program's exit codes and
// messages for options, help and a missing display.
#include "CommandLine.h"
#include "TestEnvironment.h"

#include <QtTest>

Q_DECLARE_METATYPE(CommandLine::Action)

namespace {

QString panelPath()
{
    return QStringLiteral(NX_BIN_DIR "/norvalex-rgb");
}

struct Run {
    int exitCode = -1;
    QByteArray out;
    QByteArray err;
};

Run runPanel(const QStringList& arguments, const QProcessEnvironment& env)
{
    QProcess process;
    process.setProcessEnvironment(env);
    process.start(panelPath(), arguments);
    Run run;
    if (!process.waitForFinished(20000)) {
        process.kill();
        process.waitForFinished();
        return run;
    }
    run.exitCode = process.exitStatus() == QProcess::NormalExit ? process.exitCode() : -2;
    run.out = process.readAllStandardOutput();
    run.err = process.readAllStandardError();
    return run;
}

// No window system at all: none set, none forced.
QProcessEnvironment headless()
{
    QProcessEnvironment env = QProcessEnvironment::systemEnvironment();
    for (const char* name : {"DISPLAY", "WAYLAND_DISPLAY", "QT_QPA_PLATFORM"})
        env.remove(QString::fromLatin1(name));
    return env;
}

} // namespace

class tst_CommandLine : public QObject
{
    Q_OBJECT

private slots:
    void parse_data()
    {
        QTest::addColumn<QStringList>("arguments");
        QTest::addColumn<CommandLine::Action>("action");
        QTest::addColumn<bool>("open");
        QTest::addColumn<bool>("background");
        using A = CommandLine::Action;
        QTest::newRow("none") << QStringList() << A::Run << false << false;
        QTest::newRow("open") << QStringList{"open"} << A::Run << true << false;
        QTest::newRow("open, background")
            << QStringList{"open", "--background"} << A::Run << true << true;
        // "open" counts as the first argument only, exactly spelled.
        QTest::newRow("open second")
            << QStringList{"--background", "open"} << A::Fail << false << false;
        QTest::newRow("Open") << QStringList{"Open"} << A::Fail << false << false;
        QTest::newRow("open twice") << QStringList{"open", "open"} << A::Fail << true << false;
        QTest::newRow("unknown") << QStringList{"--bogus"} << A::Fail << false << false;
        QTest::newRow("value to a flag")
            << QStringList{"--background=yes"} << A::Fail << false << false;
        // Qt's own options stay QApplication's.
        QTest::newRow("qt platform")
            << QStringList{"-platform", "offscreen", "--background"} << A::Run << false << true;
        QTest::newRow("qt style") << QStringList{"-style=fusion", "-reverse"} << A::Run << false
                                  << false;
        QTest::newRow("help") << QStringList{"--help"} << A::ShowHelp << false << false;
        QTest::newRow("help-all") << QStringList{"--help-all"} << A::ShowHelp << false << false;
        QTest::newRow("version") << QStringList{"--version"} << A::ShowVersion << false << false;
    }

    void parse()
    {
        QFETCH(QStringList, arguments);
        arguments.prepend(QStringLiteral("norvalex-rgb"));
        CommandLine commandLine;
        const CommandLine::Action action = commandLine.parse(arguments);
        QTEST(action, "action");
        QTEST(commandLine.isOpen(), "open");
        QTEST(commandLine.isBackground(), "background");
        QCOMPARE(commandLine.errorText().isEmpty(), action != CommandLine::Action::Fail);
    }

    void programAnswers()
    {
        const QProcessEnvironment env = headless();
        // Help and version need no display.
        Run run = runPanel({QStringLiteral("--help")}, env);
        QCOMPARE(run.exitCode, 0);
        QVERIFY(run.out.contains("Usage: "));
        QVERIFY(run.out.contains("--background"));
        QVERIFY(run.out.contains("[open]"));
        QVERIFY(!run.out.contains("-platform"));
        run = runPanel({QStringLiteral("--version")}, env);
        QCOMPARE(run.exitCode, 0);
        QCOMPARE(run.out, QByteArray("NORVALEX RGB 1.0.8\n"));

        // A wrong option ends at once with status 2, before any window or service.
        for (const QString& wrong : {QStringLiteral("--bogus"), QStringLiteral("Open")}) {
            run = runPanel({wrong}, env);
            QCOMPARE(run.exitCode, 2);
            QVERIFY(run.out.isEmpty());
            QVERIFY2(run.err.startsWith("norvalex-rgb: ") && run.err.contains("--help"),
                     run.err.constData());
        }
        QVERIFY(runPanel({QStringLiteral("--bogus")}, env).err.contains("'bogus'"));

        // Without a graphical session: one plain sentence, no platform-plugin abort.
        run = runPanel({}, env);
        QCOMPARE(run.exitCode, 1);
        QVERIFY2(run.err.contains("needs a graphical session"), run.err.constData());
        QVERIFY(!run.err.contains("Reinstalling"));
        // A display that cannot be opened.
        QProcessEnvironment unreachable = env;
        unreachable.insert(QStringLiteral("DISPLAY"), QStringLiteral(":64999"));
        run = runPanel({}, unreachable);
        QCOMPARE(run.exitCode, 1);
        QVERIFY2(run.err.contains("needs a graphical session") && run.err.contains(":64999"),
                 run.err.constData());
        QVERIFY(!run.err.contains("Reinstalling"));
    }
};

QTEST_MAIN(tst_CommandLine)
#include "tst_commandline.moc"
