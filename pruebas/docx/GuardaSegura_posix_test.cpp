#include <sys/resource.h>
#include <sys/stat.h>
#include <unistd.h>

#include <csignal>
#include <filesystem>
#include <string>

#include "pruebas/docx/GuardaSegura.h"

namespace analizador::pruebas {
namespace {

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
