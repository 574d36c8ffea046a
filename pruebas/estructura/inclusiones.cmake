cmake_minimum_required(VERSION 3.25)

# Checks that every folder includes only what it may. Run with -DRAIZ=<source tree>.
#
# The core (plataforma, rutinas, modelo, dialogos, analizador) takes nothing but the standard library from outside; the
# files that ask the operating system are named below.

set(NORMAS
  "plataforma|plataforma"
  "rutinas|rutinas plataforma modelo/TROtorgante.h modelo/TRConcepto.h analizador/ConstAnalizador.h"
  "modelo|modelo plataforma rutinas analizador/ConstAnalizador.h"
  "dialogos|dialogos plataforma modelo analizador/ConstAnalizador.h"
  "analizador|analizador plataforma rutinas modelo dialogos"
  "adaptadores/memoria|adaptadores/memoria plataforma modelo dialogos"
  "adaptadores/docx|adaptadores/docx plataforma modelo dialogos"
  "adaptadores/dbase|adaptadores/dbase plataforma modelo dialogos"
  "adaptadores/ini|adaptadores/ini plataforma modelo dialogos"
  "adaptadores/consola|adaptadores/consola plataforma modelo dialogos"
  "adaptadores/word|adaptadores/word plataforma modelo dialogos"
  "adaptadores/qt|adaptadores/qt plataforma modelo dialogos")
set(NUCLEO plataforma rutinas modelo dialogos analizador)
set(CON_SISTEMA plataforma/Sistema_posix.cpp plataforma/Sistema_windows.cpp)

set(ESTANDAR
  algorithm any array atomic bit bitset cassert cctype cerrno cfloat charconv chrono cinttypes climits cmath compare
  complex concepts condition_variable coroutine csetjmp csignal cstdarg cstddef cstdint cstdio cstdlib cstring ctime
  cwchar cwctype deque exception execution filesystem forward_list fstream functional future initializer_list iomanip
  ios iosfwd iostream istream iterator latch limits list locale map memory memory_resource mutex new numbers numeric
  optional ostream queue random ranges ratio regex scoped_allocator semaphore set shared_mutex source_location span
  sstream stack stdexcept stop_token streambuf string string_view syncstream system_error thread tuple type_traits
  typeindex typeinfo unordered_map unordered_set utility valarray variant vector version)

set(faltas "")
set(leidos 0)
foreach(norma IN LISTS NORMAS)
  string(REPLACE "|" ";" partes "${norma}")
  list(GET partes 0 carpeta)
  list(GET partes 1 permitidas)
  string(REPLACE " " ";" permitidas "${permitidas}")
  file(GLOB fuentes RELATIVE ${RAIZ} ${RAIZ}/${carpeta}/*.h ${RAIZ}/${carpeta}/*.cpp)
  foreach(fuente IN LISTS fuentes)
    math(EXPR leidos "${leidos} + 1")
    file(STRINGS ${RAIZ}/${fuente} lineas REGEX "^[ \t]*#[ \t]*include")
    foreach(linea IN LISTS lineas)
      if(linea MATCHES "include[ \t]*\"([^\"]+)\"")
        set(incluido "${CMAKE_MATCH_1}")
        set(puede FALSE)
        foreach(permitida IN LISTS permitidas)
          string(FIND "${incluido}/" "${permitida}/" donde)
          if(donde EQUAL 0)
            set(puede TRUE)
          endif()
        endforeach()
        if(NOT puede)
          string(APPEND faltas "  ${fuente} must not include ${incluido}\n")
        endif()
      elseif(linea MATCHES "include[ \t]*<([^>]+)>" AND carpeta IN_LIST NUCLEO AND NOT fuente IN_LIST CON_SISTEMA)
        if(NOT CMAKE_MATCH_1 IN_LIST ESTANDAR)
          string(APPEND faltas "  ${fuente} includes <${CMAKE_MATCH_1}>, which is not of the standard library\n")
        endif()
      endif()
    endforeach()
  endforeach()
endforeach()

file(READ ${RAIZ}/analizador/ConstAnalizador.h codigos)
if(codigos MATCHES "#include \"")
  string(APPEND faltas "  analizador/ConstAnalizador.h must include nothing of the project\n")
endif()
if(leidos LESS 40)
  string(APPEND faltas "  only ${leidos} sources were found: is ${RAIZ} the source tree?\n")
endif()
if(faltas)
  message(FATAL_ERROR "Forbidden inclusions:\n${faltas}")
endif()
message(STATUS "${leidos} sources keep to what their folder may include")
