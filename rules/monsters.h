// The monsters that move when they are met, and where they may go.
#pragma once

namespace gloomdeck {

/// True on the board where what lies there lets a Ghost or a Demon in.
bool ghostIsLetIn(int col, int row);

/// True where a fleeing Ghost or a teleporting Demon may go: where it is let in, not past the column's end.
bool ghostMayGo(int col, int row);

/// True when the Ghost fled to a neighbour; its cell is Empty then.
bool ghostFlees(int col, int row);

/// True when the Filth spread to at least one neighbour; its cell is Empty then.
bool filthSpreads(int col, int row);

/// True when the Demon moved to another cell; its cell is Empty then.
bool demonTeleports(int col, int row);

}  // namespace gloomdeck
