// The page's look: every caption fits its widget in all ten languages, the controls of the deck
// do not overlap, and (with NX_LIGHTING_SHOTS set to a directory) screenshots for review.

#include "LightingTestSupport.h"

#include <QDir>
#include <QStandardPaths>
#include <QTranslator>

using namespace LightingTest;

class tst_LightingLook : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase() { QStandardPaths::setTestModeEnabled(true); }
    void captionsFitInEveryLanguage_data();
    void captionsFitInEveryLanguage();
    void deckControlsDoNotOverlap();
    void screenshots();

private:
    void save(QWidget* widget, const QString& name);
};

void tst_LightingLook::save(QWidget* widget, const QString& name)
{
    const QString dir = qEnvironmentVariable("NX_LIGHTING_SHOTS");
    if (dir.isEmpty())
        return;
    QVERIFY(widget->grab().save(QDir(dir).filePath(name + QStringLiteral(".png"))));
}

void tst_LightingLook::captionsFitInEveryLanguage_data()
{
    QTest::addColumn<int>("language");
    QTest::addColumn<QString>("code");
    const char* const codes[] = {"en", "zh", "cn", "de", "fr", "jp", "th", "ru", "kr", "es"};
    for (int i = 0; i < 10; ++i)
        QTest::newRow(codes[i]) << i << QString::fromLatin1(codes[i]);
}

// The text of every caption, button and combo item, in every language, is narrower than the
// room its widget gives it.
void tst_LightingLook::captionsFitInEveryLanguage()
{
    QFETCH(int, language);
    QFETCH(QString, code);
    QTranslator translator;
    QVERIFY(translator.load(QStringLiteral(":/QXRGBMemory/NORVALEX_%1.qm").arg(code)));
    QCoreApplication::installTranslator(&translator);
    isNewMode = true;
    currentLanguage = language;

    Fixture f;
    f.load(8, 8, 8);
    f.page->updateLanguage_Lighting();
    QCOMPARE(f.child<QPushButton>(QStringLiteral("btn_Apply"))->text(),
             QCoreApplication::translate("Lighting_View", "Apply"));

    QStringList clipped;
    const auto check = [&clipped](QWidget* widget, const QString& text, int room) {
        widget->ensurePolished();
        const int needed = widget->fontMetrics().horizontalAdvance(text);
        if (needed > room)
            clipped << QStringLiteral("%1 \"%2\" needs %3 of %4")
                           .arg(widget->objectName(), text)
                           .arg(needed)
                           .arg(room);
    };
    for (QLabel* label : f.page->findChildren<QLabel*>()) {
        if (!label->isHidden() && !label->wordWrap() && !label->text().isEmpty())
            check(label, label->text(), label->width());
    }
    constexpr int buttonPadding = 8;
    constexpr int lightModePadding = 28;
    for (QPushButton* button : f.page->findChildren<QPushButton*>()) {
        if (button->text().isEmpty() || button->objectName() == QLatin1String("btn_MemorySlot"))
            continue;
        const int padding = button->objectName() == QLatin1String("btn_LightMode")
                                ? lightModePadding
                                : buttonPadding;
        check(button, button->text(), button->width() - padding);
    }
    constexpr int comboPadding = 6 + 16;
    for (QComboBox* combo : f.page->findChildren<QComboBox*>()) {
        for (const QString& item : visibleItems(combo))
            check(combo, item, combo->width() - comboPadding);
    }
    QCoreApplication::removeTranslator(&translator);
    currentLanguage = 0;
    QVERIFY2(clipped.isEmpty(), qPrintable(clipped.join(QStringLiteral("; "))));
    save(f.frame.get(), QStringLiteral("language_%1").arg(code));
}

// The controls of the deck stand apart from each other.
void tst_LightingLook::deckControlsDoNotOverlap()
{
    Fixture f;
    f.load(8, 8, 8);
    QWidget* deck = f.child(QStringLiteral("widget_Lighting_Control"));
    QList<QWidget*> controls;
    for (QWidget* widget : deck->findChildren<QWidget*>(QString(), Qt::FindDirectChildrenOnly)) {
        if (!widget->isHidden() && !widget->objectName().startsWith(QLatin1String("line_")))
            controls << widget;
    }
    QVERIFY(controls.size() >= 18);
    for (int i = 0; i < controls.size(); ++i) {
        for (int j = i + 1; j < controls.size(); ++j) {
            QVERIFY2(!controls[i]->geometry().intersects(controls[j]->geometry()),
                     qPrintable(controls[i]->objectName() + QStringLiteral(" overlaps ") +
                                controls[j]->objectName()));
        }
    }
    // Everything stays inside the page.
    for (QWidget* widget : f.page->findChildren<QWidget*>(QString(), Qt::FindDirectChildrenOnly)) {
        if (!widget->isHidden() && widget->objectName() != QLatin1String("Palette_draw_rect"))
            QVERIFY2(f.page->rect().contains(widget->geometry()), qPrintable(widget->objectName()));
    }
}

void tst_LightingLook::screenshots()
{
    for (int slotTotal : {4, 8}) {
        Fixture f;
        f.load(slotTotal, slotTotal, slotTotal == 4 ? 5 : 8, 15, 0, 1);
        f.clickSlot(1);
        QTest::mouseClick(f.strip(0)->btn_Led[2], Qt::LeftButton);
        save(f.frame.get(), QStringLiteral("page_%1").arg(slotTotal));
        QTest::mouseClick(f.child<QPushButton>(QStringLiteral("btn_LightMode")), Qt::LeftButton);
        save(f.frame.get(), QStringLiteral("modes_%1").arg(slotTotal));
        QTest::mouseClick(f.child<QPushButton>(QStringLiteral("btn_LightMode")), Qt::LeftButton);
        QTest::mouseClick(f.page->btn_Edit, Qt::LeftButton);
        f.press(f.stripRect(1).center());
        f.move(f.stripRect(2).center());
        save(f.frame.get(), QStringLiteral("edit_%1").arg(slotTotal));
        f.release(f.stripRect(2).center());
        QTest::qWait(400);
        save(f.frame.get(), QStringLiteral("edit_done_%1").arg(slotTotal));
    }
}

QTEST_MAIN(tst_LightingLook)
#include "tst_LightingLook.moc"
