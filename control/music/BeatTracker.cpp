#include "BeatTracker.h"

#include <algorithm>
#include <cmath>

namespace {

constexpr double kOnsetRatio = 1.8;     // energy over the recent average that makes an onset
constexpr double kAverageSeconds = 0.5; // memory of the average
constexpr double kPeakFallPerSecond = 0.7;
constexpr double kMinInterval = 0.25; // 240 bpm
constexpr double kMaxInterval = 1.5;  // 40 bpm
constexpr double kSilence = 1e-7;     // block energy taken as silence
constexpr double kLostAfter = 3.0;    // seconds without an onset before the beat is lost

} // namespace

BeatTracker::BeatTracker(int sampleRate)
    : sampleRate_(std::max(sampleRate, 1)), blockSeconds_(double(kBlock) / sampleRate_)
{
}

void BeatTracker::feed(const float* samples, std::size_t count)
{
    while (count > 0) {
        const std::size_t take = std::min(count, kBlock - pendingCount_);
        std::copy(samples, samples + take, pending_ + pendingCount_);
        pendingCount_ += take;
        samples += take;
        count -= take;
        if (pendingCount_ == kBlock) {
            double energy = 0.0;
            for (float s : pending_)
                energy += double(s) * s;
            block(energy / kBlock);
            pendingCount_ = 0;
        }
    }
}

void BeatTracker::block(double energy)
{
    clock_ += blockSeconds_;
    peak_ = std::max(energy, peak_ * std::pow(kPeakFallPerSecond, blockSeconds_));
    loudness_ = energy > kSilence ? std::min(1.0, std::sqrt(energy / peak_)) : 0.0;

    const bool onset = energy > kSilence && energy > average_ * kOnsetRatio &&
                       (lastBeat_ < 0 || clock_ - lastBeat_ >= kMinInterval);
    const double keep = std::exp(-blockSeconds_ / kAverageSeconds);
    average_ = average_ * keep + energy * (1.0 - keep);
    if (!onset)
        return;
    if (lastBeat_ >= 0) {
        const double gap = clock_ - lastBeat_;
        if (gap <= kMaxInterval)
            interval_ = std::clamp(interval_ * 0.7 + gap * 0.3, kMinInterval, kMaxInterval);
    }
    lastBeat_ = clock_;
    ++beats_;
}

double BeatTracker::beat() const
{
    if (lastBeat_ < 0 || clock_ - lastBeat_ > kLostAfter)
        return -1.0;
    return double(beats_) + std::min((clock_ - lastBeat_) / interval_, 0.99);
}
