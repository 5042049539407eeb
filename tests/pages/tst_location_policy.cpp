#include "TestEnvironment.h"

#include "Widget_LocationPolicy.h"

#include <QApplication>
#include <QCheckBox>
#include <QLabel>
#include <QMouseEvent>
#include <QPushButton>
#include <QSignalSpy>
#include <QStandardPaths>
#include <QTranslator>
#include <QtTest>

#include <memory>

namespace {

const char* const kFileCodes[] = {"en", "zh", "cn", "de", "fr", "jp", "th", "ru", "kr", "es"};

QString qmFile(const char* code)
{
    return QStringLiteral(":/QXRGBMemory/NORVALEX_") + QLatin1String(code) + QStringLiteral(".qm");
}

// Delivers a mouse event for a pointer at `screen` to a widget of `window`, as the window system
// would: an event the widget ignores travels on to its parent.
void sendMouse(QWidget* window, QWidget* widget, QEvent::Type type, QPoint screen)
{
    const QPoint local = screen - window->pos() - widget->mapTo(window, QPoint(0, 0));
    const Qt::MouseButton button = type == QEvent::MouseMove ? Qt::NoButton : Qt::LeftButton;
    const Qt::MouseButtons buttons =
        type == QEvent::MouseButtonRelease ? Qt::NoButton : Qt::MouseButtons(Qt::LeftButton);
    QMouseEvent event(type, local, screen, button, buttons, Qt::NoModifier);
    QApplication::instance()->notify(widget, &event);
}

} // namespace

class TestLocationPolicy : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();

    void okReportsTheBox_data();
    void okReportsTheBox();
    void answerKeptBetweenShowings();
    void dragMovesWithoutJump_data();
    void dragMovesWithoutJump();
    void englishTexts();
    void retranslateFollowsLanguage_data();
    void retranslateFollowsLanguage();
    void roundedTranslucentWindow();

private:
    std::unique_ptr<Widget_LocationPolicy> makeDialog();
    template <typename T> T* child(QWidget* dialog, const char* name)
    {
        T* widget = dialog->findChild<T*>(QLatin1String(name));
        if (!widget)
            qFatal("missing child %s", name);
        return widget;
    }

    QTranslator english;
};

void TestLocationPolicy::initTestCase()
{
    QStandardPaths::setTestModeEnabled(true);
    QVERIFY(english.load(qmFile("en")));
    QCoreApplication::installTranslator(&english);
}

std::unique_ptr<Widget_LocationPolicy> TestLocationPolicy::makeDialog()
{
    auto dialog = std::make_unique<Widget_LocationPolicy>();
    dialog->move(200, 150);
    dialog->show();
    if (!QTest::qWaitForWindowExposed(dialog.get()))
        qWarning("dialog was not exposed");
    return dialog;
}

void TestLocationPolicy::okReportsTheBox_data()
{
    QTest::addColumn<int>("clicks");
    QTest::addColumn<bool>("answer");

    QTest::newRow("untouched") << 0 << false;
    QTest::newRow("ticked") << 1 << true;
    QTest::newRow("ticked and unticked") << 2 << false;
    QTest::newRow("ticked three times") << 3 << true;
}

void TestLocationPolicy::okReportsTheBox()
{
    QFETCH(int, clicks);
    QFETCH(bool, answer);

    auto dialog = makeDialog();
    QSignalSpy spy(dialog.get(), &Widget_LocationPolicy::sendPushOK);
    auto* box = child<QCheckBox>(dialog.get(), "check_notRemind");
    for (int i = 0; i < clicks; ++i)
        QTest::mouseClick(box, Qt::LeftButton, Qt::NoModifier, QPoint(8, box->height() / 2));
    QCOMPARE(box->isChecked(), answer);
    QCOMPARE(spy.count(), 0);

    QTest::mouseClick(child<QPushButton>(dialog.get(), "btn_OK"), Qt::LeftButton);
    QCOMPARE(spy.count(), 1);
    QCOMPARE(spy.at(0).at(0).toBool(), answer);
    QVERIFY(!dialog->isVisible());
}

void TestLocationPolicy::answerKeptBetweenShowings()
{
    auto dialog = makeDialog();
    QSignalSpy spy(dialog.get(), &Widget_LocationPolicy::sendPushOK);
    auto* box = child<QCheckBox>(dialog.get(), "check_notRemind");
    QTest::mouseClick(box, Qt::LeftButton, Qt::NoModifier, QPoint(8, box->height() / 2));
    QTest::mouseClick(child<QPushButton>(dialog.get(), "btn_OK"), Qt::LeftButton);

    dialog->show();
    QVERIFY(QTest::qWaitForWindowExposed(dialog.get()));
    QVERIFY(box->isChecked());
    QTest::mouseClick(child<QPushButton>(dialog.get(), "btn_OK"), Qt::LeftButton);
    QCOMPARE(spy.count(), 2);
    QCOMPARE(spy.at(1).at(0).toBool(), true);
}

void TestLocationPolicy::dragMovesWithoutJump_data()
{
    QTest::addColumn<QString>("from");
    QTest::addColumn<QPoint>("press");

    QTest::newRow("background") << QString() << QPoint(15, 120);
    QTest::newRow("title") << QStringLiteral("label_Title") << QPoint(200, 20);
    QTest::newRow("content") << QStringLiteral("label_Content") << QPoint(160, 40);
}

void TestLocationPolicy::dragMovesWithoutJump()
{
    QFETCH(QString, from);
    QFETCH(QPoint, press);

    auto dialog = makeDialog();
    QWidget* target =
        from.isEmpty() ? dialog.get() : child<QWidget>(dialog.get(), qPrintable(from));
    QWidget* window = dialog.get();
    const QPoint start = dialog->pos();
    const QPoint offset = target->mapTo(window, press);
    // The pointer's place on the screen; dragging keeps it over the same spot of the window.
    QPoint pointer = start + offset;

    sendMouse(window, target, QEvent::MouseButtonPress, pointer);
    QCOMPARE(dialog->pos(), start);

    const QPoint steps[] = {QPoint(30, 20), QPoint(-5, 12), QPoint(40, -60), QPoint(1, 0)};
    QPoint moved;
    for (const QPoint& step : steps) {
        pointer += step;
        moved += step;
        sendMouse(window, target, QEvent::MouseMove, pointer);
        QCOMPARE(dialog->pos(), start + moved);
        QCOMPARE(pointer - dialog->pos(), offset);
    }

    sendMouse(window, target, QEvent::MouseButtonRelease, pointer);
    // After the release the pointer moves alone.
    pointer += QPoint(25, 25);
    sendMouse(window, target, QEvent::MouseMove, pointer);
    QCOMPARE(dialog->pos(), start + moved);
}

void TestLocationPolicy::englishTexts()
{
    auto dialog = makeDialog();
    QCOMPARE(dialog->objectName(), QStringLiteral("NORVALEXLocationPolicy"));
    QCOMPARE(dialog->size(), QSize(400, 230));
    QCOMPARE(dialog->windowTitle(), QStringLiteral("Privacy Policy"));
    QCOMPARE(child<QLabel>(dialog.get(), "label_Title")->text(), QStringLiteral("Privacy Policy"));
    QCOMPARE(child<QLabel>(dialog.get(), "label_Content")->text(),
             QStringLiteral("Prismveil - NORVALEX Would Like to Use Your Current Location to Get "
                            "the Time and Weather."));
    auto* box = child<QCheckBox>(dialog.get(), "check_notRemind");
    QCOMPARE(box->text(), QStringLiteral("Allow"));
    QCOMPARE(box->geometry(), QRect(165, 160, 70, 30));
    auto* ok = child<QPushButton>(dialog.get(), "btn_OK");
    QCOMPARE(ok->text(), QStringLiteral("OK"));
    QCOMPARE(ok->geometry(), QRect(160, 190, 80, 30));
    QCOMPARE(child<QLabel>(dialog.get(), "label_Content")->geometry(), QRect(40, 60, 320, 100));
}

void TestLocationPolicy::retranslateFollowsLanguage_data()
{
    QTest::addColumn<QString>("code");
    for (const char* code : kFileCodes)
        QTest::newRow(code) << QString::fromLatin1(code);
}

void TestLocationPolicy::retranslateFollowsLanguage()
{
    QFETCH(QString, code);

    auto dialog = makeDialog();
    QTranslator translator;
    QVERIFY(translator.load(qmFile(qPrintable(code))));
    QCoreApplication::installTranslator(&translator);
    dialog->retranslate();

    auto* title = child<QLabel>(dialog.get(), "label_Title");
    auto* content = child<QLabel>(dialog.get(), "label_Content");
    auto* box = child<QCheckBox>(dialog.get(), "check_notRemind");
    auto* ok = child<QPushButton>(dialog.get(), "btn_OK");
    for (const QString& text : {title->text(), content->text(), box->text()})
        QVERIFY2(!text.startsWith(QLatin1String("Location_")), qPrintable(text));
    QVERIFY(content->text().startsWith(QLatin1String("Prismveil - NORVALEX")));
    if (code == QLatin1String("de")) {
        QCOMPARE(title->text(), QStringLiteral("Datenschutzerklärung"));
        QCOMPARE(box->text(), QStringLiteral("Erlauben"));
    }

    // Everything fits its place: one line of title, the content within its box, the whole
    // caption of the box, which stays centred.
    title->ensurePolished();
    QVERIFY2(QFontMetrics(title->font()).horizontalAdvance(title->text()) <= title->width(),
             qPrintable(title->text()));
    content->ensurePolished();
    QVERIFY2(content->heightForWidth(content->width()) <= content->height(),
             qPrintable(content->text()));
    QVERIFY2(box->sizeHint().width() <= box->width(), qPrintable(box->text()));
    QVERIFY(box->width() >= 70);
    QVERIFY(qAbs(box->geometry().center().x() - dialog->width() / 2) <= 1);
    ok->ensurePolished();
    QVERIFY(QFontMetrics(ok->font()).horizontalAdvance(ok->text()) < ok->width());

    QCoreApplication::removeTranslator(&translator);
    dialog->retranslate();
    QCOMPARE(box->text(), QStringLiteral("Allow"));
}

void TestLocationPolicy::roundedTranslucentWindow()
{
    auto dialog = makeDialog();
    QVERIFY(dialog->testAttribute(Qt::WA_TranslucentBackground));
    QVERIFY(dialog->windowFlags() & Qt::FramelessWindowHint);

    const QImage shot = dialog->grab().toImage();
    QCOMPARE(qAlpha(shot.pixel(0, 0)), 0);
    QCOMPARE(qAlpha(shot.pixel(399, 229)), 0);
    QCOMPARE(qAlpha(shot.pixel(399, 0)), 0);
    QCOMPARE(QColor(shot.pixel(20, 200)), QColor(50, 50, 50));
    QCOMPARE(QColor(shot.pixel(4, 115)), QColor(50, 50, 50));
}

QTEST_MAIN(TestLocationPolicy)
#include "tst_location_policy.moc"
