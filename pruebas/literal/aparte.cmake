cmake_minimum_required(VERSION 3.25)

# Checks by the map of its link that the plain program holds nothing of what it stands in for. Run with -DMAPA=<map>.
file(STRINGS ${MAPA} miembros REGEX "lib[a-z_]+\\.a\\(")
if(NOT miembros MATCHES "libanalizador_sesion\\.a\\(Otorgantes")
  message(FATAL_ERROR "${MAPA} is not the map of the link")
endif()
foreach(ajeno "libanalizador_rutinas\\.a\\(" "libanalizador_dbase\\.a\\(" "libanalizador_sesion\\.a\\(Secciones"
              "libanalizador_plataforma\\.a\\(FicheroIni")
  if(miembros MATCHES "${ajeno}[^)]*")
    message(FATAL_ERROR "the plain program took ${CMAKE_MATCH_0})")
  endif()
endforeach()
