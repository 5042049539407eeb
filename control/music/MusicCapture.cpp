#include "MusicCapture.h"

MusicCapture::MusicCapture() = default;

MusicCapture::~MusicCapture()
{
    stop();
}

void MusicCapture::start()
{
    if (thread_.joinable())
        return;
    stopping_ = false;
    thread_ = std::thread(&MusicCapture::run, this);
}

void MusicCapture::stop()
{
    if (!thread_.joinable())
        return;
    stopping_ = true;
    thread_.join();
    listening_ = false;
    beat_ = -1.0;
    loudness_ = -1.0;
}

MusicCapture::Reading MusicCapture::reading() const
{
    Reading reading;
    if (listening_) {
        reading.beat = beat_;
        reading.loudness = loudness_;
    }
    return reading;
}
