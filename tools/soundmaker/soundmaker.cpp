// SPDX-FileCopyrightText: 2026 The Quillora Vesta developers
// SPDX-License-Identifier: GPL-3.0-or-later
//
// Makes the seven sounds of the game out of sine waves and writes them as the
// WAVE files the program embeds. Three of them hold MPEG Layer III from LAME,
// four hold plain 16-bit PCM; the formats and byte sizes are the ones the
// sound player of the game was written against, so they are checked here.
//
// Usage: soundmaker OUTPUT_DIR
//
// Nothing depends on the clock or on chance: the same LAME gives the same bytes.
#include <lame/lame.h>

#include <algorithm>
#include <array>
#include <cmath>
#include <cstdint>
#include <cstdio>
#include <filesystem>
#include <fstream>
#include <stdexcept>
#include <string>
#include <vector>

namespace {

constexpr double kPi = 3.14159265358979323846;
constexpr int kMp3Rate = 44100;
constexpr int kMp3FrameSamples = 1152;
constexpr int kMp3Kbps = 160;
// Peak level of every sound: -3 dBFS leaves the decoder room to overshoot.
const double kPeak = std::pow(10.0, -3.0 / 20.0);

// ---------------------------------------------------------------------------
// Synthesis

struct Partial {
    double ratio; // to the note's frequency
    double gain;
    double decay; // extra e-folds per second, so upper partials die first
};

const std::vector<Partial> kChime = {
    {1.0, 1.0, 0.0}, {2.0, 0.42, 1.5}, {3.0, 0.18, 3.0}, {4.16, 0.10, 5.0}, {5.43, 0.05, 8.0}};
const std::vector<Partial> kGlass = {{1.0, 1.0, 0.0},  {2.0, 0.30, 2.0},  {3.0, 0.12, 5.0},
                                     {4.2, 0.08, 9.0}, {5.4, 0.05, 14.0}, {8.9, 0.02, 20.0}};
const std::vector<Partial> kMarimba = {{1.0, 1.0, 0.0}, {3.93, 0.22, 14.0}, {9.9, 0.05, 35.0}};
const std::vector<Partial> kWood = {
    {1.0, 1.0, 0.0}, {2.0, 0.35, 5.0}, {3.0, 0.10, 11.0}, {4.0, 0.04, 18.0}};
const std::vector<Partial> kReed = {{1.0, 1.0, 0.0},  {2.0, 0.28, 0.5}, {3.0, 0.33, 1.0},
                                    {4.0, 0.10, 1.5}, {5.0, 0.14, 2.0}, {7.0, 0.05, 3.0}};

std::vector<Partial> brass(int count, double tilt) {
    std::vector<Partial> partials;
    for (int n = 1; n <= count; ++n) {
        partials.push_back({double(n), 1.0 / std::pow(n, tilt), 0.3 * (n - 1)});
    }
    return partials;
}

struct Note {
    double start = 0;  // seconds
    double length = 0; // seconds, release included
    double freq = 440;
    std::vector<Partial> partials;
    double gain = 1.0;
    double pan = 0.0; // -1 left .. +1 right, kept small so mono loses nothing
    double attack = 0.005;
    double decay = 3.0; // e-folds per second after the attack
    double release = 0.03;
    double glideTo = 0;   // Hz reached at the end, 0 for a steady pitch
    double pitchDrop = 0; // a struck bar starts a little sharp
    double vibratoHz = 0;
    double vibratoDepth = 0; // fraction of the frequency
    double tremoloHz = 0;
    double tremoloDepth = 0;
    double wah = 0; // how dark the note is at its edges; it opens in the middle
};

struct Signal {
    int rate;
    std::vector<double> left;
    std::vector<double> right;

    Signal(int sampleRate, std::size_t frames)
        : rate(sampleRate), left(frames, 0.0), right(frames, 0.0) {}
    std::size_t frames() const { return left.size(); }
};

double raisedCosine(double x) {
    return 0.5 - 0.5 * std::cos(kPi * std::clamp(x, 0.0, 1.0));
}

void addNote(Signal& out, const Note& note) {
    const double sr = out.rate;
    const auto first = static_cast<std::size_t>(std::lround(note.start * sr));
    const auto count = static_cast<std::size_t>(std::lround(note.length * sr));
    const double panAngle = (note.pan + 1.0) * kPi / 4.0;
    const double toLeft = std::cos(panAngle) * std::sqrt(2.0);
    const double toRight = std::sin(panAngle) * std::sqrt(2.0);
    std::vector<double> phase(note.partials.size(), 0.0);
    for (std::size_t i = 0; i < count && first + i < out.frames(); ++i) {
        const double t = i / sr;
        const double along = t / note.length;
        double freq = note.freq;
        if (note.glideTo > 0) {
            // The glide waits a little, then sags, as a player bending down would.
            freq *= std::pow(note.glideTo / note.freq, raisedCosine((along - 0.2) / 0.8));
        }
        freq *= 1.0 + note.pitchDrop * std::exp(-t / 0.015);
        freq *= 1.0 +
                note.vibratoDepth * std::sin(2 * kPi * note.vibratoHz * t) * raisedCosine(t / 0.15);
        double envelope = raisedCosine(t / note.attack) *
                          std::exp(-note.decay * std::max(0.0, t - note.attack)) *
                          raisedCosine((note.length - t) / note.release);
        envelope *= 1.0 - note.tremoloDepth * (0.5 - 0.5 * std::cos(2 * kPi * note.tremoloHz * t));
        const double darkness = note.wah * (1.0 - std::sin(kPi * along)) + 0.15 * note.wah;
        double sample = 0;
        for (std::size_t p = 0; p < note.partials.size(); ++p) {
            const Partial& partial = note.partials[p];
            const double partialFreq = freq * partial.ratio;
            phase[p] += 2 * kPi * partialFreq / sr;
            if (partialFreq > 0.45 * sr) {
                continue; // above what the rate can carry: it would fold back
            }
            sample += partial.gain * std::exp(-partial.decay * t) *
                      std::exp(-darkness * (partial.ratio - 1.0)) * std::sin(phase[p]);
        }
        sample *= envelope * note.gain;
        out.left[first + i] += sample * toLeft;
        out.right[first + i] += sample * toRight;
    }
}

// Two gentle one-pole low-passes take the glassy edge off the upper partials.
void lowPass(std::vector<double>& samples, int rate, double cutoff) {
    const double a = 1.0 - std::exp(-2 * kPi * cutoff / rate);
    for (int pass = 0; pass < 2; ++pass) {
        double y = 0;
        for (double& x : samples) {
            y += a * (x - y);
            x = y;
        }
    }
}

// Brings the loudest sample to the common peak and fades both ends of the
// first `audible` frames, so no sound starts or stops with a click.
void finish(Signal& signal, double cutoff, std::size_t audible) {
    lowPass(signal.left, signal.rate, cutoff);
    lowPass(signal.right, signal.rate, cutoff);
    double peak = 0;
    for (std::size_t i = 0; i < signal.frames(); ++i) {
        peak = std::max({peak, std::abs(signal.left[i]), std::abs(signal.right[i])});
    }
    const double scale = peak > 0 ? kPeak / peak : 0.0;
    const double fadeIn = 0.002 * signal.rate;
    const double fadeOut = 0.015 * signal.rate;
    for (std::size_t i = 0; i < signal.frames(); ++i) {
        double gain = scale * raisedCosine(i / fadeIn);
        gain *= i < audible ? raisedCosine((double(audible) - 1.0 - i) / fadeOut) : 0.0;
        signal.left[i] *= gain;
        signal.right[i] *= gain;
    }
}

std::vector<std::int16_t> interleave(const Signal& signal, int channels) {
    std::vector<std::int16_t> out;
    out.reserve(signal.frames() * channels);
    auto toInt = [](double x) {
        return static_cast<std::int16_t>(std::lround(std::clamp(x, -1.0, 1.0) * 32767.0));
    };
    for (std::size_t i = 0; i < signal.frames(); ++i) {
        if (channels == 1) {
            out.push_back(toInt(0.5 * (signal.left[i] + signal.right[i])));
        } else {
            out.push_back(toInt(signal.left[i]));
            out.push_back(toInt(signal.right[i]));
        }
    }
    return out;
}

// A fixed little generator for the sparkle of the win, the same every run.
struct Lcg {
    std::uint32_t state = 0x51A7C0DEu;
    double next() {
        state = state * 1664525u + 1013904223u;
        return (state >> 8) / double(1u << 24);
    }
};

// ---------------------------------------------------------------------------
// The seven sounds. Each writes its notes into the signal it is handed; the
// finishing touches (low-pass, level, fades) come after.

// One strike left, or ten seconds on the clock: a falling minor second, twice,
// with a flutter that makes it urgent without being shrill.
void warning(Signal& s) {
    const double high = 659.26; // E5
    const double low = 622.25;  // D#5
    for (double at : {0.0, 0.5}) {
        Note n{.start = at, .length = 0.21, .freq = high, .partials = kReed};
        n.pan = -0.15;
        n.attack = 0.008;
        n.decay = 1.5;
        n.tremoloHz = 14;
        n.tremoloDepth = 0.35;
        addNote(s, n);
        n.start = at + 0.2;
        n.length = 0.28;
        n.freq = low;
        n.pan = 0.15;
        addNote(s, n);
    }
}

// A new phrase on the board: four light chimes climbing a major chord.
void newPhrase(Signal& s) {
    const std::array<double, 4> pitches = {783.99, 1046.50, 1318.51, 1567.98}; // G5 C6 E6 G6
    for (std::size_t i = 0; i < pitches.size(); ++i) {
        const double at = 0.1 * i;
        Note n{.start = at, .length = 1.0 - at, .freq = pitches[i], .partials = kChime};
        n.gain = 0.8 + 0.07 * i;
        n.pan = -0.3 + 0.2 * i;
        n.attack = 0.003;
        n.decay = 4.0;
        n.release = 0.05;
        addNote(s, n);
    }
}

// The game lost: a muted trumpet going "wah, wah, waaah" down a semitone at a
// time, the last note sagging with a tired vibrato.
void loss(Signal& s) {
    struct Step {
        double at, length, freq, glideTo;
    };
    const std::array<Step, 3> steps = {{
        {0.00, 0.22, 392.00, 0},      // G4
        {0.24, 0.22, 369.99, 0},      // F#4
        {0.48, 0.42, 349.23, 311.13}, // F4 sagging to D#4
    }};
    for (const Step& step : steps) {
        Note n{
            .start = step.at, .length = step.length, .freq = step.freq, .partials = brass(9, 1.0)};
        n.attack = 0.025;
        n.decay = 0.6;
        n.release = 0.06;
        n.glideTo = step.glideTo;
        n.wah = 0.9;
        if (step.glideTo > 0) {
            n.vibratoHz = 5.5;
            n.vibratoDepth = 0.012;
        }
        addNote(s, n);
    }
}

// A wrong letter: two soft wooden knocks falling a fourth, low and short.
void wrong(Signal& s) {
    Note n{.start = 0.0, .length = 0.22, .freq = 220.0, .partials = kWood}; // A3
    n.pan = -0.1;
    n.attack = 0.004;
    n.decay = 7.0;
    n.release = 0.04;
    n.pitchDrop = 0.06;
    addNote(s, n);
    n.start = 0.16;
    n.length = 0.37;
    n.freq = 164.81; // E3
    n.pan = 0.1;
    n.decay = 5.0;
    n.release = 0.08;
    addNote(s, n);
}

// The game won: a bright arpeggio up a major chord that lands on the whole
// chord, held with a little vibrato while glassy sparkles fall around it.
void win(Signal& s) {
    const std::array<double, 4> arpeggio = {523.25, 659.26, 783.99, 1046.50}; // C5 E5 G5 C6
    for (std::size_t i = 0; i < arpeggio.size(); ++i) {
        Note n{.start = 0.1 * i, .length = 0.2, .freq = arpeggio[i], .partials = brass(6, 1.5)};
        n.gain = 0.8;
        n.pan = -0.25 + 0.166 * i;
        n.attack = 0.01;
        n.decay = 2.0;
        n.release = 0.05;
        addNote(s, n);
    }
    const double chordAt = 0.42;
    const std::array<double, 5> chord = {261.63, 523.25, 659.26, 783.99, 1046.50};
    for (std::size_t i = 0; i < chord.size(); ++i) {
        Note n{.start = chordAt,
               .length = 1.62 - chordAt,
               .freq = chord[i],
               .partials = brass(6, 1.5)};
        n.gain = i == 0 ? 0.6 : 0.5;
        n.pan = -0.2 + 0.1 * i;
        n.attack = 0.03;
        n.decay = 1.3;
        n.release = 0.25;
        n.vibratoHz = 5.0 + 0.3 * i;
        n.vibratoDepth = 0.004;
        addNote(s, n);
    }
    const std::array<double, 6> sparkles = {2093.0, 2349.3, 2637.0, 3136.0, 3520.0, 4186.0};
    Lcg lcg;
    for (int i = 0; i < 14; ++i) {
        const double at = 0.48 + 0.06 * i + 0.03 * lcg.next();
        const auto pick = static_cast<std::size_t>(lcg.next() * sparkles.size());
        Note n{.start = at, .length = 0.3, .freq = sparkles[pick], .partials = kGlass};
        n.gain = 0.14 - 0.006 * i;
        n.pan = 1.2 * (lcg.next() - 0.5);
        n.attack = 0.002;
        n.decay = 11.0;
        n.release = 0.05;
        addNote(s, n);
    }
}

// A right letter: one bright glassy ding with a faint octave above it.
void right(Signal& s, double length) {
    Note n{.start = 0.0, .length = length, .freq = 1318.51, .partials = kGlass}; // E6
    n.attack = 0.002;
    n.decay = 5.0;
    n.release = 0.06;
    addNote(s, n);
    n.freq = 2637.02;
    n.gain = 0.15;
    n.decay = 14.0;
    n.pan = 0.2;
    addNote(s, n);
}

// Kept in the program but never played; a soft marimba blip all the same.
void blip(Signal& s) {
    Note n{.start = 0.0, .length = 0.896, .freq = 523.25, .partials = kMarimba}; // C5
    n.attack = 0.003;
    n.decay = 6.0;
    n.release = 0.05;
    n.pitchDrop = 0.02;
    addNote(s, n);
}

// ---------------------------------------------------------------------------
// WAVE writing

void put16(std::vector<std::uint8_t>& out, unsigned value) {
    out.push_back(value & 0xFF);
    out.push_back((value >> 8) & 0xFF);
}

void put32(std::vector<std::uint8_t>& out, std::uint32_t value) {
    put16(out, value & 0xFFFF);
    put16(out, value >> 16);
}

void putChunk(std::vector<std::uint8_t>& out, const char* id,
              const std::vector<std::uint8_t>& body) {
    out.insert(out.end(), id, id + 4);
    put32(out, static_cast<std::uint32_t>(body.size()));
    out.insert(out.end(), body.begin(), body.end());
    if (body.size() % 2 != 0) {
        out.push_back(0); // RIFF keeps every chunk on an even offset
    }
}

std::vector<std::uint8_t> riff(const std::vector<std::uint8_t>& chunks) {
    std::vector<std::uint8_t> out = {'R', 'I', 'F', 'F'};
    put32(out, static_cast<std::uint32_t>(chunks.size() + 4));
    out.insert(out.end(), {'W', 'A', 'V', 'E'});
    out.insert(out.end(), chunks.begin(), chunks.end());
    return out;
}

std::vector<std::uint8_t> pcmWave(const std::vector<std::int16_t>& samples, int channels,
                                  int rate) {
    std::vector<std::uint8_t> fmt;
    put16(fmt, 1);
    put16(fmt, channels);
    put32(fmt, rate);
    put32(fmt, rate * channels * 2);
    put16(fmt, channels * 2);
    put16(fmt, 16);
    std::vector<std::uint8_t> data;
    for (std::int16_t sample : samples) {
        put16(data, static_cast<std::uint16_t>(sample));
    }
    std::vector<std::uint8_t> chunks;
    putChunk(chunks, "fmt ", fmt);
    putChunk(chunks, "data", data);
    return riff(chunks);
}

std::vector<std::uint8_t> mpegWave(const std::vector<std::uint8_t>& mp3,
                                   std::uint32_t factSamples) {
    std::vector<std::uint8_t> fmt;
    put16(fmt, 0x0055); // MPEG Layer III
    put16(fmt, 2);
    put32(fmt, kMp3Rate);
    put32(fmt, kMp3Kbps * 1000 / 8);
    put16(fmt, 1);  // block align: frames vary by the padding byte
    put16(fmt, 0);  // bits per sample mean nothing for compressed data
    put16(fmt, 12); // size of what follows
    put16(fmt, 1);  // MPEGLAYER3_ID_MPEG
    put32(fmt, 2);  // padding flags as the player expects them
    put16(fmt, 522);
    put16(fmt, 1);
    put16(fmt, 1393);
    std::vector<std::uint8_t> fact;
    put32(fact, factSamples);
    std::vector<std::uint8_t> chunks;
    putChunk(chunks, "fmt ", fmt);
    putChunk(chunks, "fact", fact);
    putChunk(chunks, "data", mp3);
    return riff(chunks);
}

// ---------------------------------------------------------------------------
// MPEG

// Offsets of the frames of an MPEG-1 Layer III stream at 160 kbit/s and
// 44.1 kHz; throws unless the stream is made of such frames and nothing else.
std::vector<std::size_t> frameOffsets(const std::vector<std::uint8_t>& mp3) {
    std::vector<std::size_t> offsets;
    std::size_t at = 0;
    while (at < mp3.size()) {
        if (at + 4 > mp3.size()) {
            throw std::runtime_error("a cut frame at the end of the stream");
        }
        const std::uint32_t header = (std::uint32_t(mp3[at]) << 24) |
                                     (std::uint32_t(mp3[at + 1]) << 16) |
                                     (std::uint32_t(mp3[at + 2]) << 8) | mp3[at + 3];
        const bool sync = (header >> 21) == 0x7FF;
        const unsigned version = (header >> 19) & 3;
        const unsigned layer = (header >> 17) & 3;
        const unsigned bitrate = (header >> 12) & 15;
        const unsigned rate = (header >> 10) & 3;
        if (!sync || version != 3 || layer != 1 || bitrate != 10 || rate != 0) {
            throw std::runtime_error("not a 160 kbit/s 44.1 kHz Layer III frame at byte " +
                                     std::to_string(at));
        }
        const unsigned padding = (header >> 9) & 1;
        offsets.push_back(at);
        at += 144 * kMp3Kbps * 1000 / kMp3Rate + padding;
    }
    if (at != mp3.size()) {
        throw std::runtime_error("a cut frame at the end of the stream");
    }
    return offsets;
}

// main_data_begin of the frame at `frame`: zero when it needs no bytes of the
// frames before it.
unsigned mainDataBegin(const std::vector<std::uint8_t>& mp3, std::size_t frame) {
    const bool crc = (mp3[frame + 1] & 1) == 0;
    const std::size_t side = frame + 4 + (crc ? 2 : 0);
    return (unsigned(mp3[side]) << 1) | (mp3[side + 1] >> 7);
}

std::vector<std::uint8_t> encodeMp3(const std::vector<std::int16_t>& interleaved, bool reservoir) {
    lame_global_flags* gf = lame_init();
    if (gf == nullptr) {
        throw std::runtime_error("LAME would not start");
    }
    lame_set_num_channels(gf, 2);
    lame_set_in_samplerate(gf, kMp3Rate);
    lame_set_out_samplerate(gf, kMp3Rate);
    lame_set_VBR(gf, vbr_off);
    lame_set_brate(gf, kMp3Kbps);
    lame_set_mode(gf, JOINT_STEREO);
    lame_set_quality(gf, 2);
    lame_set_bWriteVbrTag(gf, 0); // no silent Xing frame in front
    lame_set_write_id3tag_automatic(gf, 0);
    lame_set_disable_reservoir(gf, reservoir ? 0 : 1);
    if (lame_init_params(gf) < 0) {
        lame_close(gf);
        throw std::runtime_error("LAME refused the settings");
    }
    const int frames = static_cast<int>(interleaved.size() / 2);
    // LAME's own bound for the buffer, and as much again for the flush.
    std::vector<std::uint8_t> out(2 * (frames * 5 / 4 + 7200));
    std::vector<std::int16_t> pcm = interleaved; // LAME takes it non-const
    int written = lame_encode_buffer_interleaved(gf, pcm.data(), frames, out.data(),
                                                 static_cast<int>(out.size()));
    if (written < 0) {
        lame_close(gf);
        throw std::runtime_error("LAME failed to encode");
    }
    const int flushed =
        lame_encode_flush(gf, out.data() + written, static_cast<int>(out.size()) - written);
    lame_close(gf);
    if (flushed < 0) {
        throw std::runtime_error("LAME failed to flush");
    }
    out.resize(written + flushed);
    return out;
}

struct Mp3Result {
    std::vector<std::uint8_t> data;
    std::size_t frames;
};

// Encodes `sound` (stereo, 44.1 kHz) into exactly `wantedFrames` frames.
//
// LAME starts every stream on the same padding phase, so the bytes that a
// number of frames takes are fixed from the start; when that phase gives one
// padded frame too many, `skipFrames` frames of silence go in front and are
// cut off again. With the bit reservoir off, every frame decodes on its own,
// so the cut loses nothing but silence.
Mp3Result encodeFrames(const Signal& sound, std::size_t wantedFrames, std::size_t skipFrames) {
    const std::size_t lead = skipFrames * kMp3FrameSamples;
    const bool reservoir = skipFrames == 0;
    auto framesFor = [&](std::size_t samples) {
        return frameOffsets(encodeMp3(std::vector<std::int16_t>(samples * 2, 0), reservoir)).size();
    };
    // Frames grow with the input, so find the longest input that still fits,
    // and let the sound ring on in silence up to it.
    std::size_t low = lead + sound.frames();
    std::size_t high = (wantedFrames + skipFrames + 1) * kMp3FrameSamples;
    if (framesFor(low) > wantedFrames + skipFrames) {
        throw std::runtime_error("the sound is too long for its frames");
    }
    while (high - low > 1) {
        const std::size_t mid = (low + high) / 2;
        (framesFor(mid) <= wantedFrames + skipFrames ? low : high) = mid;
    }
    Signal padded(sound.rate, low);
    std::copy(sound.left.begin(), sound.left.end(), padded.left.begin() + lead);
    std::copy(sound.right.begin(), sound.right.end(), padded.right.begin() + lead);
    std::vector<std::uint8_t> mp3 = encodeMp3(interleave(padded, 2), reservoir);
    const std::vector<std::size_t> offsets = frameOffsets(mp3);
    if (offsets.size() != wantedFrames + skipFrames) {
        throw std::runtime_error("LAME gave " + std::to_string(offsets.size()) + " frames");
    }
    if (skipFrames > 0) {
        if (mainDataBegin(mp3, offsets[skipFrames]) != 0) {
            throw std::runtime_error("the first kept frame leans on the cut ones");
        }
        mp3.erase(mp3.begin(), mp3.begin() + offsets[skipFrames]);
    }
    return {mp3, wantedFrames};
}

// ---------------------------------------------------------------------------

struct Target {
    const char* name;
    std::size_t fileSize;
    std::size_t dataSize;
};

void report(const Target& target, const std::vector<std::uint8_t>& file, std::size_t dataSize,
            const std::string& extra) {
    std::printf("%s  %7zu bytes (target %7zu)  data %7zu (target %7zu)%s\n", target.name,
                file.size(), target.fileSize, dataSize, target.dataSize, extra.c_str());
}

void save(const std::filesystem::path& dir, const char* name,
          const std::vector<std::uint8_t>& bytes) {
    std::ofstream out(dir / name, std::ios::binary | std::ios::trunc);
    out.write(reinterpret_cast<const char*>(bytes.data()),
              static_cast<std::streamsize>(bytes.size()));
    if (!out) {
        throw std::runtime_error(std::string("cannot write ") + (dir / name).string());
    }
}

using Design = void (*)(Signal&);

void makePcm(const std::filesystem::path& dir, const Target& target, int channels, int rate,
             double cutoff, Design design) {
    const std::size_t frames = target.dataSize / (2 * channels);
    Signal signal(rate, frames);
    design(signal);
    finish(signal, cutoff, frames);
    const std::vector<std::uint8_t> file = pcmWave(interleave(signal, channels), channels, rate);
    save(dir, target.name, file);
    report(target, file, frames * 2 * channels, "");
}

void makeMpeg(const std::filesystem::path& dir, const Target& target, const Signal& sound,
              std::size_t frames, std::size_t skip, std::uint32_t fact) {
    const Mp3Result mp3 = encodeFrames(sound, frames, skip);
    const std::vector<std::uint8_t> file = mpegWave(mp3.data, fact);
    save(dir, target.name, file);
    report(target, file, mp3.data.size(), "  " + std::to_string(mp3.frames) + " frames");
}

Signal designed(double seconds, double cutoff, Design design) {
    const auto frames = static_cast<std::size_t>(std::lround(seconds * kMp3Rate));
    Signal signal(kMp3Rate, frames);
    design(signal);
    finish(signal, cutoff, frames);
    return signal;
}

} // namespace

int main(int argc, char** argv) {
    if (argc != 2) {
        std::fprintf(stderr, "usage: %s OUTPUT_DIR\n", argv[0]);
        return 2;
    }
    try {
        const std::filesystem::path dir = argv[1];
        std::filesystem::create_directories(dir);
        std::printf("LAME %s\n", get_lame_version());

        makeMpeg(dir, {"101.wav", 26716, 26645}, designed(1.0, 6000, warning), 51, 0, 44100);
        makeMpeg(dir, {"102.wav", 23060, 22988}, designed(1.0, 9000, newPhrase), 44, 0, 44100);
        makePcm(dir, {"103.wav", 159276, 159232}, 2, 44100, 5000, loss);
        makePcm(dir, {"104.wav", 94252, 94208}, 2, 44100, 3000, wrong);
        makePcm(dir, {"105.wav", 285228, 285184}, 2, 44100, 10000, win);
        // The ding fills the 30 frames but for the encoder's delay at the front.
        makeMpeg(dir, {"106.wav", 15744, 15673},
                 designed(0.72, 12000, [](Signal& s) { right(s, 0.72); }), 30, 2, 0);
        makePcm(dir, {"107.wav", 28716, 28672}, 1, 16000, 5000, blip);
    } catch (const std::exception& error) {
        std::fprintf(stderr, "soundmaker: %s\n", error.what());
        return 1;
    }
    return 0;
}
