# Run by CPack when the files of all packages are laid out and before they are packed.
cmake_policy(VERSION 3.25)
file(GLOB_RECURSE files LIST_DIRECTORIES false "${CPACK_TEMPORARY_DIRECTORY}/*")

# What Debian compresses, without the time of the compression.
set(texts ${files})
list(FILTER texts INCLUDE REGEX "/share/man/.*\\.[1-9]$|/changelog$")
if(texts)
    execute_process(COMMAND gzip -9 -n -f ${texts} COMMAND_ERROR_IS_FATAL ANY)
endif()

# CPack has stripped them; what is left besides the code is the name of the compiler.
set(binaries ${files})
list(FILTER binaries INCLUDE REGEX "/libbignum\\.so\\.[0-9.]+$|/lib/.*/numora$")
foreach(binary IN LISTS binaries)
    if(NOT IS_SYMLINK "${binary}")
        execute_process(COMMAND strip --remove-section=.comment "${binary}" COMMAND_ERROR_IS_FATAL ANY)
    endif()
endforeach()

# Archives keep the time of every file. Those of a build are of no interest, and differ from build to build.
if(DEFINED ENV{SOURCE_DATE_EPOCH})
    execute_process(
        COMMAND find "${CPACK_TEMPORARY_DIRECTORY}" -exec touch -h -d "@$ENV{SOURCE_DATE_EPOCH}" {} +
        COMMAND_ERROR_IS_FATAL ANY)
endif()
