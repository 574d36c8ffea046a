// Saving the section bookmarks.

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "adaptadores/docx/FicheroDocx.h"
#include "plataforma/Rficheros.h"
#include "pruebas/biblioteca/SesionDePrueba.h"

namespace analizador {
namespace {

using testing::IsSupersetOf;

std::vector<std::string> Marcadores(const std::filesystem::path& docx) {
    const TFicheroDocx fichero(docx);
    std::vector<std::string> nombres;
    for (const auto& marcador : fichero.Contenido().Marcadores) nombres.push_back(marcador.Nombre);
    return nombres;
}

class GuardadoBiblioteca : public testing::Test {
  protected:
    void SetUp() override {
        ASSERT_NE(sesion_, nullptr) << analizador_error(nullptr);
        std::filesystem::copy_file(Ejemplo("compraventa.docx"), escritura_);
        ASSERT_EQ(analizador_analiza_fichero(sesion_.get(), Utf8DeRuta(escritura_).c_str(), 0),
                  ANALIZADOR_BIEN);
        ASSERT_EQ(Bytes(escritura_), Bytes(Ejemplo("compraventa.docx"))) << "analysing must not write";
    }

    TCarpetaTemporal carpeta_;
    std::filesystem::path escritura_ = carpeta_ / u8"escritura ñ.docx";
    TSesion sesion_ = Abierta();
};

TEST_F(GuardadoBiblioteca, EnOtroFicheroYElAnalizadoQuedaComoEstaba) {
    const auto utf8 = carpeta_ / u8"uno ñ.docx";
    const auto utf16 = carpeta_ / u8"otro ñ.docx";
    ASSERT_EQ(analizador_guarda(sesion_.get(), Utf8DeRuta(utf8).c_str(), 0), ANALIZADOR_BIEN)
        << Error(sesion_);
    ASSERT_EQ(analizador_guarda16(sesion_.get(), Unidades(utf16.u16string()).data(), 0), ANALIZADOR_BIEN);
    EXPECT_THAT(Marcadores(utf8),
                IsSupersetOf({"CABECERA", "COMPARECIENTES", "INTERVINIENTES", "TRANSMISION"}));
    EXPECT_EQ(Bytes(utf8), Bytes(utf16));
    EXPECT_EQ(Bytes(escritura_), Bytes(Ejemplo("compraventa.docx")));
    EXPECT_EQ(Texto(sesion_, "/Cabecera/NumeroProtocolo"), "1236");
}

TEST_F(GuardadoBiblioteca, EnElMismoFichero) {
    ASSERT_EQ(analizador_guarda(sesion_.get(), nullptr, 0), ANALIZADOR_BIEN) << Error(sesion_);
    EXPECT_THAT(Marcadores(escritura_), IsSupersetOf({"CABECERA", "COMPARECIENTES", "FINCA_1"}));
    const auto primera = Bytes(escritura_);
    ASSERT_EQ(analizador_guarda(sesion_.get(), nullptr, 0), ANALIZADOR_BIEN) << Error(sesion_);
    EXPECT_EQ(Bytes(escritura_), primera);
}

TEST_F(GuardadoBiblioteca, LoQueOtroCambioMientrasTantoSoloSePisaAlForzar) {
    std::filesystem::remove(escritura_);
    std::filesystem::copy_file(Ejemplo("testamento.docx"), escritura_);
    EXPECT_EQ(analizador_guarda(sesion_.get(), nullptr, 0), ANALIZADOR_NO_GUARDADA);
    EXPECT_THAT(Error(sesion_), testing::HasSubstr(Utf8DeRuta(escritura_)));
    EXPECT_EQ(Bytes(escritura_), Bytes(Ejemplo("testamento.docx")));
    EXPECT_EQ(analizador_guarda(sesion_.get(), nullptr, ANALIZADOR_FORZAR), ANALIZADOR_BIEN);
    EXPECT_THAT(Marcadores(escritura_), IsSupersetOf({"TRANSMISION", "FINCA_1"}));
}

TEST_F(GuardadoBiblioteca, DondeNoSePuede) {
    const auto destino = Utf8DeRuta(carpeta_ / u8"no está" / "salida.docx");
    EXPECT_EQ(analizador_guarda(sesion_.get(), destino.c_str(), 0), ANALIZADOR_NO_GUARDADA);
    EXPECT_THAT(Error(sesion_), testing::HasSubstr(destino));
    EXPECT_EQ(analizador_guarda(sesion_.get(), "", 0), ANALIZADOR_MAL_USO);
}

}  // namespace
}  // namespace analizador
