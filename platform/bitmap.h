// Reading Windows bitmap files.
#pragma once

#include <string>

#include "platform/files.h"
#include "platform/image.h"

namespace gloomdeck {

/// Copies the pixels of an uncompressed bitmap file (1, 4, 8, 24 or 32 bits a pixel, rows in either order) to
/// the target, top left on top left, opaque; what does not fit is cut off. The target is an image or
/// screen(). A file that is missing, damaged or of another kind changes nothing.
void loadBitmap(const std::string& path, Image& target);

/// The same from a file's bytes; true when there was a bitmap to copy. A change of screen() is not told.
bool decodeBitmap(const Bytes& file, Image& target);

}  // namespace gloomdeck
