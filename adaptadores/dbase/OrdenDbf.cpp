#include "adaptadores/dbase/OrdenDbf.h"

#include <cstdint>
#include <fstream>

namespace analizador {

namespace {

std::filesystem::path Nota(std::filesystem::path tabla) {
    return tabla.replace_extension(".ORD");
}

}  // namespace

void AnotaOrden(const std::filesystem::path& tabla, std::string_view indice) {
    const TMarcaFichero marca = MarcaDeFichero(tabla);
    std::ofstream nota(Nota(tabla), std::ios::trunc);
    if (marca.Existe && nota) nota << indice << ' ' << marca.Longitud << ' ' << marca.Modificado << '\n';
}

void OlvidaOrden(const std::filesystem::path& tabla) {
    std::error_code error;
    std::filesystem::remove(Nota(tabla), error);
}

std::string OrdenAnotado(const std::filesystem::path& tabla, const TMarcaFichero& marca) {
    std::ifstream nota(Nota(tabla));
    std::string indice;
    std::uint64_t longitud = 0;
    std::int64_t modificado = 0;
    if (!(nota >> indice >> longitud >> modificado)) return {};
    return marca.Existe && longitud == marca.Longitud && modificado == marca.Modificado ? indice
                                                                                        : std::string();
}

}  // namespace analizador
