# Packs the portable folder. CPack's own tarballs keep the order in which the disk lists the files, and the
# builder's name.
set(folder gloomdeck-${CPACK_PACKAGE_VERSION})
set(tarball ${CPACK_TOPLEVEL_DIRECTORY}/${CPACK_PACKAGE_FILE_NAME}.tar.gz)
execute_process(
  COMMAND tar --create --format=gnu --sort=name --owner=0 --group=0 --numeric-owner "--transform=s,^\\.,${folder},"
    --directory=${CPACK_TEMPORARY_DIRECTORY} .
  COMMAND gzip -9n
  OUTPUT_FILE ${tarball} COMMAND_ERROR_IS_FATAL ANY)
set(CPACK_EXTERNAL_BUILT_PACKAGES ${tarball})
