// The stored XML and the report as they are shown: files and viewers.

#include <gtest/gtest.h>

#include "dialogos/FicherosParaVer.h"
#include "plataforma/Ansi.h"
#include "pruebas/comun/Literales.h"
#include "pruebas/dialogos/EscenaPreseleccion.h"

namespace analizador {
namespace {

using TControl = TControlPreseleccion;
namespace fs = std::filesystem;

TEST(FicherosParaVer, ElTextoVaEnUtf8ConMarcaYFinesDeLineaDobles) {
    EXPECT_EQ(BytesDeTexto(""), "\xEF\xBB\xBF");
    EXPECT_EQ(BytesDeTexto("a\r\nñ\rb\n\nc\r\r\n"_a),
              "\xEF\xBB\xBF"
              "a\r\nñ\r\nb\r\n\r\nc\r\n\r\n");
}

TEST(FicherosParaVer, ElFicheroTieneSusBytesYSuNombre) {
    const auto fichero = EscribeFicheroTemporal("NUM", "xml", std::string_view("a\r\n\0\xFF", 5));
    EXPECT_TRUE(fichero.filename().string().starts_with("NUM"));
    EXPECT_EQ(fichero.extension(), ".xml");
    EXPECT_EQ(BytesDe(fichero), std::string("a\r\n\0\xFF", 5));
    fs::remove(fichero);
}

// ---- The XML

TEST(Xml, SeMuestraCuandoLoHayYLaOficinaLoQuiere) {
    struct TCaso {
        std::string Xml;
        bool SinXML;
        bool Visible;
    };
    const TCaso casos[] = {{XML, false, true}, {XML, true, false}, {"", false, false}, {"", true, false}};
    TEscenaPreseleccion escena;
    for (const auto& caso : casos) {
        escena.Configuracion.SinXML = caso.SinXML;
        const auto dialogo = escena.Crea({}, {}, "", caso.Xml);
        EXPECT_FALSE(dialogo->XMLVisible()) << "not before it comes to the front";
        EXPECT_TRUE(dialogo->FicheroXML().empty());
        dialogo->FormActivate();
        EXPECT_EQ(dialogo->XMLVisible(), caso.Visible);
        EXPECT_EQ(dialogo->FicheroXML().empty(), !caso.Visible);
        EXPECT_EQ(dialogo->Pagina(), TPaginaPreseleccion::Informacion);
        dialogo->PonPagina(TPaginaPreseleccion::XML);
        EXPECT_EQ(dialogo->Pagina(),
                  caso.Visible ? TPaginaPreseleccion::XML : TPaginaPreseleccion::Informacion);
        dialogo->PonPagina(TPaginaPreseleccion::Informacion);
        EXPECT_EQ(dialogo->Pagina(), TPaginaPreseleccion::Informacion);
        dialogo->Pulsa(TControl::SPXML);
        EXPECT_EQ(escena.Visores.Xmls.size(), 1U) << "only the first case shows it";
    }
}

TEST(Xml, ElFicheroSeEscribeUnaVezYSeVaConElDialogo) {
    const TEscenaPreseleccion escena;
    const std::size_t antes = Cuantos("NUM");
    auto dialogo = escena.Crea({}, {}, "", XML);
    dialogo->FormActivate();
    const fs::path fichero = dialogo->FicheroXML();
    EXPECT_TRUE(fichero.filename().string().starts_with("NUM"));
    EXPECT_EQ(fichero.extension(), ".xml");
    EXPECT_EQ(BytesDe(fichero), XML_UTF8);
    dialogo->PonPagina(TPaginaPreseleccion::XML);
    dialogo->FormActivate();
    dialogo->Pulsa(TControl::SPXML);
    dialogo->Pulsa(TControl::SPXML);
    EXPECT_EQ(dialogo->FicheroXML(), fichero);
    EXPECT_EQ(Cuantos("NUM"), antes + 1);
    EXPECT_EQ(dialogo->Pagina(), TPaginaPreseleccion::XML) << "only the first activation counts";
    dialogo.reset();
    EXPECT_FALSE(fs::exists(fichero));
}

TEST(Xml, ElBotonLoMuestraEnElVisor) {
    TEscenaPreseleccion escena;
    struct TVista : TVistaPreseleccion {
        [[nodiscard]] bool MuestraModal(TFListaConceptosPreseleccionados& dialogo,
                                        TComponente* /*propietario*/) override {
            dialogo.FormActivate();
            dialogo.Pulsa(TControl::SPXML);
            return false;
        }
    } vista;
    const InstalaVistaPreseleccion instala(vista);
    TComponente anfitriona;
    const auto dialogo = escena.Crea({}, {}, "", XML);
    EXPECT_FALSE(dialogo->MuestraModal(&anfitriona));
    ASSERT_EQ(escena.Visores.Xmls.size(), 1U);
    EXPECT_EQ(escena.Visores.Xmls[0].Propietario, &anfitriona);
    EXPECT_EQ(escena.Visores.Xmls[0].Fichero, dialogo->FicheroXML());
    EXPECT_EQ(escena.Visores.Xmls[0].Bytes, XML_UTF8);
    EXPECT_EQ(escena.Visores.Xmls[0].Titulo, "Datos actuales del documento");
}

// ---- The report

TEST(Informe, SeAbreEnElProgramaDelSistemaYElFicheroQueda) {
    TEscenaPreseleccion escena;
    auto dialogo = escena.Crea({}, {}, std::string("ESCRITURA\r\nPRÉSTAMO\r\n"_a));
    dialogo->Pulsa(TControl::SBPizarra);
    ASSERT_EQ(escena.Visores.BytesTextos, (TTextos{"\xEF\xBB\xBF"
                                                   "ESCRITURA\r\nPRÉSTAMO\r\n"}));
    dialogo.reset();
    const fs::path fichero = escena.Visores.Textos[0];
    EXPECT_TRUE(fs::exists(fichero)) << "the viewer may still be reading it";
    EXPECT_TRUE(fichero.filename().string().starts_with("PIZ"));
    EXPECT_EQ(fichero.extension(), ".TXT");
    EXPECT_TRUE(escena.Mensajes.Mostrados.empty());
}

TEST(Informe, VacioNoHaceNada) {
    TEscenaPreseleccion escena;
    escena.Crea({})->Pulsa(TControl::SBPizarra);
    EXPECT_TRUE(escena.Visores.Textos.empty());
    EXPECT_TRUE(escena.Mensajes.Mostrados.empty());
}

TEST(Informe, SiNoHayProgramaSeAvisaYNoQuedaFichero) {
    TEscenaPreseleccion escena;
    escena.Visores.HayPrograma = false;
    const auto dialogo = escena.Crea({"A"}, {}, "informe");
    dialogo->Pulsa(TControl::SBPizarra);
    ASSERT_EQ(escena.Visores.Textos.size(), 1U);
    EXPECT_FALSE(fs::exists(escena.Visores.Textos[0]));
    EXPECT_EQ(escena.Mensajes.Mostrados,
              (std::vector<std::pair<std::string, std::string>>{
                  {std::string(" ATENCIÓN:"_a),
                   "No se puede mostrar el informe: no hay programa que abra textos"}}));
    EXPECT_EQ(dialogo->LBPosiblesConceptos.Cuenta(), 1U);
    EXPECT_EQ(dialogo->Resultado(), std::nullopt);
}

TEST(Informe, SinVisoresInstaladosTambienSeAvisa) {
    TEscenaPreseleccion escena;
    const auto dialogo = escena.Crea({}, {}, "informe", XML);
    dialogo->FormActivate();
    escena.QuitaVisores();
    dialogo->Pulsa(TControl::SPXML);
    EXPECT_TRUE(escena.Mensajes.Mostrados.empty());
    dialogo->Pulsa(TControl::SBPizarra);
    EXPECT_EQ(escena.Mensajes.Mostrados.size(), 1U);
}

}  // namespace
}  // namespace analizador
