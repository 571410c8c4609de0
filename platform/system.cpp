// The program's end, handed to the host.
#include "platform/system.h"

#include "platform/host.h"

namespace gloomdeck {

void tell(const std::string& text) { host::tell(text); }

void onWindowLost(void (*save)()) { host::onLost(save); }

void endProgram(int exitCode) { host::end(exitCode); }

}  // namespace gloomdeck
