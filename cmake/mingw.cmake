# Builds for 64-bit Windows with Debian's g++-mingw-w64-x86-64-posix.
set(CMAKE_SYSTEM_NAME Windows)
set(CMAKE_SYSTEM_PROCESSOR x86_64)
set(CMAKE_C_COMPILER x86_64-w64-mingw32-gcc-posix)
set(CMAKE_CXX_COMPILER x86_64-w64-mingw32-g++-posix)
set(CMAKE_RC_COMPILER x86_64-w64-mingw32-windres)
set(CMAKE_FIND_ROOT_PATH /usr/x86_64-w64-mingw32)
# Qt, where herramientas/qt_windows has made it.
execute_process(COMMAND ${CMAKE_CURRENT_LIST_DIR}/../herramientas/qt_windows carpeta OUTPUT_VARIABLE qt_windows
                OUTPUT_STRIP_TRAILING_WHITESPACE)
if(EXISTS ${qt_windows}/HECHO)
  list(APPEND CMAKE_FIND_ROOT_PATH ${qt_windows})
  list(APPEND CMAKE_PREFIX_PATH ${qt_windows})
endif()
set(CMAKE_FIND_ROOT_PATH_MODE_PROGRAM NEVER)
set(CMAKE_FIND_ROOT_PATH_MODE_LIBRARY ONLY)
set(CMAKE_FIND_ROOT_PATH_MODE_INCLUDE ONLY)
set(CMAKE_FIND_ROOT_PATH_MODE_PACKAGE ONLY)
# An office's machine has none of the compiler's libraries.
set(CMAKE_EXE_LINKER_FLAGS_INIT "-static")
set(CMAKE_SHARED_LINKER_FLAGS_INIT "-static")
# How a test is run from ctest; the script keeps Wine's processes under control.
set(CMAKE_CROSSCOMPILING_EMULATOR "${CMAKE_CURRENT_LIST_DIR}/../herramientas/windows;ejecuta")
