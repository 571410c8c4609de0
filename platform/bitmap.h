// Reading Windows bitmap files.
#pragma once

#include <string>
#include <string_view>

#include "platform/files.h"
#include "platform/image.h"

namespace gloomdeck {

/// Copies the pixels of an uncompressed bitmap file (1, 4, 8, 24 or 32 bits a pixel, the latter also with
/// masks of any width; rows in either order) to the target, top left on top left, opaque; what does not fit
/// is cut off. The target is an image or screen(). A file that is missing, damaged or of another kind changes
/// nothing, and a line on standard error says what is wrong with it.
void loadBitmap(const std::string& path, Image& target);

/// The same from a file's bytes. Nothing is told: the answer is what is wrong with the file, to stand behind
/// its name, and empty when it was copied. A change of screen() is not told either.
std::string_view decodeBitmap(const Bytes& file, Image& target);

}  // namespace gloomdeck
