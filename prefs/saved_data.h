// The two files that a run leaves for the next one: the game and the preferences.
#pragma once

namespace gloomdeck {

/// 1 when both files were read, 0 when nothing was. A short file fills what it has; the rest is zero. No
/// value is checked or changed. Files that are there but cannot be read are never written in the same run.
int LoadSavedData();

/// The preferences of a first start. The game record and the flags of the running game stay.
void ApplyDefaults();

/// Writes both records, together; a file that cannot be opened is left out. Longer files keep their tails.
void SaveData();

/// Keeps a copy of both records: what is saved when the program is taken down in the middle of a move.
void markSafePoint();

/// Saves the records as at the last safe point; nothing before the first.
void saveSafePoint();

/// Forgets the safe point and what could not be read (tests start from here).
void resetSavedData();

}  // namespace gloomdeck
