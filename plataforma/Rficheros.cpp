#include "plataforma/Rficheros.h"

#include <cerrno>
#include <chrono>
#include <fstream>
#include <string>
#include <system_error>
#include <thread>
#include <utility>

namespace analizador {

std::string Utf8DeRuta(const std::filesystem::path& ruta) {
    const std::u8string texto = ruta.u8string();
    return {texto.begin(), texto.end()};
}

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

bool MismaMarca(const TMarcaFichero& una, TMarcaFichero otra) {
    otra.Reciente = una.Reciente;
    return una == otra;
}

namespace {

// One byte more than the length is asked for, to see that the file ends there.
TLecturaFichero LeeUnaVez(const std::filesystem::path& fichero, const TMarcaFichero& marca) {
    errno = 0;
    std::ifstream entrada(fichero, std::ios::binary);
    std::error_code sinMirar;
    if (!entrada && std::filesystem::is_directory(fichero, sinMirar))  // not every system opens one
        return {TEstadoLectura::NoSeLee, marca, {}};
    if (!entrada) return {errno == EACCES ? TEstadoLectura::SinPermiso : TEstadoLectura::NoSeAbre, marca, {}};
    std::string bytes(marca.Longitud + 1, '\0');
    entrada.read(bytes.data(), static_cast<std::streamsize>(bytes.size()));
    bytes.resize(static_cast<std::size_t>(entrada.gcount()));
    if (entrada.bad()) return {TEstadoLectura::NoSeLee, marca, {}};
    return {bytes.size() == marca.Longitud ? TEstadoLectura::Entera : TEstadoLectura::Cambia, marca,
            std::move(bytes)};
}

// What a clock of coarse steps does not show: that a file whose mark is recent changed between two marks
// alike, which its bytes tell when they are read again; and that one just emptied is about to be filled,
// which is waited for a little.
bool PuedeCambiarSinVerse(const std::filesystem::path& fichero, const TLecturaFichero& lectura, int intento,
                          const TTomaMarca& marca) {
    constexpr int INTENTOS_VACIO = 30;
    if (lectura.Estado != TEstadoLectura::Entera || !lectura.Marca.Reciente) return false;
    if (lectura.Bytes.empty()) return intento < INTENTOS_VACIO;
    return LeeUnaVez(fichero, lectura.Marca).Bytes != lectura.Bytes ||
           !MismaMarca(lectura.Marca, marca(fichero));
}

}  // namespace

TLecturaFichero LeeFichero(const std::filesystem::path& fichero, const TTomaMarca& marca) {
    constexpr int INTENTOS = 100;
    constexpr int SIN_PAUSA = 10;
    TLecturaFichero lectura;
    TMarcaFichero antes = marca(fichero);
    for (int i = 0; i < INTENTOS; ++i) {
        if (i >= SIN_PAUSA) std::this_thread::sleep_for(std::chrono::milliseconds(1));
        lectura = LeeUnaVez(fichero, antes);
        const TMarcaFichero despues = marca(fichero);
        if (MismaMarca(antes, despues) && lectura.Estado != TEstadoLectura::Cambia &&
            !PuedeCambiarSinVerse(fichero, lectura, i, marca))
            return lectura;
        antes = despues;
    }
    lectura.Estado = TEstadoLectura::Cambia;
    return lectura;
}

}  // namespace analizador
