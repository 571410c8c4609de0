// The games that fuzzed sessions start from.
#pragma once

#include "fuzz/input_bytes.h"
#include "tools/common/program_folder.h"

namespace gloomdeck::fuzz {

/// Fills the two records with a game that has just been dealt, as the input chooses: scenario or campaign,
/// what the hero has, how far the board is from its end, speed and switches.
void dealGame(InputBytes& bytes);

/// The two files of the records, put in the place of whatever lies in the folder.
SavedFiles filesOfRecords();
void putFiles(const ProgramFolder& folder, const SavedFiles& files);

/// Empties the folder's Data.
void clearFiles(const ProgramFolder& folder);

}  // namespace gloomdeck::fuzz
