#include <gtest/gtest.h>

#include <algorithm>
#include <chrono>

#include "adaptadores/dbase/OrdenDbf.h"
#include "adaptadores/dbase/ProveedorDbase.h"
#include "adaptadores/dbase/TablaOrdenadaDbf.h"
#include "pruebas/dbase/ConstructorDbf.h"

namespace analizador {
namespace {

namespace fs = std::filesystem;

constexpr std::size_t FILAS = 5000;
// The middle record, the first that a search reads and none of the sum's.
constexpr std::size_t MEDIA = FILAS / 2;

std::string Numero(std::size_t numero) {
    const std::string cifras = std::to_string(numero);
    return std::string(6 - cifras.size(), '0') + cifras;
}

// Numbers in order, each even one alone, thrice where it ends in 00.
std::vector<std::string> EnOrden() {
    std::vector<std::string> nombres;
    for (std::size_t n = 0; nombres.size() < FILAS; n += 2)
        nombres.insert(nombres.end(), n % 100 == 0 ? 3 : 1, Numero(n));
    nombres.resize(FILAS);
    return nombres;
}

std::vector<std::string> AlReves() {
    std::vector<std::string> nombres = EnOrden();
    std::reverse(nombres.begin(), nombres.end());
    return nombres;
}

std::string Bytes(const std::vector<std::string>& nombres) {
    TFichero fichero{.Campos = {{"NOMBRE", 'C', 8}, {"LUGAR", 'N', 6}}};
    std::size_t lugar = 0;
    for (const std::string& nombre : nombres) fichero.Filas.push_back({nombre, Numero(lugar++)});
    return fichero.Bytes();
}

// The index whose order is noted; empty without.
std::string IndiceAnotado(const fs::path& tabla) {
    const TOrdenesDbf ordenes = OrdenAnotado(tabla, MarcaDeFichero(tabla));
    return ordenes.empty() ? std::string() : ordenes.begin()->first;
}

class Orden : public testing::Test {
  protected:
    [[nodiscard]] fs::path Tabla() const { return carpeta_.Ruta() / "PILA.DBF"; }
    // Writes the table, at a whole second (not every system sets the parts of one), and notes that it is in
    // order.
    void Anota(const std::vector<std::string>& nombres) const {
        carpeta_.Pon("PILA.DBF", Bytes(nombres));
        const auto segundo = std::chrono::floor<std::chrono::seconds>(fs::last_write_time(Tabla()));
        fs::last_write_time(Tabla(), segundo);
        AnotaOrden(Tabla(), "NOMBRE");
    }
    // Changes the table and puts its time of change back.
    void Sustituye(std::string_view bytes) const {
        const auto momento = fs::last_write_time(Tabla());
        carpeta_.Pon("PILA.DBF", bytes);
        fs::last_write_time(Tabla(), momento);
    }
    [[nodiscard]] std::string Anotado() const { return IndiceAnotado(Tabla()); }

    TCarpetaPrueba carpeta_;
};

// The places of the rows of a range.
std::vector<std::string> Lugares(TTabla& tabla, std::string_view desde, std::string_view hasta) {
    EXPECT_TRUE(tabla.Rango({{"NOMBRE", desde}}, {{"NOMBRE", hasta}}));
    return Columna(tabla, "LUGAR");
}

// The two cursors over a file: the one that trusts its order, and the whole table; how often the first had to
// read it whole.
class TDosCaminos {
  public:
    TDosCaminos(const fs::path& ruta, const std::string& bytes)
        : entera_(std::make_shared<const TTablaEnMemoria>("PILA", bytes, "PILA.DBF")),
          ordenada_(std::make_shared<TTablaEnFichero>(ruta, MarcaDeFichero(ruta), "PILA", "PILA.DBF",
                                                      TOrdenesDbf{{"NOMBRE", TOrdenDbf()}}),
                    "NOMBRE", [this] {
                        ++enteras_;
                        return std::make_unique<TTablaDbase>(entera_, "NOMBRE");
                    }) {}

    void EsperaLoMismo(std::string_view desde, std::string_view hasta) {
        TTablaDbase otra(entera_, "NOMBRE");
        EXPECT_EQ(Lugares(ordenada_, desde, hasta), Lugares(otra, desde, hasta)) << desde << ' ' << hasta;
    }
    [[nodiscard]] int Enteras() const { return enteras_; }

  private:
    int enteras_ = 0;
    std::shared_ptr<const TTablaEnMemoria> entera_;
    TTablaOrdenadaDbf ordenada_;
};

TEST_F(Orden, LaNotaValeMientrasLaTablaEsLaMisma) {
    EXPECT_EQ(Anotado(), "");
    Anota(EnOrden());
    EXPECT_EQ(Anotado(), "NOMBRE");
    Sustituye(Bytes(EnOrden()));
    EXPECT_EQ(Anotado(), "NOMBRE") << "the same content again";
    fs::last_write_time(Tabla(), fs::last_write_time(Tabla()) + std::chrono::seconds(1));
    EXPECT_EQ(Anotado(), "");
}

TEST_F(Orden, UnaTablaSinFilasTambienSeAnota) {
    Anota({});
    EXPECT_EQ(Anotado(), "NOMBRE");
}

TEST_F(Orden, LaCopiaConSuFechaConservaLaNota) {
    Anota(EnOrden());
    const TCarpetaPrueba otra;
    for (const char* fichero : {"PILA.DBF", "PILA.ORD"}) {
        fs::copy_file(carpeta_.Ruta() / fichero, otra.Ruta() / fichero);
        fs::last_write_time(otra.Ruta() / fichero, fs::last_write_time(carpeta_.Ruta() / fichero));
    }
    const auto copia = otra.Ruta() / "PILA.DBF";
    EXPECT_EQ(IndiceAnotado(copia), "NOMBRE");
}

TEST_F(Orden, UnaNotaDannadaNoVale) {
    Anota(EnOrden());
    const auto marca = MarcaDeFichero(Tabla());
    const std::string anterior =
        "NOMBRE " + std::to_string(marca.Longitud) + ' ' + std::to_string(marca.Modificado);
    for (const std::string& nota : {std::string(), std::string("NOMBRE"), anterior, anterior + " 1",
                                    anterior + " x", std::string(1000, '9')}) {
        carpeta_.Pon("PILA.ORD", nota);
        EXPECT_EQ(Anotado(), "") << nota;
    }
}

TEST_F(Orden, OtraTablaConLaMismaLongitudYFechaSeDescubre) {
    const std::string buena = Bytes(EnOrden());
    const std::size_t primero = buena.find('\x0D') + 1;
    const std::size_t registro = (buena.size() - primero - 1) / FILAS;
    const struct {
        std::string_view Cambio;
        std::string Otra;
    } casos[] = {{"other rows", Bytes(AlReves())},
                 {"the date of the header", Con(buena, 3, "\x03")},
                 {"the first record", Con(buena, primero + 1, "9")},
                 {"the last record", Con(buena, primero + (FILAS - 1) * registro + 1, "9")},
                 {"one between", Con(buena, primero + (FILAS - 1) / 65 * registro + 1, "9")},
                 {"a record that is too long", Con(buena, 10, "\xFF\xFF")},
                 {"a header that is too long", Con(buena, 8, "\xFF\xFF")},
                 {"none", Con(buena, 4, std::string(6, '\0'))}};
    Anota(EnOrden());
    for (const auto& [cambio, otra] : casos) {
        ASSERT_EQ(otra.size(), buena.size());
        Sustituye(otra);
        EXPECT_EQ(Anotado(), "") << cambio;
        Sustituye(buena);
        EXPECT_EQ(Anotado(), "NOMBRE") << cambio;
    }
}

TEST_F(Orden, LaTablaSustituidaSeBuscaBien) {
    Anota(EnOrden());
    TProveedorDbase proveedor(carpeta_.Ruta());
    const auto busca = [&](std::string_view nombre) {
        return Lugares(*proveedor.Abre("NORVEX", "PILA.DBF", "NOMBRE"), nombre, nombre);
    };
    const std::vector<std::string> primeras = {"000000", "000001", "000002"};
    const std::vector<std::string> ultimas = {"004997", "004998", "004999"};
    ASSERT_EQ(busca("000000"), primeras);
    Sustituye(Bytes(AlReves()));
    EXPECT_EQ(busca("000000"), ultimas);
    Sustituye(Bytes(EnOrden()));
    EXPECT_EQ(busca("000000"), primeras);
}

TEST_F(Orden, SeHallaLoMismoSinLeerLaTabla) {
    const std::string bytes = Bytes(EnOrden());
    TDosCaminos caminos(carpeta_.Pon("PILA.DBF", bytes), bytes);
    const std::vector<std::string> nombres = EnOrden();
    for (std::size_t i = 0; i < FILAS; i += 97) caminos.EsperaLoMismo(nombres[i], nombres[i]);
    caminos.EsperaLoMismo(nombres.front(), nombres.front());
    caminos.EsperaLoMismo(nombres.back(), nombres.back());
    caminos.EsperaLoMismo("000001", "000001");
    caminos.EsperaLoMismo("", "");
    caminos.EsperaLoMismo("ZZZ", "ZZZ");
    caminos.EsperaLoMismo("000300", "000500");
    caminos.EsperaLoMismo("000500", "000300");
    caminos.EsperaLoMismo("", "ZZZ");
    EXPECT_EQ(caminos.Enteras(), 0);
}

TEST_F(Orden, LaFilaFueraDeSuSitioSeDescubreAlPasarPorElla) {
    const std::string buena = Bytes(EnOrden());
    const std::size_t primero = buena.find('\x0D') + 1;
    const std::size_t media = primero + MEDIA * ((buena.size() - primero - 1) / FILAS);
    const std::string baja = Con(buena, media + 1, "000000");
    const std::string alta = Con(buena, media + 1, "9");
    const std::string borrada = Con(buena, media, "*");
    const struct {
        const std::string& Cambiada;
        std::string_view Nombre;
        int Enteras;  // 0 where what is read is in order
    } casos[] = {{baja, "000000", 1},   {baja, "000002", 1}, {baja, "004000", 1},    {baja, "006000", 0},
                 {baja, "900000", 0},   {alta, "000000", 0}, {alta, "004000", 1},    {alta, "006000", 1},
                 {alta, "900000", 1},   {alta, "999999", 1}, {borrada, "000000", 1}, {borrada, "006000", 1},
                 {borrada, "900000", 1}};
    for (const auto& [cambiada, nombre, enteras] : casos) {
        TDosCaminos caminos(carpeta_.Pon("PILA.DBF", cambiada), cambiada);
        caminos.EsperaLoMismo(nombre, nombre);
        EXPECT_EQ(caminos.Enteras(), enteras) << nombre;
    }
    // The note does not see it, the search does.
    Anota(EnOrden());
    Sustituye(Con(buena, media + 1, "000000"));
    EXPECT_EQ(Anotado(), "NOMBRE");
    TProveedorDbase proveedor(carpeta_.Ruta());
    EXPECT_EQ(Lugares(*proveedor.Abre("NORVEX", "PILA.DBF", "NOMBRE"), "000000", "000000"),
              (std::vector<std::string>{"000000", "000001", "000002", Numero(MEDIA)}));
}

TEST_F(Orden, VariasFilasFueraDeSuSitioSeDescubren) {
    for (const std::size_t cuantas : {2U, 9U, 16U}) {
        std::vector<std::string> nombres = EnOrden();
        for (std::size_t i = 0; i < cuantas; ++i)
            nombres[MEDIA - cuantas / 2 + i] = "90000" + Numero(i).substr(5);
        const std::string bytes = Bytes(nombres);
        TDosCaminos caminos(carpeta_.Pon("PILA.DBF", bytes), bytes);
        caminos.EsperaLoMismo("006000", "006000");
        caminos.EsperaLoMismo("900000", "900001");
        EXPECT_EQ(caminos.Enteras(), 1) << cuantas;
    }
}

TEST_F(Orden, UnaTablaSinOrdenSeLeeEntera) {
    const std::string bytes = Bytes(AlReves());
    TDosCaminos caminos(carpeta_.Pon("PILA.DBF", bytes), bytes);
    for (const std::string_view nombre : {"000000", "000300", "002502", "ZZZ", ""})
        caminos.EsperaLoMismo(nombre, nombre);
    EXPECT_EQ(caminos.Enteras(), 1);
}

}  // namespace
}  // namespace analizador
