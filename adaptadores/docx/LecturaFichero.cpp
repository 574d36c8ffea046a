#include "adaptadores/docx/LecturaFichero.h"

#include <cstdint>
#include <string>
#include <system_error>

#include "adaptadores/docx/FalloDocx.h"
#include "plataforma/Rficheros.h"

namespace analizador {

namespace {

using namespace std::string_view_literals;

constexpr std::uintmax_t TAMANO_MAXIMO = 160ULL * 1024 * 1024;

// The container of the old binary documents and of every encrypted one.
constexpr std::string_view FIRMA_OLE = "\xD0\xCF\x11\xE0\xA1\xB1\x1A\xE1"sv;

// Names in its directory are UTF-16.
constexpr std::string_view FLUJO_CIFRADO = "E\0n\0c\0r\0y\0p\0t\0e\0d\0P\0a\0c\0k\0a\0g\0e\0"sv;
constexpr std::string_view FLUJO_WORD = "W\0o\0r\0d\0D\0o\0c\0u\0m\0e\0n\0t\0"sv;

void ExigeFicheroNormal(const std::filesystem::path& fichero) {
    std::error_code error;
    const auto estado = std::filesystem::status(fichero, error);
    if (estado.type() == std::filesystem::file_type::not_found) throw FalloDocx("el fichero no existe");
    if (error == std::errc::permission_denied) throw FalloDocx("no hay permiso para leer el fichero");
    if (estado.type() == std::filesystem::file_type::directory)
        throw FalloDocx("es una carpeta, no un documento");
    if (estado.type() != std::filesystem::file_type::regular)
        throw FalloDocx("no es un fichero que se pueda leer");
}

void ExigeEntera(TEstadoLectura estado) {
    switch (estado) {
        case TEstadoLectura::Entera:
            return;
        case TEstadoLectura::SinPermiso:
            throw FalloDocx("no hay permiso para leer el fichero");
        case TEstadoLectura::NoSeAbre:
            throw FalloDocx("no se puede abrir el fichero");
        case TEstadoLectura::NoSeLee:
            throw FalloDocx("no se puede leer el fichero hasta el final");
        case TEstadoLectura::Cambia:
            throw FalloDocx("el fichero está cambiando mientras se lee");
    }
}

bool Contiene(std::string_view bytes, std::string_view buscado) {
    return bytes.find(buscado) != std::string_view::npos;
}

}  // namespace

std::string LeeFicheroEntero(const std::filesystem::path& fichero) {
    ExigeFicheroNormal(fichero);
    std::error_code error;
    const auto tamano = std::filesystem::file_size(fichero, error);
    if (error) throw FalloDocx("no se puede leer el fichero");
    if (tamano > TAMANO_MAXIMO) throw FalloDocx("es demasiado grande para ser un documento");
    TLecturaFichero lectura = LeeFichero(fichero);
    ExigeEntera(lectura.Estado);
    if (lectura.Bytes.empty()) throw FalloDocx("el fichero está vacío");
    return std::move(lectura.Bytes);
}

std::string CausaDeNoSerZip(std::string_view bytes) {
    if (bytes.starts_with(FIRMA_OLE)) {
        if (Contiene(bytes, FLUJO_CIFRADO)) return "el documento está cifrado con contraseña";
        if (Contiene(bytes, FLUJO_WORD)) return "es un documento de Word antiguo (.doc); guárdelo como .docx";
        return "no es un documento de Word, sino un fichero de otro programa";
    }
    if (bytes.starts_with("PK\x03\x04")) return "el documento está truncado o dañado";
    return "no es un documento de Word";
}

}  // namespace analizador
