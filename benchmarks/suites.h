// What is measured without a window, a file for each subject.
#pragma once

namespace gloomdeck {

// They are called after the session has been started, and before anything is run.
void registerPuts();
void registerScreens();
void registerAutoplayer();

}  // namespace gloomdeck
