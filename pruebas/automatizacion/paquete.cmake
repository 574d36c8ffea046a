# The package has all that it needs, in one folder, and the host in C++ is built with it alone. Run with
# -DOBRA=<build folder> -DDONDE=<folder for it> -DCOMPILADOR=<C++ compiler>.
file(REMOVE_RECURSE ${DONDE})
execute_process(COMMAND ${CMAKE_COMMAND} --install ${OBRA} --component paquete --prefix ${DONDE} OUTPUT_QUIET
                COMMAND_ERROR_IS_FATAL ANY)
set(licencias licencias/nlohmann-json3-dev.txt)
if(CON_DOCX)
  list(APPEND licencias licencias/libzip-dev.txt licencias/libpugixml-dev.txt)
endif()
if(CON_VENTANAS)
  list(APPEND licencias licencias/Qt/LGPL-3.0-only.txt licencias/Qt/GPL-3.0-only.txt licencias/Qt/copyright)
endif()
foreach(fichero ${licencias} analizador.dll analizador.h libanalizador.dll.a analiza-word.exe creatablas.exe Analizador.bas analiza.vbs
                analizador.pas Analizador.cs analizador.py CONFIG/CASTELLANO.INI CONFIG/CATALAN.INI CONFIG/OFICINA.INI
                TABLAS/MUNICIPI.DBF TABLAS/PROVIN.DBF docs/guia.md docs/windows.md)
  if(NOT EXISTS ${DONDE}/${fichero})
    message(SEND_ERROR "${fichero} is not in the package")
  endif()
endforeach()
execute_process(
  COMMAND ${COMPILADOR} -std=c++20 -static -Iinclude anfitrion_word.cpp libanalizador.dll.a -o anfitrion_word.exe
  WORKING_DIRECTORY ${DONDE} COMMAND_ERROR_IS_FATAL ANY)
