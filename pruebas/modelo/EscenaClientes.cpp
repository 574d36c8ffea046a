#include "pruebas/modelo/EscenaClientes.h"

#include <ostream>

#include "plataforma/Ansi.h"

namespace analizador {

namespace {

TSeccionesDePrueba Castellano() {
    return {
        {"HOMBRE", {"DON"}},
        {"MUJER", {"DOÑA"_ansi, "DOÑA MARQUESA"_ansi}},
        {"NOTARIO DE", {"NOTARIO DE"}},
        {"NIF", {"D.N.I."}},
        {"NIE", {"N.I.E."}},
        {"PASAPORTE", {"PASAPORTE"}},
        {"REPRESENTACION", {"EN NOMBRE Y REPRESENTACION DE"}},
        {"VECINDAD", {"VECINOS DE", "VECINO DE", "VECINA DE", "DOMICILIADA EN"}},
        {"DOMICILIO", {"CON DOMICILIO EN"}},
        {"NUMERO", {"NUMERO"}},
        {"CALLE", {"CALLE"}},
        {"PLAZA", {"PLAZA"}},
        {"AVENIDA", {"AVENIDA"}},
        {"SOLTERO", {"SOLTER"}},
        {"VIUDO", {"VIUD"}},
        {"CASADO", {"CASAD", "CONYUGES"}},
        {"GANANCIALES", {"GANANCIALES"}},
        {"SEPARACION DE BIENES", {"SEPARACION DE BIENES"}},
        {"EXTRANJEROS", {"NO RESIDENTE"}},
        {"PARTE DEUDORA", {"PARTE DEUDORA"}},
        {"NUMEROS", {"UNO", "DOS", "MIL"}},
        {"MESES", {"ENERO", "FEBRERO", "MARZO", "ABRIL", "MAYO"}},
        {"LUGAR NACIMIENTO", {"NATURAL DE"}},
        {"FECHA NACIMIENTO", {"NACIDO EL DIA", "NACIDA EL DIA"}},
        {"PADRES", {"HIJO DE", "HIJA DE"}},
        {"MES", {"MESES"}},
        {"PORCENTAJE", {"%", "POR CIENTO"}},
        {"EURIBOR", {"EURIBOR"}},
        {"IRPH", {"I.R.P.H."}},
        {"CECA", {"CAJAS DE AHORROS"}},
    };
}

TSeccionesDePrueba Catalan() {
    return {
        {"HOMBRE", {"EL SENYOR"}},
        {"MUJER", {"LA SENYORA"}},
        {"NOTARIO DE", {"NOTARI DE"}},
        {"NIF", {"D.N.I."}},
        {"NIE", {"N.I.E."}},
        {"PASAPORTE", {"PASSAPORT"}},
        {"REPRESENTACION", {"EN NOM I REPRESENTACIO DE"}},
        {"VECINDAD", {"VEÏNS DE"_ansi, "VEÏNA DE"_ansi, "VEÍ DE"_ansi}},
        {"DOMICILIO", {"AMB DOMICILI A"}},
        {"NUMERO", {"NUMERO"}},
        {"CALLE", {"CARRER"}},
        {"PLAZA", {"PLAÇA"_ansi}},
        {"CASADO", {"CASAD", "CASATS"}},
        {"VIUDO", {"VIDU", "VIUD"}},
        {"SEPARACION DE BIENES", {"SEPARACIO DE BENS"}},
        {"EXTRANJEROS", {"NO RESIDENT"}},
        {"PARTE DEUDORA", {"PART DEUTORA"}},
    };
}

// A country's row: its words repeat where the tests need no difference.
std::vector<std::string> Pais(std::string codigo, std::string nombre, std::string femenino,
                              std::string masculino, std::string catalan) {
    return {codigo, nombre, "2", femenino, masculino, femenino, "", "", catalan, "", catalan, "", ""};
}

std::vector<std::string> Provincia(std::string codigo, std::string nombre) {
    return {codigo, nombre, "1", "", "", "", "", "", "", "", "", "", ""};
}

}  // namespace

EscenaClientes::EscenaClientes() : vocabulario_(Castellano(), Catalan()) {
    tablas_.Pon("PILA.DBF", {{"NOMBRE"}, {{"ANA"}, {"EVA"}, {"JUAN"}, {"LUIS"}, {"MARIA"}, {"MARIA JOSE"}}});
    tablas_.Pon("MUNICIPI.DBF", {{"NOM_MUNICI", "CODPOSTAL", "NOMBRE", "COD_INE", "COD_PROV"},
                                 {{"LLEIDA", "25007", "LLEIDA", "25120", "25"},
                                  {"MADRID", "28001", "Madrid", "28079", "28"},
                                  {"MADRID", "28013", "Madrid", "28079", "28"},
                                  {"TOLEDO", "45001", "TOLEDO", "45168", "45"}}});
    tablas_.Pon("POSTAL.DBF", {{"PROVINCIA", "VIA", "TIPO_VIA", "IMPAR_INI", "IMPAR_FIN", "PAR_INI",
                                "PAR_FIN", "CODPOSTAL"},
                               {{"28", "MAYOR", "CL", "1", "0", "2", "0", "28013"}}});
    tablas_.Pon("AYUNTAM.DBF", {{"LUGAR", "COD_INE", "CODPOSTAL", "NOMBRE", "ABREVIATUR"},
                                {{"1", "28079", "28001", "MADRID", "MAD"}}});
    tablas_.Pon("PROVIN.DBF",
                {{"CODIGO", "PROVINCIA", "GRUPO", "NACIONALID", "GENTIL1_MA", "GENTIL1_FE", "GENTIL2_MA",
                  "GENTIL2_FE", "NACIONA_CA", "GEN1_MA_CA", "GEN1_FE_CA", "GEN2_MA_CA", "GEN2_FE_CA"},
                 {Provincia("25", "LERIDA"), Provincia("28", "MADRID"), Provincia("45", "TOLEDO"),
                  Pais("110", "FRANCIA", "FRANCESA", "FRANCES", "FRANCESA"),
                  Pais("126", "ALEMANIA", "ALEMANA", "ALEMAN", "ALEMANYA")}});
}

std::map<std::string, std::string> EscenaClientes::Leido(std::string_view parrafo, const TOrigenes& origenes,
                                                         int numero) {
    std::map<std::string, std::string> leido;
    for (const auto& [campo, origen] : origenes) {
        EXPECT_EQ(origen.Parrafo, numero) << campo;
        leido[campo] = Utf8DeAnsi(parrafo.substr(origen.Donde.Primera, origen.Donde.Longitud));
    }
    return leido;
}

void PrintTo(const TROtorgante& o, std::ostream* salida) {
    const auto pon = [&](const char* campo, const auto& valor) {
        *salida << "\n  " << campo << ": " << valor;
    };
    pon("TipoDocumento", o.TipoDocumento);
    pon("NumDocumento", o.NumDocumento);
    pon("Sexo", o.Sexo);
    pon("Nombre", Utf8DeAnsi(o.Nombre));
    pon("Apellidos", Utf8DeAnsi(o.Apellidos));
    pon("EstadoCivil", o.EstadoCivil);
    pon("Regimen", o.Regimen);
    pon("Conyuge", Utf8DeAnsi(o.Conyuge));
    pon("Vecindad", Utf8DeAnsi(o.Vecindad));
    pon("Provincia", Utf8DeAnsi(o.Provincia));
    pon("TipoVia", o.TipoVia);
    pon("Domicilio", Utf8DeAnsi(o.Domicilio));
    pon("Numero", o.Numero);
    pon("CodPostal", o.CodPostal);
    pon("CodINE", o.CodINE);
    pon("IntervencionINTI", o.IntervencionINTI);
    pon("IntervencionVRK", o.IntervencionVRK);
    pon("Residente", o.Residente);
    pon("CodPais", o.CodPais);
    pon("Pais", Utf8DeAnsi(o.Pais));
    pon("Nacionalidad", Utf8DeAnsi(o.Nacionalidad));
    pon("LugarNacimiento", Utf8DeAnsi(o.LugarNacimiento));
    pon("PaisNacimiento", Utf8DeAnsi(o.PaisNacimiento));
    pon("ProvinciaNacimiento", Utf8DeAnsi(o.ProvinciaNacimiento));
    pon("FechaNacimiento", o.FechaNacimiento.has_value());
    pon("Padre", Utf8DeAnsi(o.Padre));
    pon("Madre", Utf8DeAnsi(o.Madre));
    pon("EnXML", o.EnXML);
}

}  // namespace analizador
