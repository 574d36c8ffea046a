// Tables, word lists and documents that another process replaces all the time are read as they were before or
// as they are after, never half and half. Every version carries its number in each of its rows.

#include <fcntl.h>
#include <gtest/gtest.h>
#include <sys/wait.h>
#include <unistd.h>

#include <array>
#include <cstdio>
#include <functional>
#include <set>

#include "adaptadores/dbase/OrdenDbf.h"
#include "adaptadores/dbase/ProveedorDbase.h"
#include "adaptadores/docx/FicheroDocx.h"
#include "plataforma/FicheroIni.h"
#include "pruebas/ataques/Azar.h"
#include "pruebas/ataques/Proceso.h"
#include "pruebas/dbase/ConstructorDbf.h"

namespace analizador::pruebas {
namespace {

namespace fs = std::filesystem;

constexpr int FILAS = 2000;

std::string Cifras(std::uint64_t numero) {
    auto cifras = std::to_string(numero);
    return std::string(8 - cifras.size(), '0') + cifras;
}

// A table whose rows lie in the order of CLAVE.
std::string Tabla(std::uint64_t version) {
    TFichero fichero{.Campos = {{"CLAVE", 'C', 8}, {"VERSION", 'C', 8}}};
    for (int i = 0; i < FILAS; ++i)
        fichero.Filas.push_back({Cifras(static_cast<std::uint64_t>(i)), Cifras(version)});
    return fichero.Bytes();
}

std::string Lista(std::uint64_t version) {
    std::string texto;
    for (int i = 0; i < FILAS; ++i)
        texto += "[S" + std::to_string(i) + "]\r\nNumPalabras=1\r\n1=" + Cifras(version) + "\r\n";
    return texto;
}

std::string Documento(std::uint64_t version) {
    return Comprime(PartesDocumento(DocumentoXml(Repite(
        "<w:p><w:r><w:t>" + Cifras(version) + "</w:t></w:r></w:p>", static_cast<std::size_t>(FILAS)))));
}

enum class TModo { PorOtro, EnSuSitio, Vaciandolo };

// As programs write: another file takes its place; its bytes are overwritten; it is emptied and filled.
void Escribe(const fs::path& fichero, const std::string& bytes, TModo modo) {
    if (modo == TModo::PorOtro) {
        const auto otro = fs::path(fichero).concat(".nuevo");
        EscribeFichero(otro, bytes);
        fs::rename(otro, fichero);
        return;
    }
    const int abierto = ::open(fichero.c_str(), O_WRONLY | (modo == TModo::Vaciandolo ? O_TRUNC : 0));
    const auto escritos = ::write(abierto, bytes.data(), bytes.size());
    ::close(abierto);
    if (escritos != static_cast<ssize_t>(bytes.size())) throw std::runtime_error("not written");
}

// The versions that a reading found, all its rows together; one, when it is whole.
using TVersiones = std::set<std::string>;

struct TLecturas {
    int Enteras = 0;
    int Mezcladas = 0;
    int Rehusadas = 0;
    TVersiones Vistas;
};

// Has another process write version after version with `escribe` while `lee` reads without rest. `lee` gives
// nothing when it refuses with an error.
TLecturas LeeMientrasSeEscribe(const std::function<void(std::uint64_t)>& escribe,
                               const std::function<TVersiones()>& lee) {
    const auto versiones = Veces("ATAQUES_TABLAS", 400);
    escribe(0);
    const pid_t escritor = ::fork();
    if (escritor == 0) {
        for (std::uint64_t version = 1; version <= versiones; ++version) escribe(version);
        ::_exit(0);
    }
    TLecturas lecturas;
    int estado = 0;
    while (::waitpid(escritor, &estado, WNOHANG) == 0) {
        const auto leidas = lee();
        ++(leidas.empty() ? lecturas.Rehusadas : leidas.size() == 1 ? lecturas.Enteras : lecturas.Mezcladas);
        lecturas.Vistas.insert(leidas.begin(), leidas.end());
    }
    EXPECT_TRUE(WIFEXITED(estado) && WEXITSTATUS(estado) == 0);
    EXPECT_EQ(lee(), TVersiones{Cifras(versiones)}) << "at last the newest";
    std::printf("%llu versions written, %d readings whole, %d mixed, %d refused, %zu versions seen\n",
                static_cast<unsigned long long>(versiones), lecturas.Enteras, lecturas.Mezcladas,
                lecturas.Rehusadas, lecturas.Vistas.size());
    EXPECT_EQ(lecturas.Mezcladas, 0);
    EXPECT_GT(lecturas.Enteras, 10);
    EXPECT_GT(lecturas.Vistas.size(), 3U);
    return lecturas;
}

TVersiones VersionesDe(TTabla& tabla, int esperadas) {
    TVersiones versiones;
    int filas = 0;
    for (; !tabla.Fin(); tabla.Siguiente(), ++filas) versiones.insert(tabla.Texto("VERSION"));
    if (filas != esperadas) versiones.insert({"rows missing", "so no version"});
    return versiones;
}

class Reemplazo : public testing::TestWithParam<TModo> {
  protected:
    // A refusal is right only where there was nothing whole to read: while the file was being filled.
    void EsperaSinRechazos(const TLecturas& lecturas) {
        if (GetParam() != TModo::Vaciandolo) {
            EXPECT_EQ(lecturas.Rehusadas, 0);
        }
    }

    TCarpeta Carpeta;
};

TEST_P(Reemplazo, UnaTablaEsTodaDeUnaVersion) {
    const auto fichero = Carpeta / "PILA.DBF";
    EscribeFichero(fichero, Tabla(0));
    TProveedorDbase proveedor(Carpeta.GetRuta());
    EsperaSinRechazos(LeeMientrasSeEscribe(
        [&](std::uint64_t version) { Escribe(fichero, Tabla(version), GetParam()); },
        [&]() -> TVersiones {
            try {
                return VersionesDe(*proveedor.Abre("NORVEX", "PILA.DBF", "CLAVE"), FILAS);
            } catch (const ErrorTabla& error) {
                EXPECT_NE(std::string_view(error.what()).find("PILA.DBF"), std::string_view::npos);
                return {};
            }
        }));
}

TEST_P(Reemplazo, UnTramoDeUnaTablaEnOrdenEsTodoDeUnaVersion) {
    constexpr int TRAMO = 1000;
    const auto fichero = Carpeta / "PILA.DBF";
    EscribeFichero(fichero, Tabla(0));
    TProveedorDbase proveedor(Carpeta.GetRuta());
    EsperaSinRechazos(LeeMientrasSeEscribe(
        [&](std::uint64_t version) {
            Escribe(fichero, Tabla(version), GetParam());
            AnotaOrden(fichero, "CLAVE");
        },
        [&]() -> TVersiones {
            try {
                const auto tabla = proveedor.Abre("NORVEX", "PILA.DBF", "CLAVE");
                tabla->Rango({{"CLAVE", std::string_view("00000100")}},
                             {{"CLAVE", std::string_view("00001099")}});
                return VersionesDe(*tabla, TRAMO);
            } catch (const ErrorTabla& error) {
                EXPECT_NE(std::string_view(error.what()).find("PILA.DBF"), std::string_view::npos);
                return {};
            }
        }));
}

TEST_P(Reemplazo, UnaListaDePalabrasEsTodaDeUnaVersion) {
    const auto fichero = Carpeta / "CASTELLANO.INI";
    EscribeFichero(fichero, Lista(0));
    EsperaSinRechazos(LeeMientrasSeEscribe(
        [&](std::uint64_t version) { Escribe(fichero, Lista(version), GetParam()); },
        [&] {
            const auto lista = AbreFicheroIni(fichero);
            TVersiones versiones;
            for (int i = 0; i < FILAS; ++i)
                versiones.insert(lista->LeeTexto("S" + std::to_string(i), "1", "missing"));
            return versiones;
        }));
}

TEST_P(Reemplazo, UnDocumentoEsTodoDeUnaVersion) {
    const auto fichero = Carpeta / "escritura.docx";
    EscribeFichero(fichero, Documento(0));
    EsperaSinRechazos(
        LeeMientrasSeEscribe([&](std::uint64_t version) { Escribe(fichero, Documento(version), GetParam()); },
                             [&]() -> TVersiones {
                                 try {
                                     const auto texto = TextoDe(fichero);
                                     TVersiones versiones;
                                     for (std::size_t i = 0; i + 9 <= texto.size(); i += 9)
                                         versiones.insert(texto.substr(i, 8));
                                     return versiones;
                                 } catch (const ErrorDocumento&) {
                                     return {};
                                 }
                             }));
}

std::string NombreDe(const testing::TestParamInfo<TModo>& caso) {
    static constexpr std::array<const char*, 3> NOMBRES = {"PorOtro", "EnSuSitio", "Vaciandolo"};
    return NOMBRES.at(static_cast<std::size_t>(caso.param));
}

INSTANTIATE_TEST_SUITE_P(Modos, Reemplazo,
                         testing::Values(TModo::PorOtro, TModo::EnSuSitio, TModo::Vaciandolo), NombreDe);

}  // namespace
}  // namespace analizador::pruebas
