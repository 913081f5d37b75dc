# Read by CPack for each of the packages. The archive has its settings beside the programs, so that it runs from
# anywhere; the installer leaves them to the user's own folder.
if(CPACK_GENERATOR STREQUAL "ZIP")
  list(APPEND CPACK_INSTALLED_DIRECTORIES ${CPACK_PROGRAM_SETTINGS} bin)
endif()
