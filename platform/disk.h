// Bringing files to the disk, several as one.
//
// The new files are written beside the old ones and flushed; then they are renamed in their order, with a
// flush of the folder after each. The first rename decides: a cut before it leaves only old files, and one
// after it leaves the other new files beside their old ones, for the next start to rename.
#pragma once

#include <string>
#include <vector>

#include "platform/bytes.h"

namespace gloomdeck {

/// What a file is to hold. The name is one of the system's, and no link.
struct NewContents {
    std::string name;
    Bytes contents;
};

/// The folder in which a file of that name lies.
std::string folderOf(const std::string& name);

/// Writes all of them or none. Where the folder takes no new file the old ones are written in place, one
/// after the other. A failure leaves the old files and nothing beside them, and reports nothing.
void writeTogether(const std::vector<NewContents>& files);

/// Finishes or removes what a cut has left of files that were written together, named in the same order.
/// False when it cannot be told what stands: then none of them may be read or written.
bool settleFiles(const std::vector<std::string>& names);

/// Where the contents of names[index] stand: beside it where settling could not rename them.
std::string standingName(const std::vector<std::string>& names, std::size_t index);

}  // namespace gloomdeck
