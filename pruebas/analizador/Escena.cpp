#include "pruebas/analizador/Escena.h"

#include "plataforma/Ansi.h"

namespace analizador {

namespace {

constexpr auto DONA_CASTELLANA = "DOÑA"_ansi;

const TSeccionesDePrueba CASTELLANO = {
    {"COMPARECIENTES", {"COMPARECEN", "COMPARECE", "COMPARECIENTES"}},
    {"INTERVINIENTES", {"INTERVIENEN", "INTERVIENE"}},
    {"EXPONEN", {"EXPONEN", "EXPONE"}},
    {"TRANSMISION", {"VENDEN", "VENDE"}},
    {"PARTE DEUDORA", {"PARTE PRESTATARIA", "PRESTATARIO"}},
    {"NUMEROS", {"UNO", "DOS", "TRES", "CUATRO", "CINCO", "DOCE", "VEINTIUNO", "MIL"}},
    {"NUMERO", {"NUMERO"}},
    {"MESES",
     {"ENERO", "FEBRERO", "MARZO", "ABRIL", "MAYO", "JUNIO", "JULIO", "AGOSTO", "SEPTIEMBRE", "OCTUBRE",
      "NOVIEMBRE", "DICIEMBRE", "SETIEMBRE"}},
    {"ANTE MI", {"ANTE MI"}},
    {"SUSTITUTO", {"SUSTITUTO"}},
    {"EURO", {"EUROS"}},
    {"HOMBRE", {"DON"}},
    {"MUJER", {DONA_CASTELLANA}},
    {"NIF", {"D.N.I."}},
    {"REPRESENTACION", {"EN REPRESENTACION DE"}},
    {"VECINDAD", {"VECINO DE", "VECINA DE"}},
    {"DOMICILIO", {"CON DOMICILIO EN LA"}},
    {"CALLE", {"CALLE"}},
    {"LUGAR NACIMIENTO", {"NACIDO EN"}},
    {"FECHA NACIMIENTO", {"EL DIA"}},
    {"PADRES", {"HIJO DE"}},
    {"MES", {"MESES"}},
    {"PORCENTAJE", {"POR CIENTO"}},
    {"EURIBOR", {"EURIBOR"}},
};

const TSeccionesDePrueba CATALAN = {
    {"COMPARECIENTES", {"COMPAREIXEN", "COMPAREIX"}},
    {"INTERVINIENTES", {"INTERVENEN"}},
    {"EXPONEN", {"EXPOSEN"}},
    {"NUMEROS", {"U", "DOS", "TRES", "DOTZE", "MIL", "CENT"}},
    {"NUMERO", {"NUMERO"}},
    {"MESES", {"GENER", "FEBRER"}},
    {"ANTE MI", {"DAVANT MEU"}},
    {"EURO", {"EUROS"}},
    {"HOMBRE", {"EL SENYOR"}},
};

}  // namespace

TEscena::TEscena(const std::vector<std::string_view>& parrafos, std::vector<TVariable> variables,
                 std::vector<TMarcador> marcadores)
    : Vocabulario(CASTELLANO, CATALAN),
      Aplicacion(Crea({Parrafos(parrafos), std::move(marcadores), std::move(variables)})) {
    Tablas.Pon("TIPOS.DBF", {{"NUMEROTIPO", "NOMBRE", "COD_OFICIA", "PRESTAMO", "CLAVE_INTI", "TIPO"},
                             {{"1", "COMPRAVENTA", "01001", "F", "CV", "COMPRAVENTA"},
                              {"2", "TESTAMENTO ABIERTO", "0200101", "F", "TE", "TESTAMENTO ABIERTO"},
                              {"3", "PRESTAMO HIPOTECARIO", "05001", "T", "PH", "PRESTAMO HIPOTECARIO"}}});
    Tablas.Pon("AYUNTAM.DBF",
               {{"LUGAR", "NOMBRE", "ABREVIATUR", "COD_INE", "CODPOSTAL"},
                {{"1", "MADRID", "MAD", "28079", "28001"}, {"2", "VIC", "VIC", "08298", "08500"}}});
    Tablas.Pon("PILA.DBF", {{"NOMBRE"}, {{"ANA"}, {"JUAN"}, {"LUIS"}}});
    Tablas.Pon("PROVIN.DBF", {{"PROVINCIA", "CODIGO", "COD_198", "GRUPO", "NACIONALID", "GENTIL1_MA",
                               "GENTIL1_FE", "GENTIL2_MA", "GENTIL2_FE", "NACIONA_CA", "GEN1_MA_CA",
                               "GEN1_FE_CA", "GEN2_MA_CA", "GEN2_FE_CA"},
                              {{"MADRID", "28", "", "1", "", "", "", "", "", "", "", "", "", ""}}});
    Tablas.Pon("MUNICIPI.DBF", {{"NOM_MUNICI", "CODPOSTAL", "NOMBRE", "COD_INE", "COD_PROV"},
                                {{"MADRID", "28001", "MADRID", "28079", "28"}}});
    Tablas.Pon(
        "POSTAL.DBF",
        {{"PROVINCIA", "VIA", "TIPO_VIA", "IMPAR_INI", "IMPAR_FIN", "PAR_INI", "PAR_FIN", "CODPOSTAL"}, {}});
    Tablas.Pon("TIPO_INT.DBF",
               {{"CODIGO", "DESCRIPCIO"}, {{"1", "Adquirente"}, {"2", "Transmitente"}, {"99", "Ninguna"}}});
}

std::unique_ptr<TWordDocumentoCustom> TEscena::Crea(TContenidoDocumento contenido) {
    auto documento = std::make_unique<TDocumentoGrabado>(std::move(contenido), Diario);
    FDocumento = documento.get();
    return documento;
}

}  // namespace analizador
