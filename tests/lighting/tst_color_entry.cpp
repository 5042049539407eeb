// The colour entry on its own: channel order in a COLORREF, masking, committing a field,
// discarding an uncommitted one, and the swatch.

#include "ColorEntry.h"
#include "TestEnvironment.h"

#include <QFocusEvent>
#include <QLabel>
#include <QLineEdit>
#include <QSlider>
#include <QTest>

class TestColorEntry : public QObject
{
    Q_OBJECT

private slots:
    // Red is the low byte both ways; fields are masked to a byte; a commit takes the field into
    // its slider and answers with the colour of all three fields.
    void channelsAndCommit()
    {
        QWidget deck;
        ColorEntry entry(&deck);
        QCOMPARE(entry.slider(ColorEntry::Red)->value(), 255);
        QCOMPARE(entry.enteredColor(), COLORREF(0x0000FF));

        entry.setColor(0x112233);
        QCOMPARE(entry.slider(ColorEntry::Red)->value(), 0x33);
        QCOMPARE(entry.slider(ColorEntry::Green)->value(), 0x22);
        QCOMPARE(entry.slider(ColorEntry::Blue)->value(), 0x11);
        QCOMPARE(entry.swatch()->text(), QStringLiteral("#332211"));

        entry.field(ColorEntry::Red)->setText(QStringLiteral("300"));
        entry.field(ColorEntry::Green)->setText(QStringLiteral("128"));
        entry.field(ColorEntry::Blue)->setText(QStringLiteral("x"));
        QCOMPARE(entry.enteredColor(), COLORREF((300 & 0xFF) | 128 << 8));
        QCOMPARE(entry.commit(ColorEntry::Green), COLORREF((300 & 0xFF) | 128 << 8));
        QCOMPARE(entry.slider(ColorEntry::Green)->value(), 128);
        QCOMPARE(entry.slider(ColorEntry::Red)->value(), 0x33);

        entry.setChannelsEnabled(false);
        QVERIFY(!entry.field(ColorEntry::Blue)->isEnabled());
        QVERIFY(!entry.slider(ColorEntry::Blue)->isEnabled());
        QVERIFY(!entry.label(ColorEntry::Blue)->isEnabled());
    }

    // Losing the focus puts the slider's value back; gaining it, or another object, changes
    // nothing.
    void focusOutDiscards()
    {
        QWidget deck;
        ColorEntry entry(&deck);
        QLineEdit* blue = entry.field(ColorEntry::Blue);
        blue->setText(QStringLiteral("77"));
        QFocusEvent in(QEvent::FocusIn);
        entry.filterFieldEvent(blue, &in);
        QCOMPARE(blue->text(), QStringLiteral("77"));
        QFocusEvent out(QEvent::FocusOut);
        entry.filterFieldEvent(&deck, &out);
        QCOMPARE(blue->text(), QStringLiteral("77"));
        entry.filterFieldEvent(blue, &out);
        QCOMPARE(blue->text(), QStringLiteral("0"));
    }

    // The swatch's text stays readable: dark on light colours, light on dark ones.
    void swatchContrast()
    {
        QWidget deck;
        ColorEntry entry(&deck);
        entry.setColor(0xFFFFFF);
        QVERIFY(entry.swatch()->styleSheet().contains(QStringLiteral("color:black")));
        QCOMPARE(entry.swatch()->text(), QStringLiteral("#FFFFFF"));
        entry.setColor(0x800000);
        QVERIFY(entry.swatch()->styleSheet().contains(QStringLiteral("color:white")));
        QCOMPARE(entry.swatch()->text(), QStringLiteral("#000080"));
    }
};

QTEST_MAIN(TestColorEntry)
#include "tst_color_entry.moc"
