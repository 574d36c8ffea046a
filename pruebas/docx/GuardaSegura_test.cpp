#include <gtest/gtest.h>
#include <sys/resource.h>
#include <sys/stat.h>
#include <unistd.h>

#include <csignal>
#include <string>
#include <string_view>
#include <vector>

#include "adaptadores/docx/FicheroDocx.h"
#include "pruebas/docx/ConstruyeDocx.h"

namespace analizador::pruebas {
namespace {

const std::vector<TMarcador> MARCADORES = {{"M", {0, 1}}};

class GuardaSegura : public testing::Test {
  protected:
    GuardaSegura() { EscribeDocumento(Fichero, "<w:p><w:r><w:t>Escritura</w:t></w:r></w:p>"); }

    // The message of the refusal; empty when it was saved.
    std::string Rechazo(TFicheroDocx& documento, const std::filesystem::path& destino, bool forzar = false) {
        try {
            documento.Guarda(MARCADORES, destino, {forzar});
        } catch (const ErrorDocumento& error) {
            return error.what();
        }
        return {};
    }

    [[nodiscard]] static bool TieneMarcador(const std::filesystem::path& fichero) {
        return TFicheroDocx(fichero).Contenido().Marcadores == MARCADORES;
    }

    TCarpeta Carpeta;
    std::filesystem::path Fichero = Carpeta / "escritura de venta.docx";
};

TEST_F(GuardaSegura, NoDejaNadaMas) {
    TFicheroDocx documento(Fichero);
    documento.Guarda(MARCADORES, Fichero);
    EXPECT_TRUE(TieneMarcador(Fichero));
    EXPECT_EQ(Carpeta.Nombres(), (std::vector<std::string>{"escritura de venta.docx"}));
    documento.Guarda(MARCADORES, Carpeta / "nueva.docx");
    EXPECT_TRUE(TieneMarcador(Carpeta / "nueva.docx"));
}

TEST_F(GuardaSegura, SinNadaQueCambiarNoEscribe) {
    TFicheroDocx documento(Fichero);
    struct stat antes {};
    ASSERT_EQ(::stat(Fichero.c_str(), &antes), 0);
    documento.Guarda({}, Fichero);
    struct stat despues {};
    ASSERT_EQ(::stat(Fichero.c_str(), &despues), 0);
    EXPECT_EQ(antes.st_ino, despues.st_ino);
    documento.Guarda({}, Carpeta / "copia.docx");
    EXPECT_EQ(LeeBytes(Carpeta / "copia.docx"), LeeBytes(Fichero));
}

TEST_F(GuardaSegura, ConservaElModoYElDueno) {
    ASSERT_EQ(::chmod(Fichero.c_str(), 0640), 0);
    const bool cambiaDueno = ::geteuid() == 0 && ::chown(Fichero.c_str(), 12345, 54321) == 0;
    TFicheroDocx(Fichero).Guarda(MARCADORES, Fichero);
    struct stat estado {};
    ASSERT_EQ(::stat(Fichero.c_str(), &estado), 0);
    EXPECT_EQ(estado.st_mode & 07777, 0640U);
    if (cambiaDueno) {
        EXPECT_EQ(estado.st_uid, 12345U);
        EXPECT_EQ(estado.st_gid, 54321U);
    }
}

TEST_F(GuardaSegura, UnFicheroNuevoTieneElModoCorriente) {
    const auto anterior = ::umask(027);
    TFicheroDocx(Fichero).Guarda(MARCADORES, Carpeta / "nueva.docx");
    ::umask(anterior);
    struct stat estado {};
    ASSERT_EQ(::stat((Carpeta / "nueva.docx").c_str(), &estado), 0);
    EXPECT_EQ(estado.st_mode & 07777, 0640U);
}

TEST_F(GuardaSegura, SigueLosEnlacesSimbolicos) {
    std::filesystem::create_directory(Carpeta / "otra");
    std::filesystem::rename(Fichero, Carpeta / "otra" / "real.docx");
    std::filesystem::create_symlink("otra/real.docx", Carpeta / "enlace.docx");
    TFicheroDocx(Carpeta / "enlace.docx").Guarda(MARCADORES, Carpeta / "enlace.docx");
    EXPECT_TRUE(std::filesystem::is_symlink(Carpeta / "enlace.docx"));
    EXPECT_TRUE(TieneMarcador(Carpeta / "otra" / "real.docx"));

    std::filesystem::create_symlink("giro.docx", Carpeta / "giro.docx");
    TFicheroDocx documento(Carpeta / "enlace.docx");
    EXPECT_NE(Rechazo(documento, Carpeta / "giro.docx").find("enlace simbólico"), std::string::npos);
}

TEST_F(GuardaSegura, RehusaElDocumentoQueOtroProgramaTieneAbierto) {
    EscribeDocumento(Carpeta / "corto.docx", "<w:p><w:r><w:t>a</w:t></w:r></w:p>");
    const std::vector<std::pair<std::string, std::string>> casos = {
        {"escritura de venta.docx", "~$critura de venta.docx"},
        {"escritura de venta.docx", "~$escritura de venta.docx"},
        {"escritura de venta.docx", ".~lock.escritura de venta.docx#"},
        {"corto.docx", "~$corto.docx"},
        {"corto.docx", "~$rto.docx"},
    };
    for (const auto& [nombre, bloqueo] : casos) {
        SCOPED_TRACE(bloqueo);
        const auto fichero = Carpeta / nombre;
        const auto antes = LeeBytes(fichero);
        EscribeFichero(Carpeta / bloqueo, "");
        TFicheroDocx documento(fichero);
        const auto mensaje = Rechazo(documento, fichero);
        EXPECT_NE(mensaje.find("otro programa tiene abierto el documento"), std::string::npos) << mensaje;
        EXPECT_NE(mensaje.find(bloqueo), std::string::npos) << mensaje;
        EXPECT_EQ(LeeBytes(fichero), antes);
        EXPECT_EQ(Rechazo(documento, fichero, true), "");
        EXPECT_TRUE(TieneMarcador(fichero));
        std::filesystem::remove(Carpeta / bloqueo);
        EscribeFichero(fichero, antes);
    }
}

TEST_F(GuardaSegura, RehusaElQueHaCambiadoDesdeQueSeLeyo) {
    TFicheroDocx documento(Fichero);
    EscribeDocumento(Fichero, "<w:p><w:r><w:t>Cambiada!</w:t></w:r></w:p>");
    const auto cambiado = LeeBytes(Fichero);
    EXPECT_NE(Rechazo(documento, Fichero).find("otro programa ha cambiado el documento"), std::string::npos);
    EXPECT_EQ(LeeBytes(Fichero), cambiado);
    EXPECT_EQ(Rechazo(documento, Carpeta / "otra.docx"), "");
    EXPECT_EQ(Rechazo(documento, Fichero, true), "");
    EXPECT_EQ(TextoDe(Fichero), "Escritura\r");
    // and its own change is none
    documento.Guarda({{"N", {0, 0}}}, Fichero);
    EXPECT_EQ(TFicheroDocx(Fichero).Contenido().Marcadores.size(), 2U);
}

TEST_F(GuardaSegura, ElMismoContenidoEscritoOtraVezNoEsUnCambio) {
    TFicheroDocx documento(Fichero);
    EscribeFichero(Fichero, LeeBytes(Fichero));
    EXPECT_EQ(Rechazo(documento, Fichero), "");
}

TEST_F(GuardaSegura, RehusaRomperUnaFirma) {
    auto partes = PartesDocumento("<w:document xmlns:w=\"" + std::string(ESPACIO_W) +
                                  "\"><w:body><w:p/></w:body></w:document>");
    partes.emplace_back("_xmlsignatures/sig1.xml", "<a/>");
    EscribeFichero(Fichero, Comprime(partes));
    const auto antes = LeeBytes(Fichero);
    TFicheroDocx documento(Fichero);
    EXPECT_NE(Rechazo(documento, Fichero).find("se rompería la firma"), std::string::npos);
    EXPECT_EQ(LeeBytes(Fichero), antes);
    EXPECT_EQ(Rechazo(documento, Fichero, true), "");
    EXPECT_NE(LeeBytes(Fichero), antes);
}

TEST_F(GuardaSegura, ACualquierFalloElViejoQuedaEntero) {
    TFicheroDocx documento(Fichero);
    const auto antes = LeeBytes(Fichero);
    EXPECT_NE(Rechazo(documento, Carpeta / "no hay" / "a.docx").find("la carpeta no existe"),
              std::string::npos);
    EXPECT_NE(Rechazo(documento, Carpeta.GetRuta()).find("es una carpeta"), std::string::npos);
    EXPECT_NE(Rechazo(documento, "/dev/null").find("no es un fichero normal"), std::string::npos);
    EXPECT_EQ(LeeBytes(Fichero), antes);
    EXPECT_EQ(Carpeta.Nombres().size(), 1U);
}

TEST_F(GuardaSegura, SinSitioParaEscribirElViejoQuedaEntero) {
    TFicheroDocx documento(Fichero);
    const auto antes = LeeBytes(Fichero);
    struct rlimit anterior {};
    ASSERT_EQ(::getrlimit(RLIMIT_FSIZE, &anterior), 0);
    const auto senal = std::signal(SIGXFSZ, SIG_IGN);
    for (const rlim_t limite : {0U, 1U, 100U, 1000U}) {
        auto corto = anterior;
        corto.rlim_cur = limite;
        ASSERT_EQ(::setrlimit(RLIMIT_FSIZE, &corto), 0);
        const auto mensaje = Rechazo(documento, Fichero);
        ASSERT_EQ(::setrlimit(RLIMIT_FSIZE, &anterior), 0);
        EXPECT_NE(mensaje.find("no se puede guardar: "), std::string::npos) << limite << mensaje;
        EXPECT_EQ(LeeBytes(Fichero), antes);
        EXPECT_EQ(Carpeta.Nombres().size(), 1U);
    }
    std::signal(SIGXFSZ, senal);
    EXPECT_EQ(Rechazo(documento, Fichero), "");
}

TEST_F(GuardaSegura, EnUnaCarpetaDeSoloLecturaElViejoQuedaEntero) {
    if (::geteuid() == 0) GTEST_SKIP() << "root writes in any folder";
    TFicheroDocx documento(Fichero);
    const auto antes = LeeBytes(Fichero);
    ASSERT_EQ(::chmod(Carpeta.GetRuta().c_str(), 0500), 0);
    const auto mensaje = Rechazo(documento, Fichero);
    ASSERT_EQ(::chmod(Carpeta.GetRuta().c_str(), 0700), 0);
    EXPECT_NE(mensaje.find("no hay permiso para escribir en la carpeta"), std::string::npos) << mensaje;
    EXPECT_EQ(LeeBytes(Fichero), antes);
}

TEST_F(GuardaSegura, RehusaUnFicheroDeSoloLectura) {
    if (::geteuid() == 0) GTEST_SKIP() << "root writes on any file";
    TFicheroDocx documento(Fichero);
    ASSERT_EQ(::chmod(Fichero.c_str(), 0400), 0);
    EXPECT_NE(Rechazo(documento, Fichero).find("es de solo lectura"), std::string::npos);
}

}  // namespace
}  // namespace analizador::pruebas
