# numora_test(NAME SOURCES... [LIBS libs...]) builds a Qt Test program and hands it to CTest.
# Tests run without a display, in a fixed locale, and may take a minute (five under sanitizers).
function(numora_test NAME)
    cmake_parse_arguments(ARG "" "" "LIBS" ${ARGN})
    add_executable(${NAME} ${ARG_UNPARSED_ARGUMENTS})
    set_target_properties(${NAME} PROPERTIES AUTOMOC ON RUNTIME_OUTPUT_DIRECTORY "${CMAKE_BINARY_DIR}/tests")
    target_link_libraries(${NAME} PRIVATE numora_qt_options Qt6::Test ${ARG_LIBS})
    # Compiled once and run for a second: an optimizer would cost more than it saves.
    target_compile_options(${NAME} PRIVATE $<$<CONFIG:Release>:-Og>)
    if("numora_test_support" IN_LIST ARG_LIBS)
        numora_precompile(${NAME})
    endif()
    add_test(NAME ${NAME} COMMAND ${NAME})
    set_tests_properties(${NAME} PROPERTIES
        TIMEOUT 300
        ENVIRONMENT "QT_QPA_PLATFORM=offscreen;LC_ALL=C.UTF-8;ASAN_OPTIONS=detect_leaks=0;TSAN_OPTIONS=ignore_noninstrumented_modules=1")
endfunction()
