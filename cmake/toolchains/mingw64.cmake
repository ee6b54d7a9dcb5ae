# Builds for Windows (x86_64) on Debian, with the compiler whose threads are those of POSIX: std::mutex and
# std::thread are whole there. The libraries are those that packaging/windows/build.sh has left.
set(CMAKE_SYSTEM_NAME Windows)
set(CMAKE_SYSTEM_PROCESSOR x86_64)

set(_triplet x86_64-w64-mingw32)
set(CMAKE_C_COMPILER ${_triplet}-gcc-posix)
set(CMAKE_CXX_COMPILER ${_triplet}-g++-posix)
set(CMAKE_RC_COMPILER ${_triplet}-windres)

# Without "..", by which CMake would not know it as its own root.
get_filename_component(_libs "${CMAKE_CURRENT_LIST_DIR}/../../build/windows/libs" ABSOLUTE)
set(NUMORA_WINDOWS_LIBS "${_libs}" CACHE PATH "Where the libraries for Windows are installed")
set(CMAKE_FIND_ROOT_PATH "${NUMORA_WINDOWS_LIBS}" /usr/${_triplet})
set(CMAKE_FIND_ROOT_PATH_MODE_PROGRAM NEVER)
set(CMAKE_FIND_ROOT_PATH_MODE_LIBRARY ONLY)
set(CMAKE_FIND_ROOT_PATH_MODE_INCLUDE ONLY)
set(CMAKE_FIND_ROOT_PATH_MODE_PACKAGE ONLY)
set(CMAKE_PREFIX_PATH "${NUMORA_WINDOWS_LIBS}")

# Qt's tools (moc, uic, rcc, lrelease) are the machine's own.
set(QT_HOST_PATH /usr CACHE PATH "Qt of the machine that builds")
set(QT_HOST_PATH_CMAKE_DIR /usr/lib/x86_64-linux-gnu/cmake CACHE PATH "Its CMake files")

# What is built runs here all the same, the tests too.
set(CMAKE_CROSSCOMPILING_EMULATOR "${CMAKE_CURRENT_LIST_DIR}/../../packaging/windows/wine.sh")
