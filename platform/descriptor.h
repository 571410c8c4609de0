// A file's descriptor, closed at the end of the scope.
#pragma once

#include <unistd.h>

namespace gloomdeck {

struct Descriptor {
    /// A negative number stands for a file that could not be opened.
    explicit Descriptor(int descriptor) : number(descriptor) {}
    ~Descriptor() {
        if (number >= 0) ::close(number);
    }
    Descriptor(const Descriptor&) = delete;
    Descriptor& operator=(const Descriptor&) = delete;

    int number;
};

}  // namespace gloomdeck
