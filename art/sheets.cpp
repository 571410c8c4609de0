// Contact sheets are laid out on canvases of their own; the panel shows wherever nothing lies.
#include "art/sheets.h"

#include "art/eyesight.h"
#include "art/painter.h"
#include "art/tiles.h"
#include "art/title.h"

namespace gloomdeck::art {
namespace {

constexpr int size = 32;
constexpr int terrains[] = {55, 60, 37, 71};
constexpr Colour (*views[])(Colour) = {grey, deuteranopia, protanopia};
constexpr int encounters[] = {3, 69, 93, 65, 50, 49, 1,  91, 100, 46, 17, 22,
                              5, 42, 82, 35, 18, 41, 21, 14, 28,  19, 34, 6};
constexpr int iconsOnGrounds[] = {48, 45, 75, 74, 68,  24,  13,  23,  7,   39,
                                  16, 29, 30, 27, 105, 106, 103, 101, 102, 104};

Canvas ground(int w, int h, Colour c = panelGround) {
    Canvas t(w, h);
    return t.fill(everywhere(), c);
}

Canvas enlarged(const Canvas& picture, int k) {
    Canvas t(picture.width() * k, picture.height() * k);
    for (int y = 0; y < t.height(); ++y) {
        for (int x = 0; x < t.width(); ++x) t.set(x, y, picture.colour(x / k, y / k));
    }
    return t;
}

Canvas stacked(const std::vector<Canvas>& pictures) {
    int w = 0, h = 0;
    for (const Canvas& p : pictures) w = std::max(w, p.width()), h += p.height();
    Canvas t = ground(w, h);
    int y = 0;
    for (const Canvas& p : pictures) {
        t.lay(p, 0, y);
        y += p.height();
    }
    return t;
}

// Tiles side by side, each over the same ground.
Canvas row(std::span<const int> numbers, const Canvas& below) {
    Canvas t(static_cast<int>(numbers.size()) * size, size);
    int x = 0;
    for (const int number : numbers) {
        t.lay(below, x, 0).lay(paintTile(number), x, 0);
        x += size;
    }
    return t;
}

Canvas everyTile(int k) {
    constexpr int perRow = 9, pitch = size + 4;
    const std::vector<Tile> all = allTiles();
    const int n = static_cast<int>(all.size());
    Canvas t = ground(perRow * pitch, (n + perRow - 1) / perRow * pitch);
    for (int i = 0; i < n; ++i) {
        t.lay(all[static_cast<std::size_t>(i)].paint(), i % perRow * pitch + 2, i / perRow * pitch + 2);
    }
    return enlarged(t, k);
}

// On every ground, then the first ground in grey and without green or red cones.
Canvas onEveryGround(std::span<const int> numbers, const std::vector<Canvas>& grounds, int k) {
    std::vector<Canvas> lines;
    lines.reserve(grounds.size() + std::size(views));
    for (const Canvas& below : grounds) lines.push_back(row(numbers, below));
    const Canvas first = lines.front();
    const Canvas nothing(first.width(), size);
    for (Colour (*view)(Colour) : views) lines.push_back(seenOver(nothing, first, view));
    return enlarged(stacked(lines), k);
}

std::vector<Canvas> terrainGrounds() {
    std::vector<Canvas> grounds;
    for (const int number : terrains) grounds.push_back(paintTile(number));
    return grounds;
}

std::vector<Canvas> interfaceGrounds() {
    return {ground(size, size, dimGround), ground(size, size, slateGround), ground(size, size, panelGround),
            ground(size, size, 0), paintTile(70)};
}

// Seven columns of seven cells, all encounters mixed, the first columns partly cleared.
Canvas fullBoard() {
    constexpr int cells = 7;
    constexpr int columnTerrain[cells] = {55, 60, 37, 71, 55, 60, 71};
    constexpr int cleared[cells] = {4, 2, 0, 0, 1, 0, 3};
    Canvas t = ground(cells * size + 16, cells * size + 16);
    for (int c = 0; c < cells; ++c) {
        for (int r = 0; r < cells; ++r) {
            const int x = 8 + c * size, y = 8 + r * size;
            const auto roll = static_cast<std::size_t>(hash01(3, c, r) * std::size(encounters));
            t.lay(paintTile(columnTerrain[c]), x, y)
                .lay(paintTile(r < cleared[c] ? 100 : encounters[roll]), x, y);
            if (r < cleared[c]) t.lay(paintTile(58), x, y);
        }
    }
    return t;
}

Canvas boardViews() {
    const Canvas board = fullBoard();
    const Canvas nothing(board.width(), board.height());
    std::vector<Canvas> seen{board};
    for (Colour (*view)(Colour) : views) seen.push_back(seenOver(nothing, board, view));
    return enlarged(stacked(seen), 2);
}

}  // namespace

std::vector<Sheet> contactSheets() {
    std::vector<Sheet> sheets{
        {"board_1x", fullBoard()}, {"board_views_2x", boardViews()}, {"title", paintTitle()}};
    for (const int k : {1, 2, 4}) {
        const std::string scale = "_" + std::to_string(k) + "x";
        sheets.push_back({"tiles" + scale, everyTile(k)});
        sheets.push_back({"encounters_on_terrain" + scale, onEveryGround(encounters, terrainGrounds(), k)});
        sheets.push_back(
            {"icons_on_interface" + scale, onEveryGround(iconsOnGrounds, interfaceGrounds(), k)});
    }
    return sheets;
}

}  // namespace gloomdeck::art
