#include "pruebas/fuzz/OficinaAlAzar.h"

#include <algorithm>
#include <array>
#include <fstream>
#include <random>

#include "analizador/ConstAnalizador.h"
#include "plataforma/Ansi.h"
#include "plataforma/CarpetaPrivada.h"
#include "plataforma/FicheroIni.h"
#include "programas/creatablas/Esquema.h"

namespace analizador {

namespace {

constexpr auto DONA_CASTELLANA = "DOÑA"_ansi;
constexpr auto NUNEZ = "NÚÑEZ"_ansi;
constexpr auto ESPANA = "ESPAÑA"_ansi;
constexpr auto ANO = "AÑO"_ansi;

constexpr std::array<std::string_view, 72> PALABRAS = {"DON",
                                                       DONA_CASTELLANA,
                                                       "JUAN",
                                                       "ANA",
                                                       "MARIA",
                                                       "PEREZ",
                                                       NUNEZ,
                                                       "DE",
                                                       "LA",
                                                       "EL",
                                                       "EN",
                                                       "Y",
                                                       "I",
                                                       "A",
                                                       "COMPARECEN",
                                                       "INTERVIENEN",
                                                       "EXPONEN",
                                                       "VENDE",
                                                       "PRESTATARIA",
                                                       "NUMERO",
                                                       "MIL",
                                                       "DOS",
                                                       "CIEN",
                                                       "VEINTIUNO",
                                                       "UN",
                                                       "1",
                                                       "28",
                                                       "2024",
                                                       "12345678Z",
                                                       "B12345674",
                                                       "X1234567L",
                                                       "D.N.I.",
                                                       "N.I.E.",
                                                       "C.I.F.",
                                                       "PASAPORTE",
                                                       "ENERO",
                                                       "MAYO",
                                                       "DIA",
                                                       ANO,
                                                       "MADRID",
                                                       "VIC",
                                                       "BARCELONA",
                                                       ESPANA,
                                                       "FRANCIA",
                                                       "CALLE",
                                                       "CARRER",
                                                       "PLAZA",
                                                       "28001",
                                                       "VECINO",
                                                       "DOMICILIO",
                                                       "NACIDO",
                                                       "HIJO",
                                                       "CASADO",
                                                       "SOLTERA",
                                                       "GANANCIALES",
                                                       "EUROS",
                                                       "1.234,56",
                                                       "MESES",
                                                       "POR CIENTO",
                                                       "EURIBOR",
                                                       "ANTE MI",
                                                       "NOTARIO",
                                                       "SUSTITUTO",
                                                       "TESTAMENTO",
                                                       "COMPRAVENTA",
                                                       "PRESTAMO HIPOTECARIO",
                                                       "REPRESENTACION",
                                                       "S.A.",
                                                       "COL\xB7LEGI",
                                                       "L'",
                                                       "-",
                                                       "."};
constexpr std::string_view SIGNOS = "ABEIS N 1 2,.;:()\"'-/\xD1\xC7\xB7\xA0\r\n";

class TAzar {
  public:
    explicit TAzar(std::uint64_t semilla) : generador_(semilla) {}
    // Below `cuantos`. The distributions of the library differ from one to another, the generator does not.
    [[nodiscard]] std::size_t Menor(std::size_t cuantos) { return generador_() % cuantos; }

    [[nodiscard]] std::string Palabra() {
        if (Menor(6) != 0) return std::string(PALABRAS.at(Menor(PALABRAS.size())));
        std::string palabra;
        for (std::size_t i = Menor(4) + 1; i > 0; --i) palabra += SIGNOS[Menor(SIGNOS.size())];
        return palabra;
    }

    [[nodiscard]] std::string Entrada() {
        if (Menor(12) == 0) return {};
        std::string entrada = Menor(8) == 0 ? " " : "";
        entrada += Palabra();
        while (Menor(3) == 0) entrada += " " + Palabra();
        if (Menor(8) == 0) entrada += ' ';
        return Menor(8) == 0 ? entrada.substr(entrada.size() / 2) : entrada;
    }

  private:
    std::mt19937_64 generador_;
};

const std::filesystem::path VOCABULARIO = CARPETA_VOCABULARIO;
constexpr std::array<std::string_view, 2> FICHEROS = {"CASTELLANO.INI", "CATALAN.INI"};

std::string TextoIni(const std::string& seccion, const std::vector<std::string>& entradas) {
    std::string texto = "[" + seccion + "]\r\nNumPalabras=" + std::to_string(entradas.size()) + "\r\n";
    for (std::size_t i = 0; i < entradas.size(); ++i)
        texto += std::to_string(i + 1) + "=\"" + entradas[i] + "\"\r\n";
    return texto;
}

std::string Vocabulario(unsigned numero, std::string_view fichero, TAzar& azar) {
    constexpr std::size_t PRIMERAS = 8;
    const auto original = AbreFicheroIni(VOCABULARIO / fichero);
    std::string texto;
    for (const auto& seccion : original->Secciones()) {
        std::vector<std::string> entradas;
        if (numero == 0) {
            entradas = original->Palabras(seccion.Nombre);
            entradas.resize(std::min(entradas.size(), PRIMERAS));
        } else {
            for (std::size_t i = azar.Menor(5); i > 0; --i) entradas.push_back(azar.Entrada());
        }
        texto += TextoIni(seccion.Nombre, entradas);
    }
    return texto;
}

}  // namespace

TOficinaAlAzar::TOficinaAlAzar(unsigned numero) {
    PonVocabulario(numero);
    PonTablas(numero);
}

void TOficinaAlAzar::PonVocabulario(unsigned numero) {
    carpeta_ = CarpetaPrivada() / ("oficina" + std::to_string(numero));
    TAzar azar(numero);
    std::filesystem::create_directories(carpeta_);
    for (const auto fichero : FICHEROS) {
        std::ofstream(carpeta_ / fichero, std::ios::binary) << Vocabulario(numero, fichero, azar);
        const auto leido = AbreFicheroIni(carpeta_ / fichero);
        for (const auto& seccion : leido->Secciones())
            for (const auto& palabra : leido->Palabras(seccion.Nombre)) palabras_.push_back(palabra);
    }
}

void TOficinaAlAzar::PonTablas(unsigned numero) {
    TAzar azar(1000 + numero);
    for (const TEsquema& esquema : Esquemas()) {
        TDatosDePrueba datos;
        for (const auto& columna : esquema.Columnas) datos.Campos.push_back(columna.Nombre);
        for (std::size_t filas = azar.Menor(5) + 1; filas > 0; --filas) {
            auto& fila = datos.Filas.emplace_back();
            for (const auto& columna : esquema.Columnas) {
                const bool esTexto = columna.Tipo == TTipoColumna::Texto;
                fila.push_back(esTexto                                ? azar.Entrada()
                               : columna.Tipo == TTipoColumna::Logico ? (azar.Menor(2) == 0 ? "T" : "F")
                                                                      : std::to_string(azar.Menor(100)));
                if (esTexto) palabras_.push_back(fila.back());
            }
        }
        tablas_.Pon(esquema.Tabla + ".DBF", std::move(datos));
    }
}

void TOficinaAlAzar::Elige(bool catalan) const {
    static TTablasDePrueba elegidas;
    static const InstalaTablas instaladas(elegidas);
    elegidas = tablas_;
    PonCarpetaTokens(carpeta_);
    if (catalan) PonTOKENS_INI(Rutas().CATALAN_INI);
}

std::string TOficinaAlAzar::Texto(std::string_view bytes) const {
    std::string texto;
    for (std::size_t i = 0; i < bytes.size(); ++i) {
        if (bytes[i] != '\0' || i + 1 == bytes.size()) {
            texto += bytes[i];
            continue;
        }
        const auto cual = static_cast<unsigned char>(bytes[++i]);
        texto += palabras_[cual * palabras_.size() / 256];
    }
    return texto;
}

const TOficinaAlAzar& EligeOficina(unsigned char byte) {
    static std::array<std::unique_ptr<const TOficinaAlAzar>, 32> oficinas;
    const unsigned numero = byte % oficinas.size();
    auto& oficina = oficinas.at(numero);
    if (!oficina) oficina = std::make_unique<const TOficinaAlAzar>(numero);
    oficina->Elige((byte & 32U) != 0);
    return *oficina;
}

}  // namespace analizador
