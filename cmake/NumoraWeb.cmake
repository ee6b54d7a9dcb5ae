# What the browser's build has of its own (packaging/web/build.sh).

# Exceptions as the browser's own, which costs neither size nor time where none is thrown. Qt is built without and
# would ask for none at all.
add_compile_options(-fwasm-exceptions)
get_target_property(qt_link_options Qt6::Platform INTERFACE_LINK_OPTIONS)
list(FILTER qt_link_options EXCLUDE REGEX "DISABLE_EXCEPTION_CATCHING|ASYNCIFY")
set_target_properties(Qt6::Platform PROPERTIES INTERFACE_LINK_OPTIONS "${qt_link_options}")

# <coroutine> and algorithms on ranges, which this standard library lacks.
include_directories(BEFORE SYSTEM "${CMAKE_SOURCE_DIR}/packaging/web/include")

# numora_web_program(NAME SOURCES...): the program, with the working folder in a file beside it. Of the animations it
# has the one by which the folder is known: none can be played.
function(numora_web_program NAME)
    qt_add_executable(${NAME} ${ARGN})
    set_target_properties(${NAME} PROPERTIES
        QT_WASM_INITIAL_MEMORY 64MB
        QT_WASM_EXTRA_EXPORTED_METHODS UTF8ToString,FS,IDBFS,addRunDependency,removeRunDependency,ccall)
    set(folder "${CMAKE_RUNTIME_OUTPUT_DIRECTORY}")
    target_link_options(${NAME} PRIVATE -fwasm-exceptions
        "SHELL:--preload-file ${folder}/Doc@/numora/Doc"
        "SHELL:--preload-file ${folder}/Numora.txt@/numora/Numora.txt"
        "SHELL:--preload-file ${folder}/ClipArt/escudo.avi@/numora/ClipArt/escudo.avi"
        "SHELL:-s TOTAL_STACK=4MB"
        -lidbfs.js)
endfunction()
