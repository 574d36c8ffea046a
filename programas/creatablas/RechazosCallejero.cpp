#include "programas/creatablas/RechazosCallejero.h"

#include <utility>

#include "plataforma/Utf8.h"

namespace analizador {

TRechazos::TRechazos(std::filesystem::path lista) : lista_(std::move(lista)) {
    std::error_code error;
    if (!lista_.empty()) std::filesystem::remove(lista_, error);
}

void TRechazos::Anota(std::string_view fichero, int linea, std::string_view causa) {
    const std::string texto =
        EnUnaLinea(fichero) + ":" + std::to_string(linea) + ": " + PrincipioEnUnaLinea(causa);
    if (cuantos_++ == 0 && !lista_.empty()) salida_.open(lista_, std::ios::binary | std::ios::trunc);
    if (salida_.is_open()) salida_ << texto << '\n';
    if (primeros_.size() < PRIMEROS) primeros_.push_back(texto);
}

}  // namespace analizador
