// The bits of the one field.
#include "prefs/switches.h"

#include "prefs/prefs.h"

namespace gloomdeck {

bool switchIsOn(Switch which) { return (prefs.switches & static_cast<std::uint32_t>(which)) != 0; }

void setSwitch(Switch which, bool on) {
    if (switchIsOn(which) != on) flipSwitch(which);
}

void flipSwitch(Switch which) { prefs.switches ^= static_cast<std::uint32_t>(which); }

}  // namespace gloomdeck
