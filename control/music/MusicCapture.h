#pragma once

#include <atomic>
#include <memory>
#include <thread>

// Listens to what the desktop plays (the sound server's monitor of the default output) on a
// thread of its own and keeps the beat and loudness found in it. Opened only while asked to;
// where no sound server answers it reports nothing and the effects keep their own tempo.
class MusicCapture
{
public:
    struct Reading {
        double beat = -1.0; // see BeatTracker::beat
        double loudness = -1.0;
    };

    MusicCapture();
    ~MusicCapture();
    MusicCapture(const MusicCapture&) = delete;
    MusicCapture& operator=(const MusicCapture&) = delete;

    // Starts listening unless already started; the connection is made on the thread.
    void start();
    void stop();
    bool started() const { return thread_.joinable(); }
    // False once the sound server refused or went away.
    bool listening() const { return listening_; }
    Reading reading() const;

    static constexpr int kSampleRate = 11025;

private:
    void run();

    std::thread thread_;
    std::atomic<bool> stopping_{false};
    std::atomic<bool> listening_{false};
    std::atomic<double> beat_{-1.0};
    std::atomic<double> loudness_{-1.0};
};
