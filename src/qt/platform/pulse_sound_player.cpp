#include "qt/platform/pulse_sound_player.h"

#include <pulse/simple.h>
#include <sndfile.h>

#include <algorithm>
#include <chrono>
#include <cstdint>
#include <memory>
#include <string>
#include <utility>
#include <vector>

#include "qt/platform/late_library.h"

namespace corvane {

namespace {

constexpr std::chrono::milliseconds farewell{150};
constexpr std::uint32_t unset = 0xFFFFFFFF;  // the server chooses
constexpr int mostChannels = PA_CHANNELS_MAX;
constexpr sf_count_t longestSound = 30;  // seconds; longer ones are cut

// What is used of the two libraries. They bring twenty others: loaded with the program, they would delay its window by
// 4 ms and take 1 MiB.
struct Libraries {
    const LateLibrary file{"libsndfile.so.1"};
    const LateLibrary server{"libpulse-simple.so.0"};
    decltype(sf_open)* open = file.function<decltype(sf_open)>("sf_open");
    decltype(sf_readf_short)* read = file.function<decltype(sf_readf_short)>("sf_readf_short");
    decltype(sf_close)* close = file.function<decltype(sf_close)>("sf_close");
    decltype(pa_simple_new)* connect = server.function<decltype(pa_simple_new)>("pa_simple_new");
    decltype(pa_simple_write)* write = server.function<decltype(pa_simple_write)>("pa_simple_write");
    decltype(pa_simple_drain)* drain = server.function<decltype(pa_simple_drain)>("pa_simple_drain");
    decltype(pa_simple_free)* disconnect = server.function<decltype(pa_simple_free)>("pa_simple_free");

    bool areThere() const { return open && read && close && connect && write && drain && disconnect; }
};

const Libraries& libraries() {
    static const Libraries loaded;
    return loaded;
}

struct Sound {
    pa_sample_spec format{};
    std::vector<std::int16_t> samples;  // channels interleaved
};

struct CloseFile {
    void operator()(SNDFILE* file) const { libraries().close(file); }
};

Sound readSound(const std::filesystem::path& file) {
    Sound sound;
    SF_INFO info{};
    const std::unique_ptr<SNDFILE, CloseFile> source(libraries().open(file.c_str(), SFM_READ, &info));
    if (!source || info.channels < 1 || info.channels > mostChannels || info.samplerate < 1) return sound;
    sound.format = {PA_SAMPLE_S16NE, static_cast<std::uint32_t>(info.samplerate),
                    static_cast<std::uint8_t>(info.channels)};
    const sf_count_t frames = std::clamp<sf_count_t>(info.frames, 0, longestSound * info.samplerate);
    sound.samples.resize(static_cast<std::size_t>(frames * info.channels));
    const sf_count_t read = libraries().read(source.get(), sound.samples.data(), frames);
    sound.samples.resize(static_cast<std::size_t>(std::max<sf_count_t>(read, 0) * info.channels));
    return sound;
}

struct CloseStream {
    void operator()(pa_simple* stream) const { libraries().disconnect(stream); }
};

void playSound(const std::string& name, const Sound& sound, const std::stop_token& stop) {
    if (sound.samples.empty()) return;
    const std::uint32_t second = sound.format.rate * sound.format.channels * sizeof(std::int16_t);
    // The server's default buffer of two seconds would delay this sound, and the next one even longer.
    const pa_buffer_attr buffer{unset, second / 10, unset, unset, unset};
    const std::unique_ptr<pa_simple, CloseStream> stream(libraries().connect(
        nullptr, "Corvane", PA_STREAM_PLAYBACK, nullptr, name.c_str(), &sound.format, nullptr, &buffer, nullptr));
    if (!stream) return;
    // In pieces of a tenth of a second, so that the program can end before the sound does.
    const std::size_t piece = std::max<std::size_t>(1, std::size_t{sound.format.rate} * sound.format.channels / 10);
    for (std::size_t at = 0; at < sound.samples.size(); at += piece) {
        const std::size_t count = std::min(piece, sound.samples.size() - at);
        if (stop.stop_requested()) return;
        const auto* data = sound.samples.data() + at;
        if (libraries().write(stream.get(), data, count * sizeof(std::int16_t), nullptr) < 0) return;
    }
    if (!stop.stop_requested()) libraries().drain(stream.get(), nullptr);
}

}  // namespace

std::filesystem::path soundFile(const std::filesystem::path& folder, std::string_view name) {
    const bool plain = !name.empty() && name.front() != '.' && name.find('/') == std::string_view::npos &&
                       name.find('\0') == std::string_view::npos;
    return plain ? folder / (std::string(name) + ".aiff") : std::filesystem::path();
}

PulseSoundPlayer::PulseSoundPlayer(std::filesystem::path folder)
    : folder_(std::move(folder)), worker_(queueLength, farewell) {}

void PulseSoundPlayer::playFile(std::string_view name) { play(folder_, name); }

void PulseSoundPlayer::playAlert(std::string_view name) { play(folder_ / "alerts", name); }

void PulseSoundPlayer::play(const std::filesystem::path& folder, std::string_view name) {
    const std::filesystem::path file = soundFile(folder, name);
    if (file.empty()) return;
    worker_.post([file, title = std::string(name)](const std::stop_token& stop) {
        if (libraries().areThere()) playSound(title, readSound(file), stop);
    });
}

}  // namespace corvane
