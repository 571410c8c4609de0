#include "tests/support/signature.h"

#include <cmath>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <map>
#include <sstream>

#include "art/picture_files.h"
#include "platform/clock.h"
#include "platform/frame.h"
#include "tests/support/film.h"

namespace gloomdeck {
namespace {

// Whole seconds of so many have fractions of the same precision, so that no step's times depend on those
// before it.
constexpr double clockStart = 1 << 16;
constexpr std::size_t mostFaultsTold = 40;  // each with a picture
const std::string signatureFile = GLOOMDECK_SIGNATURE_FILE;
const std::string pictureFolder = GLOOMDECK_SIGNATURE_FOLDER;
const std::string filmFile = pictureFolder + "/film";  // of the last play that was as kept

/// A picture and the milliseconds that it stood.
struct Shot {
    Hash picture;
    long milliseconds;
};

struct Step {
    std::string name;
    std::vector<Shot> shots;
};

struct Recorder {
    Film film;
    std::vector<Step> steps;
    double lastNoted = 0;
};
Recorder recorder;

// The time since the last note was that of the picture noted then.
void note() {
    const double now = timer();
    std::vector<Shot>& shots = recorder.steps.back().shots;
    if (!shots.empty()) shots.back().milliseconds += std::lround((now - recorder.lastNoted) * 1000.0);
    recorder.lastNoted = now;
    const Hash picture = shoot(recorder.film, screen());
    if (shots.empty() || shots.back().picture != picture) shots.push_back({picture, 0});
}

// As the file has them after the name: " picture@milliseconds" each.
std::string textOf(const std::vector<Shot>& shots) {
    std::ostringstream text;
    for (const Shot& shot : shots)
        text << ' ' << std::hex << shot.picture << '@' << std::dec << shot.milliseconds;
    return text.str();
}

std::map<std::string, std::string> keptSteps() {
    std::map<std::string, std::string> steps;
    std::ifstream file(signatureFile);
    for (std::string name, shots; std::getline(file, name, ':') && std::getline(file, shots);)
        steps[name] = shots;
    return steps;
}

void writeSignature() {
    std::ofstream file(signatureFile);
    for (const Step& step : recorder.steps) file << step.name << ':' << textOf(step.shots) << '\n';
}

// Those of an earlier play.
void forgetPictures() {
    std::filesystem::create_directories(pictureFolder);
    for (const auto& entry : std::filesystem::directory_iterator(pictureFolder))
        if (entry.path().extension() == ".bmp") std::filesystem::remove(entry);
}

Colour colourAt(const std::vector<Colour>& pixels, int x, int y) {
    const int place = y * frameWidth + x;
    return pixels.empty() ? 0 : pixels[static_cast<std::size_t>(place)] & 0xFFFFFF;
}

// Expected, drawn, and where they differ, side by side; an expected one that is not to be had is black.
std::string writePictures(const std::string& name, Hash expected, Hash drawn) {
    const std::vector<Colour> before = pictureOf(loadFilm(filmFile), expected);
    const std::vector<Colour> now = pictureOf(recorder.film, drawn);
    art::Canvas picture(3 * frameWidth, frameHeight);
    for (int y = 0; y < frameHeight; ++y)
        for (int x = 0; x < frameWidth; ++x) {
            const Colour a = colourAt(before, x, y);
            const Colour b = colourAt(now, x, y);
            picture.set(x, y, a);
            picture.set(frameWidth + x, y, b);
            picture.set(2 * frameWidth + x, y, a == b ? 0 : 0xFFFFFF);
        }
    std::string path = pictureFolder + "/" + name + ".bmp";
    std::ofstream(path, std::ios::binary) << art::bitmapFile(picture);
    return path +
           (before.empty() ? " (without the expected one: no play as kept was filmed in this build)" : "");
}

// What differs first in a step; empty where nothing does.
std::string difference(const std::string& name, const std::string& keptShots, const std::string& shots) {
    std::istringstream kept(keptShots);
    std::istringstream drawn(shots);
    for (int number = 1;; ++number) {
        std::string before;
        std::string now;
        kept >> before;
        drawn >> now;
        if (before.empty() && now.empty()) return {};
        const std::string pause = "pause " + std::to_string(number);
        if (before.empty() || now.empty()) return pause + (now.empty() ? " is missing" : " was not there");
        const std::size_t at = now.find('@');
        if (before.substr(0, before.find('@')) != now.substr(0, at))
            return pause + " has another picture: " +
                   writePictures(name, static_cast<Hash>(std::stoul(before, nullptr, 16)),
                                 static_cast<Hash>(std::stoul(now, nullptr, 16)));
        if (before != now)
            return pause + " stood " + now.substr(at + 1) + " ms, not " + before.substr(at + 1);
    }
}

std::vector<std::string> differences() {
    std::map<std::string, std::string> kept = keptSteps();
    std::vector<std::string> found;
    for (const auto& [name, shots] : recorder.steps) {
        if (found.size() == mostFaultsTold) return found;
        const auto before = kept.extract(name);
        const std::string fault =
            before ? difference(name, before.mapped(), textOf(shots)) : "is new, or there twice";
        if (!fault.empty()) found.emplace_back(name).append(": ").append(fault);
    }
    for (const auto& [name, shots] : kept) found.push_back(name + ": is gone");
    return found;
}

}  // namespace

StagedPlay& StagedPlay::step(const std::string& name) {
    check([=] {
        script::advanceClock(std::ceil(timer()) - timer());
        recorder.steps.push_back({.name = name, .shots = {}});
        std::uint64_t seed = 0;
        for (const char character : name) seed = seed * 31 + static_cast<unsigned char>(character);
        seedRolls(seed);
    });
    return *this;
}

void SignatureTest::expectSignature(StagedPlay& play) {
    script::advanceClock(clockStart - timer());
    recorder = {.film = {}, .steps = {{.name = "start", .shots = {}}}};
    seedRolls(1);
    for (Script::Step& step : play.steps)
        step = [step](InputQueue& queue) {
            note();
            step(queue);
        };
    script::feedWhenPausing([](InputQueue& queue) {
        if (queue.paused) note();
        return true;
    });
    EXPECT_EQ(run(play.closeWindow()), 0);
    forgetPictures();
    const bool refresh = std::getenv("GLOOMDECK_REFRESH_SIGNATURE") != nullptr;
    const std::vector<std::string> found = differences();
    for (const std::string& fault : found) {
        if (!refresh)
            ADD_FAILURE() << fault;
        else
            std::printf("%s\n", fault.c_str());
    }
    if (refresh) writeSignature();
    if (refresh || found.empty()) saveFilm(recorder.film, filmFile);
}

}  // namespace gloomdeck
