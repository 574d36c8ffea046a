// A saving that is killed, or finds the disk full, the folder gone or the document replaced, leaves the old
// document or the new one, whole, and nothing that the next run does not remove.

#include <fcntl.h>
#include <gtest/gtest.h>
#include <sys/mount.h>
#include <sys/stat.h>
#include <sys/wait.h>
#include <unistd.h>

#include <algorithm>
#include <chrono>
#include <csignal>
#include <cstdio>
#include <thread>

#include "adaptadores/docx/FicheroDocx.h"
#include "pruebas/ataques/Rastreo.h"
#include "pruebas/ataques/Semillas.h"

namespace analizador::pruebas {
namespace {

namespace fs = std::filesystem;

constexpr const char* NOMBRE = "escritura.docx";

class Guardado : public testing::Test {
  protected:
    Guardado() {
        auto partes = Semillas().front().second;
        partes.emplace_back("word/media/foto.png", TAzar(7).Bytes(300'000));
        Viejo = Comprime(partes);
        PonViejo();
        EXPECT_EQ(Guarda().Codigo, 0);
        Nuevo = LeeBytes(Fichero);
        EXPECT_TRUE(Nuevo != Viejo);
        PonViejo();
    }

    void PonViejo() const {
        fs::remove(Fichero);
        EscribeFichero(Fichero, Viejo);
    }

    [[nodiscard]] TFinal Guarda(const TLimites& limites = {}) const {
        return Banco.Corre(PROGRAMA_ANALIZA, {"--guarda", Fichero}, limites);
    }

    // After whatever befell a saving: the document is whole, and one more run, which does not save, leaves
    // nothing else in any folder.
    void EsperaEntero() {
        const auto bytes = LeeBytes(Fichero);
        EXPECT_TRUE(bytes == Viejo || bytes == Nuevo) << bytes.size() << " bytes";
        ++(bytes == Nuevo ? ConNuevo : ConViejo);
        if (Banco.EnDocumentos().size() > 1) ++ConRestos;
        EXPECT_EQ(Banco.Corre(PROGRAMA_ANALIZA, {Fichero}).Codigo, 0);
        EXPECT_EQ(Banco.EnDocumentos(), std::vector<std::string>{NOMBRE});
        EXPECT_EQ(Banco.EnTemporal(), std::vector<std::string>{});
    }

    // The stops of a saving: how many in all, and the first one with a file beside the document.
    struct TParadas {
        std::uint64_t Todas = 0;
        std::uint64_t Primera = 0;
    };
    [[nodiscard]] TParadas CuentaParadas() const {
        TParadas paradas;
        const auto final = Rastrea(Banco, PROGRAMA_ANALIZA, {"--guarda", Fichero}, [&](std::uint64_t parada) {
            paradas.Todas = parada + 1;
            if (paradas.Primera == 0 && Banco.EnDocumentos().size() > 1) paradas.Primera = parada;
            return SIGUE;
        });
        EXPECT_EQ(final.Codigo, 0);
        EXPECT_GT(paradas.Primera, 0U);
        PonViejo();
        return paradas;
    }

    // The stops to attack: all, or when `todas` is false those from just before there is another file.
    [[nodiscard]] std::uint64_t DesdeParada(const TParadas& paradas, bool todas) const {
        return todas ? 0 : paradas.Primera - std::min<std::uint64_t>(paradas.Primera, 6);
    }

    void Cuenta(const char* que) const {
        std::printf(
            "%s: %d times the old document, %d the new one; %d times a file beside it was left and removed\n",
            que, ConViejo, ConNuevo, ConRestos);
    }

    TBanco Banco;
    fs::path Fichero = Banco.Documento(NOMBRE);
    std::string Viejo;
    std::string Nuevo;
    int ConViejo = 0;
    int ConNuevo = 0;
    int ConRestos = 0;
};

TEST_F(Guardado, MuertoEnCualquierLlamadaAlSistema) {
    if (!SePuedeRastrear()) GTEST_SKIP() << "no process may be traced here";
    const auto paradas = CuentaParadas();
    int muertos = 0;
    const bool todas = Veces("ATAQUES_LLAMADAS", 0) != 0;
    for (auto mortal = DesdeParada(paradas, todas); mortal < paradas.Todas; ++mortal) {
        SCOPED_TRACE(mortal);
        PonViejo();
        const auto final = Rastrea(Banco, PROGRAMA_ANALIZA, {"--guarda", Fichero},
                                   [&](std::uint64_t parada) { return parada == mortal ? SIGKILL : SIGUE; });
        EXPECT_TRUE(final.Senal == SIGKILL || final.Codigo == 0) << final.Senal;
        muertos += final.Senal == SIGKILL ? 1 : 0;
        EsperaEntero();
    }
    std::printf("%d of %llu ended by the signal\n", muertos,
                static_cast<unsigned long long>(paradas.Todas - DesdeParada(paradas, todas)));
    EXPECT_GT(ConViejo, 0);
    EXPECT_GT(ConNuevo, 0);
    EXPECT_GT(ConRestos, 0);
    Cuenta("killed at a system call");
}

TEST_F(Guardado, MuertoEnCualquierMomento) {
    const auto veces = Veces("ATAQUES_GUARDADO", 40);
    const auto antes = std::chrono::steady_clock::now();
    EXPECT_EQ(Guarda().Codigo, 0);
    const auto dura =
        std::chrono::duration_cast<std::chrono::microseconds>(std::chrono::steady_clock::now() - antes);
    TAzar azar(1);
    int muertos = 0;
    for (std::uint64_t i = 0; i < veces; ++i) {
        PonViejo();
        const pid_t proceso = Banco.Lanza(PROGRAMA_ANALIZA, {"--guarda", Fichero});
        std::this_thread::sleep_for(
            std::chrono::microseconds(azar.Hasta(static_cast<std::size_t>(dura.count()) * 5 / 4)));
        ::kill(proceso, SIGKILL);
        int estado = 0;
        ASSERT_EQ(::waitpid(proceso, &estado, 0), proceso);
        muertos += WIFSIGNALED(estado) ? 1 : 0;
        EsperaEntero();
    }
    EXPECT_GT(muertos, 0);
    std::printf("%d of %llu ended by the signal; a saving lasts %lld us\n", muertos,
                static_cast<unsigned long long>(veces), static_cast<long long>(dura.count()));
    Cuenta("killed at a random moment");
}

// Another one's temporary file stays as long as its process lives.
TEST_F(Guardado, NoQuitaElFicheroDeOtroQueEstaGuardando) {
    if (!SePuedeRastrear()) GTEST_SKIP() << "no process may be traced here";
    TAzar azar(2);
    int vecesVisto = 0;
    const auto final = Rastrea(Banco, PROGRAMA_ANALIZA, {"--guarda", Fichero}, [&](std::uint64_t) {
        const auto antes = Banco.EnDocumentos();
        if (antes.size() > 1 && azar.Hasta(4) == 0) {
            ++vecesVisto;
            EXPECT_TRUE(EnOtroProceso([&] {
                if (std::system(
                        ("'" PROGRAMA_ANALIZA "' '" + Fichero.string() + "' >/dev/null 2>&1").c_str()) != 0)
                    throw std::runtime_error("not analysed");
            }));
        }
        return SIGUE;
    });
    EXPECT_GT(vecesVisto, 3);
    EXPECT_EQ(final.Codigo, 0) << final.Errores;
    EXPECT_TRUE(LeeBytes(Fichero) == Nuevo);
    EXPECT_EQ(Banco.EnDocumentos(), std::vector<std::string>{NOMBRE});
}

// Whatever stands there when the saving ends is whole, and what another program put there before the saving
// looked for the last time is never lost.
TEST_F(Guardado, ConElDocumentoReemplazadoMientrasTanto) {
    if (!SePuedeRastrear()) GTEST_SKIP() << "no process may be traced here";
    const auto paradas = CuentaParadas();
    const std::string ajeno = Comprime(Semillas().back().second);
    int rehusados = 0;
    int guardados = 0;
    for (auto cuando = DesdeParada(paradas, false); cuando < paradas.Todas; ++cuando) {
        SCOPED_TRACE(cuando);
        PonViejo();
        const auto otro = Banco.Documento("otro");
        bool yaGuardado = false;
        const auto final = Rastrea(Banco, PROGRAMA_ANALIZA, {"--guarda", Fichero}, [&](std::uint64_t parada) {
            if (parada != cuando) return SIGUE;
            yaGuardado = LeeBytes(Fichero) == Nuevo;
            EscribeFichero(otro, ajeno);
            fs::rename(otro, Fichero);
            return SIGUE;
        });
        const auto bytes = LeeBytes(Fichero);
        if (final.Codigo != 0) {
            ++rehusados;
            EXPECT_NE(final.Errores.find("otro programa ha cambiado el documento"), std::string::npos)
                << final.Errores;
        }
        EXPECT_TRUE(bytes == (final.Codigo == 0 && !yaGuardado ? Nuevo : ajeno));
        guardados += bytes == Nuevo ? 1 : 0;
        EXPECT_EQ(Banco.EnDocumentos(), std::vector<std::string>{NOMBRE});
    }
    EXPECT_GT(rehusados, 10);
    EXPECT_LE(guardados, 8) << "between the last look and the replacement there are few calls";
    std::printf("replaced at a system call: refused %d times, overwritten %d times\n", rehusados, guardados);
}

TEST_F(Guardado, ConLaCarpetaQuitadaMientrasTanto) {
    if (!SePuedeRastrear()) GTEST_SKIP() << "no process may be traced here";
    const auto paradas = CuentaParadas();
    const auto otra = Banco.Documentos().parent_path() / "otra";
    int rehusados = 0;
    for (auto cuando = DesdeParada(paradas, false); cuando < paradas.Todas; ++cuando) {
        SCOPED_TRACE(cuando);
        PonViejo();
        const auto final = Rastrea(Banco, PROGRAMA_ANALIZA, {"--guarda", Fichero}, [&](std::uint64_t parada) {
            if (parada == cuando) fs::rename(Banco.Documentos(), otra);
            return SIGUE;
        });
        rehusados += final.Codigo != 0 ? 1 : 0;
        if (final.Codigo != 0) {
            EXPECT_EQ(std::ranges::count(final.Errores, '\n'), 1) << final.Errores;
        }
        fs::rename(otra, Banco.Documentos());
        EsperaEntero();
    }
    EXPECT_GT(rehusados, 10);
    Cuenta("folder moved away at a system call");
}

// The file may not grow beyond so many bytes, as when the disk is full.
TEST_F(Guardado, SinSitioParaElNuevo) {
    TAzar azar(3);
    for (int i = 0; i < 12; ++i) {
        const auto bytes = 1 + azar.Hasta(Nuevo.size() - 1);
        SCOPED_TRACE(bytes);
        const auto final = Guarda({.TamanoFichero = bytes});
        EXPECT_EQ(final.Codigo, 1);
        EXPECT_EQ(final.Errores,
                  "analiza: " + Fichero.string() +
                      ": no se puede guardar: el fichero pasa del tamaño que el sistema permite\n");
        EXPECT_EQ(Banco.EnDocumentos(), std::vector<std::string>{NOMBRE})
            << "nothing left, without a second run";
        EsperaEntero();
    }
    EXPECT_EQ(ConNuevo, 0);
}

// A disk of its own, so small that the new document fits only now and then.
TEST_F(Guardado, EnUnDiscoLleno) {
    const auto disco = Banco.Documento("disco");
    fs::create_directory(disco);
    const bool montado = ::geteuid() == 0 && ::mount("analizador", disco.c_str(), "tmpfs", 0, "size=1m") == 0;
    if (!montado) GTEST_SKIP() << "no disk may be mounted here";
    int llenos = 0;
    int guardados = 0;
    for (std::size_t relleno = 0; relleno < (700U << 10); relleno += 50U << 10) {
        SCOPED_TRACE(relleno);
        const auto fichero = disco / NOMBRE;
        fs::remove(fichero);
        EscribeFichero(fichero, Viejo);
        EscribeFichero(disco / "relleno", std::string(relleno, 'x'));
        const auto final = Banco.Corre(PROGRAMA_ANALIZA, {"--guarda", fichero});
        const auto bytes = LeeBytes(fichero);
        EXPECT_TRUE(bytes == (final.Codigo == 0 ? Nuevo : Viejo));
        if (final.Codigo != 0) {
            EXPECT_EQ(final.Errores,
                      "analiza: " + fichero.string() + ": no se puede guardar: no queda sitio en el disco\n");
        }
        ++(final.Codigo == 0 ? guardados : llenos);
        EXPECT_EQ(std::distance(fs::directory_iterator(disco), fs::directory_iterator()), 2)
            << "nothing left";
    }
    ::umount(disco.c_str());
    EXPECT_GT(llenos, 0);
    EXPECT_GT(guardados, 0);
}

TEST_F(Guardado, EnUnDiscoDeSoloLectura) {
    const auto disco = Banco.Documento("disco");
    fs::create_directory(disco);
    if (::geteuid() != 0 || ::mount("analizador", disco.c_str(), "tmpfs", 0, "size=1m") != 0)
        GTEST_SKIP() << "no disk may be mounted here";
    EscribeFichero(disco / NOMBRE, Viejo);
    const bool soloLectura = ::mount("", disco.c_str(), "", MS_REMOUNT | MS_RDONLY, "size=1m") == 0;
    const auto final = Banco.Corre(PROGRAMA_ANALIZA, {"--guarda", disco / NOMBRE});
    EXPECT_TRUE(LeeBytes(disco / NOMBRE) == Viejo);
    ::umount(disco.c_str());
    ASSERT_TRUE(soloLectura);
    EXPECT_EQ(final.Codigo, 1);
    EXPECT_NE(final.Errores.find("solo lectura"), std::string::npos) << final.Errores;
}

// Who may write everywhere takes another user's place, if the programs can be reached as that one.
TEST_F(Guardado, EnUnaCarpetaDeSoloLectura) {
    constexpr uid_t NADIE = 65534;
    const bool esRoot = ::geteuid() == 0;
    if (esRoot) {
        for (const auto& ruta : {Banco.Documentos().parent_path(), Banco.Documentos(), Fichero})
            ASSERT_EQ(::chown(ruta.c_str(), NADIE, NADIE), 0);
    }
    ASSERT_EQ(::chmod(Banco.Documentos().c_str(), 0500), 0);
    const pid_t proceso = Banco.Lanza(PROGRAMA_ANALIZA, {"--guarda", Fichero}, {}, [&] {
        if (esRoot && (::setgid(NADIE) != 0 || ::setuid(NADIE) != 0)) ::_exit(127);
    });
    int estado = 0;
    ASSERT_EQ(::waitpid(proceso, &estado, 0), proceso);
    ASSERT_EQ(::chmod(Banco.Documentos().c_str(), 0700), 0);
    const auto final = Banco.Recoge(estado);
    if (final.Codigo == 127) GTEST_SKIP() << "no other user may run the program here";
    EXPECT_EQ(final.Codigo, 1);
    EXPECT_EQ(final.Errores, "analiza: " + Fichero.string() +
                                 ": no se puede guardar: no hay permiso para escribir en la carpeta\n");
    EsperaEntero();
    EXPECT_EQ(ConNuevo, 0);
}

}  // namespace
}  // namespace analizador::pruebas
