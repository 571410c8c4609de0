// The program.
#include "shell/main_loop.h"

int main() { gloomdeck::runGloomdeck(); }
