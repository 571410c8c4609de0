// The monsters that move when they are met.
#pragma once

namespace gloomdeck {

/// True when the Ghost fled to a neighbour; its cell is Empty then.
bool ghostFlees(int col, int row);

/// True when the Filth spread to at least one neighbour; its cell is Empty then.
bool filthSpreads(int col, int row);

/// True when the Demon moved to another cell; its cell is Empty then.
bool demonTeleports(int col, int row);

}  // namespace gloomdeck
