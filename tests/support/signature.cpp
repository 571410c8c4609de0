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

namespace gloomdeck {
namespace {

// Whole seconds of so many have fractions of the same precision, so that no step's times depend on those before it.
constexpr double clockStart = 1 << 16;
constexpr std::size_t mostFaultsTold = 40;  // each with a picture
const std::string signatureFile = GLOOMDECK_SIGNATURE_FILE;
const std::string pictureFolder = GLOOMDECK_SIGNATURE_FOLDER;

struct Recorder {
    Film film;
    Film kept;  // of the last play that was as kept
    std::vector<SignatureStep> steps;
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

std::string textOf(const SignatureStep& step) {
    std::ostringstream text;
    text << step.name << ':' << std::hex;
    for (const Shot& shot : step.shots)
        text << ' ' << shot.picture << '@' << std::dec << shot.milliseconds << std::hex;
    return text.str();
}

SignatureStep stepOf(const std::string& line) {
    const std::size_t colon = line.find(':');
    SignatureStep step{.name = line.substr(0, colon), .shots = {}};
    std::istringstream rest(colon == std::string::npos ? "" : line.substr(colon + 1));
    Shot shot{};
    for (char at = 0; rest >> std::hex >> shot.picture >> at >> std::dec >> shot.milliseconds;)
        step.shots.push_back(shot);
    return step;
}

std::vector<SignatureStep> keptSteps() {
    std::vector<SignatureStep> steps;
    std::ifstream file(signatureFile);
    for (std::string line; std::getline(file, line);) steps.push_back(stepOf(line));
    return steps;
}

void writeSignature() {
    std::ofstream file(signatureFile);
    for (const SignatureStep& step : recorder.steps) file << textOf(step) << '\n';
}

Colour colourAt(const std::vector<Colour>& pixels, int x, int y) {
    return pixels.empty() ? 0 : pixels[static_cast<std::size_t>(y * frameWidth + x)] & 0xFFFFFF;
}

// Expected, drawn, and where they differ, side by side; an expected one that is not to be had is black.
std::string writePictures(const std::string& name, Hash expected, Hash drawn) {
    const std::vector<Colour> before = pictureOf(recorder.kept, expected);
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
std::string difference(const SignatureStep& kept, const SignatureStep& now) {
    const auto differs =
        std::mismatch(kept.shots.begin(), kept.shots.end(), now.shots.begin(), now.shots.end());
    if (differs.first == kept.shots.end() && differs.second == now.shots.end()) return {};
    const std::string pause = "pause " + std::to_string(differs.first - kept.shots.begin() + 1);
    if (differs.first == kept.shots.end()) return pause + " was not there";
    if (differs.second == now.shots.end()) return pause + " is missing";
    if (differs.first->picture == differs.second->picture)
        return pause + " stood " + std::to_string(differs.second->milliseconds) + " ms, not " +
               std::to_string(differs.first->milliseconds);
    return pause + " has another picture: " +
           writePictures(now.name, differs.first->picture, differs.second->picture);
}

std::vector<std::string> differences() {
    std::map<std::string, SignatureStep> kept;
    for (const SignatureStep& step : keptSteps()) kept[step.name] = step;
    std::vector<std::string> found;
    for (const SignatureStep& step : recorder.steps) {
        if (found.size() == mostFaultsTold) break;
        const auto before = kept.extract(step.name);
        const std::string fault = before ? difference(before.mapped(), step) : "is new, or there twice";
        if (!fault.empty()) found.push_back(step.name + ": " + fault);
    }
    if (found.size() < mostFaultsTold)
        for (const auto& [name, step] : kept) found.push_back(name + ": is gone");
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
    recorder = {
        .film = {}, .kept = loadFilm(pictureFolder + "/film"), .steps = {{.name = "start", .shots = {}}}};
    script::advanceClock(clockStart - timer());
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
    std::filesystem::create_directories(pictureFolder);
    const std::vector<std::string> found = differences();
    if (std::getenv("GLOOMDECK_REFRESH_SIGNATURE")) {
        writeSignature();
        for (const std::string& fault : found) std::printf("%s\n", fault.c_str());
    } else {
        for (const std::string& fault : found) ADD_FAILURE() << fault;
        if (!found.empty()) return;
    }
    saveFilm(recorder.film, pictureFolder + "/film");
}

}  // namespace gloomdeck
