// SPDX-FileCopyrightText: 2026 The Quillora Vesta developers
// SPDX-License-Identifier: GPL-3.0-or-later
#include "look/Picture.h"

#include <algorithm>
#include <array>
#include <cctype>
#include <cstdint>
#include <cstdlib>
#include <fstream>
#include <string>
#include <system_error>

namespace quillora {

bool isPictureName(std::string_view path) {
    constexpr std::array<std::string_view, 5> kEndings{".jpg", ".jpeg", ".gif", ".bmp", ".png"};
    std::string lower(path);
    std::transform(lower.begin(), lower.end(), lower.begin(),
                   [](unsigned char c) { return static_cast<char>(std::tolower(c)); });
    return std::any_of(kEndings.begin(), kEndings.end(), [&](std::string_view ending) {
        return lower.size() > ending.size() && lower.ends_with(ending) &&
               lower[lower.size() - ending.size() - 1] != '/';
    });
}

namespace {

constexpr int kEnd = std::char_traits<char>::eof();

// Reads bytes from the file's buffer; every read past the end gives kEnd.
class ByteReader {
public:
    explicit ByteReader(std::ifstream& in) : m_buffer(*in.rdbuf()) {}
    int next() { return m_buffer.sbumpc(); }
    // Skips n bytes; false when the file ends first.
    bool skip(std::uint32_t n) {
        const auto moved = m_buffer.pubseekoff(static_cast<std::streamoff>(n), std::ios::cur);
        return moved != std::streampos(-1) && m_buffer.sgetc() != kEnd;
    }
    std::uint32_t littleEndian(int bytes) {
        std::uint32_t value = 0;
        for (int i = 0; i < bytes; ++i) {
            const int b = next();
            if (b == kEnd) {
                m_short = true;
                return 0;
            }
            value |= static_cast<std::uint32_t>(b) << (8 * i);
        }
        return value;
    }
    bool ranShort() const { return m_short; }

private:
    std::streambuf& m_buffer;
    bool m_short = false;
};

// Markers that stand alone, without a length: the restart markers, the
// start of the image and the temporary marker.
bool standalone(int marker) {
    return (marker >= 0xD0 && marker <= 0xD8) || marker == 0x01;
}

// Walks the segments of a JPEG from just after its start marker. The
// compressed data of a scan runs until a marker that is neither a stuffed
// 0xFF nor a restart; a file that ends before its end-of-image marker was cut.
bool jpegReachesItsEnd(ByteReader& in) {
    for (;;) {
        int b = in.next();
        if (b != 0xFF) {
            return false;
        }
        while (b == 0xFF) {
            b = in.next();
        }
        if (b == kEnd) {
            return false;
        }
        const int marker = b;
        if (marker == 0xD9) {
            return true;
        }
        if (standalone(marker)) {
            continue;
        }
        const int high = in.next();
        const int low = in.next();
        if (high == kEnd || low == kEnd) {
            return false;
        }
        const int length = high * 256 + low;
        if (length < 2 || (length > 2 && !in.skip(static_cast<std::uint32_t>(length - 2)))) {
            return false;
        }
        if (marker != 0xDA) {
            continue;
        }
        // Entropy-coded data: look for the next real marker and step back
        // onto its 0xFF, so the loop above reads it.
        for (;;) {
            b = in.next();
            if (b == kEnd) {
                return false;
            }
            if (b != 0xFF) {
                continue;
            }
            int after = in.next();
            while (after == 0xFF) {
                after = in.next();
            }
            if (after == kEnd) {
                return false;
            }
            if (after == 0x00 || standalone(after)) {
                continue;
            }
            if (after == 0xD9) {
                return true;
            }
            // Another segment follows the scan (a progressive picture has
            // several scans): read its length and go on from there.
            const int h = in.next();
            const int l = in.next();
            if (h == kEnd || l == kEnd) {
                return false;
            }
            const int segment = h * 256 + l;
            if (segment < 2 || (segment > 2 && !in.skip(static_cast<std::uint32_t>(segment - 2)))) {
                return false;
            }
            if (after != 0xDA) {
                break;
            }
        }
    }
}

// An uncompressed BMP holds its rows whole: the header says where they start
// and how long they are. Compressed ones have no such count and are left to
// the decoder.
bool bmpHoldsItsRows(ByteReader& in, std::uintmax_t fileSize) {
    constexpr std::uint32_t kInfoHeader = 40;
    constexpr std::uint32_t kUncompressed = 0, kBitFields = 3;
    in.littleEndian(4); // the file size, which writers do not always fill in
    in.littleEndian(4); // reserved
    const std::uint32_t pixelsAt = in.littleEndian(4);
    const std::uint32_t headerSize = in.littleEndian(4);
    if (in.ranShort()) {
        return false;
    }
    if (headerSize < kInfoHeader) {
        return true;
    }
    const auto width = static_cast<std::int32_t>(in.littleEndian(4));
    const auto height = static_cast<std::int32_t>(in.littleEndian(4));
    in.littleEndian(2); // planes
    const std::uint32_t bitsPerPixel = in.littleEndian(2);
    const std::uint32_t compression = in.littleEndian(4);
    if (in.ranShort()) {
        return false;
    }
    if ((compression != kUncompressed && compression != kBitFields) || width <= 0) {
        return true;
    }
    const std::uintmax_t rowBytes =
        (static_cast<std::uintmax_t>(width) * bitsPerPixel + 31) / 32 * 4;
    const std::uintmax_t rows = static_cast<std::uintmax_t>(std::llabs(height));
    return fileSize >= pixelsAt + rowBytes * rows;
}

} // namespace

bool pictureFileWhole(const std::filesystem::path& path) {
    std::error_code error;
    if (!std::filesystem::is_regular_file(path, error)) {
        return false;
    }
    const std::uintmax_t size = std::filesystem::file_size(path, error);
    if (error) {
        return false;
    }
    std::ifstream file(path, std::ios::binary);
    if (!file) {
        return false;
    }
    ByteReader in(file);
    const int first = in.next();
    const int second = in.next();
    if (first == 0xFF && second == 0xD8) {
        return jpegReachesItsEnd(in);
    }
    if (first == 'B' && second == 'M') {
        return bmpHoldsItsRows(in, size);
    }
    return true;
}

} // namespace quillora
