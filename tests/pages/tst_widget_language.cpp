#include "TestEnvironment.h"

#include "Widget_Language.h"

#include <QApplication>
#include <QGridLayout>
#include <QLineEdit>
#include <QPushButton>
#include <QSignalSpy>
#include <QStandardPaths>
#include <QTranslator>
#include <QtTest>

#include <memory>

namespace {

const char* const kFileCodes[] = {"en", "zh", "cn", "de", "fr", "jp", "th", "ru", "kr", "es"};
const char* const kSourceCodes[] = {"en", "tc", "sc", "de", "fr", "jp", "th", "ru", "kr", "es"};
const char* const kNames[] = {"English", "正體中文", "簡體中文", "Deutsch", "Français",
                              "日本語",  "ไทย",      "Русский",  "한국어",  "Spanish"};

QString qmFile(const char* code)
{
    return QStringLiteral(":/QXRGBMemory/NORVALEX_") + QLatin1String(code) + QStringLiteral(".qm");
}

// A window holding the list and another focusable widget, as the settings page does.
struct Host {
    QWidget window;
    QLineEdit* other = nullptr;
    Widget_Language* list = nullptr;

    Host()
    {
        window.resize(500, 400);
        other = new QLineEdit(&window);
        other->setGeometry(10, 350, 100, 30);
        list = new Widget_Language(300, 200, &window);
        list->move(10, 10);
    }

    QPushButton* entry(int index) const
    {
        return list->findChild<QPushButton*>(QString::number(index));
    }
};

} // namespace

class TestWidgetLanguage : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();

    void namesInColumnOrder_data();
    void namesInColumnOrder();
    void clickEmitsIndex_data();
    void clickEmitsIndex();
    void focusLossHides();
    void panelLook();

private:
    std::unique_ptr<Host> makeHost();
};

void TestWidgetLanguage::initTestCase()
{
    QStandardPaths::setTestModeEnabled(true);
}

std::unique_ptr<Host> TestWidgetLanguage::makeHost()
{
    auto host = std::make_unique<Host>();
    host->window.show();
    host->window.activateWindow();
    if (!QTest::qWaitForWindowActive(&host->window))
        qWarning("host window did not become active");
    return host;
}

void TestWidgetLanguage::namesInColumnOrder_data()
{
    QTest::addColumn<QString>("file");
    for (const char* code : kFileCodes)
        QTest::newRow(code) << qmFile(code);
    QTest::newRow("no translation") << QString();
}

void TestWidgetLanguage::namesInColumnOrder()
{
    QFETCH(QString, file);

    QTranslator translator;
    if (!file.isEmpty()) {
        QVERIFY(translator.load(file));
        QCoreApplication::installTranslator(&translator);
    }
    Widget_Language list(300, 200);
    QCOMPARE(list.size(), QSize(300, 200));
    QCOMPARE(list.focusPolicy(), Qt::ClickFocus);
    auto* grid = qobject_cast<QGridLayout*>(list.layout());
    QVERIFY(grid);
    QCOMPARE(grid->spacing(), 10);
    QCOMPARE(grid->contentsMargins(), QMargins(10, 10, 10, 10));

    for (int i = 0; i < Widget_Language::kLanguageCount; ++i) {
        auto* button = list.findChild<QPushButton*>(QString::number(i));
        QVERIFY(button);
        // Without a translation the codes show.
        const QString expected =
            file.isEmpty() ? QString::fromLatin1(kSourceCodes[i]) : QString::fromUtf8(kNames[i]);
        QCOMPARE(button->text(), expected);
        int row = -1, column = -1, rowSpan = 0, columnSpan = 0;
        grid->getItemPosition(grid->indexOf(button), &row, &column, &rowSpan, &columnSpan);
        QCOMPARE(row, i % 3);
        QCOMPARE(column, i / 3);
    }
    QCoreApplication::removeTranslator(&translator);
}

void TestWidgetLanguage::clickEmitsIndex_data()
{
    QTest::addColumn<int>("index");
    for (int i = 0; i < Widget_Language::kLanguageCount; ++i)
        QTest::newRow(kNames[i]) << i;
}

void TestWidgetLanguage::clickEmitsIndex()
{
    QFETCH(int, index);

    auto host = makeHost();
    host->list->setFocus(Qt::OtherFocusReason);
    QTRY_VERIFY(host->list->hasFocus());
    QSignalSpy spy(host->list, &Widget_Language::selectLanguage);

    QTest::mouseClick(host->entry(index), Qt::LeftButton);
    QCOMPARE(spy.count(), 1);
    QCOMPARE(spy.at(0).at(0).toInt(), index);
    // A press on an entry leaves the focus, and so the open list, where it was.
    QVERIFY(host->list->isVisible());
    QVERIFY(host->list->hasFocus());
}

void TestWidgetLanguage::focusLossHides()
{
    auto host = makeHost();
    QSignalSpy spy(host->list, &Widget_Language::selectLanguage);
    host->list->setFocus(Qt::OtherFocusReason);
    QTRY_VERIFY(host->list->hasFocus());

    QTest::mouseClick(host->other, Qt::LeftButton);
    QTRY_VERIFY(host->other->hasFocus());
    QVERIFY(host->list->isHidden());
    QCOMPARE(spy.count(), 0);

    // A second focus loss while hidden changes nothing.
    QFocusEvent focusOut(QEvent::FocusOut, Qt::MouseFocusReason);
    QApplication::sendEvent(host->list, &focusOut);
    QVERIFY(host->list->isHidden());
    QCOMPARE(spy.count(), 0);

    // Shown and focused again, it closes again.
    host->list->show();
    host->list->setFocus(Qt::OtherFocusReason);
    QTRY_VERIFY(host->list->hasFocus());
    host->other->setFocus(Qt::OtherFocusReason);
    QTRY_VERIFY(host->list->isHidden());
}

void TestWidgetLanguage::panelLook()
{
    auto host = makeHost();
    const QImage shot = host->list->grab().toImage();
    QCOMPARE(shot.size(), QSize(300, 200));
    // Border rgb(20,20,20), inside rgba(40,40,40,245) over the window.
    QCOMPARE(QColor(shot.pixel(0, 100)), QColor(20, 20, 20));
    QCOMPARE(QColor(shot.pixel(150, 0)), QColor(20, 20, 20));
    const QColor inside(shot.pixel(5, 5));
    QVERIFY2(qAbs(inside.red() - 40) <= 8 && inside.red() == inside.green() &&
                 inside.green() == inside.blue(),
             qPrintable(inside.name()));
}

QTEST_MAIN(TestWidgetLanguage)
#include "tst_widget_language.moc"
