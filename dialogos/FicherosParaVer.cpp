#include "dialogos/FicherosParaVer.h"

#include <cerrno>
#include <fstream>
#include <system_error>

#include "plataforma/Ansi.h"
#include "plataforma/Rficheros.h"

namespace analizador {

namespace {

bool Escribe(const std::filesystem::path& fichero, std::string_view bytes) {
    std::ofstream salida(fichero, std::ios::binary | std::ios::trunc);
    salida.write(bytes.data(), static_cast<std::streamsize>(bytes.size()));
    salida.close();
    return salida.good();
}

}  // namespace

std::filesystem::path EscribeFicheroTemporal(std::string_view prefijo, std::string_view extension,
                                             std::string_view bytes) {
    auto fichero = FicheroTemporal_({}, prefijo, extension);
    errno = 0;
    if (Escribe(fichero, bytes)) return fichero;
    const std::error_code causa(errno != 0 ? errno : EIO, std::generic_category());
    std::error_code nada;
    std::filesystem::remove(fichero, nada);
    throw std::filesystem::filesystem_error("No se puede escribir el fichero temporal", fichero, causa);
}

std::string BytesDeTexto(std::string_view texto) {
    std::string lineas;
    lineas.reserve(texto.size() + texto.size() / 16);
    for (std::size_t i = 0; i < texto.size(); ++i) {
        const bool esPar = texto.substr(i).starts_with("\r\n");
        if (texto[i] == '\r' || texto[i] == '\n')
            lineas += "\r\n";
        else
            lineas += texto[i];
        if (esPar) ++i;
    }
    return "\xEF\xBB\xBF" + Utf8DeAnsi(lineas);
}

}  // namespace analizador
