#include "adaptadores/dbase/EstructuraDbf.h"

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

TEstructuraDbf::TEstructuraDbf(std::string_view bytes, std::uint64_t longitud, std::string fichero)
    : fichero_(std::move(fichero)) {
    CompruebaCabecera(bytes, longitud);
    LeeCampos(bytes);
    LeeTraduccion(static_cast<unsigned char>(bytes[CONTROLADOR_EN]));
}

void TEstructuraDbf::Falla(std::string_view causa) const {
    throw ErrorTabla("La tabla " + fichero_ + " no se puede leer: " + std::string(causa));
}

void TEstructuraDbf::CompruebaCabecera(std::string_view bytes, std::uint64_t longitud) {
    if (bytes.size() <= CABECERA_DBF) Falla("el fichero es demasiado corto para ser una tabla");
    if (VERSIONES.find(bytes[0]) == std::string_view::npos)
        Falla("no es una tabla dBASE de una versión conocida"_ansi);
    cabecera_ = LeeBajo(bytes, LONGITUD_CABECERA_EN, 2);
    longitudRegistro_ = LeeBajo(bytes, LONGITUD_REGISTRO_EN, 2);
    registros_ = static_cast<std::uint32_t>(LeeBajo(bytes, REGISTROS_EN, 4));
    if (cabecera_ <= CABECERA_DBF || cabecera_ > bytes.size())
        Falla("la longitud de su cabecera no es posible");
    if (longitudRegistro_ < 2) Falla("la longitud de sus registros no es posible");
    if (std::uint64_t{registros_} * longitudRegistro_ > longitud - cabecera_)
        Falla("está truncada: le faltan registros"_ansi);
}

void TEstructuraDbf::LeeCampos(std::string_view bytes) {
    const bool leidos =
        LeeDescriptores(bytes, CABECERA_DBF, DESCRIPTOR_DBF, false) ||
        (PuedeSerDbase7(bytes[0]) && LeeDescriptores(bytes, CABECERA_DBF7, DESCRIPTOR_DBF7, true));
    if (!leidos) Falla("sus campos no corresponden a la longitud de sus registros");
}

// False when the descriptors do not fill the record exactly, as in a file of the other layout.
bool TEstructuraDbf::LeeDescriptores(std::string_view bytes, std::size_t primero, std::size_t longitud,
                                     bool largos) {
    campos_.clear();
    const std::size_t tipoEn = largos ? 32 : 11;
    const std::size_t longitudEn = largos ? 33 : 16;
    std::size_t posicion = 1;
    for (std::size_t d = primero; d < cabecera_ && bytes[d] != FIN_DESCRIPTORES; d += longitud) {
        if (d + longitud > cabecera_) return false;
        const std::string_view descriptor = bytes.substr(d, longitud);
        const char tipo = descriptor[tipoEn];
        std::size_t ancho = static_cast<unsigned char>(descriptor[longitudEn]);
        if (tipo == 'C' && !largos)
            ancho += static_cast<unsigned char>(descriptor[longitudEn + 1]) * (MAXIMO_TEXTO + 1);
        std::string nombre = NombreDeCampo(descriptor.substr(0, tipoEn));
        if (nombre.empty() || ancho == 0) return false;
        campos_.push_back({std::move(nombre), ClaseDe(tipo, ancho, bytes[0], largos), posicion, ancho});
        posicion += ancho;
    }
    return !campos_.empty() && posicion == longitudRegistro_;
}

void TEstructuraDbf::LeeTraduccion(unsigned char controlador) {
    const std::optional<TTraduccion> conocida = TraduccionDe(controlador);
    const TTraduccion tabla = conocida ? *conocida : TraduccionIdentica();
    paginaConocida_ = conocida.has_value();
    soloNulos_ = conocida && tabla == TraduccionIdentica();
    traduccion_.assign(tabla.begin(), tabla.end());
}

void TEstructuraDbf::TraduceTextos(std::string& bytes, std::size_t primero) const {
    if (soloNulos_ && bytes.find('\0', primero) == std::string::npos) return;
    for (const TCampoDbf& campo : campos_) {
        if (campo.Clase != TClaseCampo::Texto) continue;
        for (std::size_t i = primero; i + longitudRegistro_ <= bytes.size(); i += longitudRegistro_)
            if (bytes[i] != BORRADO_DBF) TraduceCampo(bytes.data() + i, campo);
    }
}

void TEstructuraDbf::TraduceCampo(char* registro, const TCampoDbf& campo) const {
    for (std::size_t i = campo.Posicion; i < campo.Posicion + campo.Longitud; ++i) {
        const auto byte = static_cast<unsigned char>(registro[i]);
        if (byte >= 0x80 && !paginaConocida_)
            Falla("sus textos están en una página de códigos que no se conoce"_ansi);
        registro[i] = traduccion_[byte];
    }
}

const TCampoDbf* TEstructuraDbf::BuscaCampo(std::string_view nombre) const {
    if (nombre.empty()) return nullptr;
    for (const TCampoDbf& campo : campos_)
        if (campo.Nombre.back() == nombre.back() && campo.Nombre == nombre) return &campo;
    const auto campo = std::find_if(campos_.begin(), campos_.end(),
                                    [&](const TCampoDbf& c) { return IgualSinCaja(c.Nombre, nombre); });
    return campo == campos_.end() ? nullptr : &*campo;
}

const TCampoDbf& TEstructuraDbf::Campo(std::string_view nombre) const {
    const TCampoDbf* campo = BuscaCampo(nombre);
    if (campo == nullptr)
        throw ErrorTabla("La tabla " + fichero_ + " no tiene el campo " + std::string(nombre));
    return *campo;
}

}  // namespace analizador
