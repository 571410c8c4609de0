// Bakes the pictures into the files that the game, the desktop and the reviewer look at.
#include <cstdio>
#include <filesystem>
#include <fstream>
#include <stdexcept>
#include <string>

#include "art/icon.h"
#include "art/picture_files.h"
#include "art/picture_hash.h"
#include "art/png_file.h"
#include "art/sheets.h"
#include "art/title.h"

namespace gloomdeck::art {
namespace {

namespace fs = std::filesystem;

void write(const fs::path& file, const std::string& bytes) {
    if (file.has_parent_path()) fs::create_directories(file.parent_path());
    std::ofstream out(file, std::ios::binary);
    out << bytes;
    if (!out.flush()) throw std::runtime_error("cannot write " + file.string());
}

void bakeBitmaps(const fs::path& folder) {
    write(folder / "dtiles.bmp", bitmapFile(tileStrip(1, 49)));
    write(folder / "dtiles2.bmp", bitmapFile(tileStrip(50, 98)));
    write(folder / "dtiles3.bmp", bitmapFile(tileStrip(99, 148)));
    write(folder / "dtitle.bmp", bitmapFile(paintTitle()));
}

void bakeIcons(const fs::path& folder) {
    for (const int size : iconSizes) {
        const std::string n = std::to_string(size);
        write(folder / std::string(n).append("x").append(n) / "apps" / "gloomdeck.png",
              pngFile(paintIcon(size)));
    }
    write(folder / "scalable" / "apps" / "gloomdeck.svg", svgFile(paintIcon(finestIcon)));
}

// For the browser page: of a tab, of a phone's home screen, of an installed page, and its preview.
void bakePageIcons(const fs::path& folder) {
    write(folder / "icon.png", pngFile(paintIcon(32)));
    write(folder / "icon-192.png", pngFile(paintIcon(192)));
    write(folder / "icon-512.png", pngFile(paintIcon(512)));
    write(folder / "icon-maskable.png", pngFile(paintMaskableIcon(512)));
    write(folder / "icon-apple.png", pngFile(paintMaskableIcon(180)));
    write(folder / "preview.png", pngFile(paintPreview()));
}

void bakeWindowIcon(const fs::path& file) {
    constexpr int size = 64;
    const Canvas icon = paintIcon(size);
    std::string out =
        "// The icon of the window, 0xAARRGGBB; baked from the artwork.\n#pragma once\n\n#include "
        "<cstdint>\n\n"
        "namespace gloomdeck {\n\ninline constexpr int windowIconSize = 64;\n"
        "inline constexpr std::uint32_t windowIconPixels[64 * 64] = {\n";
    for (int y = 0; y < size; ++y) {
        for (int x = 0; x < size; ++x) {
            char pixel[16];
            const unsigned argb = icon.painted(x, y) ? 0xFF000000u | icon.colour(x, y) : 0u;
            std::snprintf(pixel, sizeof pixel, "0x%08Xu,", argb);
            out += pixel;
        }
        out += "\n";
    }
    write(file, out + "};\n\n}  // namespace gloomdeck\n");
}

void addLittle(std::string& bytes, std::size_t value, int count) {
    for (int i = 0; i < count; ++i) bytes += static_cast<char>(value >> 8 * i & 0xFF);
}

// For Windows: one file of all sizes, each as it would be a file of its own.
void bakeIconFile(const fs::path& file) {
    std::string head;
    std::string pictures;
    addLittle(head, 0, 2);
    addLittle(head, 1, 2);  // icons
    addLittle(head, std::size(iconSizes), 2);
    const std::size_t headSize = 6 + 16 * std::size(iconSizes);
    for (const int size : iconSizes) {
        const std::string picture = pngFile(paintIcon(size));
        for (const int side : {size, size}) addLittle(head, static_cast<std::size_t>(side), 1);  // 256 is 0
        addLittle(head, 0, 2);                                                                   // no palette
        addLittle(head, 1, 2);                                                                   // planes
        addLittle(head, 32, 2);  // bits a pixel
        addLittle(head, picture.size(), 4);
        addLittle(head, headSize + pictures.size(), 4);
        pictures += picture;
    }
    write(file, head + pictures);
}

void bakeSheets(const fs::path& folder) {
    for (const Sheet& sheet : contactSheets()) write(folder / (sheet.name + ".png"), pngFile(sheet.picture));
}

bool bake(const std::string& option, const std::string& target) {
    if (option == "--icons") {
        bakeIcons(target);
    } else if (option == "--page-icons") {
        bakePageIcons(target);
    } else if (option == "--window-icon") {
        bakeWindowIcon(target);
    } else if (option == "--icon-file") {
        bakeIconFile(target);
    } else if (option == "--sheet") {
        bakeSheets(target);
    } else {
        return false;
    }
    return true;
}

bool run(int argc, char** argv) {
    const std::string first = argc > 1 ? argv[1] : "";
    if (argc == 3) return bake(first, argv[2]);
    if (argc != 2) return false;
    if (first == "--hashes") {
        for (const std::string& line : hashLines()) std::puts(line.c_str());
        return true;
    }
    if (first.empty() || first.starts_with("-")) return false;
    bakeBitmaps(first);
    return true;
}

}  // namespace
}  // namespace gloomdeck::art

int main(int argc, char** argv) {
    try {
        if (gloomdeck::art::run(argc, argv)) return 0;
        std::fputs(
            "usage: artbake FOLDER | --icons FOLDER | --page-icons FOLDER | --window-icon FILE | --icon-file "
            "FILE | --sheet FOLDER | --hashes\n",
            stderr);
    } catch (const std::exception& failure) {
        std::fprintf(stderr, "artbake: %s\n", failure.what());
    }
    return 1;
}
