#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "pruebas/comun/Literales.h"
#include "pruebas/dialogos/EscenaDatos.h"

namespace analizador {
namespace {

using enum TControlDatos;
using namespace std::chrono;

std::vector<std::string> Lista(std::initializer_list<std::string_view> textos) {
    return {textos.begin(), textos.end()};
}

class CargaOtorgante : public testing::Test {
  protected:
    // The record after the dialog was opened on it and closed with OK.
    static TROtorgante Guardado(TROtorgante otorgante) {
        TFInformacionOtorgante dialogo(otorgante, TEscenaDatos::HOY);
        dialogo.Pulsa(BBAceptar);
        EXPECT_EQ(dialogo.Resultado(), true);
        return otorgante;
    }

    // What a control holds when the record is loaded.
    static TEstadoControl Cargado(TROtorgante otorgante, TControlDatos control) {
        return TFInformacionOtorgante(otorgante, TEscenaDatos::HOY).Control(control);
    }

    TEscenaDatos escena_;
};

TEST_F(CargaOtorgante, ElementosDeLasListas) {
    const struct {
        TControlDatos Control;
        std::vector<std::string> Elementos;
    } casos[] = {
        {CBSexo, Lista({"", "H.- Hombre", "M.- Mujer", "S.- Sociedad"})},
        {CBTipoDocumento,
         Lista({"", "1.- N.I.F.", "2.- C.I.F.", "3.- N.I.E.", "4.- Pasaporte", "5.- Otros"})},
        {CBEstadoCivil,
         Lista({"", "CA.- Casado.", "CS.- Casado en segundas nupcias", "DI.- Divorciado",
                "SJ.- Separado judicial", "SO.- Soltero", "VI.- Viudo", "PH.- Parejas de hecho"})},
        {CBRegimen,
         Lista({"", "G.- Gananciales", "S.- Separación de bienes"_a, "P.- Participación"_a, "O.- Otros"})},
        {CBIntervencion_VRK,
         Lista({"0.- En su nombre.", "1.- En representación de"_a, "2.- Por sí y en representación de"_a,
                "3.- Mandatario verbal.", "4.- Los dos en representación de"_a, "5.- Representado.",
                "6.- Por sí y mandatario verbal"_a})},
        // Provinces and countries in alphabetical order; other groups in no list.
        {CBPROVINCIA, Lista({"CORUÑA [15]"_a, "MADRID [28]", "VALLADOLID [47]"})},
        {CBProv_Naci, Lista({"CORUÑA"_a, "MADRID", "VALLADOLID"})},
        {CBPais, Lista({"BOLIVIA [068]", "ESPAÑA [724]"_a, "FRANCIA [250]"})},
        {CBNacionalid, Lista({"BOLIVIA", "ESPAÑA"_a, "FRANCIA"})},
        {CBPais_Naci, Lista({"BOLIVIA", "ESPAÑA"_a, "FRANCIA"})},
        {CBTipoVia, Lista({"", "AV - AVENIDA", "CL - CALLE", "PZ - PLAZA"})},
        // In the order of the codes, the code 0 left out.
        {CBIntervencion_INTI, Lista({"", "COMPRADOR", "VENDEDOR", "DONANTE", "NINGUNA"})},
    };
    for (const auto& [control, elementos] : casos)
        EXPECT_EQ(Cargado({}, control).Elementos, elementos)
            << ControlesDatos()[static_cast<std::size_t>(control)].Nombre;
}

TEST_F(CargaOtorgante, UnaTablaQueFaltaLlegaAQuienAbre) {
    for (const char* tabla : {"PROVIN.DBF", "TIPO_VIA.DBF", "TIPO_INT.DBF"}) {
        TEscenaDatos escena;
        escena.Tablas.Quita(tabla);
        TROtorgante otorgante = OtorganteCompleto();
        EXPECT_THROW(TFInformacionOtorgante(otorgante, TEscenaDatos::HOY), ErrorTabla) << tabla;
        EXPECT_THROW(MuestraInformacionOtorgante(nullptr, otorgante), ErrorTabla) << tabla;
        EXPECT_EQ(otorgante, OtorganteCompleto());
    }
}

TEST_F(CargaOtorgante, CadaCampoEnSuControl) {
    const struct {
        TControlDatos Control;
        std::string Texto;
        int Elegido;
    } casos[] = {{CBSexo, "H.- Hombre", 1},
                 {ENombre, "JOSE", -1},
                 {EApellidos, std::string("MUÑOZ GÜELL"_a), -1},
                 {CBTipoDocumento, "3.- N.I.E.", 3},
                 {ENumDocumento, "X2482300W", -1},
                 {CBEstadoCivil, "PH.- Parejas de hecho", 7},
                 {CBRegimen, std::string("S.- Separación de bienes"_a), 2},
                 {EConyuge, "SANZ, EVA", -1},
                 {CBPais_Naci, std::string("ESPAÑA"_a), 1},
                 {ELugar_Naci, "LA PAZ", -1},
                 {CBProv_Naci, std::string("CORUÑA"_a), 0},
                 {MEFecha_Naci, "07/03/1965", -1},
                 {EPadre, "LUIS", -1},
                 {EMadre, "ANA", -1},
                 {CBTipoVia, "PZ - PLAZA", 3},
                 {EDOMICILIO, "MAYOR", -1},
                 {ENUMERO, "12", -1},
                 {EVECINDAD, "OLMEDO", -1},
                 {CBPROVINCIA, "VALLADOLID [47]", 2},
                 {ECODPOSTAL, "47410", -1},
                 {ECODINE, "47104", -1},
                 {CBPais, "FRANCIA [250]", 2},
                 {ECodPais, "250", -1},
                 {CBNacionalid, "BOLIVIA", 0},
                 {CBIntervencion_VRK, std::string("6.- Por sí y mandatario verbal"_a), 6},
                 {CBIntervencion_INTI, "VENDEDOR", 2}};
    for (const auto& [control, texto, elegido] : casos) {
        const TEstadoControl estado = Cargado(OtorganteCompleto(), control);
        EXPECT_EQ(estado.Texto, texto);
        EXPECT_EQ(estado.Elegido, elegido) << texto;
    }
    EXPECT_FALSE(Cargado(OtorganteCompleto(), CBRESIDENTE).Marcado);
}

TEST_F(CargaOtorgante, UnoVacio) {
    const struct {
        TControlDatos Control;
        std::string Texto;
        int Elegido;
    } casos[] = {{CBSexo, "", 0},
                 {CBTipoDocumento, "", 0},
                 {CBTipoVia, "", 0},
                 {CBPROVINCIA, "", -1},
                 {CBPais, "", -1},
                 {CBNacionalid, "", -1},
                 {CBPais_Naci, "", -1},
                 {CBProv_Naci, "", -1},
                 {ECodPais, "0", -1},
                 {MEFecha_Naci, "  /  /    ", -1},
                 {ENombre, "", -1},
                 {CBIntervencion_VRK, "0.- En su nombre.", 0},
                 {CBEstadoCivil, "", 0},
                 {CBRegimen, "", 0},
                 {CBIntervencion_INTI, "NINGUNA", 4}};
    for (const auto& [control, texto, elegido] : casos) {
        const TEstadoControl estado = Cargado({}, control);
        EXPECT_EQ(estado.Texto, texto) << static_cast<int>(control);
        EXPECT_EQ(estado.Elegido, elegido) << static_cast<int>(control);
    }
    EXPECT_TRUE(Cargado({}, CBRESIDENTE).Marcado);
    EXPECT_EQ(Guardado({}), TROtorgante());
}

// What a record held comes back after OK with nothing touched.
TEST_F(CargaOtorgante, SinTocarNadaVuelveIgual) {
    using TCambio = void (*)(TROtorgante&);
    const TCambio cambios[] = {
        [](TROtorgante&) {},
        [](TROtorgante& o) { o.TipoDocumento = 0; },
        [](TROtorgante& o) { o.TipoDocumento = 5; },
        [](TROtorgante& o) { o.TipoDocumento = 6; },  // codes that their lists lack
        [](TROtorgante& o) { o.TipoDocumento = -1; },
        [](TROtorgante& o) { o.EstadoCivil = 8; },
        [](TROtorgante& o) { o.Regimen = 5; },
        [](TROtorgante& o) { o.IntervencionVRK = 7; },
        [](TROtorgante& o) { o.IntervencionVRK = 0; },
        [](TROtorgante& o) { o.IntervencionINTI = 99; },
        [](TROtorgante& o) { o.IntervencionINTI = 0; },
        [](TROtorgante& o) { o.IntervencionINTI = 3; },
        [](TROtorgante& o) { o.IntervencionINTI = 57; },
        [](TROtorgante& o) { o.IntervencionINTI = -3; },
        [](TROtorgante& o) { o.Sexo = "S"; },
        [](TROtorgante& o) { o.Sexo = "M"; },
        [](TROtorgante& o) { o.Sexo.clear(); },
        [](TROtorgante& o) { o.Residente = false; },
        [](TROtorgante& o) { o.FechaNacimiento.reset(); },
        [](TROtorgante& o) { o.FechaNacimiento = TFecha(year(1850), month(12), day(31)); },
        [](TROtorgante& o) { o.FechaNacimiento = TFecha(year(2001), month(2), day(31)); },
        [](TROtorgante& o) { o.FechaNacimiento = TFecha(year(12001), month(2), day(3)); },
        [](TROtorgante& o) { o.CodPais = 0; },
        [](TROtorgante& o) { o.CodPais = 123456; },
        [](TROtorgante& o) { o.CodPais = -4; },
        [](TROtorgante& o) { o.EnXML = false; },
        [](TROtorgante& o) { o.Provincia.clear(); },
        [](TROtorgante& o) { o.Pais.clear(); },
        [](TROtorgante& o) { o.TipoVia.clear(); },
        [](TROtorgante& o) { o.Nacionalidad.clear(); },
        [](TROtorgante& o) { o.PaisNacimiento.clear(); },
        [](TROtorgante& o) { o.ProvinciaNacimiento.clear(); },
        [](TROtorgante& o) { o.Numero = "s/n, bajo izquierda"; },  // longer than its limit, in lower case
        [](TROtorgante& o) { o.Apellidos = "Compañía de Minas, s.l."_a; },
        [](TROtorgante& o) { o.Domicilio = std::string(200, 'x'); },
        [](TROtorgante& o) { o.Nombre = " JOSE "; },
    };
    for (std::size_t i = 0; i < std::size(cambios); ++i) {
        TROtorgante otorgante = OtorganteCompleto();
        cambios[i](otorgante);
        EXPECT_EQ(Guardado(otorgante), otorgante) << "row " << i;
    }
    EXPECT_TRUE(escena_.Mensajes.Mostrados.empty());
}

// Some values do not come back: the list decides.
TEST_F(CargaOtorgante, LoQueLaListaCambia) {
    const struct {
        std::string TROtorgante::*Campo;
        std::string_view Antes, Despues;
    } casos[] = {
        {&TROtorgante::Provincia, "BURGOS", "CORUÑA"_a},  // the first one, when it is not in the list
        {&TROtorgante::Provincia, "madrid", "CORUÑA"_a},
        {&TROtorgante::Provincia, "ADRID", "MADRID"},
        {&TROtorgante::Provincia, "MADRI", "CORUÑA"_a},
        {&TROtorgante::Provincia, "MADRID", "MADRID"},
        {&TROtorgante::Pais, "ITALIA", "BOLIVIA"},
        {&TROtorgante::Pais, "ESPAÑA"_a, "ESPAÑA"_a},
        {&TROtorgante::TipoVia, "CM", ""},  // the empty one
        {&TROtorgante::TipoVia, "L", "CL"},
        {&TROtorgante::TipoVia, "CALLE", ""},
        {&TROtorgante::Nacionalidad, "BOLIV", ""},  // none
        {&TROtorgante::Nacionalidad, "bolivia", ""},
        {&TROtorgante::PaisNacimiento, "MADRID", ""},
        {&TROtorgante::ProvinciaNacimiento, "FRANCIA", ""},
        {&TROtorgante::Sexo, "HOMBRE", "H"},
        {&TROtorgante::Sexo, "MUJER", "M"},
        {&TROtorgante::Sexo, "h", ""},
        {&TROtorgante::Sexo, "X", ""},
    };
    for (const auto& [campo, antes, despues] : casos) {
        TROtorgante otorgante = OtorganteCompleto();
        otorgante.*campo = antes;
        TROtorgante esperado = otorgante;
        esperado.*campo = despues;
        EXPECT_EQ(Guardado(otorgante), esperado) << antes;
    }
}

TEST_F(CargaOtorgante, ProvinciaDesconocidaSeVeLaPrimera) {
    TROtorgante otorgante;
    otorgante.Provincia = "BURGOS";
    const TEstadoControl provincia = Cargado(otorgante, CBPROVINCIA);
    EXPECT_EQ(provincia.Elegido, 0);
    EXPECT_EQ(provincia.Texto, "CORUÑA [15]"_a);
}

TEST_F(CargaOtorgante, CodigoFueraDeLaListaNoEligeNada) {
    TROtorgante otorgante;
    otorgante.IntervencionINTI = 57;
    otorgante.TipoDocumento = 6;
    EXPECT_EQ(Cargado(otorgante, CBIntervencion_INTI).Elegido, -1);
    EXPECT_EQ(Cargado(otorgante, CBTipoDocumento).Elegido, -1);
}

TEST_F(CargaOtorgante, SinProvinciasNoHayPrimera) {
    escena_.Tablas.Pon("PROVIN.DBF", {{"PROVINCIA", "CODIGO", "GRUPO"}, {}});
    TROtorgante otorgante = OtorganteCompleto();
    EXPECT_EQ(Cargado(otorgante, CBPROVINCIA).Elegido, -1);
    EXPECT_EQ(Guardado(otorgante).Provincia, "");
}

// Every control, edited, reaches its field and no other.
TEST_F(CargaOtorgante, CadaControlEnSuCampo) {
    struct TCaso {
        TControlDatos Control;
        std::string_view Texto;  // typed, or
        int Elegido;             // chosen
        void (*Cambia)(TROtorgante&);
    };
    const TCaso casos[] = {
        {CBSexo, "", 0, [](TROtorgante& o) { o.Sexo.clear(); }},
        {CBSexo, "", 3, [](TROtorgante& o) { o.Sexo = "S"; }},
        {ENombre, "EVA", -1, [](TROtorgante& o) { o.Nombre = "EVA"; }},
        {ENombre, "", -1, [](TROtorgante& o) { o.Nombre.clear(); }},
        {EApellidos, "  RUIZ  DIEZ ", -1, [](TROtorgante& o) { o.Apellidos = "RUIZ  DIEZ"; }},
        {CBTipoDocumento, "", 0, [](TROtorgante& o) { o.TipoDocumento = 0; }},
        {CBTipoDocumento, "", 5, [](TROtorgante& o) { o.TipoDocumento = 5; }},
        {ENumDocumento, "12345678Z", -1, [](TROtorgante& o) { o.NumDocumento = "12345678Z"; }},
        {CBEstadoCivil, "", 4, [](TROtorgante& o) { o.EstadoCivil = 4; }},
        {CBRegimen, "", 4, [](TROtorgante& o) { o.Regimen = 4; }},
        {EConyuge, "GIL, PIA", -1, [](TROtorgante& o) { o.Conyuge = "GIL, PIA"; }},
        {CBPais_Naci, "", 2, [](TROtorgante& o) { o.PaisNacimiento = "FRANCIA"; }},
        {ELugar_Naci, "PARIS", -1, [](TROtorgante& o) { o.LugarNacimiento = "PARIS"; }},
        {CBProv_Naci, "", 1, [](TROtorgante& o) { o.ProvinciaNacimiento = "MADRID"; }},
        {MEFecha_Naci, "1 /2 /1980", -1,
         [](TROtorgante& o) { o.FechaNacimiento = TFecha(year(1980), month(2), day(1)); }},
        {MEFecha_Naci, "  /  /    ", -1, [](TROtorgante& o) { o.FechaNacimiento.reset(); }},
        {EPadre, "BLAS", -1, [](TROtorgante& o) { o.Padre = "BLAS"; }},
        {EMadre, "INES", -1, [](TROtorgante& o) { o.Madre = "INES"; }},
        {CBTipoVia, "", 0, [](TROtorgante& o) { o.TipoVia.clear(); }},
        {CBTipoVia, "", 2, [](TROtorgante& o) { o.TipoVia = "CL"; }},
        {EDOMICILIO, "REAL", -1, [](TROtorgante& o) { o.Domicilio = "REAL"; }},
        {ENUMERO, "7", -1, [](TROtorgante& o) { o.Numero = "7"; }},
        {EVECINDAD, "PINTO", -1, [](TROtorgante& o) { o.Vecindad = "PINTO"; }},
        {CBPROVINCIA, "", 1, [](TROtorgante& o) { o.Provincia = "MADRID"; }},
        {CBPROVINCIA, "MADRID", -1, [](TROtorgante& o) { o.Provincia.clear(); }},  // no bracket: dropped
        {CBPROVINCIA, "MADRID[28]", -1, [](TROtorgante& o) { o.Provincia.clear(); }},
        {CBPROVINCIA, " BURGOS  [09]", -1, [](TROtorgante& o) { o.Provincia = "BURGOS"; }},
        {CBPROVINCIA, "", -1, [](TROtorgante& o) { o.Provincia.clear(); }},
        {ECODPOSTAL, "28320", -1, [](TROtorgante& o) { o.CodPostal = "28320"; }},
        {ECODINE, "28113", -1, [](TROtorgante& o) { o.CodINE = "28113"; }},
        {CBPais, "", 0,
         [](TROtorgante& o) {
             o.Pais = "BOLIVIA";
             o.CodPais = 68;
         }},
        {CBPais, "FRANCIA", -1,
         [](TROtorgante& o) {
             o.Pais.clear();
             o.CodPais = 0;
         }},
        {ECodPais, "724", -1, [](TROtorgante& o) { o.CodPais = 724; }},
        {ECodPais, "", -1, [](TROtorgante& o) { o.CodPais = 0; }},
        {ECodPais, "7X", -1, [](TROtorgante& o) { o.CodPais = 0; }},
        {CBNacionalid, "", 1, [](TROtorgante& o) { o.Nacionalidad = "ESPAÑA"_a; }},
        {CBIntervencion_VRK, "", 0, [](TROtorgante& o) { o.IntervencionVRK = 0; }},
        {CBIntervencion_INTI, "", 0, [](TROtorgante& o) { o.IntervencionINTI = 0; }},
        {CBIntervencion_INTI, "", 3, [](TROtorgante& o) { o.IntervencionINTI = 3; }},
        {CBIntervencion_INTI, "", 4, [](TROtorgante& o) { o.IntervencionINTI = 99; }},
    };
    for (const TCaso& caso : casos) {
        TROtorgante otorgante = OtorganteCompleto();
        TFInformacionOtorgante dialogo(otorgante, TEscenaDatos::HOY);
        if (caso.Elegido >= 0)
            dialogo.Elige(caso.Control, caso.Elegido);
        else
            dialogo.Escribe(caso.Control, std::string(caso.Texto));
        EXPECT_EQ(otorgante, OtorganteCompleto());  // only OK changes it
        dialogo.Pulsa(BBAceptar);
        TROtorgante esperado = OtorganteCompleto();
        caso.Cambia(esperado);
        EXPECT_EQ(otorgante, esperado) << ControlesDatos()[static_cast<std::size_t>(caso.Control)].Nombre
                                       << " " << caso.Texto << " " << caso.Elegido;
    }
}

TEST_F(CargaOtorgante, ResidenteEsLoContrarioDeLaMarca) {
    for (const bool fuera : {false, true}) {
        TROtorgante otorgante = OtorganteCompleto();
        TFInformacionOtorgante dialogo(otorgante, TEscenaDatos::HOY);
        dialogo.Marca(fuera);
        dialogo.Pulsa(BBAceptar);
        EXPECT_EQ(otorgante.Residente, !fuera);
    }
}

}  // namespace
}  // namespace analizador
