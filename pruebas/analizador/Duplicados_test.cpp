#include "analizador/Duplicados.h"

#include <gtest/gtest.h>

#include <chrono>
#include <string>
#include <utility>
#include <vector>

namespace analizador {
namespace {

using namespace std::chrono_literals;

TROtorgante Persona(std::string nombre, std::string apellidos) {
    TROtorgante o;
    o.Nombre = std::move(nombre);
    o.Apellidos = std::move(apellidos);
    return o;
}

std::vector<std::string> Lineas(const TListaOtorgantes& lista) {
    std::vector<std::string> lineas;
    for (const auto& linea : lista.Lista) lineas.push_back(linea.Texto);
    return lineas;
}

TOrigen En(int parrafo, std::size_t primera = 1) {
    return {parrafo, {primera, 5}};
}

TEST(Duplicados, QuienEsElMismo) {
    using TNombres = std::vector<std::pair<std::string, std::string>>;  // given name, surnames
    struct Caso {
        const char* Que;
        TNombres Encontrados;
        std::vector<std::string> Lineas;
    };
    const std::vector<Caso> casos = {
        {"none", {}, {}},
        {"the same name three times",
         {{"JUAN", "GARCIA"}, {"JUAN", "GARCIA"}, {"JUAN", "GARCIA"}},
         {"JUAN GARCIA"}},
        {"the shorter name first", {{"JUAN", "GARCIA"}, {"JUAN", "GARCIA LOPEZ"}}, {"JUAN GARCIA"}},
        {"the longer name first",
         {{"JUAN", "GARCIA LOPEZ"}, {"JUAN", "GARCIA"}},
         {"JUAN GARCIA LOPEZ", "JUAN GARCIA"}},
        {"the kept name inside the later one", {{"ANA", "GIL"}, {"JUANA", "GIL"}}, {"ANA GIL"}},
        {"a company's name in a later one",
         {{"", "BANCO SUR"}, {"", "INMOBILIARIA BANCO SUR, S.A."}},
         {"BANCO SUR"}},
        {"capitals count", {{"JUAN", "GARCIA"}, {"Juan", "Garcia"}}, {"JUAN GARCIA", "Juan Garcia"}},
        {"a party without a name is nobody else's",
         {{"", ""}, {"", ""}, {"JUAN", "GIL"}},
         {"", "", "JUAN GIL"}},
    };
    for (const auto& [que, nombres, lineas] : casos) {
        TListaOtorgantes encontrados;
        for (const auto& [nombre, apellidos] : nombres) encontrados.Anade({Persona(nombre, apellidos), {}});
        EXPECT_EQ(Lineas(UneOtorgantesDuplicados(encontrados)), lineas) << que;
    }
}

TEST(Duplicados, NiElDocumentoNiElSexoLosDistinguen) {
    TListaOtorgantes encontrados;
    TROtorgante uno = Persona("JUAN", "GIL"), otro = uno;
    uno.NumDocumento = "12345678Z";
    uno.Sexo = "H";
    otro.NumDocumento = "87654321X";
    otro.Sexo = "M";
    encontrados.Anade({uno, {}});
    encontrados.Anade({otro, {}});
    const auto unidos = UneOtorgantesDuplicados(encontrados);
    ASSERT_EQ(unidos.Lista.Cuenta(), 1U);
    EXPECT_EQ(unidos.Lista[0].Objeto->NumDocumento, "12345678Z");
    EXPECT_EQ(unidos.Lista[0].Objeto->Sexo, "H");
}

TEST(Duplicados, DeVariosQueValenElPrimeroGuardado) {
    TListaOtorgantes encontrados;
    encontrados.Anade({Persona("", "JUAN GARCIA L"), {}});
    encontrados.Anade({Persona("JUAN", "GARCIA"), {}});
    TROtorgante completo = Persona("JUAN", "GARCIA LOPEZ");
    completo.NumDocumento = "12345678Z";
    encontrados.Anade({completo, {}});
    const auto unidos = UneOtorgantesDuplicados(encontrados);
    ASSERT_EQ(Lineas(unidos), (std::vector<std::string>{"JUAN GARCIA L", "JUAN GARCIA"}));
    EXPECT_EQ(unidos.Lista[0].Objeto->NumDocumento, "12345678Z");
    EXPECT_EQ(unidos.Lista[1].Objeto->NumDocumento, "");
}

TEST(Duplicados, CadaMencionCompletaLaPrimeraYLaUltimaDecide) {
    TROtorgante compareciente = Persona("JUAN", "GARCIA");
    compareciente.Residente = true;
    compareciente.Vecindad = "MADRID";
    compareciente.IntervencionINTI = 2;
    TROtorgante representado = Persona("JUAN", "GARCIA");
    representado.NumDocumento = "12345678Z";
    representado.TipoDocumento = 1;
    representado.IntervencionVRK = 5;
    TROtorgante deudor = Persona("JUAN", "GARCIA LOPEZ");
    deudor.Residente = true;
    deudor.Vecindad = "SEVILLA";
    deudor.IntervencionINTI = 4;
    TListaOtorgantes encontrados;
    for (const auto& o : {compareciente, representado, deudor}) encontrados.Anade({o, {}});

    const auto unidos = UneOtorgantesDuplicados(encontrados);
    ASSERT_EQ(unidos.Lista.Cuenta(), 1U);
    TROtorgante esperado = Persona("JUAN", "GARCIA");
    esperado.TipoDocumento = 1;
    esperado.NumDocumento = "12345678Z";
    esperado.Residente = true;
    esperado.Vecindad = "MADRID";
    esperado.IntervencionINTI = 4;
    EXPECT_EQ(*unidos.Lista[0].Objeto, esperado);
    EXPECT_EQ(unidos.Lista[0].Texto, "JUAN GARCIA");
}

// A company that takes a given name from a later mention is still filed under its own name.
TEST(Duplicados, LaLineaConservaSuTexto) {
    TListaOtorgantes encontrados;
    encontrados.Anade({Persona("", "GARCIA"), {}});
    encontrados.Anade({Persona("JUAN", "GARCIA"), {}});
    const auto unidos = UneOtorgantesDuplicados(encontrados);
    ASSERT_EQ(Lineas(unidos), std::vector<std::string>{"GARCIA"});
    EXPECT_EQ(unidos.Lista[0].Objeto->NombreOtorgante(), "JUAN GARCIA");
}

TEST(Duplicados, LosEncontradosQuedanComoEstaban) {
    TListaOtorgantes encontrados;
    TROtorgante otro = Persona("JUAN", "GIL");
    otro.Vecindad = "MADRID";
    encontrados.Anade({Persona("JUAN", "GIL"), {}});
    encontrados.Anade({otro, {}});
    auto unidos = UneOtorgantesDuplicados(encontrados);
    unidos.Lista[0].Objeto->Numero = "7";
    ASSERT_EQ(Lineas(encontrados), (std::vector<std::string>{"JUAN GIL", "JUAN GIL"}));
    EXPECT_EQ(*encontrados.Lista[0].Objeto, Persona("JUAN", "GIL"));
    EXPECT_EQ(*encontrados.Lista[1].Objeto, otro);
}

TEST(Duplicados, UnaLineaSinRegistroSeSalta) {
    TListaOtorgantes encontrados;
    encontrados.Lista.Anade("NADIE", nullptr);
    encontrados.Origenes.emplace_back();
    encontrados.Anade({Persona("JUAN", "GIL"), {{"Nombre", En(3)}}});
    const auto unidos = UneOtorgantesDuplicados(encontrados);
    ASSERT_EQ(Lineas(unidos), std::vector<std::string>{"JUAN GIL"});
    EXPECT_EQ(unidos.Origenes[0], (TOrigenes{{"Nombre", En(3)}}));
}

TEST(Duplicados, ElOrigenSigueAlValorTomado) {
    TROtorgante uno = Persona("JUAN", "GIL");
    uno.TipoDocumento = 5;
    uno.Vecindad = "MADRID";
    uno.Provincia = "MADRID";  // completed: no origin
    uno.Nacionalidad = "PORTUGAL";
    TROtorgante otro = Persona("JUAN", "GIL");
    otro.TipoDocumento = 1;
    otro.NumDocumento = "12345678Z";
    otro.Vecindad = "SEVILLA";
    otro.Provincia = "SEVILLA";
    otro.EstadoCivil = 5;
    otro.IntervencionINTI = 4;
    TListaOtorgantes encontrados;
    encontrados.Anade({uno,
                       {{"Nombre", En(3)},
                        {"Apellidos", En(3)},
                        {"TipoDocumento", En(3, 20)},
                        {"Vecindad", En(3, 40)},
                        {"Nacionalidad", En(3, 60)}}});
    encontrados.Anade({Persona("ANA", "ROIG"), {{"Nombre", En(4)}}});
    encontrados.Anade({otro,
                       {{"Nombre", En(9)},
                        {"Apellidos", En(9)},
                        {"TipoDocumento", En(9, 20)},
                        {"NumDocumento", En(9, 20)},
                        {"Vecindad", En(9, 40)},
                        {"Provincia", En(9, 45)},
                        {"EstadoCivil", En(9, 80)},
                        {"IntervencionINTI", En(9, 90)}}});
    const auto unidos = UneOtorgantesDuplicados(encontrados);
    ASSERT_EQ(unidos.Origenes.size(), 2U);
    EXPECT_EQ(unidos.Origenes[0], (TOrigenes{{"Nombre", En(3)},
                                             {"Apellidos", En(3)},
                                             {"TipoDocumento", En(9, 20)},
                                             {"NumDocumento", En(9, 20)},
                                             {"Vecindad", En(3, 40)},
                                             {"EstadoCivil", En(9, 80)},
                                             {"IntervencionINTI", En(9, 90)}}));
    EXPECT_EQ(unidos.Origenes[1], (TOrigenes{{"Nombre", En(4)}}));
}

// Every field in turn, known to one of the mentions or to both: whose value is kept, its origin is.
TEST(Duplicados, CampoACampoElOrigenEsDeQuienDioElValor) {
    using TTexto = std::string TROtorgante::*;
    const std::vector<std::pair<const char*, TTexto>> textos = {
        {"NumDocumento", &TROtorgante::NumDocumento},
        {"Sexo", &TROtorgante::Sexo},
        {"Conyuge", &TROtorgante::Conyuge},
        {"Vecindad", &TROtorgante::Vecindad},
        {"Provincia", &TROtorgante::Provincia},
        {"TipoVia", &TROtorgante::TipoVia},
        {"Domicilio", &TROtorgante::Domicilio},
        {"Numero", &TROtorgante::Numero},
        {"CodPostal", &TROtorgante::CodPostal},
        {"CodINE", &TROtorgante::CodINE},
        {"Pais", &TROtorgante::Pais},
        {"Nacionalidad", &TROtorgante::Nacionalidad},
        {"LugarNacimiento", &TROtorgante::LugarNacimiento},
        {"PaisNacimiento", &TROtorgante::PaisNacimiento},
        {"ProvinciaNacimiento", &TROtorgante::ProvinciaNacimiento},
        {"Padre", &TROtorgante::Padre},
        {"Madre", &TROtorgante::Madre}};
    const auto comprueba = [](const char* campo, auto miembro, const auto& valorA, const auto& valorB) {
        for (const bool enA : {false, true})
            for (const bool enB : {false, true}) {
                TROtorgante a = Persona("JUAN", "GIL"), b = a;
                TOrigenes deA, deB;
                if (enA) a.*miembro = valorA, deA[campo] = En(1);
                if (enB) b.*miembro = valorB, deB[campo] = En(2);
                TListaOtorgantes encontrados;
                encontrados.Anade({a, deA});
                encontrados.Anade({b, deB});
                const auto unidos = UneOtorgantesDuplicados(encontrados);
                ASSERT_EQ(unidos.Lista.Cuenta(), 1U) << campo;
                TOrigenes esperados;
                if (unidos.Lista[0].Objeto.get()->*miembro == valorA) esperados[campo] = En(1);
                if (unidos.Lista[0].Objeto.get()->*miembro == valorB) esperados[campo] = En(2);
                EXPECT_EQ(unidos.Origenes[0], esperados) << campo << ' ' << enA << enB;
            }
    };
    for (const auto& [campo, miembro] : textos)
        comprueba(campo, miembro, std::string("UNO"), std::string("DOS"));
    comprueba("TipoDocumento", &TROtorgante::TipoDocumento, 1, 3);
    comprueba("TipoDocumento", &TROtorgante::TipoDocumento, 5, 3);
    comprueba("EstadoCivil", &TROtorgante::EstadoCivil, 1, 3);
    comprueba("Regimen", &TROtorgante::Regimen, 1, 3);
    comprueba("CodPais", &TROtorgante::CodPais, 250, 276);
    comprueba("IntervencionINTI", &TROtorgante::IntervencionINTI, 1, 2);
    comprueba("IntervencionVRK", &TROtorgante::IntervencionVRK, 1, 5);
    comprueba("FechaNacimiento", &TROtorgante::FechaNacimiento, std::optional<TFecha>(1970y / 1 / 1),
              std::optional<TFecha>(1980y / 2 / 2));
}

}  // namespace
}  // namespace analizador
