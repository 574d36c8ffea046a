#include "plataforma/Rficheros.h"

namespace analizador {

std::filesystem::path SlashSep(const std::filesystem::path& ruta, const std::filesystem::path& resto) {
    using TRuta = std::filesystem::path;
    const auto esSeparador = [](TRuta::value_type c) { return c == '/' || c == TRuta::preferred_separator; };
    TRuta::string_type primera = ruta.native();
    TRuta::string_type segunda = resto.native();
    if (primera.empty()) return resto;
    while (!primera.empty() && esSeparador(primera.back())) primera.pop_back();
    while (!segunda.empty() && esSeparador(segunda.front())) segunda.erase(segunda.begin());
    return primera + TRuta::preferred_separator + segunda;
}

bool EsMarcaReciente(std::int64_t modificado, std::int64_t cambiado, std::int64_t ahora) {
    constexpr std::int64_t MARGEN = 3'000'000'000;  // some file systems count in steps of two seconds
    return modificado > ahora - MARGEN || cambiado > ahora - MARGEN;
}

}  // namespace analizador
