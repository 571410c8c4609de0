// Golden frames are kept as text: a line for each row, runs of one colour as RRGGBB*LENGTH, "=" for a row
// like the one above it.
#include <cstdlib>
#include <fstream>
#include <iomanip>
#include <sstream>

#include "art/picture_files.h"
#include "platform/frame.h"
#include "tests/support/game_test.h"

namespace gloomdeck {

namespace {

std::string rowText(int y) {
    std::ostringstream text;
    for (int x = 0, end = 0; x < frameWidth; x = end) {
        while (end < frameWidth && pixelAt(end, y) == pixelAt(x, y)) ++end;
        text << std::hex << std::setw(6) << std::setfill('0') << (pixelAt(x, y) & 0xFFFFFF) << std::dec << '*'
             << end - x << ' ';
    }
    return text.str();
}

std::string frameText() {
    std::string text;
    std::string above;
    for (int y = 0; y < frameHeight; ++y) {
        const std::string row = rowText(y);
        text += row == above ? "=\n" : row + "\n";
        above = row;
    }
    return text;
}

std::string contentsOf(const std::string& path) {
    std::ostringstream contents;
    contents << std::ifstream(path).rdbuf();
    return contents.str();
}

void writePicture(const std::string& path) {
    art::Canvas picture(frameWidth, frameHeight);
    for (int y = 0; y < frameHeight; ++y)
        for (int x = 0; x < frameWidth; ++x) picture.set(x, y, pixelAt(x, y) & 0xFFFFFF);
    std::ofstream(path, std::ios::binary) << art::bitmapFile(picture);
}

}  // namespace

void expectGoldenFrame(const std::string& name) {
    const std::string base = std::string(GLOOMDECK_GOLDEN_FOLDER) + "/" + name;
    const std::string now = frameText();
    if (std::getenv("GLOOMDECK_REFRESH_GOLDEN")) std::ofstream(base + ".txt") << now;
    const std::string kept = contentsOf(base + ".txt");
    if (kept == now) return;
    const auto differs = std::mismatch(now.begin(), now.end(), kept.begin(), kept.end()).first;
    std::ofstream(base + ".actual.txt") << now;
    writePicture(base + ".actual.bmp");
    ADD_FAILURE() << name << " is not as kept from row " << std::count(now.begin(), differs, '\n')
                  << " on: see " << base << ".actual.bmp";
}

}  // namespace gloomdeck
