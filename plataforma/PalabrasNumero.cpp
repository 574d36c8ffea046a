#include "plataforma/PalabrasNumero.h"

namespace analizador::interno {

namespace {

constexpr TPalabra UNIDADES_ES[] = {{"UNO", 1},   {"UNA", 1},    {"UN", 1},    {"DOS", 2},
                                    {"TRES", 3},  {"CUATRO", 4}, {"CINCO", 5}, {"SEIS", 6},
                                    {"SIETE", 7}, {"OCHO", 8},   {"NUEVE", 9}};
constexpr TDecena DECENAS_ES[] = {{"DIECI", 10, Union::Pegada, 6},     {"DIEZ", 10, Union::Conjuncion, 6},
                                  {"ONCE", 11, Union::Ninguna},        {"DOCE", 12, Union::Ninguna},
                                  {"TRECE", 13, Union::Ninguna},       {"CATORCE", 14, Union::Ninguna},
                                  {"QUINCE", 15, Union::Ninguna},      {"VEINTI", 20, Union::Pegada},
                                  {"VEINTE", 20, Union::Conjuncion},   {"TREINTA", 30, Union::Conjuncion},
                                  {"CUARENTA", 40, Union::Conjuncion}, {"CINCUENTA", 50, Union::Conjuncion},
                                  {"SESENTA", 60, Union::Conjuncion},  {"SETENTA", 70, Union::Conjuncion},
                                  {"OCHENTA", 80, Union::Conjuncion},  {"NOVENTA", 90, Union::Conjuncion}};
constexpr TPalabra MULTIPLOS_ES[] = {{"DOS", 2},   {"TRES", 3}, {"CUATRO", 4}, {"SEIS", 6}, {"SETE", 7},
                                     {"SIETE", 7}, {"OCHO", 8}, {"NOVE", 9},   {"NUEVE", 9}};
constexpr std::string_view CIENTOS_ES[] = {"CIENTOS", "CIENTAS"};
constexpr TPalabra CENTENAS_ES[] = {{"CIENTO", 1}, {"QUINIENTOS", 5}, {"QUINIENTAS", 5}};
constexpr std::string_view CIEN_ES[] = {"CIEN"};
constexpr std::string_view MILLON_ES[] = {"MILLON"};
constexpr std::string_view MILLONES_ES[] = {"MILLONES"};
constexpr std::string_view MILLARDO_ES[] = {"MILLARDO"};
constexpr std::string_view MILLARDOS_ES[] = {"MILLARDOS"};

constexpr TPalabra UNIDADES_CA[] = {{"UNA", 1},  {"UN", 1},     {"U", 1},    {"DOS", 2}, {"DUES", 2},
                                    {"TRES", 3}, {"QUATRE", 4}, {"CINC", 5}, {"SIS", 6}, {"SET", 7},
                                    {"VUIT", 8}, {"HUIT", 8},   {"NOU", 9}};
constexpr TDecena DECENAS_CA[] = {{"DEU", 10, Union::Ninguna},           {"ONZE", 11, Union::Ninguna},
                                  {"DOTZE", 12, Union::Ninguna},         {"TRETZE", 13, Union::Ninguna},
                                  {"CATORZE", 14, Union::Ninguna},       {"QUATORZE", 14, Union::Ninguna},
                                  {"QUINZE", 15, Union::Ninguna},        {"SETZE", 16, Union::Ninguna},
                                  {"DISSET", 17, Union::Ninguna},        {"DESSET", 17, Union::Ninguna},
                                  {"DESET", 17, Union::Ninguna},         {"DIVUIT", 18, Union::Ninguna},
                                  {"DEVUIT", 18, Union::Ninguna},        {"DIHUIT", 18, Union::Ninguna},
                                  {"DEHUIT", 18, Union::Ninguna},        {"DINOU", 19, Union::Ninguna},
                                  {"DENOU", 19, Union::Ninguna},         {"VINT", 20, Union::Conjuncion},
                                  {"TRENTA", 30, Union::Facultativa},    {"QUARANTA", 40, Union::Facultativa},
                                  {"CINQUANTA", 50, Union::Facultativa}, {"SEIXANTA", 60, Union::Facultativa},
                                  {"SIXANTA", 60, Union::Facultativa},   {"SETANTA", 70, Union::Facultativa},
                                  {"VUITANTA", 80, Union::Facultativa},  {"HUITANTA", 80, Union::Facultativa},
                                  {"NORANTA", 90, Union::Facultativa}};
constexpr TPalabra MULTIPLOS_CA[] = {{"DOS", 2},  {"DUES", 2}, {"TRES", 3}, {"QUATRE", 4},
                                     {"CINC", 5}, {"CIN", 5},  {"SIS", 6},  {"SET", 7},
                                     {"VUIT", 8}, {"HUIT", 8}, {"NOU", 9}};
constexpr std::string_view CIENTOS_CA[] = {"CENTS", "CENTES"};
constexpr TPalabra CENTENAS_CA[] = {{"CENT", 1}};
constexpr std::string_view MILLON_CA[] = {"MILIO", "MILLO"};
constexpr std::string_view MILLONES_CA[] = {"MILIONS", "MILLONS"};
constexpr std::string_view MILLARDO_CA[] = {"MILIARD"};
constexpr std::string_view MILLARDOS_CA[] = {"MILIARDS"};

constexpr TIdioma CASTELLANO = {UNIDADES_ES, DECENAS_ES, MULTIPLOS_ES, CIENTOS_ES,  CENTENAS_ES,
                                CIEN_ES,     MILLON_ES,  MILLONES_ES,  MILLARDO_ES, MILLARDOS_ES};
constexpr TIdioma CATALAN = {UNIDADES_CA, DECENAS_CA, MULTIPLOS_CA, CIENTOS_CA,  CENTENAS_CA,
                             {},          MILLON_CA,  MILLONES_CA,  MILLARDO_CA, MILLARDOS_CA};

}  // namespace

const TIdioma& PalabrasCastellanas() {
    return CASTELLANO;
}
const TIdioma& PalabrasCatalanas() {
    return CATALAN;
}

}  // namespace analizador::interno
