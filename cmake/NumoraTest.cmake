# numora_test(NAME SOURCES... [LIBS libs...]) builds a Qt Test program and hands it to CTest.
# Tests run without a display, in a fixed locale, and may take a minute (five under sanitizers, twenty under Wine).
# Those of windows have the label "windows"; all others are built by the target logic_tests.
add_custom_target(logic_tests)
# Before a path of this machine that a test is compiled with: Wine has this machine's root under a letter.
set(NUMORA_ROOT "")
set(NUMORA_TEST_OUTPUT "")
set(NUMORA_TEST_TIMEOUT 300)
if(WIN32 AND CMAKE_CROSSCOMPILING)
    set(NUMORA_ROOT "Z:")
    # Plain text would go to the system's debugger.
    set(NUMORA_TEST_OUTPUT -tap)
    # Beside other builds that take most of the machine.
    set(NUMORA_TEST_TIMEOUT 1200)
endif()
function(numora_test NAME)
    cmake_parse_arguments(ARG "" "" "LIBS" ${ARGN})
    add_executable(${NAME} ${ARG_UNPARSED_ARGUMENTS})
    set_target_properties(${NAME} PROPERTIES RUNTIME_OUTPUT_DIRECTORY "${CMAKE_BINARY_DIR}/tests")
    # By hand what AUTOMOC does with one more target and one more, empty, source for each of a hundred tests.
    foreach(source ${ARG_UNPARSED_ARGUMENTS})
        get_filename_component(stem "${source}" NAME_WE)
        file(STRINGS "${source}" included REGEX "^#include \"${stem}[.]moc\"")
        if(included)
            qt_generate_moc("${source}" "${CMAKE_CURRENT_BINARY_DIR}/${stem}.moc" TARGET ${NAME})
            target_sources(${NAME} PRIVATE "${CMAKE_CURRENT_BINARY_DIR}/${stem}.moc")
            target_include_directories(${NAME} PRIVATE "${CMAKE_CURRENT_BINARY_DIR}")
        endif()
    endforeach()
    target_link_libraries(${NAME} PRIVATE numora_qt_options Qt6::Test ${ARG_LIBS})
    # Compiled once and run for a second: an optimizer would cost more than it saves.
    target_compile_options(${NAME} PRIVATE $<$<CONFIG:Release>:-Og>)
    add_test(NAME ${NAME} COMMAND ${NAME} ${NUMORA_TEST_OUTPUT})
    if("numora_test_support" IN_LIST ARG_LIBS)
        numora_precompile(${NAME} tests)
        set_tests_properties(${NAME} PROPERTIES LABELS windows)
    else()
        numora_precompile(${NAME} core)
        add_dependencies(logic_tests ${NAME})
    endif()
    set_tests_properties(${NAME} PROPERTIES
        # Wine may call a crash a good end.
        FAIL_REGULAR_EXPRESSION "wine: Unhandled"
        TIMEOUT ${NUMORA_TEST_TIMEOUT}
        ENVIRONMENT "QT_QPA_PLATFORM=offscreen;LC_ALL=C.UTF-8;ASAN_OPTIONS=detect_leaks=0;TSAN_OPTIONS=ignore_noninstrumented_modules=1")
endfunction()
