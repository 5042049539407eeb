// The service's command line as a user meets it, and the language a fresh state starts in.
#include "DesktopLanguage.h"

#include <QProcess>
#include <QTemporaryDir>
#include <QtTest>

class TestServiceOptions : public QObject
{
    Q_OBJECT

private slots:
    // Every help its own help offers is answered without starting the service.
    void helpNeverStartsTheService()
    {
        QTemporaryDir dir;
        for (const char* option : {"--help", "--help-all", "-h"}) {
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
        QTest::newRow("none") << QStringList() << 0;
        QTest::newRow("en-GB") << QStringList{"en-GB"} << 0;
        QTest::newRow("zh-TW") << QStringList{"zh-TW", "zh-Hant-TW"} << 1;
        QTest::newRow("zh-HK") << QStringList{"zh-HK"} << 1; // Traditional by region
        QTest::newRow("zh-CN") << QStringList{"zh-CN", "zh"} << 2;
        QTest::newRow("de-AT") << QStringList{"de-AT"} << 3;
        QTest::newRow("es-MX") << QStringList{"es-MX"} << 9;
        // The first of the user's languages the panel speaks.
        QTest::newRow("pt then es") << QStringList{"pt-BR", "pt", "es"} << 9;
        QTest::newRow("pt only") << QStringList{"pt-BR"} << 0;
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
