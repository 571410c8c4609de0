// A yes/no question, drawn into the frame over what is there.
#pragma once

#include <string>

namespace gloomdeck {

/// Asks with a caption and the buttons Yes (marked at first) and No, by mouse or keys: Y, N, Enter for the
/// marked one, Tab or arrows to move, Escape for No. Keys and presses from before it opened and auto-repeats
/// do not answer; a close request answers No and stays to be acted on. What was covered comes back exactly.
bool askYesNo(const std::string& text, const std::string& caption);

}  // namespace gloomdeck
