#include "pruebas/vocabulario/Vocabularios.h"

#include <algorithm>
#include <filesystem>
#include <fstream>
#include <iterator>

#include "plataforma/Ansi.h"

namespace analizador::vocabulario {

namespace {

Vocabulario Lee(const std::string& nombre, bool catalan) {
    std::ifstream fichero(std::filesystem::path(CARPETA_VOCABULARIO) / nombre, std::ios::binary);
    std::string bytes((std::istreambuf_iterator<char>(fichero)), std::istreambuf_iterator<char>());
    TFicheroIni ini(bytes);
    return {nombre, catalan, std::move(bytes), std::move(ini)};
}

}  // namespace

const std::vector<Vocabulario>& Vocabularios() {
    static const std::vector<Vocabulario> leidos = {Lee("CASTELLANO.INI", false), Lee("CATALAN.INI", true)};
    return leidos;
}

const Vocabulario& Castellano() {
    return Vocabularios().front();
}

const Vocabulario& Catalan() {
    return Vocabularios().back();
}

const std::vector<std::string_view>& SeccionesLeidas() {
    static const std::vector<std::string_view> secciones = {"COMPARECIENTES",
                                                            "INTERVINIENTES",
                                                            "EXPONEN",
                                                            "TRANSMISION",
                                                            "PARTE DEUDORA",
                                                            "NUMEROS",
                                                            "NIF",
                                                            "NIE",
                                                            "PASAPORTE",
                                                            "NOTARIO DE",
                                                            "HOMBRE",
                                                            "MUJER",
                                                            "REPRESENTACION",
                                                            "DOMICILIO",
                                                            "NUMERO",
                                                            "VECINDAD",
                                                            "CALLE",
                                                            "PLAZA",
                                                            "AVENIDA",
                                                            "TRAVESIA",
                                                            "URBANIZACION",
                                                            "RONDA",
                                                            "PASEO",
                                                            "GLORIETA",
                                                            "FINCA",
                                                            "CARRETERA",
                                                            "COLONIA",
                                                            "RAMBLA",
                                                            "CASADO EN SEGUNDAS NUPCIAS",
                                                            "DIVORCIADO",
                                                            "SOLTERO",
                                                            "VIUDO",
                                                            "PAREJA DE HECHO",
                                                            "SEPARADO",
                                                            "CASADO",
                                                            "GANANCIALES",
                                                            "SEPARACION DE BIENES",
                                                            "PARTICIPACION",
                                                            "EURO",
                                                            "MESES",
                                                            "ANTE MI",
                                                            "SUSTITUTO",
                                                            "LUGAR NACIMIENTO",
                                                            "FECHA NACIMIENTO",
                                                            "PADRES",
                                                            "EXTRANJEROS",
                                                            "MES",
                                                            "PORCENTAJE",
                                                            "EURIBOR",
                                                            "IRPH",
                                                            "CECA"};
    return secciones;
}

int Posicion(const Vocabulario& vocabulario, std::string_view seccion, std::string_view entrada) {
    const auto& lista = vocabulario.Ini.Palabras(seccion);
    const auto sitio = std::find(lista.begin(), lista.end(), entrada);
    return sitio == lista.end() ? -1 : static_cast<int>(sitio - lista.begin());
}

std::string Sitio(const Vocabulario& vocabulario, std::string_view seccion, std::string_view entrada) {
    return vocabulario.Fichero + " [" + std::string(seccion) + "] " + Utf8DeAnsi(entrada);
}

}  // namespace analizador::vocabulario
