#include "programas/creatablas/DisenoCallejero.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <optional>

#include "plataforma/Ansi.h"
#include "plataforma/FicheroIni.h"
#include "plataforma/Rut.h"
#include "plataforma/Utf8.h"

namespace analizador {

namespace {

constexpr std::string_view SECCION_TIPOS = "TIPOS";
constexpr std::size_t LONGITUD_MAXIMA = 10000;

struct TCamposNecesarios {
    std::string_view Registro;
    std::vector<std::string_view> Campos;
};

const std::array<TCamposNecesarios, 4>& Necesarios() {
    static const std::array<TCamposNecesarios, 4> necesarios = {{
        {"VIAS", {"PROVINCIA", "MUNICIPIO", "VIA", "TIPO", "NOMBRE"}},
        {"PSEU", {"PROVINCIA", "MUNICIPIO", "VIA", "NOMBRE"}},
        {"TRAM",
         {"PROVINCIA", "MUNICIPIO", "VIA", "PSEUDOVIA", "CODPOSTAL", "NUMERACION", "PRIMERO", "ULTIMO"}},
        {"UP", {"PROVINCIA", "MUNICIPIO", "NOMBRE"}},
    }};
    return necesarios;
}

std::string Utf8(const std::filesystem::path& ruta) {
    const std::u8string utf8 = ruta.u8string();
    return {utf8.begin(), utf8.end()};
}

std::optional<std::size_t> NumeroDe(std::string_view texto) {
    std::size_t numero = 0;
    const auto [fin, error] = std::from_chars(texto.data(), texto.data() + texto.size(), numero);
    if (error != std::errc() || fin != texto.data() + texto.size()) return std::nullopt;
    return numero >= 1 && numero <= LONGITUD_MAXIMA ? std::optional(numero) : std::nullopt;
}

// "first,length", from 1.
std::optional<TCampoFijo> CampoDe(std::string_view valor) {
    const std::size_t coma = valor.find(',');
    if (coma == std::string_view::npos) return std::nullopt;
    const auto primera = NumeroDe(valor.substr(0, coma));
    const auto longitud = NumeroDe(valor.substr(coma + 1));
    if (!primera || !longitud) return std::nullopt;
    return TCampoFijo{*primera - 1, *longitud};
}

// One section of the file, read with its faults named.
class TLectorSeccion {
  public:
    TLectorSeccion(const TFicheroIni& ini, const TFicheroIni::Seccion& seccion, std::string fichero)
        : ini_(ini), seccion_(seccion), fichero_(std::move(fichero)) {}

    [[nodiscard]] TDisenoRegistro Registro(const TCamposNecesarios& necesarios) const {
        TDisenoRegistro registro;
        const auto longitud = NumeroDe(ini_.LeeTexto(seccion_.Nombre, "Longitud", ""));
        if (!longitud) Falla("Longitud", "falta o no es un número");
        registro.Longitud = *longitud;
        for (const std::string_view nombre : necesarios.Campos) {
            const auto campo = CampoDe(ini_.LeeTexto(seccion_.Nombre, nombre, ""));
            if (!campo) Falla(nombre, "falta o no es una posición y una longitud separadas por una coma");
            if (campo->Primera + campo->Longitud > registro.Longitud)
                Falla(nombre, "no cabe en la Longitud del registro");
            registro.Campos.emplace(nombre, *campo);
        }
        return registro;
    }

  private:
    [[noreturn]] void Falla(std::string_view clave, std::string_view causa) const {
        throw ErrorCallejero(fichero_ + ":" + std::to_string(seccion_.Linea) + ": sección [" +
                             PrincipioEnUnaLinea(Utf8DeAnsi(seccion_.Nombre)) + "]: " + std::string(clave) +
                             " " + std::string(causa));
    }

    const TFicheroIni& ini_;
    const TFicheroIni::Seccion& seccion_;
    std::string fichero_;
};

char Mayuscula(char c) {
    return c >= 'a' && c <= 'z' ? static_cast<char>(c - 'a' + 'A') : c;
}

}  // namespace

TDisenoCallejero::TDisenoCallejero(const std::filesystem::path& ini) {
    const auto fichero = AbreFicheroIni(ini);
    for (const TCamposNecesarios& necesarios : Necesarios()) {
        TDisenoFichero diseno{std::string(necesarios.Registro), "", {}};
        for (const TFicheroIni::Seccion& seccion : fichero->Secciones()) {
            const std::string nombre = AnsiUpperCase(seccion.Nombre);
            if (nombre.substr(0, nombre.find(' ')) != necesarios.Registro) continue;
            diseno.Registros.push_back(TLectorSeccion(*fichero, seccion, Utf8(ini)).Registro(necesarios));
            if (diseno.Patron.empty()) diseno.Patron = fichero->LeeTexto(seccion.Nombre, "Fichero", "");
        }
        if (diseno.Registros.empty())
            throw ErrorCallejero(Utf8(ini) + ": falta la sección [" + diseno.Nombre + "] o el fichero");
        if (diseno.Patron.empty())
            throw ErrorCallejero(Utf8(ini) + ": sección [" + diseno.Nombre + "]: Fichero falta");
        ficheros_.push_back(std::move(diseno));
    }
    for (const TFicheroIni::Seccion& seccion : fichero->Secciones()) {
        if (AnsiUpperCase(seccion.Nombre) != SECCION_TIPOS) continue;
        for (const TFicheroIni::Clave& clave : seccion.Claves)
            tipos_.emplace(Pliega(clave.Nombre), Pliega(clave.Valor));
    }
}

const TDisenoFichero& TDisenoCallejero::Fichero(std::string_view nombre) const {
    return *std::find_if(ficheros_.begin(), ficheros_.end(),
                         [&](const TDisenoFichero& f) { return f.Nombre == nombre; });
}

std::string_view TDisenoCallejero::Tipo(std::string_view tipo) const {
    const auto hallado = tipos_.find(tipo);
    return hallado == tipos_.end() ? std::string_view() : std::string_view(hallado->second);
}

bool EncajaPatron(std::string_view patron, std::string_view nombre) {
    if (patron.empty()) return nombre.empty();
    if (patron.front() == '*')
        return EncajaPatron(patron.substr(1), nombre) ||
               (!nombre.empty() && EncajaPatron(patron, nombre.substr(1)));
    return !nombre.empty() &&
           (patron.front() == '?' || Mayuscula(patron.front()) == Mayuscula(nombre.front())) &&
           EncajaPatron(patron.substr(1), nombre.substr(1));
}

}  // namespace analizador
