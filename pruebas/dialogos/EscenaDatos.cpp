#include "pruebas/dialogos/EscenaDatos.h"

#include "pruebas/comun/Literales.h"

namespace analizador {

TEscenaDatos::TEscenaDatos() {
    config_.Alias = "OFICINA";
    const auto texto = [](std::string_view t) { return std::string(t); };
    Tablas.Pon("PROVIN.DBF", {{"PROVINCIA", "CODIGO", "COD_198", "GRUPO"},
                              {{"VALLADOLID", "47", "47", "1"},
                               {"FRANCIA", "250", "FR", "2"},
                               {"MADRID", "028", "28", "1"},
                               {"ATLANTIDA", "999", "AT", "3"},
                               {"BOLIVIA", "068", "BO", "2"},
                               {texto("ESPAÑA"_a), "724", "ES", "2"},
                               {texto("CORUÑA"_a), "15", "15", "1"},
                               {"NINGUNA", "00", "", ""}}});
    Tablas.Pon("TIPO_VIA.DBF", {{"CODIGO", "CODPOSTAL", "NOMBRE"},
                                {{"PZ", "PZ", "PLAZA"}, {"CL", "CL", "CALLE"}, {"AV", "AV", "AVENIDA"}}});
    Tablas.Pon(
        "TIPO_INT.DBF",
        {{"CODIGO", "DESCRIPCIO"},
         {{"2", "VENDEDOR"}, {"99", "NINGUNA"}, {"0", "SIN USO"}, {"1", "COMPRADOR"}, {"3", "DONANTE"}}});
    Tablas.Pon("MUNICIPI.DBF", {{"NOM_MUNICI", "CODPOSTAL", "NOMBRE", "COD_INE", "COD_PROV"},
                                {{"VALLADOLID", "47001", "VALLADOLID", "47186", "47"},
                                 {"VALLADOLID", "47002", "VALLADOLID", "47186", "47"},
                                 {texto("LA CORUÑA"_a), "15001", texto("A CORUÑA"_a), "15030", "15"},
                                 {texto("CORUÑA"_a), "15001", texto("A CORUÑA"_a), "15030", "15"},
                                 {"OLMEDO", "47410", "OLMEDO", "47104", "47"},
                                 {"PINTO", "28320", "PINTO", "28113", "28"},
                                 {"VALDEMORO", "28340", "VALDEMORO", "28161", "28"},
                                 {texto("ÁGREDA"_a), "42100", texto("ÁGREDA"_a), "42004", "42"}}});
}

TROtorgante OtorganteCompleto() {
    using namespace std::chrono;
    TROtorgante o;
    o.TipoDocumento = 3;
    o.NumDocumento = "X2482300W";
    o.Sexo = "H";
    o.Nombre = "JOSE";
    o.Apellidos = "MUÑOZ GÜELL"_a;
    o.EstadoCivil = 7;
    o.Regimen = 2;
    o.Conyuge = "SANZ, EVA";
    o.Vecindad = "OLMEDO";
    o.Provincia = "VALLADOLID";
    o.TipoVia = "PZ";
    o.Domicilio = "MAYOR";
    o.Numero = "12";
    o.CodPostal = "47410";
    o.CodINE = "47104";
    o.IntervencionINTI = 2;
    o.IntervencionVRK = 6;
    o.Residente = true;
    o.CodPais = 250;
    o.Pais = "FRANCIA";
    o.Nacionalidad = "BOLIVIA";
    o.LugarNacimiento = "LA PAZ";
    o.PaisNacimiento = "ESPAÑA"_a;
    o.ProvinciaNacimiento = "CORUÑA"_a;
    o.FechaNacimiento = TFecha(year(1965), month(3), day(7));
    o.Padre = "LUIS";
    o.Madre = "ANA";
    o.EnXML = true;
    return o;
}

}  // namespace analizador
