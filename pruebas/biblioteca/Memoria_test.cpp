// Deeds that are in no file.

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <functional>
#include <nlohmann/json.hpp>

#include "pruebas/biblioteca/SesionDePrueba.h"

namespace analizador {
namespace {

using TJson = nlohmann::ordered_json;

class MemoriaBiblioteca : public testing::Test {
  protected:
    void SetUp() override { ASSERT_NE(sesion_, nullptr) << analizador_error(nullptr); }

    // What the example holds besides its text.
    void PonLoDemas() {
        ASSERT_EQ(analizador_pon_variable(sesion_.get(), "EMPLEADO", "JLT"), ANALIZADOR_BIEN);
        ASSERT_EQ(analizador_pon_marcador(sesion_.get(), "FINCA_1"), ANALIZADOR_BIEN);
    }

    // All but the file's name.
    [[nodiscard]] TJson Hechos() const {
        auto json = TJson::parse(Texto(sesion_, ""));
        json.erase("archivo");
        return json;
    }

    TSesion sesion_ = Abierta();
    std::string texto_ = Bytes(Ejemplo("prestamo_hipotecario.txt"));
};

std::string ConFines(const std::string& texto, const std::string& fin) {
    std::string otro;
    for (const char c : texto) otro += c == '\n' ? fin : std::string(1, c);
    return otro;
}

TEST_F(MemoriaBiblioteca, DaLoMismoQueSuFichero) {
    ASSERT_EQ(analizador_analiza_fichero(sesion_.get(), Ejemplo("prestamo_hipotecario.docx").c_str(), 0),
              ANALIZADOR_BIEN);
    const auto esperado = Hechos();
    ASSERT_EQ(analizador_cuenta(sesion_.get(), "/Fincas"), 1);
    for (const std::string fin : {"\n", "\r", "\r\n"}) {
        PonLoDemas();
        ASSERT_EQ(analizador_analiza_texto(sesion_.get(), ConFines(texto_, fin).c_str(), 0), ANALIZADOR_BIEN);
        EXPECT_EQ(Hechos(), esperado);
        EXPECT_EQ(Texto(sesion_, "/archivo"), "");
    }
}

TEST_F(MemoriaBiblioteca, EnUtf16DaLoMismo) {
    PonLoDemas();
    ASSERT_EQ(analizador_analiza_texto(sesion_.get(), texto_.c_str(), 0), ANALIZADOR_BIEN);
    const auto esperado = Hechos();
    analizador_pon_variable16(sesion_.get(), Unidades(u"EMPLEADO").data(), Unidades(u"JLT").data());
    analizador_pon_marcador16(sesion_.get(), Unidades(u"FINCA_1").data());
    const auto unidades = Unidades(std::filesystem::path(texto_).u16string());
    ASSERT_EQ(analizador_analiza_texto16(sesion_.get(), unidades.data(), 0), ANALIZADOR_BIEN);
    EXPECT_EQ(Hechos(), esperado);
}

TEST_F(MemoriaBiblioteca, VariablesYMarcadoresSonDeUnaSolaEscritura) {
    analizador_sesion* const s = sesion_.get();
    const std::vector<std::function<int()>> fallos = {
        [&] { return analizador_analiza_fichero(s, "/no está.docx", 0); },
        [&] { return analizador_analiza_fichero(s, nullptr, 0); },
        [&] { return analizador_analiza_texto(s, "Nada.", 128); },
        [&] { return analizador_analiza_texto(s, "A\xD1O", 0); }};
    for (std::size_t i = 0; i < fallos.size(); ++i) {
        PonLoDemas();
        EXPECT_NE(fallos[i](), ANALIZADOR_BIEN) << i;
        EXPECT_EQ(Texto(sesion_, ""), "(none)") << i;
        ASSERT_EQ(analizador_analiza_texto(s, texto_.c_str(), 0), ANALIZADOR_BIEN) << i;
        EXPECT_EQ(Texto(sesion_, "/Empleado"), "") << i;
        EXPECT_EQ(analizador_cuenta(s, "/Fincas"), 0) << i;
    }
}

TEST_F(MemoriaBiblioteca, LosAcentosYLoQueLaPaginaNoTiene) {
    // An employee outside the code page, one with accents, and a pair of surrogates.
    struct TCaso {
        const char16_t* Empleado;
        const char* Queda;
    };
    for (const auto& [empleado, queda] :
         {TCaso{u"PEÑA ÀÉÏ", "PEÑA ÀÉÏ"}, {u"ŁUKASZ", "LUKASZ"}, {u"\U0001F600", "??"}, {u"€", "€"}}) {
        analizador_pon_variable16(sesion_.get(), Unidades(u"empleado").data(), Unidades(empleado).data());
        ASSERT_EQ(analizador_analiza_texto(sesion_.get(), "ESCRITURA", 0), ANALIZADOR_BIEN);
        EXPECT_EQ(Texto(sesion_, "/Empleado"), queda);
        EXPECT_EQ(Texto16(analizador_texto16(sesion_.get(), "/Empleado")),
                  std::filesystem::path(queda).u16string());
    }
}

TEST_F(MemoriaBiblioteca, UnTextoVacioNoTieneHechos) {
    ASSERT_EQ(analizador_analiza_texto(sesion_.get(), "", 0), ANALIZADOR_BIEN) << Error(sesion_);
    EXPECT_EQ(analizador_cuenta(sesion_.get(), "/Otorgantes"), 0);
}

TEST_F(MemoriaBiblioteca, NoHayFicheroQueGuardar) {
    ASSERT_EQ(analizador_analiza_texto(sesion_.get(), texto_.c_str(), 0), ANALIZADOR_BIEN);
    EXPECT_EQ(analizador_guarda(sesion_.get(), nullptr, 0), ANALIZADOR_SIN_RESULTADOS);
    EXPECT_EQ(Error(sesion_), "lo analizado no es un fichero: no hay qué guardar");
    EXPECT_EQ(Texto(sesion_, "/Cuantias/0").empty(), false);
}

}  // namespace
}  // namespace analizador
