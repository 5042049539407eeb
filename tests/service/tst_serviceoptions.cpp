// The service's command line as a user meets it, and the language a fresh state starts in.
#include "DesktopLanguage.h"

#include <QProcess>
#include <QTemporaryDir>
#include <QtTest>

class TestServiceOptions : public QObject
{
    Q_OBJECT

private slots:
    // Both helps are answered without starting the service. The desktop's language reaching a
    // fresh state is the desktop suite's to check; here, the cases it does not reach.
    void helpNeverStartsTheService()
    {
        QTemporaryDir dir;
        for (const char* option : {"--help", "--help-all"}) {
            QProcess service;
            QProcessEnvironment env = QProcessEnvironment::systemEnvironment();
            env.insert(QStringLiteral("XDG_RUNTIME_DIR"), dir.path());
            env.insert(QStringLiteral("XDG_CONFIG_HOME"), dir.path());
            service.setProcessEnvironment(env);
            service.start(QStringLiteral(NX_CONTROL_EXECUTABLE), {QString::fromLatin1(option)});
            QVERIFY2(service.waitForFinished(10000), option);
            QCOMPARE(service.exitCode(), 0);
            const QByteArray out = service.readAllStandardOutput();
            QVERIFY2(out.contains("--modules") && out.contains("--help-all"), out.constData());
            QVERIFY(QDir(dir.path()).entryList(QDir::NoDotAndDotDot | QDir::AllEntries).isEmpty());
        }
    }

    void desktopLanguage_data()
    {
        QTest::addColumn<QStringList>("uiLanguages");
        QTest::addColumn<int>("index");
        QTest::newRow("zh-HK") << QStringList{"zh-HK"} << 1; // Traditional by region
        QTest::newRow("zh-CN") << QStringList{"zh-CN", "zh"} << 2;
        // The first of the user's languages the panel speaks.
        QTest::newRow("pt then es") << QStringList{"pt-BR", "pt", "es"} << 9;
        QTest::newRow("garbage") << QStringList{"", "xx-!!"} << 0;
    }

    void desktopLanguage()
    {
        QFETCH(QStringList, uiLanguages);
        QTEST(DesktopLanguage::indexFor(uiLanguages), "index");
    }
};

QTEST_GUILESS_MAIN(TestServiceOptions)
#include "tst_serviceoptions.moc"
