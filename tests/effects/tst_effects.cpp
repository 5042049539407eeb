// The effect engine's properties over every mode, colour mode, speed and canvas size.

#include "EffectCanvas.h"
#include "EffectRegistry.h"
#include "SensorEffects.h"

#include <QtTest>

#include <algorithm>
#include <cstring>

using namespace nxfx;

namespace {

constexpr double kFrame = 1.0 / 30.0;

// Mean change per frame over a stretch of 30 fps frames.
double changePerFrame(EffectCanvas& canvas, double from, double seconds)
{
    const int frames = int(seconds / kFrame);
    long total = 0;
    std::vector<Color> previous = canvas.frame(from);
    for (int i = 1; i <= frames; ++i) {
        std::vector<Color> next = canvas.frame(from + i * kFrame);
        total += frameDistance(previous, next);
        previous.swap(next);
    }
    return double(total) / frames;
}

bool allBlack(const std::vector<Color>& frame)
{
    return std::all_of(frame.begin(), frame.end(), [](Color c) { return c == 0; });
}

// The first time a column shows a bright LED, or -1.
double firstLit(EffectCanvas& canvas, int column, double until)
{
    for (double t = 0; t < until; t += kFrame / 2) {
        const std::vector<Color> frame = canvas.frame(t);
        for (int led = 0; led < canvas.leds; ++led)
            if (peak(frame[std::size_t(column * canvas.leds + led)]) > 128)
                return t;
    }
    return -1;
}

// Reads the clock as a person would: the bottom four LEDs of each column as bits, amber for
// hours and cyan for minutes, a page at a time on a narrow canvas. -1 when a digit shows in the
// wrong colour.
int readClock(int modules, int leds, int hour, int minute)
{
    EffectCanvas canvas(31, ColorOwn);
    canvas.modules = modules;
    canvas.leds = leds;
    canvas.scene.hour = hour;
    canvas.scene.minute = minute;
    int digits[4] = {};
    const int pages = (4 + modules - 1) / modules;
    for (int page = 0; page < pages; ++page) {
        const std::vector<Color> frame = canvas.frame(sensor::kClockPage * (page + 0.5));
        for (int column = 0; column < modules && page * modules + column < 4; ++column) {
            const int index = page * modules + column;
            for (int bit = 0; bit < 4; ++bit) {
                const Color c = frame[std::size_t(column * leds + leds - 1 - bit)];
                if (peak(c) > 128)
                    digits[index] |= 1 << bit;
                if (peak(c) == 0 || (red(c) > blue(c)) != (index < 2))
                    return -1;
            }
        }
    }
    return (digits[0] * 10 + digits[1]) * 100 + digits[2] * 10 + digits[3];
}

} // namespace

class EffectsTest : public QObject
{
    Q_OBJECT

private slots:
    void everyModeGivesValidColours();
    void offAndBrightness();
    void staticModesHoldStill();
    void animationFollowsSpeed();
    void randomComesFromTheSeed();
    void temperatureRunsBlueToRed();
    void clockReadsBack_data();
    void clockReadsBack();
    void travelFollowsSlotOrder();
    void partyKeepsTheBeat();
};

void EffectsTest::everyModeGivesValidColours()
{
    // Values the table lacks render too, as steady colours.
    for (int mode = -1; mode <= kEffectCount; ++mode) {
        for (int colorMode = 0; colorMode <= 4; ++colorMode) {
            for (int speed = 0; speed <= 3; ++speed) {
                for (int leds : {5, 8}) {
                    for (int modules = 1; modules <= 8; ++modules) {
                        EffectCanvas canvas(mode, colorMode);
                        canvas.module.speed = speed;
                        canvas.leds = leds;
                        canvas.modules = modules;
                        canvas.module.temperature = 40;
                        bool lit = false;
                        for (double t : {0.0, 0.4, 1.3, 2.9, 7.7}) {
                            const std::vector<Color> frame = canvas.frame(t);
                            for (Color c : frame)
                                QVERIFY2((c & 0xFF000000u) == 0,
                                         qPrintable(QStringLiteral("mode %1").arg(mode)));
                            lit = lit || !allBlack(frame);
                            // Rendering the same moment again gives the same frame.
                            QVERIFY(canvas.frame(t) == frame);
                        }
                        QVERIFY2(lit, qPrintable(QStringLiteral("mode %1 colour mode %2 stays dark")
                                                     .arg(mode)
                                                     .arg(colorMode)));
                    }
                }
            }
        }
    }
}

void EffectsTest::offAndBrightness()
{
    for (int mode = 0; mode < kEffectCount; ++mode) {
        EffectCanvas off(mode, ColorRgb);
        off.module.turnOff = true;
        EffectCanvas dark(mode, ColorRgb);
        std::fill(std::begin(dark.brightness), std::end(dark.brightness), 0.0f);
        EffectCanvas darkSingle(mode, ColorSingle);
        darkSingle.module.singleBrightness = 0.0f;
        for (double t : {0.0, 0.9, 3.3}) {
            QVERIFY(allBlack(off.frame(t)));
            // Temp. and Clock show measurements, not the user's colours and brightness.
            if (mode != 14 && mode != 31) {
                QVERIFY2(allBlack(dark.frame(t)), qPrintable(QString::number(mode)));
                QVERIFY2(allBlack(darkSingle.frame(t)), qPrintable(QString::number(mode)));
            }
        }
    }

    // Full brightness shows the colours as set, half brightness halves them, per LED.
    EffectCanvas full(6, ColorRgb);
    const std::vector<Color> frame = full.frame(0);
    for (int led = 0; led < full.leds; ++led)
        QCOMPARE(frame[std::size_t(led)], full.colors[led]);
    full.brightness[2] = 0.5f;
    QCOMPARE(full.frame(0)[2], Color(0x800000)); // half of full blue
    QCOMPARE(full.frame(0)[1], full.colors[1]);
    EffectCanvas single(6, ColorSingle);
    single.module.singleBrightness = 1.0f;
    QCOMPARE(single.frame(0)[0], single.module.single);
    single.module.singleBrightness = 0.5f;
    QCOMPARE(single.frame(0)[0], Color(0x106080));
}

void EffectsTest::staticModesHoldStill()
{
    for (int mode = 0; mode < kEffectCount; ++mode) {
        const EffectInfo& effect = effectFor(mode);
        for (int colorMode = 0; colorMode < 4; ++colorMode) {
            EffectCanvas canvas(mode, colorMode);
            canvas.module.temperature = 50;
            const double change = changePerFrame(canvas, 3.0, 4.0);
            if (effect.animated)
                QVERIFY2(change > 0, qPrintable(QStringLiteral("%1 does not move in colour mode %2")
                                                    .arg(effect.name)
                                                    .arg(colorMode)));
            else
                QVERIFY2(change == 0 && canvas.frame(0) == canvas.frame(1000.5),
                         qPrintable(QStringLiteral("%1 moves").arg(effect.name)));
        }
    }
}

void EffectsTest::animationFollowsSpeed()
{
    for (int mode = 0; mode < kEffectCount; ++mode) {
        const EffectInfo& effect = effectFor(mode);
        if (!effect.speedAdjustable)
            continue;
        const int colorMode = effect.colorModes & OffersRgb      ? ColorRgb
                              : effect.colorModes & OffersSingle ? ColorSingle
                                                                 : ColorOwn;
        double previous = 0;
        for (int speed = 0; speed <= 3; ++speed) {
            EffectCanvas canvas(mode, colorMode);
            canvas.module.speed = speed;
            const double change = changePerFrame(canvas, 0.0, 24.0);
            if (speed > 0)
                QVERIFY2(change < previous * 0.9,
                         qPrintable(QStringLiteral("%1: speed %2 changes %3 per frame, speed %4 %5")
                                        .arg(effect.name)
                                        .arg(speed)
                                        .arg(change)
                                        .arg(speed - 1)
                                        .arg(previous)));
            previous = change;
        }
    }
}

void EffectsTest::randomComesFromTheSeed()
{
    for (int mode = 0; mode < kEffectCount; ++mode) {
        const EffectInfo& effect = effectFor(mode);
        if (!(effect.colorModes & OffersRandom))
            continue;
        EffectCanvas first(mode, ColorRandom), again(mode, ColorRandom), other(mode, ColorRandom);
        first.scene.seed = again.scene.seed = 42;
        other.scene.seed = 43;
        bool differs = false;
        for (double t = 0; t < 6; t += 0.37) {
            QVERIFY(first.frame(t) == again.frame(t));
            differs = differs || first.frame(t) != other.frame(t);
        }
        QVERIFY2(differs, effect.name);
    }
    // Effects that place things at random follow the seed too.
    for (int mode : {2, 21, 24, 33, 37}) {
        EffectCanvas first(mode, ColorSingle), other(mode, ColorSingle);
        first.scene.seed = 1;
        other.scene.seed = 2;
        bool differs = false;
        for (double t = 0; t < 6 && !differs; t += 0.37)
            differs = first.frame(t) != other.frame(t);
        QVERIFY2(differs, effectFor(mode).name);
    }
}

void EffectsTest::temperatureRunsBlueToRed()
{
    auto colourAt = [](int celsius) {
        EffectCanvas canvas(14, ColorOwn);
        canvas.module.temperature = celsius;
        return canvas.frame(0)[0];
    };
    const auto blueness = [](Color c) { return blue(c) - red(c); };
    QVERIFY(blueness(colourAt(30)) > 0);
    QVERIFY(blueness(colourAt(70)) < 0);
    int previous = blueness(colourAt(20));
    for (int celsius = 25; celsius <= 80; celsius += 5) {
        QVERIFY(blueness(colourAt(celsius)) <= previous);
        previous = blueness(colourAt(celsius));
    }
    // Each module its own temperature; unknown is neither blue nor red.
    const Color unknown = colourAt(-1);
    QVERIFY(unknown != 0 && red(unknown) == blue(unknown));
}

void EffectsTest::clockReadsBack_data()
{
    QTest::addColumn<int>("modules");
    QTest::addColumn<int>("leds");
    QTest::newRow("4 x 8") << 4 << 8;
    QTest::newRow("8 x 5") << 8 << 5;
    QTest::newRow("1 x 5") << 1 << 5;
    QTest::newRow("2 x 8") << 2 << 8;
    QTest::newRow("3 x 5") << 3 << 5;
}

void EffectsTest::clockReadsBack()
{
    QFETCH(int, modules);
    QFETCH(int, leds);
    auto read = [&](int hour, int minute) { return readClock(modules, leds, hour, minute); };
    QCOMPARE(read(3, 15), 315);
    QCOMPARE(read(9, 45), 945);
    QCOMPARE(read(23, 59), 2359);
    QCOMPARE(read(0, 0), 0);
}

void EffectsTest::travelFollowsSlotOrder()
{
    for (int mode = 0; mode < kEffectCount; ++mode) {
        if (!effectFor(mode).travels)
            continue;
        EffectCanvas canvas(mode, ColorSingle);
        canvas.module.single = 0xFFFFFF;
        canvas.modules = 4;
        const double first = firstLit(canvas, 0, 10);
        const double fourth = firstLit(canvas, 3, 10);
        QVERIFY2(first >= 0 && fourth > first, effectFor(mode).name);
    }
}

void EffectsTest::partyKeepsTheBeat()
{
    EffectCanvas party(10, ColorSingle);
    auto level = [&](double seconds) {
        long sum = 0;
        for (Color c : party.frame(seconds))
            sum += peak(c);
        return sum;
    };
    // No music: 120 beats a minute, a flash on every half second.
    for (double beat = 1; beat < 6; ++beat)
        QVERIFY(level(beat * 0.5) > level(beat * 0.5 - 0.05) * 2);
    // Music: the flashes follow the beats it reports, louder music brighter.
    party.scene.beat = 7.0;
    party.scene.loudness = 1.0;
    const long onBeat = level(0.3);
    party.scene.beat = 7.8;
    QVERIFY(onBeat > level(0.3) * 2);
    party.scene.beat = 7.0;
    party.scene.loudness = 0.1;
    QVERIFY(level(0.3) < onBeat);
}

QTEST_GUILESS_MAIN(EffectsTest)
#include "tst_effects.moc"
