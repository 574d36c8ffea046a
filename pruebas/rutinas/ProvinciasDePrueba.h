#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "pruebas/comun/TablasDePrueba.h"

namespace analizador {

// A row of the table of provinces and countries; its words in order: nationality, then
// the first and second demonym of a man, the first and second of a woman.
struct TFilaProvincia {
    std::string_view Codigo;
    std::string_view Provincia;
    std::string_view Grupo;
    std::vector<std::string_view> Castellanas = {};
    std::vector<std::string_view> Catalanas = {};
};

[[nodiscard]] inline TDatosDePrueba Provincias(const std::vector<TFilaProvincia>& filas) {
    TDatosDePrueba datos{{"CODIGO", "PROVINCIA", "GRUPO", "NACIONALID", "GENTIL1_MA", "GENTIL2_MA",
                          "GENTIL1_FE", "GENTIL2_FE", "NACIONA_CA", "GEN1_MA_CA", "GEN2_MA_CA", "GEN1_FE_CA",
                          "GEN2_FE_CA"},
                         {}};
    for (const TFilaProvincia& fila : filas) {
        std::vector<std::string> valores = {std::string(fila.Codigo), std::string(fila.Provincia),
                                            std::string(fila.Grupo)};
        valores.insert(valores.end(), fila.Castellanas.begin(), fila.Castellanas.end());
        valores.resize(8);
        valores.insert(valores.end(), fila.Catalanas.begin(), fila.Catalanas.end());
        valores.resize(datos.Campos.size());
        datos.Filas.push_back(std::move(valores));
    }
    return datos;
}

}  // namespace analizador
