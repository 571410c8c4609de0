// The games that fuzzed sessions start from.
#pragma once

#include "fuzz/input_bytes.h"
#include "tools/common/program_folder.h"

namespace gloomdeck::fuzz {

/// Fills the two records with a game that has just been dealt, as the input chooses: scenario or campaign,
/// what the hero has, how far the board is from its end, speed and switches.
void dealGame(InputBytes& bytes);

/// The two files that hold the records.
SavedFiles filesOfRecords();

/// Puts the two files in the place of whatever lies in the folder's Data; an empty one is left out.
void putFiles(const ProgramFolder& folder, const SavedFiles& files);

/// Puts what a cut can leave beside them: a new game, preferences that wait to be renamed. An empty one is
/// left out.
void putLeftovers(const ProgramFolder& folder, const SavedFiles& files);

/// Empties the folder's Data.
void clearFiles(const ProgramFolder& folder);

}  // namespace gloomdeck::fuzz
