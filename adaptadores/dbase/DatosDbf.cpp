#include "adaptadores/dbase/DatosDbf.h"

#include <algorithm>
#include <utility>

#include "adaptadores/dbase/PaginasCodigos.h"
#include "adaptadores/dbase/ValoresDbf.h"
#include "plataforma/Ansi.h"
#include "plataforma/Ruttb.h"

namespace analizador {

namespace {

constexpr std::string_view VERSIONES = "\x03\x04\x05\x07\x30\x31\x32\x43\x63\x83\x87\x8B\x8C\xCB\xF5";

constexpr std::size_t CONTROLADOR_EN = 29;
constexpr std::size_t MAXIMO_TEXTO = 255;  // more only where the decimals' byte is the length's high one

char Mayuscula(char c) {
    return c >= 'a' && c <= 'z' ? static_cast<char>(c - 'a' + 'A') : c;
}

bool IgualSinCaja(std::string_view a, std::string_view b) {
    return std::equal(a.begin(), a.end(), b.begin(), b.end(),
                      [](char x, char y) { return Mayuscula(x) == Mayuscula(y); });
}

std::string NombreDeCampo(std::string_view bytes) {
    std::string nombre(bytes.substr(0, bytes.find('\0')));
    while (!nombre.empty() && nombre.back() == ' ') nombre.pop_back();
    std::transform(nombre.begin(), nombre.end(), nombre.begin(), Mayuscula);
    return nombre;
}

bool EsVisualFoxPro(char version) {
    return version >= 0x30 && version <= 0x32;
}
bool PuedeSerDbase7(char version) {
    return version == 0x04 || version == '\x8C';
}

TClaseCampo ClaseDe(char tipo, std::size_t longitud, char version, bool largos) {
    switch (tipo) {
        case 'C':
        case 'D':
            return TClaseCampo::Texto;
        case 'N':
        case 'F':
            return TClaseCampo::Numero;
        case 'L':
            return longitud == 1 ? TClaseCampo::Logico : TClaseCampo::Vacio;
        case '+':
        case 'I':
            if (longitud != 4) return TClaseCampo::Vacio;
            return largos ? TClaseCampo::EnteroAlto : TClaseCampo::EnteroBajo;
        case 'O':
            return longitud == 8 ? TClaseCampo::RealAlto : TClaseCampo::Vacio;
        case 'B':
            return longitud == 8 && EsVisualFoxPro(version) ? TClaseCampo::RealBajo : TClaseCampo::Vacio;
        default:
            return TClaseCampo::Vacio;
    }
}

}  // namespace

TDatosDbf::TDatosDbf(std::string contenido, std::string fichero)
    : contenido_(std::move(contenido)), fichero_(std::move(fichero)) {
    CompruebaCabecera();
    LeeCampos();
    AnotaRegistros();
    TraduceTextos();
}

void TDatosDbf::Falla(std::string_view causa) const {
    throw ErrorTabla("La tabla " + fichero_ + " no se puede leer: " + std::string(causa));
}

std::uint32_t TDatosDbf::Leido(std::size_t posicion, std::size_t bytes) const {
    return static_cast<std::uint32_t>(LeeBajo(contenido_, posicion, bytes));
}

void TDatosDbf::CompruebaCabecera() {
    if (contenido_.size() <= CABECERA_DBF) Falla("el fichero es demasiado corto para ser una tabla");
    if (VERSIONES.find(contenido_[0]) == std::string_view::npos)
        Falla("no es una tabla dBASE de una versión conocida"_ansi);
    cabecera_ = Leido(LONGITUD_CABECERA_EN, 2);
    longitudRegistro_ = Leido(LONGITUD_REGISTRO_EN, 2);
    if (cabecera_ <= CABECERA_DBF || cabecera_ > contenido_.size())
        Falla("la longitud de su cabecera no es posible");
    if (longitudRegistro_ < 2) Falla("la longitud de sus registros no es posible");
    const std::uint64_t registros = Leido(REGISTROS_EN, 4);
    if (registros * longitudRegistro_ > contenido_.size() - cabecera_)
        Falla("está truncada: le faltan registros"_ansi);
}

void TDatosDbf::LeeCampos() {
    const bool leidos =
        LeeDescriptores(CABECERA_DBF, DESCRIPTOR_DBF, false) ||
        (PuedeSerDbase7(contenido_[0]) && LeeDescriptores(CABECERA_DBF7, DESCRIPTOR_DBF7, true));
    if (!leidos) Falla("sus campos no corresponden a la longitud de sus registros");
}

// False when the descriptors do not fill the record exactly, as in a file of the other layout.
bool TDatosDbf::LeeDescriptores(std::size_t primero, std::size_t longitud, bool largos) {
    campos_.clear();
    const std::size_t tipoEn = largos ? 32 : 11;
    const std::size_t longitudEn = largos ? 33 : 16;
    std::size_t posicion = 1;
    for (std::size_t d = primero; d < cabecera_ && contenido_[d] != FIN_DESCRIPTORES; d += longitud) {
        if (d + longitud > cabecera_) return false;
        const std::string_view descriptor(contenido_.data() + d, longitud);
        const char tipo = descriptor[tipoEn];
        std::size_t ancho = static_cast<unsigned char>(descriptor[longitudEn]);
        if (tipo == 'C' && !largos) ancho += Leido(d + longitudEn + 1, 1) * (MAXIMO_TEXTO + 1);
        std::string nombre = NombreDeCampo(descriptor.substr(0, tipoEn));
        if (nombre.empty() || ancho == 0) return false;
        campos_.push_back({std::move(nombre), ClaseDe(tipo, ancho, contenido_[0], largos), posicion, ancho});
        posicion += ancho;
    }
    return !campos_.empty() && posicion == longitudRegistro_;
}

void TDatosDbf::AnotaRegistros() {
    const std::uint32_t registros = Leido(REGISTROS_EN, 4);
    registros_.reserve(registros);
    for (std::uint32_t i = 0; i < registros; ++i)
        if (contenido_[cabecera_ + i * longitudRegistro_] != BORRADO_DBF) registros_.push_back(i);
}

void TDatosDbf::TraduceTextos() {
    const auto controlador = static_cast<unsigned char>(contenido_[CONTROLADOR_EN]);
    const std::optional<TTraduccion> conocida = TraduccionDe(controlador);
    const TTraduccion tabla = conocida ? *conocida : TraduccionIdentica();
    if (conocida && tabla == TraduccionIdentica() && contenido_.find('\0', cabecera_) == std::string::npos)
        return;  // nothing would change
    const std::string traduccion(tabla.begin(), tabla.end());
    for (const TCampoDbf& campo : campos_)
        if (campo.Clase == TClaseCampo::Texto) TraduceCampo(campo, traduccion, conocida.has_value());
}

void TDatosDbf::TraduceCampo(const TCampoDbf& campo, const std::string& traduccion, bool paginaConocida) {
    for (const std::uint32_t registro : registros_) {
        char* bytes = contenido_.data() + cabecera_ + registro * longitudRegistro_ + campo.Posicion;
        for (std::size_t i = 0; i < campo.Longitud; ++i) {
            const auto byte = static_cast<unsigned char>(bytes[i]);
            if (byte >= 0x80 && !paginaConocida)
                Falla("sus textos están en una página de códigos que no se conoce"_ansi);
            bytes[i] = traduccion[byte];
        }
    }
}

const TCampoDbf* TDatosDbf::BuscaCampo(std::string_view nombre) const {
    for (const TCampoDbf& campo : campos_)
        if (campo.Nombre == nombre) return &campo;
    const auto campo = std::find_if(campos_.begin(), campos_.end(),
                                    [&](const TCampoDbf& c) { return IgualSinCaja(c.Nombre, nombre); });
    return campo == campos_.end() ? nullptr : &*campo;
}

const TCampoDbf& TDatosDbf::Campo(std::string_view nombre) const {
    const TCampoDbf* campo = BuscaCampo(nombre);
    if (campo == nullptr)
        throw ErrorTabla("La tabla " + fichero_ + " no tiene el campo " + std::string(nombre));
    return *campo;
}

std::string TDatosDbf::Texto(std::uint32_t fila, const TCampoDbf& campo) const {
    return TextoDeBytes(Bytes(fila, campo), campo.Clase);
}

std::optional<double> TDatosDbf::Numero(std::uint32_t fila, const TCampoDbf& campo) const {
    return NumeroDeBytes(Bytes(fila, campo), campo.Clase);
}

}  // namespace analizador
