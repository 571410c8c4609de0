// Contact sheets: what a reviewer looks at after a change to the pictures.
#pragma once

#include <string>
#include <vector>

#include "art/canvas.h"

namespace gloomdeck::art {

struct Sheet {
    std::string name;
    Canvas picture;
};

std::vector<Sheet> contactSheets();

}  // namespace gloomdeck::art
