# Run by CPack when the files of all packages are laid out and before they are packed.
file(GLOB_RECURSE pages LIST_DIRECTORIES false
    "${CPACK_TEMPORARY_DIRECTORY}/*/share/man/*" "${CPACK_TEMPORARY_DIRECTORY}/*/changelog")
if(pages)
    execute_process(COMMAND gzip -9 -n -f ${pages} COMMAND_ERROR_IS_FATAL ANY)
endif()

# Archives keep the time of every file. Those of a build are of no interest, and differ from build to build.
if(DEFINED ENV{SOURCE_DATE_EPOCH})
    execute_process(
        COMMAND find "${CPACK_TEMPORARY_DIRECTORY}" -exec touch -h -d "@$ENV{SOURCE_DATE_EPOCH}" {} +
        COMMAND_ERROR_IS_FATAL ANY)
endif()
