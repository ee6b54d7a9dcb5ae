# numora_simpleini(TARGET SOURCE): lets a source of a target use SimpleIni. Where one builds for another platform,
# the machine's header, which is the same everywhere, brings its code along.
function(numora_simpleini TARGET SOURCE)
    if(NOT CMAKE_CROSSCOMPILING)
        find_package(PkgConfig REQUIRED)
        pkg_check_modules(SIMPLEINI REQUIRED IMPORTED_TARGET simpleini)
        target_link_libraries(${TARGET} PRIVATE PkgConfig::SIMPLEINI)
        return()
    endif()
    find_file(SIMPLEINI_HEADER SimpleIni.h PATHS /usr/include /usr/local/include
        REQUIRED NO_DEFAULT_PATH NO_CMAKE_FIND_ROOT_PATH)
    # In a folder of its own: the machine's other headers are not the platform's.
    configure_file("${SIMPLEINI_HEADER}" "${CMAKE_BINARY_DIR}/simpleini/SimpleIni.h" COPYONLY)
    target_include_directories(${TARGET} SYSTEM PRIVATE "${CMAKE_BINARY_DIR}/simpleini")
    set_source_files_properties("${SOURCE}" PROPERTIES COMPILE_DEFINITIONS SI_IMPLEMENTATION)
endfunction()
