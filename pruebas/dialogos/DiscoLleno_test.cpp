// What is told, and what is left, when a file to be shown does not fit on the disk.

#include <gtest/gtest.h>
#include <sys/resource.h>

#include <csignal>

#include "dialogos/FicherosParaVer.h"
#include "pruebas/comun/Literales.h"
#include "pruebas/dialogos/EscenaPreseleccion.h"

namespace analizador {
namespace {

using TControl = TControlPreseleccion;
namespace fs = std::filesystem;

// A disk on which nothing fits, for as long as it lives.
class TDiscoLleno {
  public:
    TDiscoLleno() : senal_(std::signal(SIGXFSZ, SIG_IGN)) {
        EXPECT_EQ(::getrlimit(RLIMIT_FSIZE, &anterior_), 0);
        const struct rlimit nada { 0, anterior_.rlim_max };
        EXPECT_EQ(::setrlimit(RLIMIT_FSIZE, &nada), 0);
    }
    ~TDiscoLleno() {
        (void)::setrlimit(RLIMIT_FSIZE, &anterior_);
        (void)std::signal(SIGXFSZ, senal_);
    }
    TDiscoLleno(const TDiscoLleno&) = delete;
    TDiscoLleno& operator=(const TDiscoLleno&) = delete;

  private:
    void (*senal_)(int);
    struct rlimit anterior_ {};
};

TEST(DiscoLleno, SiNoCabeNoQuedaNingunFichero) {
    const std::size_t antes = Cuantos("LLENO");
    {
        const TDiscoLleno disco;
        EXPECT_THROW((void)EscribeFicheroTemporal("LLENO", "txt", "algo"), fs::filesystem_error);
    }
    EXPECT_EQ(Cuantos("LLENO"), antes);
}

TEST(DiscoLleno, SiElXmlNoPuedeEscribirseSeAvisaYSeVuelveAIntentarAlPulsar) {
    TEscenaPreseleccion escena;
    const auto dialogo = escena.Crea({"A"}, {}, "", XML);
    std::vector<TPaginaPreseleccion> paginas;
    escena.Mensajes.AlMostrar = [&] {
        paginas.push_back(dialogo->Pagina());
        dialogo->FormActivate();  // the dialog comes to the front again when the box closes
    };
    const std::size_t antes = Cuantos("NUM");
    {
        const TDiscoLleno disco;
        dialogo->FormActivate();
        EXPECT_TRUE(dialogo->XMLVisible());
        EXPECT_TRUE(dialogo->FicheroXML().empty());
        dialogo->Pulsa(TControl::SPXML);
        EXPECT_TRUE(escena.Visores.Xmls.empty());
    }
    EXPECT_EQ(Cuantos("NUM"), antes);
    // While the first activation goes on, the page of the XML is the one in front.
    EXPECT_EQ(paginas, (std::vector{TPaginaPreseleccion::XML, TPaginaPreseleccion::Informacion}));
    ASSERT_EQ(escena.Mensajes.Mostrados.size(), 2U);
    for (const auto& [titulo, texto] : escena.Mensajes.Mostrados) {
        EXPECT_EQ(titulo, " ATENCIÓN:"_a);
        EXPECT_TRUE(
            texto.starts_with("No se pueden mostrar los datos actuales del documento: no se puede "
                              "escribir "))
            << texto;
        EXPECT_TRUE(texto.ends_with(".xml: no hay sitio en el disco")) << texto;
    }
    dialogo->Pulsa(TControl::SPXML);
    ASSERT_EQ(escena.Visores.Xmls.size(), 1U);
    EXPECT_EQ(escena.Visores.Xmls[0].Bytes, XML_UTF8);
}

TEST(DiscoLleno, SiElInformeNoCabeSeAvisa) {
    TEscenaPreseleccion escena;
    const auto dialogo = escena.Crea({}, {}, "informe");
    const std::size_t antes = Cuantos("PIZ");
    {
        const TDiscoLleno disco;
        dialogo->Pulsa(TControl::SBPizarra);
    }
    EXPECT_EQ(Cuantos("PIZ"), antes);
    EXPECT_TRUE(escena.Visores.Textos.empty());
    ASSERT_EQ(escena.Mensajes.Mostrados.size(), 1U);
    const std::string& texto = escena.Mensajes.Mostrados[0].second;
    EXPECT_TRUE(texto.starts_with("No se puede mostrar el informe: no se puede escribir ")) << texto;
    EXPECT_TRUE(texto.ends_with(".TXT: no hay sitio en el disco")) << texto;
}

}  // namespace
}  // namespace analizador
