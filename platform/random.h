// The platform's random numbers: one process-wide uniform source.
#pragma once

namespace gloomdeck {

/// Starts the generator anew; equal seeds give equal streams.
void randomize(double seed);

/// A number uniform in [0, 1), with 53 random bits.
double rnd();

/// Something that answers like rnd().
using RandomSource = double (*)();

/// Lets rnd() ask another source (tests, benchmarks); nullptr brings the generator back.
void useRandomSource(RandomSource source);

}  // namespace gloomdeck
