// Tables, word lists and documents that another process replaces all the time are read as they were before or
// as they are after, never half and half. Every version carries its number in each of its rows.

#include <fcntl.h>
#include <gtest/gtest.h>
#include <sys/mman.h>
#include <sys/wait.h>
#include <unistd.h>

#include <algorithm>
#include <array>
#include <atomic>
#include <cstdio>
#include <functional>
#include <map>
#include <memory>
#include <new>
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
constexpr int SECCIONES = 300;

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

// A table whose rows lie in another order than that of CLAVE, with the version at both ends of each.
std::string TablaRevuelta(std::uint64_t version) {
    TFichero fichero{
        .Campos = {{"VERSION", 'C', 8}, {"CLAVE", 'C', 8}, {"LUGAR", 'C', 8}, {"COPIA", 'C', 8}}};
    for (std::uint64_t i = 0; i < FILAS; ++i)
        fichero.Filas.push_back({Cifras(version), Cifras(i * 1237 % FILAS), Cifras(i), Cifras(version)});
    return fichero.Bytes();
}

std::string Lista(std::uint64_t version) {
    std::string texto;
    for (int i = 0; i < SECCIONES; ++i)
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

// The version of each row that a reading found, in order; none when it was refused.
using TVersiones = std::vector<std::string>;

constexpr const char* FALTA = "missing";

struct TLecturas {
    int Enteras = 0;
    int AMedias = 0;  // as the file stood while it was being rewritten: new rows first, then old ones or none
    int Mezcladas = 0;
    int Rehusadas = 0;
    std::set<std::string> Vistas;

    void Anota(const TVersiones& filas) {
        if (filas.empty()) return void(++Rehusadas);
        const auto cambio =
            std::ranges::find_if(filas, [&](const auto& fila) { return fila != filas.front(); });
        const bool enDos =
            std::all_of(cambio, filas.end(), [&](const auto& fila) { return fila == *cambio; });
        const bool entera = cambio == filas.end() && filas.front() != FALTA;
        const bool nuevasAntes =
            cambio != filas.end() && enDos && (*cambio == FALTA || *cambio < filas.front());
        ++(entera ? Enteras : nuevasAntes ? AMedias : Mezcladas);
        if (entera) Vistas.insert(filas.front());
    }
};

// What both processes know.
struct TComun {
    std::atomic<std::uint64_t> Escrita{0};  // the newest version
    std::atomic<bool> Basta{false};         // the reader has seen enough
};

struct TSueltaComun {
    void operator()(TComun* comun) const { ::munmap(comun, sizeof(TComun)); }
};

std::unique_ptr<TComun, TSueltaComun> CreaComun() {
    void* memoria =
        ::mmap(nullptr, sizeof(TComun), PROT_READ | PROT_WRITE, MAP_SHARED | MAP_ANONYMOUS, -1, 0);
    if (memoria == MAP_FAILED) throw std::runtime_error("no shared memory");
    return std::unique_ptr<TComun, TSueltaComun>(::new (memoria) TComun);
}

// Has another process write version after version with `escribe` while `lee` reads without rest: as many as
// asked for, and on until the reader has seen some. `lee` gives nothing when it refuses with an error.
TLecturas LeeMientrasSeEscribe(const std::function<void(std::uint64_t)>& escribe,
                               const std::function<TVersiones()>& lee) {
    const auto versiones = Veces("ATAQUES_TABLAS", 400);
    const auto comun = CreaComun();
    escribe(0);
    const pid_t escritor = ::fork();
    if (escritor == 0) {
        for (std::uint64_t version = 1; version <= versiones || (!comun->Basta && version < 100 * versiones);
             ++version)
            escribe(version), comun->Escrita = version;
        ::_exit(0);
    }
    TLecturas lecturas;
    int estado = 0;
    while (::waitpid(escritor, &estado, WNOHANG) == 0) {
        lecturas.Anota(lee());
        comun->Basta = lecturas.Enteras >= 20 && lecturas.Vistas.size() >= 4;
    }
    EXPECT_TRUE(WIFEXITED(estado) && WEXITSTATUS(estado) == 0);
    TLecturas ultima;
    ultima.Anota(lee());
    EXPECT_EQ(ultima.Vistas, std::set<std::string>{Cifras(comun->Escrita)}) << "at last the newest";
    std::printf(
        "%llu versions written, %d readings whole, %d half-way, %d mixed, %d refused, %zu versions seen\n",
        static_cast<unsigned long long>(comun->Escrita.load()), lecturas.Enteras, lecturas.AMedias,
        lecturas.Mezcladas, lecturas.Rehusadas, lecturas.Vistas.size());
    EXPECT_EQ(lecturas.Mezcladas, 0);
    EXPECT_TRUE(comun->Basta);
    return lecturas;
}

TVersiones VersionesDe(TTabla& tabla, std::size_t esperadas) {
    TVersiones versiones;
    for (; !tabla.Fin(); tabla.Siguiente()) versiones.push_back(tabla.Texto("VERSION"));
    versiones.resize(esperadas, FALTA);
    return versiones;
}

class Reemplazo : public testing::TestWithParam<TModo> {
  protected:
    // Only where the file itself stood half-way may a reading be refused or be half-way: never where another
    // file took its place.
    void EsperaSegunModo(const TLecturas& lecturas) {
        if (GetParam() != TModo::Vaciandolo) {
            EXPECT_EQ(lecturas.Rehusadas, 0);
        }
        if (GetParam() == TModo::PorOtro) {
            EXPECT_EQ(lecturas.AMedias, 0);
        }
        EXPECT_LE(lecturas.AMedias, 10 + lecturas.Enteras / 20);
    }

    TCarpeta Carpeta;
};

TEST_P(Reemplazo, UnaTablaEsTodaDeUnaVersion) {
    const auto fichero = Carpeta / "PILA.DBF";
    EscribeFichero(fichero, Tabla(0));
    TProveedorDbase proveedor(Carpeta.GetRuta());
    EsperaSegunModo(LeeMientrasSeEscribe(
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
    constexpr std::size_t TRAMO = 1000;
    const auto fichero = Carpeta / "PILA.DBF";
    EscribeFichero(fichero, Tabla(0));
    TProveedorDbase proveedor(Carpeta.GetRuta());
    EsperaSegunModo(LeeMientrasSeEscribe(
        [&](std::uint64_t version) {
            Escribe(fichero, Tabla(version), GetParam());
            AnotaOrden(fichero, "CLAVE");
        },
        [&]() -> TVersiones {
            try {
                const auto tabla = proveedor.Abre("NORVEX", "PILA.DBF", "CLAVE");
                ::usleep(50);  // long enough for another version
                tabla->Rango({{"CLAVE", std::string_view("00000100")}},
                             {{"CLAVE", std::string_view("00001099")}});
                return VersionesDe(*tabla, TRAMO);
            } catch (const ErrorTabla& error) {
                EXPECT_NE(std::string_view(error.what()).find("PILA.DBF"), std::string_view::npos);
                return {};
            }
        }));
}

// Of each version's own order, in other numbers than the rows'.
TEST_P(Reemplazo, LoQueSeHallaPorOtroOrdenEsTodoDeUnaVersion) {
    const auto fichero = Carpeta / "PILA.DBF";
    EscribeFichero(fichero, TablaRevuelta(0));
    TProveedorDbase proveedor(Carpeta.GetRuta());
    int enFichero = 0;
    const auto lee = [&](bool soloUna) -> TVersiones {
        try {
            const auto tabla = proveedor.Abre("NORVEX", "PILA.DBF", "CLAVE");
            enFichero += tabla->Contenido() == nullptr ? 1 : 0;
            ::usleep(50);  // long enough for another version
            if (soloUna) {
                tabla->Busca({{"CLAVE", std::string_view("00000777")}});
                return {tabla->Fin() ? FALTA : tabla->Texto("VERSION"),
                        tabla->Fin() ? FALTA : tabla->Texto("COPIA")};
            }
            tabla->Rango({{"CLAVE", std::string_view("00000100")}},
                         {{"CLAVE", std::string_view("00000149")}});
            std::map<std::string, std::string> porLugar;
            for (; !tabla->Fin(); tabla->Siguiente())
                porLugar[tabla->Texto("LUGAR")] = tabla->Texto("VERSION");
            TVersiones versiones;
            for (const auto& [lugar, version] : porLugar) versiones.push_back(version);
            versiones.resize(50, FALTA);
            return versiones;
        } catch (const ErrorTabla& error) {
            EXPECT_NE(std::string_view(error.what()).find("PILA.DBF"), std::string_view::npos);
            return {};
        }
    };
    for (const bool soloUna : {true, false})
        EsperaSegunModo(LeeMientrasSeEscribe(
            [&](std::uint64_t version) {
                Escribe(fichero, TablaRevuelta(version), GetParam());
                AnotaOrdenes(fichero, {"CLAVE"});
            },
            [&] { return lee(soloUna); }));
    EXPECT_GT(enFichero, 0);
}

TEST_P(Reemplazo, UnaListaDePalabrasEsTodaDeUnaVersion) {
    const auto fichero = Carpeta / "CASTELLANO.INI";
    EscribeFichero(fichero, Lista(0));
    const auto primera =
        AbreFicheroIni(fichero);  // while it is being written the last copy counts: there is one
    EXPECT_EQ(primera->LeeTexto("S0", "1", FALTA), Cifras(0));
    EsperaSegunModo(LeeMientrasSeEscribe(
        [&](std::uint64_t version) { Escribe(fichero, Lista(version), GetParam()); },
        [&] {
            const auto lista = AbreFicheroIni(fichero);
            TVersiones versiones;
            for (int i = 0; i < SECCIONES; ++i)
                versiones.push_back(lista->LeeTexto("S" + std::to_string(i), "1", FALTA));
            return versiones;
        }));
}

TEST_P(Reemplazo, UnDocumentoEsTodoDeUnaVersion) {
    const auto fichero = Carpeta / "escritura.docx";
    EscribeFichero(fichero, Documento(0));
    EsperaSegunModo(
        LeeMientrasSeEscribe([&](std::uint64_t version) { Escribe(fichero, Documento(version), GetParam()); },
                             [&]() -> TVersiones {
                                 try {
                                     const auto texto = TextoDe(fichero);
                                     TVersiones versiones;
                                     for (std::size_t i = 0; i + 9 <= texto.size(); i += 9)
                                         versiones.push_back(texto.substr(i, 8));
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
