# The two kinds of target that a lesson is made of; the linker keeps widgets out of the first.

# numora_logic(NAME SOURCES...): what can be computed and tested without a window, on Qt Core alone.
function(numora_logic NAME)
    add_library(${NAME} STATIC ${ARGN})
    set_target_properties(${NAME} PROPERTIES AUTOMOC ON)
    target_link_libraries(${NAME} PUBLIC shell_core PRIVATE numora_qt_options)
    numora_precompile(${NAME} core)
endfunction()

# numora_windows(NAME SOURCES... LIBS logic...): windows, and the models and pictures they show.
function(numora_windows NAME)
    cmake_parse_arguments(ARG "" "" "LIBS" ${ARGN})
    add_library(${NAME} STATIC ${ARG_UNPARSED_ARGUMENTS})
    set_target_properties(${NAME} PROPERTIES AUTOMOC ON AUTOUIC ON)
    target_link_libraries(${NAME} PUBLIC shell ${ARG_LIBS} PRIVATE numora_qt_options)
    numora_precompile(${NAME} widgets)
endfunction()
