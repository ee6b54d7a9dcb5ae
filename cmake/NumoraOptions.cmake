# Compiler settings that every target of the project takes by linking numora_options.
# A user's build shows warnings; CI (NUMORA_WERROR) does not let one pass.
add_library(numora_options INTERFACE)
# Headers are named from the top folder, so that an include shows which subsystem it comes from.
target_include_directories(numora_options INTERFACE "${CMAKE_SOURCE_DIR}")
target_compile_options(numora_options INTERFACE -Wall -Wextra -Wpedantic -Wshadow -Wconversion)
# clang 14 compiles coroutines of C++20 but does not say so, which the standard library asks for.
target_compile_definitions(numora_options INTERFACE
    $<$<AND:$<CXX_COMPILER_ID:Clang>,$<VERSION_LESS:$<CXX_COMPILER_VERSION>,15>>:__cpp_impl_coroutine=201902L>)
# What is given away does not tell in which folder it was built: two builds give the same bytes.
target_compile_options(numora_options INTERFACE $<$<CONFIG:Release>:-ffile-prefix-map=${CMAKE_SOURCE_DIR}/=>)
if(NUMORA_WERROR)
    target_compile_options(numora_options INTERFACE -Werror)
endif()
if(NUMORA_SANITIZE)
    target_compile_options(numora_options INTERFACE
        -fsanitize=address,undefined -fno-sanitize-recover=undefined -fno-omit-frame-pointer)
    target_link_options(numora_options INTERFACE -fsanitize=address,undefined)
    # clang 14 cannot compile coroutines with its check of calls through pointers.
    target_compile_options(numora_options INTERFACE
        $<$<CXX_COMPILER_ID:Clang>:-fno-sanitize=function>)
    # g++ loses track of what is initialised in instrumented code; the plain build keeps the warning.
    target_compile_options(numora_options INTERFACE
        $<$<CXX_COMPILER_ID:GNU>:-Wno-maybe-uninitialized>)
endif()
if(NUMORA_SANITIZE_THREADS)
    target_compile_options(numora_options INTERFACE -fsanitize=thread -fno-omit-frame-pointer)
    target_link_options(numora_options INTERFACE -fsanitize=thread)
endif()
if(NUMORA_FUZZ)
    # Counts the edges that an input reaches, which is what guides the fuzzer.
    target_compile_options(numora_options INTERFACE -fsanitize=fuzzer-no-link)
endif()

# The same for code that uses Qt, without Qt's silent conversions.
add_library(numora_qt_options INTERFACE)
target_link_libraries(numora_qt_options INTERFACE numora_options)
target_compile_definitions(numora_qt_options INTERFACE
    QT_NO_CAST_FROM_ASCII QT_NO_CAST_TO_ASCII QT_NO_URL_CAST_FROM_STRING
    QT_NO_NARROWING_CONVERSIONS_IN_CONNECT QT_NO_FOREACH QT_NO_KEYWORDS
    QT_DISABLE_DEPRECATED_BEFORE=0x060400)

# Qt's headers compiled once for all (NUMORA_PCH): half the time of a build from nothing. A target takes
# them by numora_precompile, or by numora_precompile_core where it may not know widgets; its definitions
# must be those of the precompiled target and more.
if(NUMORA_PCH)
    file(WRITE "${CMAKE_BINARY_DIR}/precompiled.cpp" "")
    foreach(kind core widgets)
        add_library(numora_precompiled_${kind} OBJECT "${CMAKE_BINARY_DIR}/precompiled.cpp")
    endforeach()
    target_link_libraries(numora_precompiled_core PRIVATE numora_qt_options Qt6::Core)
    target_precompile_headers(numora_precompiled_core PRIVATE <QtCore>)
    target_link_libraries(numora_precompiled_widgets PRIVATE numora_qt_options Qt6::Widgets)
    target_precompile_headers(numora_precompiled_widgets PRIVATE <QtWidgets>)
endif()
function(numora_precompile_core TARGET)
    if(NUMORA_PCH)
        target_precompile_headers(${TARGET} REUSE_FROM numora_precompiled_core)
    endif()
endfunction()
function(numora_precompile TARGET)
    if(NUMORA_PCH)
        target_precompile_headers(${TARGET} REUSE_FROM numora_precompiled_widgets)
    endif()
endfunction()
