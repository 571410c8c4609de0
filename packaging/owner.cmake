# What the owner of the game has to choose; each is said here (the licence: in README.md) and nowhere else.

# The homepage, from which the pictures of the software centres come too; while it is empty the packages name none.
set(GLOOMDECK_HOMEPAGE "")

# No package is without these two, so they stand at example.org, which is reserved for places that do not exist: the
# address of the maintainer, and the reversed domain name by which software centres tell one program from another. The
# latter can never change once a package is published.
set(GLOOMDECK_MAINTAINER "The makers of Gloomdeck <gloomdeck@example.org>")
set(GLOOMDECK_ID "org.example.gloomdeck")

# The words under the heading "Licence" in README.md stand for the licence everywhere.
file(READ ${PROJECT_SOURCE_DIR}/README.md readme)
if(NOT readme MATCHES "\n## Licence\n\n([^\n]+)\n")
  message(FATAL_ERROR "README.md says nothing under its heading Licence; write one line there")
endif()
set(GLOOMDECK_LICENCE "${CMAKE_MATCH_1}")
string(REGEX REPLACE "[^A-Za-z0-9]+" "-" licence_name "${GLOOMDECK_LICENCE}")
string(REGEX REPLACE "-$" "" licence_name "${licence_name}")

# Software centres take a description only under a permissive licence; it covers the description alone, not the
# game.
set(GLOOMDECK_METADATA_LICENCE "FSFAP")
