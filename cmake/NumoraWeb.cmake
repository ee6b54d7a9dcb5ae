# What the browser's build has of its own (packaging/web/build.sh).

# Exceptions as the browser's own, which costs neither size nor time where none is thrown. Qt is built without and
# would ask for none at all.
add_compile_options(-fwasm-exceptions)
get_target_property(qt_link_options Qt6::Platform INTERFACE_LINK_OPTIONS)
list(FILTER qt_link_options EXCLUDE REGEX "DISABLE_EXCEPTION_CATCHING|ASYNCIFY")
set_target_properties(Qt6::Platform PROPERTIES INTERFACE_LINK_OPTIONS "${qt_link_options}")

# Nothing is loaded later.
set(CMAKE_POSITION_INDEPENDENT_CODE OFF)

# <coroutine> and algorithms on ranges, which this standard library lacks.
include_directories(BEFORE SYSTEM "${CMAKE_SOURCE_DIR}/packaging/web/include")

# numora_web_program(NAME SOURCES...): a program that a page loads.
function(numora_web_program NAME)
    qt_add_executable(${NAME} ${ARGN})
    set_target_properties(${NAME} PROPERTIES
        QT_WASM_INITIAL_MEMORY 64MB
        QT_WASM_EXTRA_EXPORTED_METHODS UTF8ToString,FS,addRunDependency,removeRunDependency)
    target_link_libraries(${NAME} PRIVATE numora_qt_options Qt6::Widgets)
    target_link_options(${NAME} PRIVATE -fwasm-exceptions "SHELL:-s TOTAL_STACK=4MB" -lidbfs.js)
endfunction()

# numora_web_folder(NAME): gives it the working folder in a file beside it, with Qt's own Spanish texts. Of the animations
# it has the one by which the folder is known: none can be played.
function(numora_web_folder NAME)
    set(folder "${CMAKE_RUNTIME_OUTPUT_DIRECTORY}")
    # Looked for beside the program, which is said to lie at the root.
    file(WRITE "${folder}/qt.conf" "[Paths]\nPrefix=/numora\nTranslations=translations\n")
    find_file(NUMORA_QT_SPANISH qtbase_es.qm PATHS /usr/share/qt6/translations REQUIRED NO_DEFAULT_PATH NO_CMAKE_FIND_ROOT_PATH)
    target_link_options(${NAME} PRIVATE
        "SHELL:--preload-file ${folder}/qt.conf@/qt.conf"
        "SHELL:--preload-file ${NUMORA_QT_SPANISH}@/numora/translations/qtbase_es.qm"
        "SHELL:--preload-file ${folder}/Doc@/numora/Doc"
        "SHELL:--preload-file ${folder}/Numora.txt@/numora/Numora.txt"
        "SHELL:--preload-file ${folder}/ClipArt/escudo.avi@/numora/ClipArt/escudo.avi")
    add_dependencies(${NAME} carpeta_de_trabajo)
endfunction()

# numora_web_worker(NAME SOURCES...): what runs apart in a worker: the library and its gateway, no windows.
function(numora_web_worker NAME)
    add_executable(${NAME} ${ARGN})
    target_link_libraries(${NAME} PRIVATE numora_qt_options modbignum)
    target_link_options(${NAME} PRIVATE -fwasm-exceptions
        "SHELL:-s MODULARIZE=1"
        "SHELL:-s EXPORTED_RUNTIME_METHODS=ccall"
        "SHELL:-s INVOKE_RUN=0"
        "SHELL:-s ENVIRONMENT=worker"
        --no-entry)
endfunction()
