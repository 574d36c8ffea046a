#include <gtest/gtest.h>

#include <string>

#include "dialogos/InformacionOtorgante.h"
#include "pruebas/comun/Literales.h"

namespace analizador {
namespace {

using enum TControlDatos;
using enum TClaseControl;
using enum TGrupoDatos;

struct TEsperado {
    TControlDatos Control;
    std::string_view Nombre;
    TClaseControl Clase;
    TGrupoDatos Grupo;
    std::string_view Rotulo;
    std::string_view Pista;
    std::size_t Maximo;
    int Filas;
};

TEST(ControlesDatos, TextosYLimites) {
    const std::string_view pistaL = "Pulse 'L' para acceder a la lista de municipios del I.N.E.";
    const TEsperado esperados[] = {
        {CBSexo, "CBSexo", ListaFija, Identificacion, "Sexo:", "", 0, 0},
        {ENombre, "ENombre", Caja, Identificacion, "Nombre:", "Nombre del cliente", 40, 0},
        {EApellidos, "EApellidos", Caja, Identificacion,
         "Apellidos:", "Apellidos del cliente o nombre de la sociedad", 60, 0},
        {CBTipoDocumento, "CBTipoDocumento", ListaFija, Identificacion, "Tipo documento:", "", 0, 0},
        {ENumDocumento, "ENumDocumento", Caja, Identificacion, "",
         "DNI sin puntos ni guiones para calcular la letra", 25, 0},
        {CBEstadoCivil, "CBEstadoCivil", ListaFija, Situacion, "Estado civil:", "", 0, 0},
        {CBRegimen, "CBRegimen", ListaFija, Situacion, "Régimen:"_a, "", 0, 0},
        {EConyuge, "EConyuge", Caja, Situacion, "Conyuge:", "", 50, 0},
        {CBPais_Naci, "CBPais_Naci", ListaFija, Situacion, "Nacido en:", "", 0, 0},
        {ELugar_Naci, "ELugar_Naci", Caja, Situacion, "", "", 25, 0},
        {CBProv_Naci, "CBProv_Naci", ListaFija, Situacion, "", "", 0, 0},
        {MEFecha_Naci, "MEFecha_Naci", Fecha, Situacion, "Fecha Nac.:", "", 10, 0},
        {EPadre, "EPadre", Caja, Situacion, "Padre:", "", 50, 0},
        {EMadre, "EMadre", Caja, Situacion, "Madre:", "", 50, 0},
        {CBTipoVia, "CBTipoVia", ListaFija, Domicilio, "Tipo de Vía:"_a, "", 0, 0},
        {EDOMICILIO, "EDOMICILIO", Caja, Domicilio, "",
         "'IDEM' o 'I' para repetir el último domicilio introducido"_a, 100, 0},
        {ENUMERO, "ENUMERO", Caja, Domicilio, "Número:"_a, "", 4, 0},
        {EVECINDAD, "EVECINDAD", Caja, Domicilio, "Vecindad:", "", 25, 0},
        {CBPROVINCIA, "CBPROVINCIA", ListaEditable, Domicilio, "Provincia:", "", 0, 0},
        {ECODPOSTAL, "ECODPOSTAL", Caja, Domicilio, "Cod.Postal:", pistaL, 5, 0},
        {ECODINE, "ECODINE", Caja, Domicilio, "Código I.N.E.:"_a, pistaL, 5, 0},
        {CBPais, "CBPais", ListaEditable, Domicilio, "País:"_a, "", 0, 0},
        {ECodPais, "ECodPais", Caja, Domicilio, "Código del país:"_a, "", 3, 0},
        {CBNacionalid, "CBNacionalid", ListaFija, Domicilio, "Pais nacionalid:", "", 0, 0},
        {CBRESIDENTE, "CBRESIDENTE", TClaseControl::Marca, Domicilio, "Reside fuera de España"_a, "", 0, 0},
        {BLISTA, "BLISTA", Boton, Domicilio, "&Lista I.N.E.", "", 0, 0},
        {CBIntervencion_VRK, "CBIntervencion_VRK", ListaFija, Intervencion, " Tipo de intervención "_a, "", 0,
         0},
        {CBIntervencion_INTI, "CBIntervencion_INTI", ListaFija, Intervencion,
         " Tipo de intervención para el índice único "_a, "", 0, 16},
        {BBAceptar, "BBAceptar", Boton, Barra, "&Actualizar", "", 0, 0},
        {BBCancelar, "BBCancelar", Boton, Barra, "&Cancelar", "", 0, 0},
        {BMarcar, "BMarcar", Boton, Barra, "&Marcar todos", "", 0, 0},
        {BDesmarcar, "BDesmarcar", Boton, Barra, "&DesMarcar todos", "", 0, 0}};
    ASSERT_EQ(ControlesDatos().size(), std::size(esperados));
    for (std::size_t i = 0; i < std::size(esperados); ++i) {
        const TDescripcionControl& control = ControlesDatos()[i];
        const TEsperado& esperado = esperados[i];
        EXPECT_EQ(static_cast<std::size_t>(control.Control), i);
        EXPECT_EQ(control.Control, esperado.Control) << esperado.Nombre;
        EXPECT_EQ(control.Nombre, esperado.Nombre);
        EXPECT_EQ(control.Clase, esperado.Clase) << esperado.Nombre;
        EXPECT_EQ(control.Grupo, esperado.Grupo) << esperado.Nombre;
        EXPECT_EQ(control.Rotulo, esperado.Rotulo) << esperado.Nombre;
        EXPECT_EQ(control.Pista, esperado.Pista) << esperado.Nombre;
        EXPECT_EQ(control.Maximo, esperado.Maximo) << esperado.Nombre;
        EXPECT_EQ(control.FilasVisibles, esperado.Filas) << esperado.Nombre;
    }
}

TEST(ControlesDatos, TitulosDeLosGrupos) {
    EXPECT_EQ(TituloGrupo(Identificacion), "Identifiación "_a);
    EXPECT_EQ(TituloGrupo(Situacion), "Situación personal"_a);
    EXPECT_EQ(TituloGrupo(TGrupoDatos::Domicilio), "Domicilio");
    EXPECT_EQ(TituloGrupo(Intervencion), "Intervención"_a);
    EXPECT_EQ(TituloGrupo(Barra), "");
    EXPECT_EQ(TITULO_DATOS_LEIDOS, "Datos leidos");
}

}  // namespace
}  // namespace analizador
