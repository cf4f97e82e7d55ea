// SPDX-FileCopyrightText: 2026 The Quillora Vesta developers
// SPDX-License-Identifier: GPL-3.0-or-later
#include "look/Picture.h"

#include "support/TempFolder.h"

#include <gtest/gtest.h>

#include <sys/stat.h>

#include <cstdint>
#include <filesystem>
#include <fstream>
#include <string>
#include <vector>

namespace quillora {
namespace {

namespace fs = std::filesystem;
using Bytes = std::vector<std::uint8_t>;

Bytes operator+(Bytes a, const Bytes& b) {
    a.insert(a.end(), b.begin(), b.end());
    return a;
}

// The pieces of a JPEG as the decoder walks them; the contents of the
// segments do not matter to a walk, only their lengths.
const Bytes kStart{0xFF, 0xD8};
const Bytes kEnd{0xFF, 0xD9};
Bytes segment(std::uint8_t marker, const Bytes& body) {
    const auto length = static_cast<int>(body.size() + 2);
    return Bytes{0xFF, marker, static_cast<std::uint8_t>(length >> 8),
                 static_cast<std::uint8_t>(length & 0xFF)} +
           body;
}
const Bytes kApp0 = segment(0xE0, Bytes{'J', 'F', 'I', 'F', 0, 1, 1, 0, 0, 1, 0, 1, 0, 0});
const Bytes kTables = segment(0xDB, Bytes(65, 7)) + segment(0xC4, Bytes(30, 3));
const Bytes kScanHeader = segment(0xDA, Bytes{1, 1, 0, 0, 63, 0});
// Compressed data with a stuffed 0xFF and restart markers, which are no end.
const Bytes kScanData{0x12, 0xFF, 0x00, 0x34, 0xFF, 0xD0, 0x56, 0xFF, 0xD7, 0x78, 0x9A};
const Bytes kWholeJpeg = kStart + kApp0 + kTables + kScanHeader + kScanData + kEnd;

// A picture of 4 by 2 in 24 bits: rows of 12 bytes after a 54-byte header.
Bytes bmp(std::int32_t height, std::uint32_t compression, std::size_t pixelBytes) {
    auto le = [](std::uint32_t v, int n) {
        Bytes out;
        for (int i = 0; i < n; ++i) {
            out.push_back(static_cast<std::uint8_t>(v >> (8 * i)));
        }
        return out;
    };
    const Bytes header = Bytes{'B', 'M'} + le(54 + 24, 4) + le(0, 4) + le(54, 4) + le(40, 4) +
                         le(4, 4) + le(static_cast<std::uint32_t>(height), 4) + le(1, 2) +
                         le(24, 2) + le(compression, 4) + Bytes(20, 0);
    return header + Bytes(pixelBytes, 0x80);
}

Bytes cut(const Bytes& bytes, std::size_t keep) {
    return Bytes(bytes.begin(), bytes.begin() + static_cast<std::ptrdiff_t>(keep));
}

TEST(PictureFile, ACutFileIsNoPicture) {
    struct FileCase {
        const char* name;
        Bytes bytes;
        bool whole;
    };
    const std::vector<FileCase> cases{
        {"whole JPEG", kWholeJpeg, true},
        {"JPEG with padding after its end", kWholeJpeg + Bytes(40, 0), true},
        {"JPEG cut in its data", cut(kWholeJpeg, kWholeJpeg.size() - 4), false},
        {"JPEG cut after its last byte of data", cut(kWholeJpeg, kWholeJpeg.size() - 2), false},
        {"JPEG cut in a header", cut(kStart + kApp0, 9), false},
        {"JPEG cut on a stuffed byte", kStart + kScanHeader + Bytes{0x12, 0xFF}, false},
        // An embedded thumbnail carries an end marker of its own.
        {"JPEG cut after its thumbnail",
         kStart + segment(0xE1, kStart + Bytes{1, 2, 3} + kEnd) + kScanHeader + kScanData, false},
        // A progressive picture has several scans with tables between them.
        {"progressive JPEG",
         kStart + kTables + kScanHeader + kScanData + segment(0xC4, Bytes(20, 1)) + kScanHeader +
             kScanData + kScanHeader + kScanData + kEnd,
         true},
        {"progressive JPEG cut in its second scan",
         kStart + kTables + kScanHeader + kScanData + kScanHeader + Bytes{0x11, 0x22}, false},
        {"JPEG start followed by noise", kStart + Bytes{0x01, 0x02, 0x03}, false},
        {"whole BMP", bmp(2, 0, 24), true},
        {"top-down BMP", bmp(-2, 0, 24), true},
        {"cut BMP", bmp(2, 0, 16), false},
        {"BMP cut in its header", cut(bmp(2, 0, 24), 20), false},
        // Compressed rows have no length to check: the decoder judges them.
        {"run-length BMP", bmp(2, 1, 6), true},
        {"other formats are left to the decoder", Bytes{0x89, 'P', 'N', 'G', 0x0D, 0x0A}, true},
        {"empty file", Bytes{}, true}};
    TempFolder temp("quillora-picture");
    const fs::path path = temp.path() / "foto";
    for (const FileCase& c : cases) {
        std::ofstream(path, std::ios::binary | std::ios::trunc)
            .write(reinterpret_cast<const char*>(c.bytes.data()),
                   static_cast<std::streamsize>(c.bytes.size()));
        EXPECT_EQ(pictureFileWhole(path), c.whole) << c.name;
    }
}

TEST(PictureFile, OnlyARegularFileIsOpened) {
    TempFolder temp("quillora-picture");
    const fs::path whole = temp.path() / "foto.jpg";
    std::ofstream(whole, std::ios::binary)
        .write(reinterpret_cast<const char*>(kWholeJpeg.data()),
               static_cast<std::streamsize>(kWholeJpeg.size()));
    EXPECT_TRUE(pictureFileWhole(whole));

    fs::create_symlink(whole, temp.path() / "enlace.jpg");
    EXPECT_TRUE(pictureFileWhole(temp.path() / "enlace.jpg")) << "a link is followed";
    fs::create_symlink(temp.path() / "no-existe.jpg", temp.path() / "roto.jpg");
    EXPECT_FALSE(pictureFileWhole(temp.path() / "roto.jpg"));
    EXPECT_FALSE(pictureFileWhole(temp.path() / "no-existe.jpg"));
    fs::create_directory(temp.path() / "carpeta.jpg");
    EXPECT_FALSE(pictureFileWhole(temp.path() / "carpeta.jpg"));
    // Opening a pipe to read waits for a writer that never comes.
    const fs::path pipe = temp.path() / "tubo.jpg";
    ASSERT_EQ(::mkfifo(pipe.c_str(), 0600), 0);
    EXPECT_FALSE(pictureFileWhole(pipe));
    fs::create_symlink("/dev/zero", temp.path() / "ceros.jpg");
    EXPECT_FALSE(pictureFileWhole(temp.path() / "ceros.jpg"));
}

} // namespace
} // namespace quillora
