// The scenes of the signature: every screen, every state of it, every animation.
#pragma once
#include "shell/widgets/layout.h"
#include "tests/support/signature.h"

namespace gloomdeck {

/// A place where no screen has anything.
inline constexpr Point nothing{404, 300};

/// Presses each of those widgets and lets go where nothing is.
void holdAll(StagedPlay& play, const std::vector<int>& widgets);

/// Those of the play screen but for the stats column, which counts wherever it is let go.
inline const std::vector<int> playWidgets{id::board, id::newGame, id::exit,        id::replay,
                                          id::help,  id::prefs,   id::continueGame};

/// Begins a step on the play screen: a hero with twenty of everything, an empty board of seven terrains in
/// its second turn at normal speed, and what prepare changes of that, drawn afresh.
void scene(StagedPlay& play, const std::string& name, const std::function<void()>& prepare);

// From the title of a first start into a game.
void playTitleAndSelection(StagedPlay& play);

// From the play screen and back to it.
void playPreferences(StagedPlay& play);
void playTraining(StagedPlay& play);
void playHelp(StagedPlay& play);
void playQuestions(StagedPlay& play);
void playStories(StagedPlay& play);
void playPieces(StagedPlay& play);      // hovers, presses, modes, messages, banners
void playEncounters(StagedPlay& play);  // every tile met, and a few turns after it
void playSpells(StagedPlay& play);
void playAutoplayer(StagedPlay& play);

}  // namespace gloomdeck
