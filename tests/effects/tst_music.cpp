// The beat and loudness found in audio, and the capture's behaviour without a sound server.

#include "BeatTracker.h"
#include "MusicCapture.h"
#include "PrivateSoundServer.h"

#include <QtTest>

#ifdef NX_HAVE_PULSE
#include <pulse/simple.h>
#endif

#include <cmath>
#include <vector>

namespace {

constexpr int kRate = MusicCapture::kSampleRate;

// Drum-like hits (a decaying 80 Hz tone) at `bpm` over a faint hiss, `seconds` long.
std::vector<float> drums(double bpm, double seconds, float level = 0.8f)
{
    std::vector<float> out(std::size_t(seconds * kRate));
    const double interval = 60.0 / bpm;
    uint32_t noise = 12345;
    for (std::size_t i = 0; i < out.size(); ++i) {
        const double t = double(i) / kRate;
        const double since = std::fmod(t, interval);
        noise = noise * 1664525u + 1013904223u;
        const double hiss = 0.01 * (double(noise >> 8) / double(1u << 24) - 0.5);
        out[i] = float(level * std::exp(-since * 30.0) * std::sin(2 * M_PI * 80.0 * since) + hiss);
    }
    return out;
}

} // namespace

class MusicTest : public QObject
{
    Q_OBJECT

private slots:
    void followsTheTempo();
    void hearsTheDesktop();
};

void MusicTest::followsTheTempo()
{
    const double bpm = 150; // not the 120 the effects fall back to
    BeatTracker tracker(kRate);
    // Eight seconds and half a beat, fed in odd-sized pieces as a sound server delivers them.
    const std::vector<float> audio = drums(bpm, 8.0 + 30.0 / bpm);
    for (std::size_t at = 0; at < audio.size(); at += 1000)
        tracker.feed(audio.data() + at, std::min<std::size_t>(1000, audio.size() - at));
    const QByteArray beat = QByteArray::number(tracker.beat());
    QVERIFY2(std::abs(tracker.beat() - 8.0 * bpm / 60.0 - 0.5) <= 1.0, beat);
    QVERIFY(std::abs(tracker.interval() - 60.0 / bpm) < 0.03);
    // Half way between two hits the beat stands half way too.
    const double fraction = tracker.beat() - std::floor(tracker.beat());
    QVERIFY2(fraction > 0.35 && fraction < 0.65, beat);

    // Quieter music reads quieter; a long silence loses the beat (the effects' own tempo).
    const std::vector<float> quiet = drums(bpm, 0.3, 0.1f);
    tracker.feed(quiet.data(), quiet.size());
    QVERIFY(tracker.loudness() > 0.0 && tracker.loudness() < 0.5);
    const std::vector<float> silence(std::size_t(4 * kRate), 0.0f);
    tracker.feed(silence.data(), silence.size());
    QCOMPARE(tracker.loudness(), 0.0);
    QCOMPARE(tracker.beat(), -1.0);
}

void MusicTest::hearsTheDesktop()
{
    // Without a sound server the capture runs and hears nothing.
    const QByteArray saved = qgetenv("PULSE_SERVER");
    qputenv("PULSE_SERVER", "unix:/nonexistent/norvalex-test/native");
    MusicCapture capture;
    capture.start();
    QTest::qWait(200);
    QVERIFY(capture.started() && !capture.listening());
    QCOMPARE(capture.reading().beat, -1.0);
    capture.stop();
    qputenv("PULSE_SERVER", saved);
#ifndef NX_HAVE_PULSE
    QSKIP("built without libpulse-simple");
#else
    // Drums played into a sound server of our own are heard through its output's monitor.
    PrivateSoundServer server;
    if (!server.start())
        QSKIP("pulseaudio is not installed");
    qputenv("PULSE_SERVER", server.address());
    capture.start();
    QTRY_VERIFY_WITH_TIMEOUT(capture.listening(), 10000);

    const pa_sample_spec sampleFormat{PA_SAMPLE_FLOAT32NE, kRate, 1};
    int error = 0;
    pa_simple* player = pa_simple_new(nullptr, "norvalex-test", PA_STREAM_PLAYBACK, nullptr,
                                      "drums", &sampleFormat, nullptr, nullptr, &error);
    QVERIFY(player);
    const std::vector<float> audio = drums(120, 6.0);
    double loudest = 0;
    for (std::size_t at = 0; at < audio.size(); at += kRate / 10) {
        QVERIFY(
            pa_simple_write(player, audio.data() + at,
                            std::min<std::size_t>(kRate / 10, audio.size() - at) * sizeof(float),
                            &error) == 0);
        loudest = std::max(loudest, capture.reading().loudness);
    }
    QVERIFY(pa_simple_drain(player, &error) == 0);
    pa_simple_free(player);
    QVERIFY2(capture.reading().beat >= 6, qPrintable(QString::number(capture.reading().beat)));
    QVERIFY(loudest > 0.3);
    capture.stop();
    QCOMPARE(capture.reading().beat, -1.0);
    qputenv("PULSE_SERVER", saved);
#endif
}

QTEST_GUILESS_MAIN(MusicTest)
#include "tst_music.moc"
