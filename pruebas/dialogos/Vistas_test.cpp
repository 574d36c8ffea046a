// The stored XML and the report as they are shown: files, viewers and what happens when they fail.

#include <gtest/gtest.h>
#include <sys/resource.h>

#include <csignal>

#include "dialogos/FicherosParaVer.h"
#include "plataforma/Ansi.h"
#include "pruebas/comun/Literales.h"
#include "pruebas/dialogos/EscenaPreseleccion.h"

namespace analizador {
namespace {

using TControl = TControlPreseleccion;
namespace fs = std::filesystem;

const std::string XML = "<?xml version=\"1.0\" encoding=\"UTF-8\"?>\r\n<a>\xF1</a>";
const std::string XML_UTF8 = "<?xml version=\"1.0\" encoding=\"UTF-8\"?>\r\n<a>ñ</a>";

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

// How many files of a prefix stand where temporary files go.
std::size_t Cuantos(std::string_view prefijo) {
    const fs::path uno = EscribeFicheroTemporal("MIRA", "txt", "");
    std::size_t cuenta = 0;
    for (const auto& entrada : fs::directory_iterator(uno.parent_path()))
        if (entrada.path().filename().string().starts_with(prefijo)) ++cuenta;
    fs::remove(uno);
    return cuenta;
}

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

TEST(FicherosParaVer, SiNoCabeNoQuedaNingunFichero) {
    const std::size_t antes = Cuantos("LLENO");
    {
        const TDiscoLleno disco;
        EXPECT_THROW((void)EscribeFicheroTemporal("LLENO", "txt", "algo"), fs::filesystem_error);
    }
    EXPECT_EQ(Cuantos("LLENO"), antes);
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
    auto dialogo = escena.Crea({}, {}, "", XML);
    dialogo->FormActivate();
    const fs::path fichero = dialogo->FicheroXML();
    EXPECT_TRUE(fichero.filename().string().starts_with("NUM"));
    EXPECT_EQ(fichero.extension(), ".xml");
    EXPECT_EQ(BytesDe(fichero), XML_UTF8);
    dialogo->PonPagina(TPaginaPreseleccion::XML);
    dialogo->FormActivate();
    EXPECT_EQ(dialogo->FicheroXML(), fichero);
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

TEST(Xml, SiNoPuedeEscribirseSeAvisaYSeVuelveAIntentarAlPulsar) {
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

TEST(Informe, SiNoCabeEnElDiscoSeAvisa) {
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
