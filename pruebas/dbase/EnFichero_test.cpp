// Tables that stay in their file give the same as those in memory, and read little.

#include <gtest/gtest.h>

#include <algorithm>
#include <numeric>
#include <random>

#include "adaptadores/dbase/OrdenDbf.h"
#include "adaptadores/dbase/ProveedorDbase.h"
#include "adaptadores/dbase/TablaOrdenadaDbf.h"
#include "plataforma/Ansi.h"
#include "pruebas/dbase/ConstructorDbf.h"

namespace analizador {
namespace {

namespace fs = std::filesystem;

constexpr std::string_view TABLA = "PILA.DBF";

TMarcaFichero MarcaAntigua(const fs::path& fichero) {
    TMarcaFichero marca = MarcaDeFichero(fichero);
    marca.Reciente = false;
    return marca;
}

std::string Cifras(std::size_t numero, std::size_t cuantas) {
    const std::string cifras = std::to_string(numero);
    return std::string(cuantas - std::min(cuantas, cifras.size()), '0') + cifras;
}

// A name in order, a code in quite another order, thrice each, and the row's place.
constexpr std::size_t FILAS = 3000;
std::size_t CodigoDe(std::size_t fila) {
    return fila * 1237 % (FILAS / 3);
}
TFichero DeCodigos(std::string_view version = "A") {
    TFichero fichero{
        .Campos = {{"NOMBRE", 'C', 8}, {"CODIGO", 'C', 5}, {"VERSION", 'C', 1}, {"LUGAR", 'N', 6}}};
    for (std::size_t i = 0; i < FILAS; ++i)
        fichero.Filas.push_back(
            {Cifras(i / 2, 6), Cifras(CodigoDe(i), 5), std::string(version), std::to_string(i)});
    return fichero;
}

// Cursors over a file with its noted orders, and over the same in memory.
class TComparacion {
  public:
    TComparacion(const fs::path& ruta, const TMarcaFichero& marca, TOrdenesDbf ordenes)
        : entera_(
              std::make_shared<const TTablaEnMemoria>("PILA", LeeFichero(ruta).Bytes, std::string(TABLA))),
          enFichero_(std::make_shared<TTablaEnFichero>(ruta, marca, "PILA", std::string(TABLA),
                                                       std::move(ordenes))) {}

    [[nodiscard]] std::unique_ptr<TTabla> EnMemoria(std::string_view indice) const {
        return std::make_unique<TTablaDbase>(entera_, indice);
    }
    [[nodiscard]] std::unique_ptr<TTabla> EnFichero(std::string_view indice) {
        return std::make_unique<TTablaOrdenadaDbf>(enFichero_, indice, [this, indice = std::string(indice)] {
            ++enteras_;
            return EnMemoria(indice);
        });
    }
    // How often the whole table was asked for.
    [[nodiscard]] int Enteras() const { return enteras_; }
    [[nodiscard]] const TTablaEnFichero& Fichero() const { return *enFichero_; }

  private:
    std::shared_ptr<const TTablaEnMemoria> entera_;
    std::shared_ptr<TTablaEnFichero> enFichero_;
    int enteras_ = 0;
};

class EnFichero : public testing::Test {
  protected:
    [[nodiscard]] fs::path Ruta() const { return carpeta_.Ruta() / TABLA; }
    [[nodiscard]] TOrdenesDbf Ordenes() const { return OrdenAnotado(Ruta(), MarcaDeFichero(Ruta())); }
    void Pon(const std::string& bytes) const {
        carpeta_.Pon(TABLA, bytes);
        AnotaOrdenes(Ruta(), {"NOMBRE", "CODIGO"});
    }
    // Changes the table and puts its time of change back.
    void Sustituye(const std::string& bytes) const {
        const auto momento = fs::last_write_time(Ruta());
        carpeta_.Pon(TABLA, bytes);
        fs::last_write_time(Ruta(), momento);
    }
    [[nodiscard]] TComparacion Compara() const { return {Ruta(), MarcaAntigua(Ruta()), Ordenes()}; }

    TCarpetaPrueba carpeta_;
};

std::vector<std::string> Indices(const TOrdenesDbf& ordenes) {
    std::vector<std::string> indices;
    for (const auto& orden : ordenes) indices.push_back(orden.first);
    return indices;
}

std::string Nota(const TCarpetaPrueba& carpeta) {
    return LeeFichero(carpeta.Ruta() / "PILA.ORD").Bytes;
}

TEST_F(EnFichero, LaNotaDiceElOrdenDeVariosIndices) {
    const std::string filas = DeCodigos().Bytes();
    Pon(filas);
    EXPECT_EQ(Indices(Ordenes()), (std::vector<std::string>{"CODIGO", "NOMBRE"}));
    EXPECT_TRUE(Nota(carpeta_).starts_with("NOMBRE "));
    const TTablaEnMemoria tabla("PILA", filas, "");
    const auto& orden = tabla.Indice("CODIGO").Orden();
    const TOrdenDbf anotado = Ordenes().at("CODIGO");
    for (std::size_t i = 0; i < FILAS; ++i) ASSERT_EQ(anotado.Registro(i), orden[i]) << i;
    EXPECT_EQ(anotado.Registro(FILAS), TOrdenDbf::NINGUNO);

    AnotaOrdenes(Ruta(), {"CODIGO"});
    EXPECT_TRUE(Nota(carpeta_).starts_with("- ")) << "the rows lie in none of them";
    EXPECT_EQ(Indices(Ordenes()), std::vector<std::string>{"CODIGO"});
}

TEST_F(EnFichero, SinNotaCuandoNoPuedeHaberla) {
    TFichero fichero = DeCodigos();
    std::string borrada = fichero.Bytes();
    borrada[borrada.find('\x0D') + 1] = '*';
    for (const std::string& bytes : {borrada, std::string("nada"), borrada.substr(0, 500)}) {
        OlvidaOrden(Ruta());
        Pon(bytes);
        EXPECT_TRUE(Ordenes().empty());
    }
    carpeta_.Pon(TABLA, fichero.Bytes());
    AnotaOrdenes(Ruta(), {"NOMBRE", "OTRO"});
    EXPECT_TRUE(Ordenes().empty()) << "no such index";
}

TEST_F(EnFichero, LosNumerosDannadosNoValen) {
    Pon(DeCodigos().Bytes());
    const std::string buena = Nota(carpeta_);
    const std::size_t numeros = buena.find("\n\n") + 2;
    const std::size_t linea = buena.find("CODIGO");
    ASSERT_EQ(buena.size(), numeros + 4 * FILAS);
    std::string permutada = buena;
    std::swap_ranges(permutada.begin() + static_cast<std::ptrdiff_t>(numeros),
                     permutada.begin() + static_cast<std::ptrdiff_t>(numeros) + 4,
                     permutada.begin() + static_cast<std::ptrdiff_t>(numeros) + 4);
    const struct {
        std::string_view Cual;
        std::string Nota;
    } casos[] = {{"no numbers", buena.substr(0, numeros)},
                 {"one too few", buena.substr(0, buena.size() - 4)},
                 {"one byte too few", buena.substr(0, buena.size() - 1)},
                 {"one byte changed", Con(buena, numeros + 4 * (FILAS / 2), "\xFF")},
                 {"the last byte changed", Con(buena, buena.size() - 1, "\x01")},
                 {"two in each other's place", permutada},
                 {"another sum", Con(buena, buena.find("\n\n") - 1, "x")},
                 {"fewer rows", Con(buena, linea + 7, "2999")},
                 {"more rows", Con(buena, linea + 7, "9999")},
                 {"rows without end", buena.substr(0, linea) + "CODIGO 99999999999999999999 1\n\n"},
                 {"rows as bytes", buena.substr(0, linea) + "CODIGO 4000000000 1\n\n"}};
    for (const auto& [cual, nota] : casos) {
        carpeta_.Pon("PILA.ORD", nota);
        EXPECT_EQ(Indices(Ordenes()), std::vector<std::string>{"NOMBRE"}) << cual;
    }
    carpeta_.Pon("PILA.ORD", buena);
    EXPECT_EQ(Ordenes().size(), 2U);
}

// Numbers that are summed as they are, but of rows in another order or of none.
TEST_F(EnFichero, UnaPermutacionMalaSeDescubre) {
    Pon(DeCodigos().Bytes());
    const TOrdenDbf bueno = Ordenes().at("CODIGO");
    std::vector<std::uint64_t> filas;
    for (std::size_t i = 0; i < FILAS; ++i) filas.push_back(bueno.Registro(i));
    constexpr std::size_t MEDIA = FILAS / 2;  // the first that a search meets
    auto fueraDeRango = filas;
    fueraDeRango[MEDIA] = FILAS;
    auto repetida = filas;
    repetida[MEDIA + 1] = repetida[MEDIA];
    auto otra = filas;
    otra[MEDIA] = otra[0];
    auto corta = filas;
    corta.resize(MEDIA);
    auto enElFichero = filas;
    std::ranges::sort(enElFichero);
    const struct {
        std::string_view Cual;
        std::vector<std::uint64_t> Filas;
        int Enteras;
    } casos[] = {{"good", filas, 0},     {"out of range", fueraDeRango, 1},
                 {"twice", repetida, 1}, {"another row", otra, 1},
                 {"too few", corta, 1},  {"the file's order", enElFichero, 1}};
    for (const auto& [cual, numeros, enteras] : casos) {
        std::string bytes;
        for (const std::uint64_t numero : numeros) bytes += Bajo(numero, 4);
        TComparacion tablas(Ruta(), MarcaAntigua(Ruta()), {{"CODIGO", TOrdenDbf(bytes)}});
        const std::string codigo = Cifras(CodigoDe(filas[MEDIA]), 5);
        const auto una = tablas.EnFichero("CODIGO");
        const auto otraTabla = tablas.EnMemoria("CODIGO");
        EXPECT_EQ(una->Busca({{"CODIGO", codigo}}), otraTabla->Busca({{"CODIGO", codigo}})) << cual;
        EXPECT_EQ(una->Texto("LUGAR"), otraTabla->Texto("LUGAR")) << cual;
        EXPECT_EQ(tablas.Enteras(), enteras) << cual;
    }
}

TEST_F(EnFichero, UnaBusquedaLeePocosRegistros) {
    const std::string filas = DeCodigos().Bytes();
    Pon(filas);
    for (const std::string_view indice : {"NOMBRE", "CODIGO"}) {
        TComparacion tablas = Compara();
        const auto busca = [&] {
            const auto tabla = tablas.EnFichero(indice);
            EXPECT_TRUE(
                tabla->Busca({{indice, std::string_view("000123").substr(indice == "CODIGO" ? 1 : 0)}}));
            EXPECT_FALSE(tabla->Texto("LUGAR").empty());
            EXPECT_FALSE(tabla->Fin());
        };
        busca();
        const std::uint64_t leidos = tablas.Fichero().BytesLeidos();
        EXPECT_LT(leidos, filas.size()) << indice;
        busca();
        EXPECT_EQ(tablas.Fichero().BytesLeidos(), leidos) << "the same records are kept";
        EXPECT_EQ(tablas.Enteras(), 0);
    }
}

// Under a mark that may hide a change everything is read for each search, and twice.
TEST_F(EnFichero, BajoUnaMarcaRecienteNadaSeGuarda) {
    Pon(DeCodigos().Bytes());
    TMarcaFichero marca = MarcaDeFichero(Ruta());
    marca.Reciente = true;
    TComparacion tablas(Ruta(), marca, Ordenes());
    const auto tabla = tablas.EnFichero("CODIGO");
    EXPECT_TRUE(tabla->Busca({{"CODIGO", "00123"}}));
    const std::uint64_t leidos = tablas.Fichero().BytesLeidos();
    EXPECT_TRUE(tabla->Busca({{"CODIGO", "00123"}}));
    EXPECT_GT(tablas.Fichero().BytesLeidos(), leidos * 9 / 5);
    EXPECT_EQ(tablas.Enteras(), 0);
}

TEST_F(EnFichero, LaTablaSustituidaSeLeeEntera) {
    const std::string buena = DeCodigos().Bytes();
    const std::string nueva = DeCodigos("B").Bytes();
    for (const bool buscadaAntes : {false, true}) {
        Pon(buena);
        TComparacion tablas = Compara();
        if (buscadaAntes) {
            EXPECT_TRUE(tablas.EnFichero("NOMBRE")->Busca({{"NOMBRE", "000000"}}));
        }
        const auto abierta = tablas.EnFichero("CODIGO");
        Sustituye(nueva);
        EXPECT_TRUE(abierta->Busca({{"CODIGO", "00500"}}));
        EXPECT_EQ(tablas.Enteras(), 1);
        EXPECT_TRUE(tablas.EnFichero("NOMBRE")->Busca({{"NOMBRE", "001400"}}));
        EXPECT_EQ(tablas.Enteras(), 2) << "what was found to be another table is not used again";
    }
}

TEST_F(EnFichero, ElFicheroQueFaltaOSeCortaSeLeeEntero) {
    Pon(DeCodigos().Bytes());
    for (const bool cortado : {true, false}) {
        TComparacion tablas = Compara();
        const auto abierta = tablas.EnFichero("CODIGO");
        if (cortado)
            fs::resize_file(Ruta(), 300);
        else
            fs::remove(Ruta());
        EXPECT_TRUE(abierta->Busca({{"CODIGO", "00500"}}));
        EXPECT_EQ(tablas.Enteras(), 1);
        Pon(DeCodigos().Bytes());
    }
}

// What follows the row found is of its content, or is refused.
TEST_F(EnFichero, TrasLaBusquedaSigueLaMismaTabla) {
    Pon(DeCodigos("A").Bytes());
    const fs::path otra = carpeta_.Pon("OTRA.DBF", DeCodigos("B").Bytes());
    const auto enMemoria = [](const fs::path& ruta) {
        return std::make_unique<TTablaDbase>(
            std::make_shared<const TTablaEnMemoria>("PILA", LeeFichero(ruta).Bytes, std::string(TABLA)),
            "CODIGO");
    };
    const auto enFichero = std::make_shared<TTablaEnFichero>(Ruta(), MarcaAntigua(Ruta()), "PILA",
                                                             std::string(TABLA), Ordenes());
    TTablaOrdenadaDbf sigue(enFichero, "CODIGO", [&] { return enMemoria(Ruta()); });
    const auto entera = enMemoria(Ruta());
    EXPECT_TRUE(sigue.Busca({{"CODIGO", "00500"}}));
    EXPECT_TRUE(entera->Busca({{"CODIGO", "00500"}}));
    for (; !entera->Fin(); entera->Siguiente(), sigue.Siguiente())
        ASSERT_EQ(sigue.Texto("LUGAR"), entera->Texto("LUGAR"));
    EXPECT_TRUE(sigue.Fin());

    TTablaOrdenadaDbf cambiada(enFichero, "CODIGO", [&] { return enMemoria(otra); });
    EXPECT_TRUE(cambiada.Busca({{"CODIGO", "00500"}}));
    EXPECT_EQ(cambiada.Texto("VERSION"), "A");
    EXPECT_THROW(cambiada.Siguiente(), ErrorTabla);
    EXPECT_EQ(cambiada.Texto("VERSION"), "A");
}

TEST_F(EnFichero, UnaClaveConMasPartesQueElIndiceEsUnError) {
    Pon(DeCodigos().Bytes());
    TComparacion tablas = Compara();
    const auto tabla = tablas.EnFichero("CODIGO");
    EXPECT_THROW(tabla->Busca({{"CODIGO", "1"}, {"NOMBRE", "1"}}), ErrorTabla);
    EXPECT_THROW(tabla->Rango({{"CODIGO", "1"}}, {{"CODIGO", "1"}, {"NOMBRE", "1"}}), ErrorTabla);
    EXPECT_TRUE(tabla->Busca({{"CODIGO", "00001"}}));
    EXPECT_THROW(static_cast<void>(tabla->Texto("NO_HAY")), ErrorTabla);
}

// Names that are alike: folded equal, blanks, one the beginning of another, accents, empty.
std::string NombreAlAzar(std::mt19937& azar) {
    static constexpr std::string_view PIEZAS[] = {"",       "A", "a",  "Á"_ansi, "ANA", "Ana",
                                                  "Ñ"_ansi, "N", "B ", " ",      "Z",   "ü"_ansi};
    std::string nombre;
    for (std::size_t i = azar() % 4; i > 0; --i) nombre += PIEZAS[azar() % std::size(PIEZAS)];
    return nombre;
}

TFichero AlAzar(std::mt19937& azar) {
    TFichero fichero{.Controlador = azar() % 3 == 0 ? std::uint8_t{0x02} : std::uint8_t{0x03},
                     .Campos = {{"NOMBRE", 'C', 6}, {"CODIGO", 'N', 3}, {"CIERTO", 'L', 1}}};
    for (std::size_t i = azar() % 300; i > 0; --i)
        fichero.Filas.push_back({NombreAlAzar(azar), azar() % 9 == 0 ? "" : std::to_string(azar() % 40),
                                 azar() % 2 == 0 ? "T" : "F"});
    return fichero;
}

// One operation on both, its answers and where they stand then.
class TParejaDeTablas {
  public:
    TParejaDeTablas(std::unique_ptr<TTabla> una, std::unique_ptr<TTabla> otra)
        : una_(std::move(una)), otra_(std::move(otra)) {}

    void Hace(std::mt19937& azar) {
        const std::string desde = NombreAlAzar(azar);
        const std::string hasta = azar() % 2 == 0 ? desde : NombreAlAzar(azar);
        const auto numero = static_cast<int>(azar() % 42);
        const auto mayor = numero + static_cast<int>(azar() % 5);
        switch (azar() % 12) {
            case 0:
            case 1:
                return Iguales("Busca " + desde, [&](TTabla& t) { return t.Busca({{"", desde}}); });
            case 2:
            case 3:
                return Iguales("Busca " + std::to_string(numero), [&](TTabla& t) {
                    return t.Busca({{"", numero}});
                });
            case 4:
                return Iguales("Rango " + desde + ".." + hasta, [&](TTabla& t) {
                    return t.Rango({{"", desde}}, {{"", hasta}});
                });
            case 5:
                return Iguales("Rango " + std::to_string(numero), [&](TTabla& t) {
                    return t.Rango({{"", numero}}, {{"", mayor}});
                });
            case 6:
                return Iguales("CancelaRango", [](TTabla& t) { return t.CancelaRango(), true; });
            case 7:
                return Iguales("Siguiente", [](TTabla& t) { return t.Siguiente(), true; });
            case 8:
                return Iguales("Primero", [](TTabla& t) { return t.Primero(), true; });
            case 9:
                return Iguales("CuentaFilas", [](TTabla& t) { return t.CuentaFilas(); });
            case 10: {
                const std::string filtro = azar() % 2 == 0 ? "" : "CODIGO<>" + std::to_string(numero);
                return Iguales("Filtra " + filtro, [&](TTabla& t) { return t.Filtra(filtro), true; });
            }
            default: {
                const std::string indice = azar() % 3 == 0 ? "" : azar() % 2 == 0 ? "NOMBRE" : "CODIGO";
                return Iguales("Indexa " + indice, [&](TTabla& t) { return t.Indexa(indice), true; });
            }
        }
    }

  private:
    template <class Operacion>
    void Iguales(const std::string& cual, Operacion operacion) {
        hecho_ += cual + "; ";
        ASSERT_EQ(operacion(*una_), operacion(*otra_)) << hecho_;
        ASSERT_EQ(una_->Fin(), otra_->Fin()) << hecho_;
        for (const std::string_view campo : {"NOMBRE", "CODIGO", "CIERTO"}) {
            ASSERT_EQ(una_->Texto(campo), otra_->Texto(campo)) << hecho_;
            ASSERT_EQ(una_->Entero(campo), otra_->Entero(campo)) << hecho_;
            ASSERT_EQ(una_->Logico(campo), otra_->Logico(campo)) << hecho_;
        }
    }

    std::unique_ptr<TTabla> una_, otra_;
    std::string hecho_;
};

TEST_F(EnFichero, DaLoMismoQueEnMemoria) {
    std::mt19937 azar(20261122);
    int sinEntera = 0;
    for (int tabla = 0; tabla < 150; ++tabla) {
        Pon(AlAzar(azar).Bytes());
        ASSERT_EQ(Ordenes().size(), 2U);
        TMarcaFichero marca = MarcaDeFichero(Ruta());
        marca.Reciente = tabla % 2 == 0;
        TComparacion tablas(Ruta(), marca, Ordenes());
        for (int apertura = 0; apertura < 10; ++apertura) {
            const std::string_view indice = azar() % 2 == 0 ? "NOMBRE" : "CODIGO";
            const int enteras = tablas.Enteras();
            TParejaDeTablas pareja(tablas.EnFichero(indice), tablas.EnMemoria(indice));
            for (int i = 0; i < 8 && !HasFatalFailure(); ++i) pareja.Hace(azar);
            ASSERT_FALSE(HasFatalFailure()) << tabla;
            sinEntera += tablas.Enteras() == enteras ? 1 : 0;
        }
    }
    EXPECT_GT(sinEntera, 20) << "some openings must have got by without the whole table";
}

// The table that has been read whole says what its rows are, one in its file does not.
bool EstaEnMemoria(TProveedorTablas& proveedor, std::string_view indice) {
    return proveedor.Abre("NORVEX", TABLA, indice)->Contenido() != nullptr;
}

TEST_F(EnFichero, ElProveedorDejaLaTablaEnSuFicheroHastaQueNoCompensa) {
    Pon(DeCodigos().Bytes());
    TProveedorDbase proveedor(carpeta_.Ruta(), MarcaAntigua);
    const auto busca = [&](std::string_view codigo) {
        return proveedor.Abre("NORVEX", TABLA, "CODIGO")->Busca({{"CODIGO", codigo}});
    };
    EXPECT_TRUE(busca("00500"));
    EXPECT_FALSE(busca("x"));
    EXPECT_FALSE(EstaEnMemoria(proveedor, "CODIGO"));
    EXPECT_FALSE(EstaEnMemoria(proveedor, "NOMBRE"));
    int busquedas = 2;
    for (; !EstaEnMemoria(proveedor, "CODIGO") && busquedas < 10'000; ++busquedas)
        EXPECT_TRUE(busca("00500"));
    EXPECT_GT(busquedas, 5);
    EXPECT_LT(busquedas, 50);
    EXPECT_TRUE(EstaEnMemoria(proveedor, "NOMBRE"));
}

TEST_F(EnFichero, LoQueNecesitaLaTablaEnteraLaDejaEnMemoria) {
    Pon(DeCodigos().Bytes());
    TProveedorDbase proveedor(carpeta_.Ruta(), MarcaAntigua);
    EXPECT_FALSE(EstaEnMemoria(proveedor, "NOMBRE"));
    EXPECT_EQ(proveedor.Abre("NORVEX", TABLA, "NOMBRE")->CuentaFilas(), static_cast<int>(FILAS));
    EXPECT_TRUE(EstaEnMemoria(proveedor, "NOMBRE"));
}

TEST_F(EnFichero, LaTablaAbiertaValeSinSuProveedor) {
    Pon(DeCodigos().Bytes());
    const auto abierta = TProveedorDbase(carpeta_.Ruta()).Abre("NORVEX", TABLA, "CODIGO");
    EXPECT_TRUE(abierta->Busca({{"CODIGO", "00500"}}));
    EXPECT_EQ(abierta->CuentaFilas(), static_cast<int>(FILAS));
}

TEST_F(EnFichero, ElProveedorNoDejaElFicheroAbierto) {
    Pon(DeCodigos().Bytes());
    TProveedorDbase proveedor(carpeta_.Ruta(), MarcaAntigua);
    const auto abierta = proveedor.Abre("NORVEX", TABLA, "CODIGO");
    EXPECT_TRUE(abierta->Busca({{"CODIGO", "00500"}}));
    std::error_code error;
    for (const auto& fd : fs::directory_iterator("/proc/self/fd", error))
        EXPECT_NE(fs::read_symlink(fd.path(), error), Ruta());
}

}  // namespace
}  // namespace analizador
