#include "programas/creatablas/LectorLineas.h"

#include <algorithm>

#include "plataforma/Ansi.h"
#include "programas/creatablas/DisenoCallejero.h"

namespace analizador {

namespace {

constexpr std::string_view MARCA_UTF8 = "\xEF\xBB\xBF";
constexpr std::size_t TROZO = 1U << 20U;
constexpr char FIN_FICHERO = 0x1A;

std::string Utf8(const std::filesystem::path& ruta) {
    const std::u8string utf8 = ruta.u8string();
    return {utf8.begin(), utf8.end()};
}

}  // namespace

TLectorLineas::TLectorLineas(const std::filesystem::path& fichero)
    : fichero_(fichero), entrada_(fichero, std::ios::binary) {
    if (!entrada_) throw ErrorCallejero(Utf8(fichero) + ": no se puede abrir");
    Rellena();
    utf8_ = std::string_view(trozo_).starts_with(MARCA_UTF8);
    if (utf8_) posicion_ = MARCA_UTF8.size();
}

// Reads on behind what is left; false at the end of the file.
bool TLectorLineas::Rellena() {
    trozo_.erase(0, posicion_);
    posicion_ = 0;
    const std::size_t queda = trozo_.size();
    trozo_.resize(queda + TROZO);
    entrada_.read(trozo_.data() + queda, static_cast<std::streamsize>(TROZO));
    if (entrada_.bad()) throw ErrorCallejero(Utf8(fichero_) + ": no se puede leer");
    const auto nuevos = static_cast<std::size_t>(entrada_.gcount());
    trozo_.resize(queda + nuevos);
    leidos_ += nuevos;
    return nuevos > 0;
}

std::optional<std::string_view> TLectorLineas::LineaCruda() {
    for (;;) {
        const std::size_t fin = trozo_.find('\n', posicion_);
        const bool entera = fin != std::string::npos;
        const std::size_t longitud = (entera ? fin : trozo_.size()) - posicion_;
        if (!entera && longitud <= LINEA_MAXIMA && Rellena()) continue;
        if (!entera && longitud == 0) return std::nullopt;
        const std::string_view linea =
            std::string_view(trozo_).substr(posicion_, std::min(longitud, LINEA_MAXIMA));
        posicion_ += longitud + (entera ? 1 : 0);
        const bool resto = saltando_;
        saltando_ = !entera && longitud > LINEA_MAXIMA;
        if (!resto) return linea;
    }
}

std::optional<std::string_view> TLectorLineas::Siguiente() {
    while (auto linea = LineaCruda()) {
        ++linea_;
        while (!linea->empty() && (linea->back() == '\r' || linea->back() == FIN_FICHERO))
            linea->remove_suffix(1);
        if (linea->empty()) continue;
        if (!utf8_) return linea;
        traducida_ = AnsiDeUtf8(*linea);
        return traducida_;
    }
    return std::nullopt;
}

}  // namespace analizador
