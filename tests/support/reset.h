// Starting the program again in one process.
#pragma once

namespace gloomdeck {

/// Everything that a new process would find: no window, no input, all records, tables and widgets afresh.
void forgetProgram();

}  // namespace gloomdeck
