# Changes the staged installation to follow Debian's policy. Other packages need no change.
if(NOT CPACK_GENERATOR STREQUAL "DEB")
  return()
endif()
set(usr ${CPACK_TEMPORARY_DIRECTORY}/usr)
set(doc ${usr}/share/doc/${CPACK_PACKAGE_NAME})
set(packaging ${CMAKE_CURRENT_LIST_DIR})

file(RENAME ${usr}/bin ${usr}/games)
file(MAKE_DIRECTORY ${doc})
configure_file(${packaging}/copyright ${doc}/copyright COPYONLY)
execute_process(
  COMMAND awk -v package=${CPACK_PACKAGE_NAME} -v maintainer=${CPACK_PACKAGE_CONTACT}
    -f ${packaging}/debian-changelog.awk ${packaging}/../CHANGELOG.md
  OUTPUT_FILE ${doc}/changelog
  COMMAND_ERROR_IS_FATAL ANY)
execute_process(COMMAND gzip -9n ${doc}/changelog ${usr}/share/man/man6/tumble.6 COMMAND_ERROR_IS_FATAL ANY)
execute_process(
  COMMAND strip --strip-unneeded --remove-section=.comment --remove-section=.note ${usr}/games/tumble
  COMMAND_ERROR_IS_FATAL ANY)

# File modes that do not depend on the builder's umask.
execute_process(COMMAND chmod -R u=rwX,go=rX ${usr} COMMAND_ERROR_IS_FATAL ANY)
