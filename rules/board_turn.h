// The upkeep after every action that used a turn.
#pragma once

namespace gloomdeck {

/// One board turn; nothing once the scenario is over.
void BoardTurn();

}  // namespace gloomdeck
