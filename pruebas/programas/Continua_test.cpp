// A batch that was interrupted goes on from its file of results.

#include <fcntl.h>
#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <sys/file.h>
#include <unistd.h>

#include <algorithm>
#include <array>
#include <chrono>
#include <csignal>
#include <fstream>
#include <nlohmann/json.hpp>
#include <random>
#include <thread>

#include "pruebas/programas/Proceso.h"
#include "pruebas/programas/ProgramaDePrueba.h"

namespace analizador {
namespace {

namespace fs = std::filesystem;
using testing::EndsWith;
using testing::StartsWith;
using TTextos = std::vector<std::string>;

constexpr std::array<const char*, 4> EJEMPLOS = {"compraventa", "testament", "prestamo_hipotecario",
                                                 "compravenda"};

// A folder of deeds, and beside it the file of results of their batch.
class ContinuaAnaliza : public testing::Test {
  protected:
    void Copia(const char* ejemplo, const std::string& nombre) const {
        fs::copy_file(Ejemplo(ejemplo), FEscrituras / nombre, fs::copy_options::overwrite_existing);
    }
    void Copia(int cuantas) const {
        for (int i = 0; i < cuantas; ++i)
            Copia(EJEMPLOS[static_cast<std::size_t>(i) % EJEMPLOS.size()],
                  "e" + std::to_string(1000 + i) + ".docx");
    }
    [[nodiscard]] TTextos Orden(TTextos opciones = {}) const {
        opciones.insert(opciones.end(), {"--json", "--resultados", FResultados, FEscrituras});
        return opciones;
    }
    [[nodiscard]] TEjecucion Lote(const TTextos& opciones = {}) const { return Analiza(Orden(opciones)); }
    [[nodiscard]] TEjecucion Continua(TTextos opciones = {}) const {
        opciones.emplace_back("--continua");
        return Lote(opciones);
    }
    // What a run that nobody interrupts leaves.
    [[nodiscard]] std::string Esperado() const {
        fs::remove(FResultados);
        EXPECT_EQ(Lote().Codigo, 0);
        const auto bytes = Bytes(FResultados);
        fs::remove(FResultados);
        return bytes;
    }
    [[nodiscard]] std::string Escritura(const std::string& nombre) const { return FEscrituras / nombre; }
    // Nothing but the deeds and the results stays.
    void EsperaLimpio() const {
        std::ptrdiff_t cuantos = std::distance(fs::directory_iterator(FCarpeta.Ruta()), {});
        EXPECT_EQ(cuantos, 2);
    }
    // The deeds of which a line says where each fact was read, which tells what the last run analysed.
    [[nodiscard]] TTextos ConOrigen() const {
        TTextos nombres;
        for (const auto& linea : Lineas(Bytes(FResultados)))
            if (const auto json = nlohmann::json::parse(linea); json.contains("Origen"))
                nombres.push_back(fs::path(json["archivo"].get<std::string>()).filename());
        return nombres;
    }
    [[nodiscard]] TTextos Archivos() const {
        TTextos nombres;
        for (const auto& linea : Lineas(Bytes(FResultados)))
            nombres.push_back(
                fs::path(nlohmann::json::parse(linea)["archivo"].get<std::string>()).filename());
        return nombres;
    }

    const TCarpetaTemporal FCarpeta;
    const fs::path FEscrituras = [this] {
        fs::create_directory(FCarpeta.Ruta() / "escrituras");
        return FCarpeta.Ruta() / "escrituras";
    }();
    const fs::path FResultados = FCarpeta.Ruta() / "resultados.jsonl";
};

TEST_F(ContinuaAnaliza, ElFicheroTieneLasLineasDeSiempreMasLaHuella) {
    Copia(5);
    const auto ejecucion = Lote();
    EXPECT_EQ(ejecucion.Codigo, 0);
    EXPECT_EQ(ejecucion.Salida + ejecucion.Errores, "");
    const auto sueltas = Lineas(Analiza({"--json", FEscrituras}).Salida);
    const auto lineas = Lineas(Bytes(FResultados));
    ASSERT_EQ(lineas.size(), sueltas.size());
    for (std::size_t i = 0; i < lineas.size(); ++i) {
        auto json = nlohmann::ordered_json::parse(lineas[i]);
        EXPECT_EQ(json["huella"].get<std::string>().size(), 16U);
        json.erase("huella");
        EXPECT_EQ(json.dump(), sueltas[i]);
    }
    EsperaLimpio();
}

// Wherever a run was cut, the next one makes the file what it would have been.
TEST_F(ContinuaAnaliza, SigueDesdeCualquierCorte) {
    Copia(4);
    const auto esperado = Esperado();
    std::vector<std::size_t> cortes = {0, 1, 12, 13, esperado.size() - 1, esperado.size()};
    for (std::size_t fin = esperado.find('\n'); fin != std::string::npos; fin = esperado.find('\n', fin + 1))
        cortes.insert(cortes.end(), {fin, fin + 1, fin + 2});
    for (const auto corte : cortes) {
        SCOPED_TRACE(corte);
        std::ofstream(FResultados, std::ios::binary) << esperado.substr(0, corte);
        const auto ejecucion = Continua();
        EXPECT_EQ(ejecucion.Codigo, 0) << ejecucion.Errores;
        EXPECT_EQ(Bytes(FResultados), esperado);
    }
    EsperaLimpio();
}

// A power cut may leave zeros where the bytes had not reached the disk.
TEST_F(ContinuaAnaliza, UnaLineaEstropeadaSeHaceDeNuevo) {
    Copia(4);
    const auto esperado = Esperado();
    auto estropeado = esperado;
    const auto segunda = esperado.find('\n') + 1;
    std::fill_n(estropeado.begin() + static_cast<std::ptrdiff_t>(segunda), 600, '\0');
    std::ofstream(FResultados, std::ios::binary) << estropeado;
    EXPECT_EQ(Continua().Codigo, 0);
    EXPECT_EQ(Bytes(FResultados), esperado);
    EsperaLimpio();
}

TEST_F(ContinuaAnaliza, MatadoUnaYOtraVezNiPierdeNiRepiteNada) {
    constexpr int MUERTES = 40;
    Copia(120);
    const auto esperado = Esperado();
    std::mt19937 azar(20240521);  // NOLINT(bugprone-random-generator-seed): the same moments every time
    std::uniform_int_distribution<int> pausa(0, 60000);
    std::size_t hechas = 0;
    for (int muerte = 0; muerte < MUERTES; ++muerte) {
        SCOPED_TRACE(muerte);
        TProceso proceso(Orden({"--continua"}), "/dev/null", FCarpeta.Ruta() / "errores");
        std::this_thread::sleep_for(std::chrono::microseconds(pausa(azar)));
        proceso.Senal(SIGKILL);
        static_cast<void>(proceso.Espera());
        const auto bytes = fs::exists(FResultados) ? Bytes(FResultados) : "";
        EXPECT_THAT(esperado, StartsWith(bytes)) << "each deed once, in order";
        const auto enteras = static_cast<std::size_t>(std::ranges::count(bytes, '\n'));
        EXPECT_GE(enteras, hechas) << "what was done stays";
        hechas = enteras;
    }
    RecordProperty("hechas", static_cast<int>(hechas));
    EXPECT_EQ(Continua().Codigo, 0);
    EXPECT_EQ(Bytes(FResultados), esperado);
    fs::remove(FCarpeta.Ruta() / "errores");
    EsperaLimpio();
}

TEST_F(ContinuaAnaliza, InterrumpidoConCtrlCDiceComoSeguir) {
    Copia(60);
    const auto esperado = Esperado();
    const auto errores = FCarpeta.Ruta() / "errores";
    TProceso proceso(Orden(), "/dev/null", errores);
    while (proceso.Vive() && (!fs::exists(FResultados) || fs::file_size(FResultados) == 0))
        std::this_thread::yield();
    proceso.Senal(SIGINT);
    const int codigo = proceso.Espera();
    const auto bytes = Bytes(FResultados);
    EXPECT_THAT(esperado, StartsWith(bytes));
    EXPECT_THAT(bytes, EndsWith("\n"));
    if (bytes != esperado) {
        EXPECT_EQ(codigo, 130);
        EXPECT_EQ(Bytes(errores), "analiza: interrumpido después de " +
                                      std::to_string(std::ranges::count(bytes, '\n')) +
                                      " escrituras; con --continua se sigue\n");
    }
    EXPECT_EQ(Continua().Codigo, 0);
    EXPECT_EQ(Bytes(FResultados), esperado);
}

TEST_F(ContinuaAnaliza, SoloAnalizaLoQueFaltaYLoQueHaCambiado) {
    Copia(8);
    ASSERT_EQ(Lote().Codigo, 0);
    EXPECT_EQ(Continua({"--origen"}).Codigo, 0);
    EXPECT_THAT(ConOrigen(), testing::IsEmpty());
    Copia("testamento", "e1003.docx");                                               // changed
    Copia("testament", "e1004b.docx");                                               // new, in the middle
    fs::last_write_time(Escritura("e1001.docx"), fs::file_time_type::clock::now());  // the same content
    EXPECT_EQ(Continua({"--origen"}).Codigo, 0);
    EXPECT_THAT(ConOrigen(), testing::ElementsAre("e1003.docx", "e1004b.docx"));
    EXPECT_THAT(Archivos(),
                testing::ElementsAre("e1000.docx", "e1001.docx", "e1002.docx", "e1003.docx", "e1004.docx",
                                     "e1004b.docx", "e1005.docx", "e1006.docx", "e1007.docx"));
    fs::remove(FCarpeta.Ruta() / "resultados.jsonl");
    EXPECT_EQ(Lote().Codigo, 0);
    EsperaLimpio();
}

// What the last run did comes at the end of the file until all is done: killed before, nothing is lost
// either.
TEST_F(ContinuaAnaliza, LoCambiadoEntraEnSuSitioAunqueSeMateEntretanto) {
    Copia(60);
    static_cast<void>(Esperado());
    ASSERT_EQ(Lote().Codigo, 0);
    for (int i = 0; i < 60; i += 2) Copia("testamento", "e" + std::to_string(1000 + i) + ".docx");
    const auto comienzo = fs::file_size(FResultados);
    for (int muerte = 0; muerte < 5; ++muerte) {
        TProceso proceso(Orden({"--continua"}), "/dev/null", FCarpeta.Ruta() / "errores");
        while (proceso.Vive() &&
               fs::file_size(FResultados) <= comienzo + static_cast<std::uintmax_t>(muerte) * 10000)
            std::this_thread::yield();
        proceso.Senal(SIGKILL);
        static_cast<void>(proceso.Espera());
    }
    EXPECT_EQ(Continua().Codigo, 0);
    const auto continuado = Bytes(FResultados);
    EXPECT_EQ(continuado, Esperado());
}

TEST_F(ContinuaAnaliza, LasFallidasSeIntentanDeNuevo) {
    Copia(3);
    std::ofstream(FEscrituras / "e1001.docx", std::ios::trunc) << "roto";
    const auto primera = Lote();
    EXPECT_EQ(primera.Codigo, 1);
    EXPECT_THAT(primera.Errores, StartsWith("analiza: " + Escritura("e1001.docx") + ": "));
    const auto segunda = Continua();
    EXPECT_EQ(segunda.Codigo, 1) << "it still fails, and says so";
    EXPECT_EQ(segunda.Errores, primera.Errores);
    Copia("testament", "e1001.docx");
    EXPECT_EQ(Continua().Codigo, 0);
    const auto continuado = Bytes(FResultados);
    EXPECT_EQ(continuado, Esperado());
}

TEST_F(ContinuaAnaliza, LosResultadosDeOtrasSeConservanAlFinal) {
    Copia(3);
    ASSERT_EQ(Lote().Codigo, 0);
    fs::rename(FEscrituras / "e1001.docx", FEscrituras / "e2001.docx");
    const auto ejecucion = Continua();
    EXPECT_EQ(ejecucion.Codigo, 0);
    EXPECT_EQ(ejecucion.Errores,
              "analiza: " + FResultados.string() +
                  ": conserva al final 1 resultados de escrituras que ahora no se han pedido\n");
    EXPECT_THAT(Archivos(), testing::ElementsAre("e1000.docx", "e1002.docx", "e2001.docx", "e1001.docx"));
}

TEST_F(ContinuaAnaliza, UnNombreQueNoEsUtf8TampocoSeRepite) {
    Copia("testament", "a\xF1o.docx");
    Copia("compraventa", "b.docx");
    ASSERT_EQ(Lote().Codigo, 0);
    const auto bytes = Bytes(FResultados);
    EXPECT_EQ(Continua({"--origen"}).Codigo, 0);
    EXPECT_EQ(Bytes(FResultados), bytes);
}

TEST_F(ContinuaAnaliza, NuncaPisaUnFicheroQueYaEsta) {
    Copia(1);
    struct TCaso {
        const char* Contenido;
        TTextos Opciones;
        const char* Causa;
    };
    const std::vector<TCaso> casos = {
        {"{\"archivo\":\"a.docx\"}\n", {}, "ya tiene resultados; con --continua se sigue con ellos"},
        {"Estimada señora:\n", {}, "ya tiene resultados"},
        {"Estimada señora:\n", {"--continua"}, "no es un fichero de resultados"},
        {"{\"arch", {}, "ya tiene resultados"},
    };
    for (const auto& caso : casos) {
        std::ofstream(FResultados, std::ios::trunc) << caso.Contenido;
        const auto ejecucion = Lote(caso.Opciones);
        EXPECT_EQ(ejecucion.Codigo, 2);
        EXPECT_THAT(ejecucion.Errores, StartsWith("analiza: " + FResultados.string() + ": " + caso.Causa));
        EXPECT_EQ(Lineas(ejecucion.Errores).size(), 1U);
        EXPECT_EQ(Bytes(FResultados), caso.Contenido);
    }
    for (const auto& [ruta, causa] :
         {std::pair{fs::path("/dev/null"), "no es un fichero corriente"},
          std::pair{FEscrituras, "no se puede escribir: "},
          std::pair{FEscrituras / "no" / "hay", "no se puede escribir: la carpeta no existe"}}) {
        const auto ejecucion = Analiza({"--json", "--resultados", ruta, FEscrituras});
        EXPECT_EQ(ejecucion.Codigo, 2);
        EXPECT_THAT(ejecucion.Errores, StartsWith("analiza: " + ruta.string() + ": " + causa));
    }
}

TEST_F(ContinuaAnaliza, DosProcesosNoEscribenALaVez) {
    Copia(1);
    std::ofstream(FResultados) << "";
    const int descriptor = ::open(FResultados.c_str(), O_RDWR | O_CLOEXEC);
    ASSERT_EQ(::flock(descriptor, LOCK_EX), 0);
    const auto ejecucion = Continua();
    EXPECT_EQ(ejecucion.Codigo, 2);
    EXPECT_EQ(ejecucion.Errores,
              "analiza: " + FResultados.string() + ": otro proceso está escribiendo en él\n");
    ::close(descriptor);
    EXPECT_EQ(Continua().Codigo, 0);
}

TEST_F(ContinuaAnaliza, ConElDiscoLlenoQuedanLineasEnteras) {
    Copia(40);
    const auto esperado = Esperado();
    std::string orden = "ulimit -f 100; exec '" PROGRAMA_ANALIZA "'";
    for (const auto& argumento : Orden()) orden += " '" + argumento + "'";
    const auto ejecucion = Ejecuta("/bin/bash", {"-c", orden});
    EXPECT_EQ(ejecucion.Codigo, 1);
    EXPECT_EQ(ejecucion.Errores,
              "analiza: " + FResultados.string() +
                  ": no se puede escribir: el fichero pasa del tamaño que el sistema permite\n");
    const auto bytes = Bytes(FResultados);
    EXPECT_THAT(esperado, StartsWith(bytes));
    EXPECT_THAT(bytes, EndsWith("\n"));
    EXPECT_LE(bytes.size(), 100U * 1024);
    EXPECT_EQ(Continua().Codigo, 0);
    EXPECT_EQ(Bytes(FResultados), esperado);
}

}  // namespace
}  // namespace analizador
