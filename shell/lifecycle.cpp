// The question, and saving once at the end.
#include "shell/lifecycle.h"

#include "platform/input.h"
#include "platform/question.h"
#include "prefs/saved_data.h"
#include "shell/widgets/mouse.h"
#include "shell/widgets/press.h"
#include "shell/widgets/tile_set.h"

namespace gloomdeck {

namespace {

bool runIsSaved = false;

}  // namespace

int confirm(const std::string& question, int skip) {
    dropPress();
    const bool yes = skip == 1 || askYesNo(question, "confirm");
    dropKeys();
    restartPress();  // a press that began in the question was the question's
    return yes ? 1 : 0;
}

void shutDown() {
    freeTiles();
    if (!runIsSaved) SaveData();
    runIsSaved = true;
}

void saveAfterLoss() {
    if (!runIsSaved) saveSafePoint();
}

void resetLifecycle() { runIsSaved = false; }

}  // namespace gloomdeck
