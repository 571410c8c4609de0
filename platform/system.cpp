#include "platform/system.h"

#include "platform/host.h"

namespace gloomdeck {

void onWindowLost(void (*save)()) { host::onLost(save); }

void endProgram(int exitCode) { host::end(exitCode); }

}  // namespace gloomdeck
