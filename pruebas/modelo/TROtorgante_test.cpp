#include "modelo/TROtorgante.h"

#include <gtest/gtest.h>

#include <chrono>
#include <string>
#include <vector>

#include "plataforma/Ansi.h"

namespace analizador {
namespace {

using namespace std::chrono_literals;

// Two records without a field in common.
TROtorgante Primero() {
    TROtorgante o;
    o.TipoDocumento = 1;
    o.NumDocumento = "12345678Z";
    o.Sexo = "M";
    o.Nombre = "ANA";
    o.Apellidos = "GARCIA LOPEZ";
    o.EstadoCivil = 1;
    o.Regimen = 2;
    o.Conyuge = "SANZ, LUIS";
    o.Vecindad = "MADRID";
    o.Provincia = "MADRID (PROVINCIA)";
    o.TipoVia = "CL";
    o.Domicilio = "MAYOR";
    o.Numero = "7";
    o.CodPostal = "28013";
    o.CodINE = "28079";
    o.IntervencionINTI = 1;
    o.IntervencionVRK = 2;
    o.Residente = true;
    o.CodPais = 724;
    o.Pais = "ESPAÑA"_ansi;
    o.Nacionalidad = "PORTUGAL";
    o.LugarNacimiento = "LISBOA";
    o.PaisNacimiento = "PORTUGAL";
    o.ProvinciaNacimiento = "LUGO";
    o.FechaNacimiento = 1970y / 5 / 2;
    o.Padre = "PEDRO";
    o.Madre = "MARTA";
    o.EnXML = true;
    return o;
}

TROtorgante Segundo() {
    TROtorgante o;
    o.TipoDocumento = 3;
    o.NumDocumento = "X1234567L";
    o.Sexo = "H";
    o.Nombre = "JUAN";
    o.Apellidos = "PUIG SERRA";
    o.EstadoCivil = 3;
    o.Regimen = 1;
    o.Conyuge = "ROIG, MARIA";
    o.Vecindad = "LLEIDA";
    o.Provincia = "LERIDA";
    o.TipoVia = "PZ";
    o.Domicilio = "SANT JOAN";
    o.Numero = "12";
    o.CodPostal = "25007";
    o.CodINE = "25120";
    o.IntervencionINTI = 4;
    o.IntervencionVRK = 5;
    o.Residente = false;
    o.CodPais = 250;
    o.Pais = "FRANCIA";
    o.Nacionalidad = "ITALIA";
    o.LugarNacimiento = "ROMA";
    o.PaisNacimiento = "ITALIA";
    o.ProvinciaNacimiento = "SORIA";
    o.FechaNacimiento = 1981y / 12 / 31;
    o.Padre = "MARIO";
    o.Madre = "CARLA";
    o.EnXML = false;
    return o;
}

TEST(TROtorgante, UnoNuevoNoSabeNada) {
    const TROtorgante o;
    for (const auto campo :
         {&TROtorgante::NumDocumento, &TROtorgante::Sexo, &TROtorgante::Nombre, &TROtorgante::Apellidos,
          &TROtorgante::Conyuge, &TROtorgante::Vecindad, &TROtorgante::Provincia, &TROtorgante::TipoVia,
          &TROtorgante::Domicilio, &TROtorgante::Numero, &TROtorgante::CodPostal, &TROtorgante::CodINE,
          &TROtorgante::Pais, &TROtorgante::Nacionalidad, &TROtorgante::LugarNacimiento,
          &TROtorgante::PaisNacimiento, &TROtorgante::ProvinciaNacimiento, &TROtorgante::Padre,
          &TROtorgante::Madre})
        EXPECT_EQ(o.*campo, "");
    EXPECT_EQ(o.TipoDocumento, 0);
    EXPECT_EQ(o.EstadoCivil, 0);
    EXPECT_EQ(o.Regimen, 0);
    EXPECT_EQ(o.IntervencionINTI, 99);
    EXPECT_EQ(o.IntervencionVRK, 0);
    EXPECT_FALSE(o.Residente);
    EXPECT_EQ(o.CodPais, 0);
    EXPECT_FALSE(o.FechaNacimiento.has_value());
    EXPECT_FALSE(o.EnXML);
}

TEST(TROtorgante, UnaCopiaLoLlevaTodoYEsIndependiente) {
    TROtorgante original = Primero();
    const TROtorgante copia = original;
    EXPECT_EQ(copia, Primero());
    EXPECT_TRUE(copia.EnXML);
    original.Apellidos = "OTRA";
    EXPECT_EQ(copia.Apellidos, "GARCIA LOPEZ");
}

TEST(TROtorgante, ActualizaValoresDeUnoCompleto) {
    TROtorgante o = Primero();
    o.ActualizaValores(Segundo());
    TROtorgante esperado = Primero();
    esperado.IntervencionINTI = 4;
    esperado.IntervencionVRK = 5;
    esperado.Residente = false;
    esperado.Nacionalidad = "ITALIA";
    esperado.LugarNacimiento = "ROMA";
    esperado.PaisNacimiento = "ITALIA";
    esperado.ProvinciaNacimiento = "SORIA";
    esperado.FechaNacimiento = 1981y / 12 / 31;
    esperado.Padre = "MARIO";
    esperado.Madre = "CARLA";
    EXPECT_EQ(o, esperado);
}

TEST(TROtorgante, ActualizaValoresDeUnoVacioTomaTodoMenosLaMarca) {
    TROtorgante otro = Segundo();
    otro.EnXML = true;
    TROtorgante o;
    o.ActualizaValores(otro);
    EXPECT_EQ(o, Segundo());  // whose mark is not set
}

TEST(TROtorgante, ActualizaValoresConUnoVacioOlvidaLoQueDecideLaUltimaMencion) {
    TROtorgante o = Primero();
    o.ActualizaValores({});
    TROtorgante esperado = Primero();
    esperado.IntervencionINTI = 99;
    esperado.IntervencionVRK = 0;
    esperado.Residente = false;
    esperado.Nacionalidad.clear();
    esperado.LugarNacimiento.clear();
    esperado.PaisNacimiento.clear();
    esperado.ProvinciaNacimiento.clear();
    esperado.FechaNacimiento.reset();
    esperado.Padre.clear();
    esperado.Madre.clear();
    EXPECT_EQ(o, esperado);
}

TEST(TROtorgante, ActualizaValoresDelTipoDeDocumento) {
    struct Caso {
        int Propio, Otro, Esperado;
    };
    for (const auto& [propio, otro, esperado] :
         std::vector<Caso>{{0, 1, 1}, {0, 0, 0}, {5, 1, 1}, {5, 0, 0}, {1, 5, 1}, {4, 1, 4}, {2, 3, 2}}) {
        TROtorgante o, p;
        o.TipoDocumento = propio;
        p.TipoDocumento = otro;
        o.ActualizaValores(p);
        EXPECT_EQ(o.TipoDocumento, esperado) << propio << " con " << otro;
    }
}

// The number does not follow its kind: a record can end with the kind of one document and the number of the
// other.
TEST(TROtorgante, ActualizaValoresTomaElTipoSinElNumero) {
    TROtorgante o, p;
    o.TipoDocumento = 5;
    o.NumDocumento = "AB12345";
    p.TipoDocumento = 1;
    p.NumDocumento = "12345678Z";
    o.ActualizaValores(p);
    EXPECT_EQ(o.TipoDocumento, 1);
    EXPECT_EQ(o.NumDocumento, "AB12345");
}

TEST(TROtorgante, NombreOtorgante) {
    struct Caso {
        std::string Nombre, Apellidos, Esperado;
    };
    for (const auto& [nombre, apellidos, esperado] :
         std::vector<Caso>{{"ANA", "GARCIA LOPEZ", "ANA GARCIA LOPEZ"},
                           {"", "PROMOCIONES SUR, S.L.", "PROMOCIONES SUR, S.L."},
                           {"ANA", "", "ANA "},
                           {"", "", ""}}) {
        TROtorgante o;
        o.Nombre = nombre;
        o.Apellidos = apellidos;
        EXPECT_EQ(o.NombreOtorgante(), esperado);
        EXPECT_EQ((TRPersona{"H", nombre, apellidos}.NombreCompleto()), esperado);
    }
}

TEST(TROtorgante, MuestraOtorgante) {
    struct Caso {
        std::string Nombre, Apellidos, Documento, Esperado;
    };
    for (const auto& [nombre, apellidos, documento, esperado] :
         std::vector<Caso>{{"ANA", "GARCIA LOPEZ", "12345678Z", "GARCIA LOPEZ, ANA - 12345678Z"},
                           {"ANA", "GARCIA LOPEZ", "", "GARCIA LOPEZ, ANA"},
                           {"", "PROMOCIONES SUR, S.L.", "B12345674", "PROMOCIONES SUR, S.L. - B12345674"},
                           {"", "GARCIA", "", "GARCIA"}}) {
        TROtorgante o;
        o.Nombre = nombre;
        o.Apellidos = apellidos;
        o.NumDocumento = documento;
        EXPECT_EQ(o.MuestraOtorgante(), esperado);
    }
}

TEST(TRSociedad, SuTipoEsSociedadConCif) {
    const TRSociedad s;
    EXPECT_EQ(s.TipoDocumento, 2);
    EXPECT_EQ(s.Sexo, "S");
    EXPECT_EQ(s.Nombre, "");
}

}  // namespace
}  // namespace analizador
