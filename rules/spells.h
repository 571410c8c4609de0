// The five items that act when they are used. Each spends one of its item; the caller runs BoardTurn.
#pragma once

namespace gloomdeck {

/// The sun and the shield work on the whole board at once.
void CastSun();
void CastShield();

/// The bolt down a column. redrawFirst 1 removes a press highlight before it.
void CastLightning(int redrawFirst, int col);

/// The blast on a cell and its neighbours; spend 1 takes one bomb for it.
void DropBomb(int redrawFirst, int spend, int col, int row);

/// Meets a cell from afar: 1 when it was used; 0 when there is nothing to meet or the encounter refused, and
/// nothing is spent.
int UseHand(int col, int row);

}  // namespace gloomdeck
