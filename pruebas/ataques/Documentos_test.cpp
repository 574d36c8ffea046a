// Every file, however spoiled, ends in an analysis or in one clear line, soon and in little memory, and is
// never changed.

#include <gtest/gtest.h>
#include <sys/socket.h>
#include <sys/stat.h>
#include <sys/un.h>
#include <unistd.h>

#include <algorithm>
#include <cstdio>

#include "adaptadores/docx/FicheroDocx.h"
#include "pruebas/ataques/Proceso.h"
#include "pruebas/ataques/Semillas.h"

namespace analizador::pruebas {
namespace {

constexpr double SEGUNDOS_MAXIMOS = SANEADO ? 60 : 5;
constexpr long KIB_MAXIMOS = 512L * 1024;
constexpr TLimites LIMITES = {.SegundosCpu = static_cast<unsigned>(SEGUNDOS_MAXIMOS) + 1,
                              .Memoria = 1024ULL << 20};

bool EsUnaLinea(const std::string& errores) {
    return errores.ends_with('\n') && std::ranges::count(errores, '\n') == 1 &&
           std::ranges::all_of(errores,
                               [](char c) { return c == '\n' || static_cast<unsigned char>(c) >= ' '; });
}

// Whether it ended well: with an analysis and nothing else, or with one line that names the file and says in
// plain words why not. `nombrado`: the file that the line begins with.
void EsperaFinalClaro(const TFinal& final, const std::filesystem::path& nombrado) {
    EXPECT_EQ(final.Senal, 0);
    if (final.Codigo == 0) {
        EXPECT_EQ(final.Errores, "");
        EXPECT_TRUE(final.Salida.find("IDIOMA       : ") != std::string::npos);
        return;
    }
    EXPECT_EQ(final.Codigo, 1);
    EXPECT_EQ(final.Salida, "");
    EXPECT_TRUE(EsUnaLinea(final.Errores)) << final.Errores;
    EXPECT_TRUE(final.Errores.starts_with("analiza: " + nombrado.string() + ": ")) << final.Errores;
    for (const char* oscuro : {"fallo inesperado", "std::", "exception", "memoria"})
        EXPECT_EQ(final.Errores.find(oscuro), std::string::npos) << final.Errores;
}

struct TEstado {
    std::string Bytes;
    timespec Modificado{};
    ino_t Nodo = 0;
    mode_t Modo = 0;
};

TEstado EstadoDe(const std::filesystem::path& fichero) {
    struct stat datos {};
    EXPECT_EQ(::stat(fichero.c_str(), &datos), 0);
    return {LeeBytes(fichero), datos.st_mtim, datos.st_ino, datos.st_mode};
}

void EsperaIntacto(const TEstado& antes, const std::filesystem::path& fichero) {
    const auto ahora = EstadoDe(fichero);
    EXPECT_TRUE(ahora.Bytes == antes.Bytes) << "changed";
    EXPECT_EQ(ahora.Modificado.tv_sec, antes.Modificado.tv_sec);
    EXPECT_EQ(ahora.Modificado.tv_nsec, antes.Modificado.tv_nsec);
    EXPECT_EQ(ahora.Nodo, antes.Nodo);
    EXPECT_EQ(ahora.Modo, antes.Modo);
}

struct TCuentas {
    int Analizados = 0;
    int Rehusados = 0;
    int Guardados = 0;
    double Segundos = 0;
    long KiB = 0;
    std::string MasLento;
    std::string MasGrande;

    void Anota(const TFinal& final, const std::string& cual) {
        ++(final.Codigo == 0 ? Analizados : Rehusados);
        if (final.Segundos > Segundos) Segundos = final.Segundos, MasLento = cual;
        if (final.KiB > KiB) KiB = final.KiB, MasGrande = cual;
    }
};

class DocumentosAtacados : public testing::Test {
  protected:
    // Every other one is saved too, to another file: what is saved reads as what was read.
    void Ataca(std::uint64_t numero) {
        const auto fichero = Banco.Documento("escritura.docx");
        const auto salida = Banco.Documento("salida.docx");
        std::filesystem::remove(fichero);
        const auto mutacion = Muta(Semillas(), numero);
        SCOPED_TRACE(std::to_string(numero) + ": " + mutacion.Nombre);
        ASSERT_TRUE(EnOtroProceso([&] { EscribeFichero(fichero, mutacion.Bytes()); }));
        const auto antes = EstadoDe(fichero);
        const bool guarda = numero % 2 == 1;
        const auto final = guarda ? Banco.Corre(PROGRAMA_ANALIZA, {"--salida", salida, fichero}, LIMITES)
                                  : Banco.Corre(PROGRAMA_ANALIZA, {fichero}, LIMITES);
        const bool rehusaGuardar = final.Errores.starts_with("analiza: " + salida.string());
        EsperaFinalClaro(final, rehusaGuardar ? salida : fichero);
        EXPECT_LT(final.Segundos, SEGUNDOS_MAXIMOS);
        if (!SANEADO) {
            EXPECT_LT(final.KiB, KIB_MAXIMOS);
        }
        EsperaIntacto(antes, fichero);
        EXPECT_EQ(Banco.EnTemporal(), std::vector<std::string>{});
        if (guarda && final.Codigo == 0) {
            EXPECT_EQ(TextoDe(salida), TextoDe(fichero));
            std::filesystem::remove(salida);
            ++Cuentas.Guardados;
        }
        EXPECT_EQ(Banco.EnDocumentos(), std::vector<std::string>{"escritura.docx"});
        Cuentas.Anota(final, std::to_string(numero) + ": " + mutacion.Nombre);
    }

    TBanco Banco;
    TCuentas Cuentas;
};

TEST_F(DocumentosAtacados, CadaMutacionSeAnalizaODiceSuCausa) {
    const auto primera = Veces("ATAQUES_DESDE", 0);
    const auto cuantas = Veces("ATAQUES_DOCUMENTOS", 252);
    for (std::uint64_t i = 0; i < cuantas; ++i) Ataca(primera + i);
    EXPECT_GT(Cuentas.Analizados, 0);
    EXPECT_GT(Cuentas.Rehusados, 0);
    EXPECT_GT(Cuentas.Guardados, 0);
    std::printf(
        "%llu mutations: %d analysed (%d of them saved), %d refused; most processor time %.2f s (%s), "
        "most memory %ld KiB (%s)\n",
        static_cast<unsigned long long>(cuantas), Cuentas.Analizados, Cuentas.Guardados, Cuentas.Rehusados,
        Cuentas.Segundos, Cuentas.MasLento.c_str(), Cuentas.KiB, Cuentas.MasGrande.c_str());
}

// What is no document file at all, and must not be waited for either.
class NoSonFicheros : public testing::Test {
  protected:
    void EsperaRechazo(const std::filesystem::path& fichero, std::string_view causa) {
        SCOPED_TRACE(fichero.string());
        const auto final = Banco.Corre(PROGRAMA_ANALIZA, {fichero}, LIMITES);
        EXPECT_EQ(final.Codigo, 1);
        EsperaFinalClaro(final, fichero);
        EXPECT_NE(final.Errores.find(causa), std::string::npos) << final.Errores;
        EXPECT_EQ(Banco.EnTemporal(), std::vector<std::string>{});
    }

    TBanco Banco;
};

TEST_F(NoSonFicheros, NiCarpetasNiTuberiasNiDispositivos) {
    EsperaRechazo(Banco.Documentos(), "es una carpeta");  // one without deeds
    const auto tuberia = Banco.Documento("tuberia.docx");
    ASSERT_EQ(::mkfifo(tuberia.c_str(), 0600), 0);
    EsperaRechazo(tuberia, "no es un fichero que se pueda leer");
    for (const char* dispositivo : {"/dev/null", "/dev/zero", "/dev/full", "/dev/tty"})
        EsperaRechazo(dispositivo, "no es un fichero que se pueda leer");
    EsperaRechazo("/proc/self/mem", "");
    EsperaRechazo("/proc/self/maps", "");
}

TEST_F(NoSonFicheros, NiZocalos) {
    const auto zocalo = Banco.Documento("z.docx");
    sockaddr_un direccion{};
    direccion.sun_family = AF_UNIX;
    const auto nombre = zocalo.string();
    ASSERT_LT(nombre.size(), sizeof direccion.sun_path);
    std::ranges::copy(nombre, direccion.sun_path);
    const int abierto = ::socket(AF_UNIX, SOCK_STREAM, 0);
    ASSERT_EQ(::bind(abierto, reinterpret_cast<const sockaddr*>(&direccion), sizeof direccion), 0);
    EsperaRechazo(zocalo, "no es un fichero que se pueda leer");
    ::close(abierto);
}

TEST_F(NoSonFicheros, NiEnlacesQueNoLlevanANingunSitio) {
    const auto giro = Banco.Documento("giro.docx");
    std::filesystem::create_symlink(giro, giro);
    EsperaRechazo(giro, "");
    const auto roto = Banco.Documento("roto.docx");
    std::filesystem::create_symlink("no hay", roto);
    EsperaRechazo(roto, "el fichero no existe");
}

TEST_F(NoSonFicheros, NiLoQueTieneElTamanoDeUnDisco) {
    const auto hueco = Banco.Documento("hueco.docx");
    EscribeFichero(hueco, "PK\x03\x04");
    for (const std::uintmax_t tamano : {161ULL << 20, 4ULL << 30, 1ULL << 40}) {
        std::filesystem::resize_file(hueco, tamano);
        EsperaRechazo(hueco, "es demasiado grande");
    }
}

// With less memory than it needs, it still ends with its line.
TEST(PocaMemoria, SeDiceYNoSeCae) {
    if (SANEADO) GTEST_SKIP() << "the sanitizer needs all the address space";
    const TBanco banco;
    const auto fichero = banco.Documento("escritura.docx");
    EscribeDocumento(fichero, Repite("<w:p><w:r><w:t>Uno de muchos párrafos.</w:t></w:r></w:p>", 20'000));
    int rehusados = 0;
    for (std::uint64_t mib = 16; mib <= 96; mib += 8) {
        SCOPED_TRACE(mib);
        const auto final = banco.Corre(PROGRAMA_ANALIZA, {fichero}, {.Memoria = mib << 20});
        EXPECT_EQ(final.Senal, 0);
        if (final.Codigo != 0) {
            ++rehusados;
            EXPECT_TRUE(EsUnaLinea(final.Errores)) << final.Errores;
            EXPECT_NE(final.Errores.find("memoria"), std::string::npos) << final.Errores;
        }
        EXPECT_EQ(banco.EnTemporal(), std::vector<std::string>{});
    }
    EXPECT_GT(rehusados, 0);
}

}  // namespace
}  // namespace analizador::pruebas
