// MusicCapture::run for PulseAudio and PipeWire's pulse server. libpulse-simple is loaded on
// first use rather than linked: the service then maps no sound (or X) libraries until a Party
// mode asks for music.
#include "BeatTracker.h"
#include "MusicCapture.h"

#include <pulse/simple.h>

#include <dlfcn.h>

namespace {

constexpr std::size_t kReadFrames = 256;

struct PulseSimple {
    decltype(&pa_simple_new) open = nullptr;
    decltype(&pa_simple_read) read = nullptr;
    decltype(&pa_simple_free) free = nullptr;
};

// Null when the library is not installed. Kept loaded once found: unloading a library that
// may have started threads of its own is not safe.
const PulseSimple* pulseSimple()
{
    static const PulseSimple* const api = []() -> const PulseSimple* {
        void* handle = dlopen("libpulse-simple.so.0", RTLD_NOW | RTLD_LOCAL);
        if (!handle)
            return nullptr;
        static PulseSimple loaded;
        loaded.open = reinterpret_cast<decltype(&pa_simple_new)>(dlsym(handle, "pa_simple_new"));
        loaded.read = reinterpret_cast<decltype(&pa_simple_read)>(dlsym(handle, "pa_simple_read"));
        loaded.free = reinterpret_cast<decltype(&pa_simple_free)>(dlsym(handle, "pa_simple_free"));
        return loaded.open && loaded.read && loaded.free ? &loaded : nullptr;
    }();
    return api;
}

} // namespace

void MusicCapture::run()
{
    const PulseSimple* api = pulseSimple();
    if (!api)
        return;
    pa_sample_spec sampleFormat;
    sampleFormat.format = PA_SAMPLE_FLOAT32NE;
    sampleFormat.rate = kSampleRate;
    sampleFormat.channels = 1;
    pa_buffer_attr attributes;
    attributes.maxlength = uint32_t(-1);
    attributes.tlength = uint32_t(-1);
    attributes.prebuf = uint32_t(-1);
    attributes.minreq = uint32_t(-1);
    attributes.fragsize = uint32_t(kReadFrames * sizeof(float));
    int error = 0;
    pa_simple* stream = api->open(nullptr, "norvalex-control", PA_STREAM_RECORD,
                                  "@DEFAULT_MONITOR@", "Party beat", &sampleFormat, nullptr, &attributes,
                                  &error);
    if (!stream)
        return;
    listening_ = true;
    BeatTracker tracker(kSampleRate);
    float samples[kReadFrames];
    while (!stopping_) {
        if (api->read(stream, samples, sizeof samples, &error) < 0)
            break;
        tracker.feed(samples, kReadFrames);
        beat_ = tracker.beat();
        loudness_ = tracker.loudness();
    }
    listening_ = false;
    api->free(stream);
}
