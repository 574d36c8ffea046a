# What an office unpacks in a folder of its machine: all in one place, as the library and the programs look for it.
install(TARGETS analizador_compartida analiza-word creatablas
        RUNTIME DESTINATION . COMPONENT paquete EXCLUDE_FROM_ALL
        ARCHIVE DESTINATION . COMPONENT paquete EXCLUDE_FROM_ALL)
install(FILES programas/biblioteca/analizador.h ejemplos/anfitriones/Analizador.bas ejemplos/anfitriones/analiza.vbs
              ejemplos/anfitriones/anfitrion_word.cpp ejemplos/anfitriones/analizador.pas ejemplos/anfitriones/Analizador.cs
              ejemplos/anfitriones/analizador.py
        DESTINATION . COMPONENT paquete EXCLUDE_FROM_ALL)
install(DIRECTORY ${CMAKE_BINARY_DIR}/bin/CONFIG ${CMAKE_BINARY_DIR}/bin/TABLAS
        DESTINATION . COMPONENT paquete EXCLUDE_FROM_ALL)
install(FILES adaptadores/ini/OFICINA.INI DESTINATION CONFIG COMPONENT paquete EXCLUDE_FROM_ALL)
# The headers of the library's class and of what it gives.
install(DIRECTORY analizador modelo plataforma rutinas
        DESTINATION include COMPONENT paquete EXCLUDE_FROM_ALL FILES_MATCHING PATTERN "*.h")
install(FILES adaptadores/word/AplicacionWord.h DESTINATION include/adaptadores/word COMPONENT paquete EXCLUDE_FROM_ALL)
install(FILES programas/biblioteca/AjustesCompartidos.h
        DESTINATION include/programas/biblioteca COMPONENT paquete EXCLUDE_FROM_ALL)
install(DIRECTORY docs DESTINATION . COMPONENT paquete EXCLUDE_FROM_ALL)
analizador_licencias(licencias paquete mingw-w64-x86-64-dev nlohmann-json3-dev libcli11-dev)
if(ANALIZADOR_DOCX)
  analizador_licencias(licencias paquete libpugixml-dev libzip-dev libz-mingw-w64-dev)
endif()
if(TARGET analizador_qt)
  # What whoever gets Qt's code must get with it.
  install(DIRECTORY ${qt_windows}/licencias/ DESTINATION licencias/Qt COMPONENT paquete EXCLUDE_FROM_ALL)
endif()

set(CPACK_GENERATOR ZIP)
set(CPACK_PACKAGE_FILE_NAME analizador-${PROJECT_VERSION}-windows)
set(CPACK_PACKAGE_DIRECTORY ${CMAKE_BINARY_DIR}/paquete)
set(CPACK_INSTALL_CMAKE_PROJECTS "${CMAKE_BINARY_DIR};analizador;paquete;/")
set(CPACK_STRIP_FILES ON)
set(CPACK_VERBATIM_VARIABLES ON)
include(CPack)
