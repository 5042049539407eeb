#pragma once

#include <cstddef>

// Follows the beat and the loudness of a stream of mono samples: an onset is a block whose
// energy jumps well above the recent average; the time between onsets gives the tempo. No Qt,
// no audio system: it is fed blocks by whoever captures them.
class BeatTracker
{
public:
    explicit BeatTracker(int sampleRate);

    void feed(const float* samples, std::size_t count);

    // Beats counted so far, the fraction being the way to the next expected beat; negative
    // until the first beat is heard or after a long silence.
    double beat() const;
    // 0..1, relative to the loudest of the last few seconds.
    double loudness() const { return loudness_; }
    // Seconds between beats, as estimated.
    double interval() const { return interval_; }

    static constexpr std::size_t kBlock = 256;

private:
    void block(double energy);

    int sampleRate_;
    double blockSeconds_;
    float pending_[kBlock] = {};
    std::size_t pendingCount_ = 0;
    double clock_ = 0.0;   // seconds of audio fed
    double average_ = 0.0; // recent block energy
    double peak_ = 1e-6;   // slowly falling maximum of the energy
    double loudness_ = 0.0;
    double lastBeat_ = -1.0; // time of the last onset
    double interval_ = 0.5;
    long beats_ = 0;
};
