# What the program can do without (docs/portability.md): on where it is found, and said either way. Turned off by
# hand, it is not looked for.
option(NUMORA_SVG "Draw pictures by Qt SVG; without it they come from bitmaps made while building" ON)
option(NUMORA_MULTIMEDIA "Play the animations by Qt Multimedia; without it they are still pictures" ON)
option(NUMORA_ECM "Look for factors by GMP-ECM; without it by curves of our own" ON)
option(NUMORA_PRIMESIEVE "List primes by primesieve; without it by a sieve of our own" ON)

# numora_optional(OPTION FOUND NAME): turns the option off where its library was not found.
function(numora_optional OPTION FOUND NAME)
    if(${OPTION} AND NOT FOUND)
        set(${OPTION} OFF PARENT_SCOPE)
        message(STATUS "${OPTION}: OFF, ${NAME} was not found")
    elseif(${OPTION})
        message(STATUS "${OPTION}: ON")
    else()
        message(STATUS "${OPTION}: OFF, as asked for")
    endif()
endfunction()

if(NUMORA_SVG)
    find_package(Qt6Svg 6.4 QUIET)
endif()
numora_optional(NUMORA_SVG "${Qt6Svg_FOUND}" "Qt SVG")

if(NUMORA_MULTIMEDIA)
    find_package(Qt6Multimedia 6.4 QUIET)
endif()
numora_optional(NUMORA_MULTIMEDIA "${Qt6Multimedia_FOUND}" "Qt Multimedia")

# numora_optional_library(OPTION PREFIX LIBRARY HEADER NAME): the same of a library that has no package of CMake's;
# sets PREFIX_LIBRARY and PREFIX_INCLUDE_DIR.
macro(numora_optional_library OPTION PREFIX LIBRARY HEADER NAME)
    set(found FALSE)
    if(${OPTION})
        find_library(${PREFIX}_LIBRARY ${LIBRARY})
        find_path(${PREFIX}_INCLUDE_DIR ${HEADER})
        if(${PREFIX}_LIBRARY AND ${PREFIX}_INCLUDE_DIR)
            set(found TRUE)
        endif()
    endif()
    numora_optional(${OPTION} ${found} "${NAME}")
endmacro()
numora_optional_library(NUMORA_ECM ECM ecm ecm.h "GMP-ECM")
numora_optional_library(NUMORA_PRIMESIEVE PRIMESIEVE primesieve primesieve.hpp "primesieve")
