// The report: every line, in its order, and which ones are left out.

#include <gtest/gtest.h>

#include "analizador/ConstAnalizador.h"
#include "plataforma/Ansi.h"
#include "plataforma/Ruttb.h"
#include "pruebas/analizador/Escena.h"

namespace analizador {
namespace {

void Anade(TClassAnalizadorAbierto& sesion, const TROtorgante& otorgante) {
    sesion.Otorgantes.Anade({otorgante, {}});
}

std::string Informe(TEscena& escena) {
    escena.Sesion.Pizarra.clear();
    escena.Sesion.RellenaPizarra();
    return escena.Sesion.Pizarra;
}

TEST(Pizarra, VaciaTieneSuCabeceraYSusTitulos) {
    TEscena escena({"nada"});
    EXPECT_EQ(Informe(escena),
              "ESCRITURA EN CASTELLANO\r\n"
              "NUMERO       : 0\r\n"
              "FECHA        : \r\n"
              "LUGAR        : \r\n"
              "NOTARIO      : \r\n"
              "SUSTITUTO    : \r\n"
              "EMPLEADO     : \r\n"
              "\r\n"
              "CONCEPTOS\r\n"
              "---------\r\n"
              "\r\n"
              "OTORGANTES\r\n"
              "----------\r\n");
}

TEST(Pizarra, LlenaLoDiceTodoEnSuOrden) {
    TEscena escena({"nada"});
    auto& sesion = escena.Sesion;
    sesion.Cabecera.NumeroProtocolo = 1847;
    sesion.Cabecera.Fecha = "12/03/2021";
    sesion.Cabecera.Lugar = 1;
    sesion.Cabecera.Abreviatura = "MAD";
    sesion.Cabecera.Notario = "ANA REQUEJO";
    sesion.Cabecera.NotarioSustituto = "LUIS GIL";
    sesion.Empleado = "MGR";
    sesion.Cabecera.Conceptos.Anade("COMPRAVENTA", std::make_unique<TRConcepto>());
    sesion.Cabecera.Conceptos.Anade("PODER", std::make_unique<TRConcepto>());
    sesion.Cuantias = {"1000"};  // not of the report

    TROtorgante persona;
    persona.Sexo = "M";
    persona.TipoDocumento = 1;
    persona.NumDocumento = "12345678Z";
    persona.Nombre = "ANA";
    persona.Apellidos = "GARCIA LOPEZ";
    persona.LugarNacimiento = "LYON";
    persona.ProvinciaNacimiento = "MADRID";
    persona.PaisNacimiento = "FRANCIA";
    persona.FechaNacimiento = TFecha{std::chrono::year(1970), std::chrono::March, std::chrono::day(1)};
    persona.Padre = "JUAN GARCIA";
    persona.Madre = "LUISA LOPEZ";
    persona.EstadoCivil = 1;
    persona.Regimen = 2;
    persona.Conyuge = "GIL, LUIS";
    persona.TipoVia = "CL";
    persona.Domicilio = "MAYOR";
    persona.Numero = "5";
    persona.Vecindad = "MADRID";
    persona.Provincia = "MADRID";
    persona.CodPostal = "28001";
    persona.CodINE = "28079";
    persona.Pais = "FRANCIA";
    persona.Nacionalidad = "FRANCIA";
    persona.IntervencionVRK = 1;
    persona.IntervencionINTI = 2;
    Anade(sesion, persona);
    TROtorgante sociedad;
    sociedad.Sexo = "S";
    sociedad.Apellidos = "BODEGAS, S.L.";
    Anade(sesion, sociedad);

    EXPECT_EQ(Informe(escena),
              "ESCRITURA EN CASTELLANO\r\n"
              "NUMERO       : 1847\r\n"
              "FECHA        : 12/03/2021\r\n"
              "LUGAR        : MAD\r\n"
              "NOTARIO      : ANA REQUEJO\r\n"
              "SUSTITUTO    : LUIS GIL\r\n"
              "EMPLEADO     : MGR\r\n"
              "\r\n"
              "CONCEPTOS\r\n"
              "---------\r\n"
              "COMPRAVENTA\r\n"
              "PODER\r\n"
              "\r\n"
              "OTORGANTES\r\n"
              "----------\r\n"
              "SEXO         : M\r\n"
              "TIP.DOCUMENTO: NIF\r\n"
              "NUM.DOCUMENTO: 12345678Z\r\n"
              "NOMBRE       : ANA\r\n"
              "APELLIDOS    : GARCIA LOPEZ\r\n"
              "LUGAR NACIMI.: LYON\r\n"
              "PROV. NACIMI.: MADRID\r\n"
              "PAIS  NACIMI.: FRANCIA\r\n"
              "FECHA NACIMI.: 01/03/1970\r\n"
              "PADRE        : JUAN GARCIA\r\n"
              "MADRE        : LUISA LOPEZ\r\n"
              "ESTADO CIVIL : CA (casado/a)\r\n" +
                  std::string("REGIMEN MATR.: S (Separación de bienes)\r\n"_ansi) +
                  "CONYUGE      : GIL, LUIS\r\n"
                  "\r\n"
                  "TIPO VIA     : CL\r\n"
                  "DOMICILIO    : MAYOR\r\n"
                  "NUMERO       : 5\r\n"
                  "VECINDAD     : MADRID\r\n"
                  "PROVINCIA    : MADRID\r\n"
                  "CODIGO POSTAL: 28001\r\n"
                  "CODIGO INE   : 28079\r\n"
                  "PAIS         : FRANCIA\r\n"
                  "NACIONALIDAD : FRANCIA\r\n"
                  "\r\n" +
                  std::string("INTERV. VRK  : 1. En representación de\r\n"_ansi) +
                  "INTERV. INTI : Transmitente\r\n"
                  "----------\r\n"
                  "SEXO         : S\r\n"
                  "TIP.DOCUMENTO: OTRO TIPO DE DOCUMENTO\r\n"
                  "NUM.DOCUMENTO: \r\n"
                  "NOMBRE       : \r\n"
                  "APELLIDOS    : BODEGAS, S.L.\r\n"
                  "CONYUGE      : \r\n"
                  "\r\n"
                  "TIPO VIA     : \r\n"
                  "DOMICILIO    : \r\n"
                  "NUMERO       : \r\n"
                  "VECINDAD     : \r\n"
                  "PROVINCIA    : \r\n"
                  "CODIGO POSTAL: \r\n"
                  "CODIGO INE   : \r\n"
                  "\r\n"
                  "INTERV. VRK  : 0. En su nombre\r\n"
                  "INTERV. INTI : Ninguna\r\n"
                  "----------\r\n");
}

TEST(Pizarra, SeAnadeALoQueHubiera) {
    TEscena escena({"nada"});
    escena.Sesion.Pizarra = "ANTES";
    escena.Sesion.RellenaPizarra();
    EXPECT_TRUE(escena.Sesion.Pizarra.starts_with("ANTESESCRITURA EN CASTELLANO\r\n"));
}

TEST(Pizarra, CualquierVocabularioQueNoSeaElCastellanoEsCatalan) {
    TEscena escena({"nada"});
    escena.Vocabulario.Elige(TIdioma::Catalan);
    EXPECT_TRUE(Informe(escena).starts_with("ESCRITURA EN CATALAN\r\n"));
    PonTOKENS_INI("otro.ini");
    EXPECT_TRUE(Informe(escena).starts_with("ESCRITURA EN CATALAN\r\n"));
}

// One party with one code, and the line that it gives; "" when there must be none with that label.
struct TCasoCodigo {
    const char* Nombre;
    void (*Pon)(TROtorgante&);
    std::string_view Rotulo;
    std::string_view Linea;
};

class PizarraCodigo : public testing::TestWithParam<TCasoCodigo> {};

TEST_P(PizarraCodigo, TieneSuTextoONoTieneLinea) {
    const auto& caso = GetParam();
    TEscena escena({"nada"});
    TROtorgante otorgante;
    caso.Pon(otorgante);
    Anade(escena.Sesion, otorgante);
    const std::string informe = Informe(escena);
    if (caso.Linea.empty())
        EXPECT_EQ(informe.find(caso.Rotulo), std::string::npos);
    else
        EXPECT_NE(informe.find("\r\n" + std::string(caso.Rotulo) + std::string(caso.Linea) + "\r\n"),
                  std::string::npos)
            << informe;
}

INSTANTIATE_TEST_SUITE_P(
    Codigos, PizarraCodigo,
    testing::Values(
        TCasoCodigo{"doc1", [](TROtorgante& o) { o.TipoDocumento = 1; }, "TIP.DOCUMENTO: ", "NIF"},
        TCasoCodigo{"doc2", [](TROtorgante& o) { o.TipoDocumento = 2; }, "TIP.DOCUMENTO: ", "CIF"},
        TCasoCodigo{"doc3", [](TROtorgante& o) { o.TipoDocumento = 3; }, "TIP.DOCUMENTO: ", "NIE"},
        TCasoCodigo{"doc4", [](TROtorgante& o) { o.TipoDocumento = 4; }, "TIP.DOCUMENTO: ", "PASAPORTE"},
        TCasoCodigo{"doc5", [](TROtorgante& o) { o.TipoDocumento = 5; },
                    "TIP.DOCUMENTO: ", "OTRO TIPO DE DOCUMENTO"},
        TCasoCodigo{"doc0", [](TROtorgante& o) { o.TipoDocumento = 0; },
                    "TIP.DOCUMENTO: ", "OTRO TIPO DE DOCUMENTO"},
        TCasoCodigo{"doc9", [](TROtorgante& o) { o.TipoDocumento = -9; },
                    "TIP.DOCUMENTO: ", "OTRO TIPO DE DOCUMENTO"},
        TCasoCodigo{"civil0", [](TROtorgante& o) { o.EstadoCivil = 0; }, "ESTADO CIVIL : ", ""},
        TCasoCodigo{"civil1", [](TROtorgante& o) { o.EstadoCivil = 1; }, "ESTADO CIVIL : ", "CA (casado/a)"},
        TCasoCodigo{"civil2", [](TROtorgante& o) { o.EstadoCivil = 2; },
                    "ESTADO CIVIL : ", "CS (casado/a segundas nupcias)"},
        TCasoCodigo{"civil3", [](TROtorgante& o) { o.EstadoCivil = 3; },
                    "ESTADO CIVIL : ", "DI (divorciado/a)"},
        TCasoCodigo{"civil4", [](TROtorgante& o) { o.EstadoCivil = 4; },
                    "ESTADO CIVIL : ", "SJ (separado/a judicialmente)"},
        TCasoCodigo{"civil5", [](TROtorgante& o) { o.EstadoCivil = 5; }, "ESTADO CIVIL : ", "SO (soltero/a)"},
        TCasoCodigo{"civil6", [](TROtorgante& o) { o.EstadoCivil = 6; }, "ESTADO CIVIL : ", "VI (viudo/a)"},
        TCasoCodigo{"civil7", [](TROtorgante& o) { o.EstadoCivil = 7; },
                    "ESTADO CIVIL : ", "PH (pareja de hecho)"},
        TCasoCodigo{"civil8", [](TROtorgante& o) { o.EstadoCivil = 8; }, "ESTADO CIVIL : ", ""},
        TCasoCodigo{"regimen0", [](TROtorgante& o) { o.Regimen = 0; }, "REGIMEN MATR.: ", ""},
        TCasoCodigo{"regimen1", [](TROtorgante& o) { o.Regimen = 1; }, "REGIMEN MATR.: ", "G (Gananciales)"},
        TCasoCodigo{"regimen3", [](TROtorgante& o) { o.Regimen = 3; },
                    "REGIMEN MATR.: ", "P (Participación)"_ansi},
        TCasoCodigo{"regimen4", [](TROtorgante& o) { o.Regimen = 4; }, "REGIMEN MATR.: ", "O (Otros)"},
        TCasoCodigo{"regimen5", [](TROtorgante& o) { o.Regimen = 5; }, "REGIMEN MATR.: ", ""},
        TCasoCodigo{"vrk6", [](TROtorgante& o) { o.IntervencionVRK = 6; },
                    "INTERV. VRK  : ", "6. Por sí y mandatario verbal"_ansi},
        TCasoCodigo{"inti_sin_descripcion", [](TROtorgante& o) { o.IntervencionINTI = 77; },
                    "INTERV. INTI : ", "77"},
        TCasoCodigo{"sin_nacimiento", [](TROtorgante&) {}, "FECHA NACIMI.: ", ""},
        TCasoCodigo{"sin_pais", [](TROtorgante&) {}, "PAIS         : ", ""},
        TCasoCodigo{"sin_nacionalidad", [](TROtorgante&) {}, "NACIONALIDAD : ", ""}),
    [](const auto& caso) { return std::string(caso.param.Nombre); });

TEST(Pizarra, UnaIntervencionFueraDeLaTablaEsUnTextoVacio) {
    for (const int intervencion : {-1, 7, 1000}) {
        TEscena escena({"nada"});
        TROtorgante otorgante;
        otorgante.IntervencionVRK = intervencion;
        Anade(escena.Sesion, otorgante);
        EXPECT_NE(Informe(escena).find("\r\nINTERV. VRK  : \r\n"), std::string::npos);
    }
}

TEST(Pizarra, SinTablaDeIntervencionesElFalloSale) {
    TEscena escena({"nada"});
    escena.Tablas.Quita("TIPO_INT.DBF");
    Anade(escena.Sesion, {});
    EXPECT_THROW(escena.Sesion.RellenaPizarra(), ErrorTabla);
}

}  // namespace
}  // namespace analizador
