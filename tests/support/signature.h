// The signature of the pictures: of every step of a play each picture that stood, and how long.
#pragma once
#include "tests/support/script.h"

namespace gloomdeck {

/// A play in named steps. A step's rolls come from a stream that its name seeds, so that none depends on the
/// steps before it.
struct StagedPlay : Script {
    StagedPlay& step(const std::string& name);  ///< what follows belongs to it
};

/// The whole program with that play as its player, noted at every pause of an action and at every rest.
class SignatureTest : public PlayTest {
  protected:
    /// Plays, and compares with tests/play/signature.txt. Where a step differs the test fails with the pause
    /// that differs first and leaves a picture of it: expected, drawn, and their difference. With
    /// GLOOMDECK_REFRESH_SIGNATURE=1 in the environment it writes the file anew and leaves the pictures too.
    void expectSignature(StagedPlay& play);
};

}  // namespace gloomdeck
