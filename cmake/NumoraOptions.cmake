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
# As much stack as Linux gives: Windows would give an eighth.
target_link_options(numora_options INTERFACE $<$<PLATFORM_ID:Windows>:-Wl,--stack,8388608>)
if(NUMORA_WERROR)
    target_compile_options(numora_options INTERFACE -Werror)
endif()
if(NUMORA_SANITIZE)
    target_compile_options(numora_options INTERFACE
        -fsanitize=address,undefined -fno-sanitize-recover=undefined -fno-omit-frame-pointer)
    # What AddressSanitizer or the processor stops at anyway; to look at each access twice costs an
    # eighth of the build.
    target_compile_options(numora_options INTERFACE
        -fno-sanitize=null,alignment,object-size)
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

# The same for code that uses Qt, without Qt's silent conversions.
add_library(numora_qt_options INTERFACE)
target_link_libraries(numora_qt_options INTERFACE numora_options)
target_compile_definitions(numora_qt_options INTERFACE
    QT_NO_CAST_FROM_ASCII QT_NO_CAST_TO_ASCII QT_NO_URL_CAST_FROM_STRING
    QT_NO_NARROWING_CONVERSIONS_IN_CONNECT QT_NO_FOREACH QT_NO_KEYWORDS
    QT_DISABLE_DEPRECATED_BEFORE=0x060400)

# The headers that most sources include, compiled once for all (NUMORA_PCH): half the time of a build from
# nothing. To load one costs a second in three hundred megabytes, so each of the three kinds is small. A target
# takes one by numora_precompile(TARGET KIND); its definitions must be those of the precompiled target and more.
set(core_headers
    <algorithm> <chrono> <cmath> <cstdint> <functional> <memory> <optional> <string> <utility> <vector>
    <QAbstractTableModel> <QCoreApplication> <QDateTime> <QDir> <QFile> <QFileInfo> <QHash> <QList>
    <QLocale> <QMap> <QObject> <QPointer> <QRegularExpression> <QSet> <QSettings> <QString> <QStringList>
    <QTextStream> <QTimer> <QUrl> <QVariant>)
set(widget_headers
    <QAction> <QApplication> <QCheckBox> <QComboBox> <QFrame> <QGridLayout> <QGroupBox> <QHBoxLayout>
    <QHeaderView> <QKeyEvent> <QLabel> <QLineEdit> <QMainWindow> <QMenu> <QMouseEvent> <QPainter>
    <QPainterPath> <QProgressBar> <QPushButton> <QRadioButton> <QScrollBar> <QStackedWidget>
    <QStyledItemDelegate> <QTableView> <QToolButton> <QVBoxLayout> <QWidget>)
function(numora_precompiled KIND LIBRARY)
    add_library(numora_precompiled_${KIND} OBJECT "${CMAKE_BINARY_DIR}/precompiled.cpp")
    target_link_libraries(numora_precompiled_${KIND} PRIVATE numora_qt_options ${LIBRARY})
    target_precompile_headers(numora_precompiled_${KIND} PRIVATE ${ARGN})
endfunction()
if(NUMORA_PCH)
    file(WRITE "${CMAKE_BINARY_DIR}/precompiled.cpp" "")
    numora_precompiled(core Qt6::Core ${core_headers})
    numora_precompiled(widgets Qt6::Widgets ${core_headers} ${widget_headers})
    numora_precompiled(tests Qt6::Widgets <QtWidgets>)
endif()
function(numora_precompile TARGET KIND)
    if(NUMORA_PCH)
        target_precompile_headers(${TARGET} REUSE_FROM numora_precompiled_${KIND})
    endif()
endfunction()
