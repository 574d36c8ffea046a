// Where each fact was read: the words found there are the ones that the fact came from.

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <cctype>
#include <nlohmann/json.hpp>
#include <set>

#include "plataforma/Ansi.h"
#include "plataforma/Rut.h"
#include "pruebas/programas/ProgramaDePrueba.h"

namespace analizador {
namespace {

using TJson = nlohmann::ordered_json;

TJson ConOrigen(const std::string& ejemplo) {
    const auto ejecucion = Analiza({"--json", "--origen", Ejemplo(ejemplo)});
    EXPECT_EQ(ejecucion.Codigo, 0) << ejecucion.Errores;
    return TJson::parse(ejecucion.Salida);
}

// Folded letters and digits alone: how a value and the words that it was read from compare.
std::string Esencia(const std::string& utf8) {
    std::string esencia;
    for (const char c : Pliega(AnsiDeUtf8(utf8)))
        if (std::isalnum(static_cast<unsigned char>(c)) != 0 || static_cast<unsigned char>(c) >= 0xC0)
            esencia += c;
    return esencia;
}

// The paragraphs of the example's source.
std::vector<std::string> Parrafos(const std::string& ejemplo) {
    return Lineas(Bytes(Ejemplo(ejemplo).replace_extension(".txt")));
}

class Origen : public testing::TestWithParam<const char*> {};

// Every origin names a paragraph of the deed, and its text stands there at that very place.
void Comprueba(const TJson& origen, const std::vector<std::string>& parrafos) {
    ASSERT_TRUE(origen.contains("parrafo")) << origen;
    const auto numero = origen["parrafo"].get<std::size_t>();
    ASSERT_GE(numero, 1U);
    ASSERT_LE(numero, parrafos.size());
    // The plain text has curly quotes and dashes replaced, one for one; folding makes both sides alike.
    const std::string parrafo = Pliega(AnsiDeUtf8(parrafos[numero - 1]));
    const std::string texto = Pliega(AnsiDeUtf8(origen["texto"].get<std::string>()));
    EXPECT_EQ(Esencia(Utf8DeAnsi(parrafo.substr(origen["primera"], origen["longitud"]))),
              Esencia(Utf8DeAnsi(texto)));
    EXPECT_EQ(texto.size(), origen["longitud"].get<std::size_t>());
}

TEST_P(Origen, ElTextoEstaDondeSeDice) {
    const auto json = ConOrigen(GetParam());
    const auto parrafos = Parrafos(GetParam());
    int vistos = 0;
    const auto recorre = [&](const auto& yo, const TJson& nodo) -> void {
        if (nodo.is_object() && nodo.contains("texto")) {
            ++vistos;
            Comprueba(nodo, parrafos);
        } else if (nodo.is_structured()) {
            for (const auto& hijo : nodo) yo(yo, hijo);
        }
    };
    recorre(recorre, json["Origen"]);
    EXPECT_GE(vistos, 10);
}

TEST_P(Origen, CadaDatoLeidoTieneElSuyo) {
    const auto json = ConOrigen(GetParam());
    const auto& origen = json["Origen"];
    for (const char* campo : {"NumeroProtocolo", "Fecha", "Notario"})
        EXPECT_TRUE(origen["Cabecera"].contains(campo)) << campo;
    EXPECT_EQ(origen["Conceptos"].size(), json["Conceptos"].size());
    EXPECT_EQ(origen["Cuantias"].size(), json["Cuantias"].size());
    EXPECT_EQ(origen["Otorgantes"].size(), json["Otorgantes"].size());
    EXPECT_EQ(origen["Operacion"]["Plazos"].size(), json["Operacion"]["Plazos"].size());
    EXPECT_EQ(origen["Operacion"]["TAEs"].size(), json["Operacion"]["TAEs"].size());
}

TEST_P(Origen, LasPalabrasSonLasDelDato) {
    const auto json = ConOrigen(GetParam());
    const auto& origen = json["Origen"];
    EXPECT_EQ(Esencia(origen["Cabecera"]["Notario"]["texto"]), Esencia(json["Cabecera"]["Notario"]));
    for (std::size_t i = 0; i < json["Conceptos"].size(); ++i)
        EXPECT_NE(Esencia(json["Conceptos"][i]["Nombre"]).find(Esencia(origen["Conceptos"][i]["texto"])),
                  std::string::npos);
    for (std::size_t i = 0; i < json["Cuantias"].size(); ++i)
        EXPECT_EQ(Esencia(origen["Cuantias"][i]["texto"]), Esencia(json["Cuantias"][i]));
    for (std::size_t i = 0; i < json["Otorgantes"].size(); ++i) {
        const auto& otorgante = json["Otorgantes"][i];
        const auto& campos = origen["Otorgantes"][i];
        // Texts that are taken over as they are; the name's origin is the whole name.
        for (const char* campo :
             {"Vecindad", "Domicilio", "Numero", "CodPostal", "LugarNacimiento", "Padre", "Madre"}) {
            if (!campos.contains(campo)) continue;
            EXPECT_EQ(Esencia(campos[campo]["texto"]), Esencia(otorgante[campo])) << campo;
        }
        for (const char* campo : {"Nombre", "Apellidos"}) {
            if (!campos.contains(campo)) continue;
            EXPECT_NE(Esencia(campos[campo]["texto"]).find(Esencia(otorgante[campo])), std::string::npos)
                << campo;
        }
        // A number's leading zeros are added to it.
        ASSERT_TRUE(campos.contains("NumDocumento"));
        EXPECT_TRUE(Esencia(otorgante["NumDocumento"]).ends_with(Esencia(campos["NumDocumento"]["texto"])));
    }
}

INSTANTIATE_TEST_SUITE_P(Ejemplos, Origen,
                         testing::Values("compraventa", "prestamo_hipotecario", "testamento",
                                         "compraventa_extranjero", "compravenda", "testament"),
                         [](const auto& ejemplo) { return std::string(ejemplo.param); });

TEST(OrigenAnaliza, SoloSaleCuandoSePide) {
    const auto json = TJson::parse(Analiza({"--json", Ejemplo("compraventa")}).Salida);
    EXPECT_FALSE(json.contains("Origen"));
    EXPECT_EQ(Analiza({"--origen", Ejemplo("compraventa")}).Codigo, 2);
}

}  // namespace
}  // namespace analizador
