// Writes the sound of a new message: two bell notes a fifth apart, the second one later and softer.
//
// What is inside is plain RIFF/WAVE, which desktops recognise by its content whatever the file is called.

#include <algorithm>
#include <array>
#include <cmath>
#include <cstdint>
#include <cstdio>
#include <fstream>
#include <numbers>
#include <string>

namespace {

constexpr int rate = 22'050; // samples per second
constexpr double length = 0.7;
constexpr auto samples = static_cast<std::uint32_t>(rate * length);

struct Note {
    double start;     ///< seconds
    double frequency; ///< hertz
    double loudness;
};
constexpr std::array notes{Note{0.0, 880.0, 0.5}, Note{0.11, 1318.5, 0.4}};

/// A bell's partials: multiples of the note and how loud and how short-lived each is.
struct Partial {
    double multiple;
    double loudness;
    double decay; ///< per second
};
constexpr std::array partials{Partial{1.0, 0.7, 7.0}, Partial{2.0, 0.2, 11.0}, Partial{3.01, 0.1, 18.0}};

double sound(const Note &note, double time) {
    const double since = time - note.start;
    if (since < 0) return 0;
    double sum = 0;
    for (const Partial &partial : partials) {
        sum += partial.loudness * std::exp(-partial.decay * since) *
               std::sin(2 * std::numbers::pi * note.frequency * partial.multiple * since);
    }
    const double attack = std::min(1.0, since / 0.004); // no click at the start
    return note.loudness * attack * sum;
}

void put(std::string &bytes, std::uint32_t value, int count) {
    for (int i = 0; i < count; ++i)
        bytes += static_cast<char>((value >> (8 * i)) & 0xff);
}

std::string header() {
    constexpr std::uint32_t data = samples * 2;
    std::string bytes = "RIFF";
    put(bytes, 36 + data, 4);
    bytes += "WAVEfmt ";
    put(bytes, 16, 4);
    put(bytes, 1, 2); // linear samples
    put(bytes, 1, 2); // one channel
    put(bytes, rate, 4);
    put(bytes, rate * 2, 4);
    put(bytes, 2, 2);
    put(bytes, 16, 2);
    bytes += "data";
    put(bytes, data, 4);
    return bytes;
}

} // namespace

int main(int argc, char **argv) {
    if (argc != 2) {
        std::fputs("usage: make_swiftsound FILE\n", stderr);
        return 2;
    }
    std::string bytes = header();
    for (std::uint32_t i = 0; i < samples; ++i) {
        const double time = double(i) / rate;
        const double fadeOut = std::min(1.0, (length - time) / 0.05);
        double level = 0;
        for (const Note &note : notes)
            level += sound(note, time);
        put(bytes, static_cast<std::uint16_t>(std::lround(level * fadeOut * 32'767)), 2);
    }
    std::ofstream file(argv[1], std::ios::binary);
    return file.write(bytes.data(), std::streamsize(bytes.size())) && file.flush() ? 0 : 1;
}
