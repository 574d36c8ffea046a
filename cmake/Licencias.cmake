# What whoever gets the programs must get with them: the licences of the libraries that are linked in, as Debian has them.
function(analizador_licencias carpeta componente)
  foreach(paquete IN LISTS ARGN)
    install(FILES /usr/share/doc/${paquete}/copyright DESTINATION ${carpeta} RENAME ${paquete}.txt COMPONENT ${componente}
            OPTIONAL)
  endforeach()
endfunction()
analizador_licencias(${CMAKE_INSTALL_DATADIR}/analizador/licencias biblioteca libc6-dev libcli11-dev libpugixml-dev
                     libzip-dev nlohmann-json3-dev zlib1g-dev)
