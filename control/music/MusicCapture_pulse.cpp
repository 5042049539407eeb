// MusicCapture::run for PulseAudio and PipeWire's pulse server, through libpulse-simple.
#include "BeatTracker.h"
#include "MusicCapture.h"

#include <pulse/error.h>
#include <pulse/simple.h>

namespace {

constexpr std::size_t kReadFrames = 256;

} // namespace

void MusicCapture::run()
{
    pa_sample_spec spec;
    spec.format = PA_SAMPLE_FLOAT32NE;
    spec.rate = kSampleRate;
    spec.channels = 1;
    pa_buffer_attr attributes;
    attributes.maxlength = uint32_t(-1);
    attributes.tlength = uint32_t(-1);
    attributes.prebuf = uint32_t(-1);
    attributes.minreq = uint32_t(-1);
    attributes.fragsize = uint32_t(kReadFrames * sizeof(float));
    int error = 0;
    pa_simple* stream =
        pa_simple_new(nullptr, "norvalex-control", PA_STREAM_RECORD, "@DEFAULT_MONITOR@",
                      "Party beat", &spec, nullptr, &attributes, &error);
    if (!stream)
        return;
    listening_ = true;
    BeatTracker tracker(kSampleRate);
    float samples[kReadFrames];
    while (!stopping_) {
        if (pa_simple_read(stream, samples, sizeof samples, &error) < 0)
            break;
        tracker.feed(samples, kReadFrames);
        beat_ = tracker.beat();
        loudness_ = tracker.loudness();
    }
    listening_ = false;
    pa_simple_free(stream);
}
