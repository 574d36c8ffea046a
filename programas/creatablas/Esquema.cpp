#include "programas/creatablas/Esquema.h"

namespace analizador {

namespace {

TColumnaDbf Texto(const char* nombre, int ancho) {
    return {nombre, TTipoColumna::Texto, ancho};
}
TColumnaDbf Numero(const char* nombre, int ancho) {
    return {nombre, TTipoColumna::Numero, ancho};
}
TColumnaDbf Logico(const char* nombre) {
    return {nombre, TTipoColumna::Logico, 1};
}

}  // namespace

const std::vector<TEsquema>& Esquemas() {
    static const std::vector<TEsquema> esquemas = {
        {"PILA", {Texto("NOMBRE", 40)}, {"NOMBRE"}},
        {"TIPOS",
         {Numero("NUMEROTIPO", 5), Texto("NOMBRE", 80), Texto("COD_OFICIA", 10), Logico("PRESTAMO"),
          Texto("CLAVE_INTI", 10), Texto("TIPO", 80)}},
        {"AYUNTAM",
         {Numero("LUGAR", 5), Texto("NOMBRE", 50), Texto("ABREVIATUR", 10), Texto("COD_INE", 5),
          Texto("CODPOSTAL", 5)}},
        {"PROVIN",
         {Texto("PROVINCIA", 21), Texto("CODIGO", 3), Texto("COD_198", 3), Numero("GRUPO", 1),
          Texto("NACIONALID", 25), Texto("GENTIL1_MA", 25), Texto("GENTIL1_FE", 25), Texto("GENTIL2_MA", 25),
          Texto("GENTIL2_FE", 25), Texto("NACIONA_CA", 25), Texto("GEN1_MA_CA", 25), Texto("GEN1_FE_CA", 25),
          Texto("GEN2_MA_CA", 25), Texto("GEN2_FE_CA", 25)}},
        {"TIPO_INT", {Numero("CODIGO", 3), Texto("DESCRIPCIO", 125)}},
        {"TIPO_VIA", {Texto("CODIGO", 2), Texto("CODPOSTAL", 3), Texto("NOMBRE", 15)}},
        {"MUNICIPI",
         {Texto("NOM_MUNICI", 50), Texto("CODPOSTAL", 5), Texto("NOMBRE", 50), Texto("COD_INE", 5),
          Texto("COD_PROV", 2)},
         {"NOM_MUNICI", "CODPOSTAL"}},
        {"POSTAL",
         {Texto("PROVINCIA", 2), Texto("VIA", 50), Texto("TIPO_VIA", 3), Numero("IMPAR_INI", 5),
          Numero("IMPAR_FIN", 5), Numero("PAR_INI", 5), Numero("PAR_FIN", 5), Texto("CODPOSTAL", 5)},
         {"NOMBREVIA"}},
    };
    return esquemas;
}

}  // namespace analizador
