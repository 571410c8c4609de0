#include "tests/support/film.h"

#include <algorithm>
#include <cstring>
#include <fstream>

#include "platform/frame.h"

namespace gloomdeck {
namespace {

constexpr std::size_t rowLength = frameWidth;
constexpr std::size_t frameSize = rowLength * frameHeight;

// FNV-1a, a word at a time.
template <typename Word>
std::uint64_t hashOf(const Word* words, std::size_t count) {
    std::uint64_t hash = 0xCBF29CE484222325U;
    for (std::size_t i = 0; i < count; ++i) hash = (hash ^ words[i]) * 0x100000001B3U;
    return hash ^ hash >> 32;
}

void addRuns(Film& film, const Colour* row, std::size_t from) {
    for (std::size_t at = 0, end = 0; at < rowLength; at = std::max(end, at + 1)) {
        if (row[at] == film.last[from + at]) continue;
        end = at;
        while (end < rowLength && row[end] == row[at] && row[end] != film.last[from + end]) ++end;
        film.runs.push_back(
            {static_cast<std::uint32_t>(from + at), static_cast<std::uint32_t>(end - at), row[at]});
    }
}

}  // namespace

Hash shoot(Film& film, const Image& frame) {
    film.last.resize(frameSize);
    film.rowHashes.resize(frameHeight);
    for (std::size_t y = 0; y < frameHeight; ++y) {
        const Colour* const row = frame.pixels.data() + y * rowLength;
        if (std::memcmp(row, &film.last[y * rowLength], rowLength * sizeof(Colour)) == 0) continue;
        addRuns(film, row, y * rowLength);
        std::copy_n(row, rowLength, &film.last[y * rowLength]);
        film.rowHashes[y] = hashOf(row, rowLength);
    }
    const auto hash = static_cast<Hash>(hashOf(film.rowHashes.data(), film.rowHashes.size()));
    film.runs.push_back({0, 0, hash});
    return hash;
}

std::vector<Colour> pictureOf(const Film& film, Hash hash) {
    std::vector<Colour> pixels(frameSize, 0);
    for (const Film::Run& run : film.runs) {
        if (run.length == 0 && run.colour == hash) return pixels;
        if (run.length > frameSize || run.at > frameSize - run.length) return {};  // no film of this size
        std::fill_n(pixels.begin() + run.at, run.length, run.colour);
    }
    return {};
}

void saveFilm(const Film& film, const std::string& path) {
    std::ofstream(path, std::ios::binary)
        .write(reinterpret_cast<const char*>(film.runs.data()),
               static_cast<std::streamsize>(film.runs.size() * sizeof(Film::Run)));
}

Film loadFilm(const std::string& path) {
    Film film;
    std::ifstream file(path, std::ios::binary);
    for (Film::Run run{}; file.read(reinterpret_cast<char*>(&run), sizeof run);) film.runs.push_back(run);
    return film;
}

}  // namespace gloomdeck
