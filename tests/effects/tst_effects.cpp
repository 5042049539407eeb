// The effect engine's properties over every mode, and the effects that show readings.

#include "EffectCanvas.h"
#include "EffectRegistry.h"
#include "SensorEffects.h"

#include <QtTest>

#include <algorithm>

using namespace nxfx;

namespace {

constexpr double kFrame = 1.0 / 30.0;

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

double firstLit(EffectCanvas& canvas, int column)
{
    for (double t = 0; t < 10; t += kFrame / 2) {
        const std::vector<Color> frame = canvas.frame(t);
        for (int led = 0; led < canvas.leds; ++led)
            if (peak(frame[std::size_t(column * canvas.leds + led)]) > 128)
                return t;
    }
    return -1;
}

// Reads the clock as a person would: the bottom four LEDs of a column as bits, amber hours and
// cyan minutes, a page at a time on a narrow canvas; -1 for a digit in the wrong colour.
int readClock(int modules, int leds, int hour, int minute)
{
    EffectCanvas canvas(31, ColorOwn);
    canvas.modules = modules;
    canvas.leds = leds;
    canvas.scene.hour = hour;
    canvas.scene.minute = minute;
    int digits[4] = {};
    for (int index = 0; index < 4; ++index) {
        const int page = index / modules, column = index % modules;
        const std::vector<Color> frame = canvas.frame(sensor::kClockPage * (page + 0.5));
        for (int bit = 0; bit < 4; ++bit) {
            const Color c = frame[std::size_t(column * leds + leds - 1 - bit)];
            if (peak(c) > 128)
                digits[index] |= 1 << bit;
            if (peak(c) == 0 || (red(c) > blue(c)) != (index < 2))
                return -1;
        }
    }
    return (digits[0] * 10 + digits[1]) * 100 + digits[2] * 10 + digits[3];
}

} // namespace

class EffectsTest : public QObject
{
    Q_OBJECT

private slots:
    void everyModeBehaves();
    void brightnessScalesColours();
    void readingsShow();
    void partyKeepsTheBeat();
};

void EffectsTest::everyModeBehaves()
{
    // Values the table lacks render too, as steady colours.
    for (int mode = -1; mode <= kEffectCount; ++mode) {
        const EffectInfo& effect = effectFor(mode);
        const char* name = effect.name;
        for (int colorMode = 0; colorMode < 4; ++colorMode) {
            for (int modules : {1, 8}) {
                EffectCanvas canvas(mode, colorMode);
                canvas.modules = modules;
                canvas.leds = 13 - modules;
                canvas.module.temperature = 50;
                bool lit = false;
                for (double t : {0.0, 1.3, 7.7}) {
                    const std::vector<Color> frame = canvas.frame(t);
                    QVERIFY2(std::all_of(frame.begin(), frame.end(),
                                         [](Color c) { return (c & 0xFF000000u) == 0; }),
                             name);
                    QVERIFY2(canvas.frame(t) == frame, name); // the same moment, the same frame
                    lit = lit || !allBlack(frame);
                }
                QVERIFY2(lit, name);
            }
            // Animated effects move in every colour mode, the others hold still.
            EffectCanvas canvas(mode, colorMode);
            canvas.module.temperature = 50;
            const double change = changePerFrame(canvas, 3.0, 4.0);
            QVERIFY2(effect.animated ? change > 0
                                     : change == 0 && canvas.frame(0) == canvas.frame(1000.5),
                     name);
        }
        if (mode < 0 || mode >= kEffectCount)
            continue;

        // Off, or at no brightness, the modules are dark; Temp. and Clock show readings instead
        // of the user's colours.
        EffectCanvas off(mode, ColorRgb), dark(mode, ColorRgb), darkSingle(mode, ColorSingle);
        off.module.turnOff = true;
        std::fill(std::begin(dark.brightness), std::end(dark.brightness), 0.0f);
        darkSingle.module.singleBrightness = 0.0f;
        for (double t : {0.0, 0.9, 3.3}) {
            QVERIFY2(allBlack(off.frame(t)), name);
            QVERIFY2(mode == 14 || mode == 31 ||
                         (allBlack(dark.frame(t)) && allBlack(darkSingle.frame(t))),
                     name);
        }

        const int colorMode = effect.colorModes & OffersRgb      ? ColorRgb
                              : effect.colorModes & OffersSingle ? ColorSingle
                                                                 : ColorOwn;
        if (effect.speedAdjustable) {
            EffectCanvas fast(mode, colorMode), slow(mode, colorMode);
            fast.module.speed = 0;
            slow.module.speed = 3;
            QVERIFY2(changePerFrame(slow, 0.0, 24.0) < changePerFrame(fast, 0.0, 24.0) * 0.75,
                     name);
        }
        if (effect.travels) {
            EffectCanvas canvas(mode, ColorSingle);
            canvas.module.single = 0xFFFFFF;
            const double first = firstLit(canvas, 0);
            QVERIFY2(first >= 0 && firstLit(canvas, 3) > first, name);
        }
        if (effect.colorModes & OffersRandom) {
            // Another seed, other colours (the same seed repeats its frames, as checked above).
            EffectCanvas first(mode, ColorRandom), other(mode, ColorRandom);
            other.scene.seed = first.scene.seed + 1;
            bool differs = false;
            for (double t = 0; t < 6 && !differs; t += 0.37)
                differs = first.frame(t) != other.frame(t);
            QVERIFY2(differs, name);
        }
    }
}

void EffectsTest::brightnessScalesColours()
{
    // Full brightness shows the colours as set, half brightness halves them, per LED.
    EffectCanvas full(6, ColorRgb);
    const std::vector<Color> frame = full.frame(0);
    QVERIFY(std::equal(frame.begin(), frame.begin() + full.leds, full.colors));
    full.brightness[2] = 0.5f;
    QCOMPARE(full.frame(0)[2], Color(0x800000)); // half of full blue
    QCOMPARE(full.frame(0)[1], full.colors[1]);
}

void EffectsTest::readingsShow()
{
    // Temp.: blue when cool, red when hot, steadily in between; unknown is neither.
    auto blueness = [](int celsius) {
        EffectCanvas canvas(14, ColorOwn);
        canvas.module.temperature = celsius;
        const Color c = canvas.frame(0)[0];
        return celsius < 0 ? int(c != 0 && red(c) == blue(c)) : blue(c) - red(c);
    };
    QVERIFY(blueness(30) > 0 && blueness(70) < 0 && blueness(-1) == 1);
    for (int celsius = 25; celsius <= 80; celsius += 5)
        QVERIFY(blueness(celsius) <= blueness(celsius - 5));

    // Clock: read back on a wide canvas and, a page at a time, on a single module.
    for (int modules : {4, 1}) {
        QCOMPARE(readClock(modules, 8, 9, 45), 945);
        QCOMPARE(readClock(modules, 5, 23, 59), 2359);
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
    // Music: the flashes follow the beats it reports.
    party.scene.beat = 7.0;
    party.scene.loudness = 1.0;
    const long onBeat = level(0.3);
    party.scene.beat = 7.8;
    QVERIFY(onBeat > level(0.3) * 2);
}

QTEST_GUILESS_MAIN(EffectsTest)
#include "tst_effects.moc"
