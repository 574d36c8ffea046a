# Private compile options of every target of the project: nothing of this reaches who links to it.
add_library(analizador_opciones INTERFACE)
target_compile_features(analizador_opciones INTERFACE cxx_std_20)
target_include_directories(analizador_opciones INTERFACE ${PROJECT_SOURCE_DIR})
target_compile_options(
  analizador_opciones INTERFACE -Wall -Wextra -Wpedantic -Wconversion -Wshadow
                                $<$<BOOL:${ANALIZADOR_AVISOS_ERROR}>:-Werror>)
# g++ 12 warns of its own std::string when it optimises (a literal added to a string): false, and mended in g++ 13.
if(CMAKE_CXX_COMPILER_ID STREQUAL "GNU" AND CMAKE_CXX_COMPILER_VERSION VERSION_LESS 13)
  target_compile_options(analizador_opciones INTERFACE -Wno-restrict -Wno-maybe-uninitialized)
endif()

if(WIN32)
  # Windows 7 or later, wide names, and no more of its headers' macros than needed.
  target_compile_definitions(analizador_opciones INTERFACE UNICODE _UNICODE NOMINMAX WIN32_LEAN_AND_MEAN _WIN32_WINNT=0x0601)
endif()

set(CMAKE_CXX_STANDARD 20)
set(CMAKE_CXX_STANDARD_REQUIRED ON)
set(CMAKE_CXX_EXTENSIONS OFF)
set(CMAKE_EXPORT_COMPILE_COMMANDS ON)

# A static library of the project: analizador_biblioteca(NAME SOURCES a.cpp ... LINKS public_lib ... PRIVATE_LINKS lib ...)
function(analizador_biblioteca nombre)
  cmake_parse_arguments(ARG "" "" "SOURCES;LINKS;PRIVATE_LINKS" ${ARGN})
  add_library(${nombre} STATIC ${ARG_SOURCES})
  target_include_directories(${nombre} PUBLIC $<BUILD_INTERFACE:${PROJECT_SOURCE_DIR}>)
  set_target_properties(${nombre} PROPERTIES POSITION_INDEPENDENT_CODE ON)
  target_link_libraries(${nombre} PUBLIC ${ARG_LINKS} PRIVATE $<BUILD_INTERFACE:analizador_opciones> ${ARG_PRIVATE_LINKS})
endfunction()
