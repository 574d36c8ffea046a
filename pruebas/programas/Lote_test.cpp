// Many deeds in one call: side by side, each result in its place.

#include <fcntl.h>
#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <unistd.h>

#include <array>
#include <csignal>
#include <fstream>
#include <nlohmann/json.hpp>
#include <thread>

#include "pruebas/comun/Saneado.h"
#include "pruebas/programas/Proceso.h"
#include "pruebas/programas/ProgramaDePrueba.h"

namespace analizador {
namespace {

namespace fs = std::filesystem;
using testing::ElementsAre;
using testing::HasSubstr;
using testing::StartsWith;
using TTextos = std::vector<std::string>;

constexpr std::array<const char*, 6> EJEMPLOS = {"compraventa", "testament",   "prestamo_hipotecario",
                                                 "testamento",  "compravenda", "compraventa_extranjero"};

// Deeds of both languages, long and short by turns, in a folder; their names in order.
TTextos Escrituras(const TCarpetaTemporal& carpeta, std::size_t cuantas) {
    TTextos nombres;
    for (std::size_t i = 0; i < cuantas; ++i)
        nombres.push_back(
            carpeta.Copia(EJEMPLOS[i % EJEMPLOS.size()], "e" + std::to_string(1000 + i) + ".docx"));
    return nombres;
}

TTextos Con(TTextos opciones, const TTextos& ficheros) {
    opciones.insert(opciones.end(), ficheros.begin(), ficheros.end());
    return opciones;
}

TTextos Archivos(const std::string& json) {
    TTextos archivos;
    for (const auto& linea : Lineas(json)) archivos.push_back(nlohmann::json::parse(linea)["archivo"]);
    return archivos;
}

// Waits for what the process is about to write.
void EsperaLineas(const TProceso& proceso, const fs::path& fichero, std::size_t cuantas) {
    while (proceso.Vive() && (!fs::exists(fichero) || Lineas(Bytes(fichero)).size() < cuantas))
        std::this_thread::sleep_for(std::chrono::milliseconds(2));
}

// A pipe whose writing end the test holds.
class TTuberia {
  public:
    TTuberia() {
        if (::pipe2(FExtremos.data(), O_CLOEXEC) != 0) throw std::runtime_error("no pipe");
    }
    ~TTuberia() {
        ::close(FExtremos[0]);
        Cierra();
    }
    TTuberia(const TTuberia&) = delete;
    TTuberia& operator=(const TTuberia&) = delete;
    [[nodiscard]] int Lectura() const { return FExtremos[0]; }
    void Escribe(const std::string& texto) const {
        if (::write(FExtremos[1], texto.data(), texto.size()) != static_cast<ssize_t>(texto.size()))
            throw std::runtime_error("no room in the pipe");
    }
    void Cierra() {
        if (FExtremos[1] >= 0) ::close(FExtremos[1]);
        FExtremos[1] = -1;
    }

  private:
    std::array<int, 2> FExtremos{};
};

TEST(LoteAnaliza, ConCualquierNumeroDeHilosSaleLoMismoQueDeUnaEnUna) {
    const TCarpetaTemporal carpeta;
    const auto ficheros = Escrituras(carpeta, 24);
    std::string json;
    std::string informes;
    for (const auto& fichero : ficheros) {
        json += Analiza({"--json", "--origen", fichero}).Salida;
        informes += "==== " + fichero + "\n" + Analiza({fichero}).Salida + "\n";
    }
    for (const char* hilos : {"1", "2", "7"}) {
        SCOPED_TRACE(hilos);
        const auto enJson = Analiza(Con({"--json", "--origen", "--hilos", hilos}, ficheros));
        EXPECT_EQ(enJson.Codigo, 0);
        EXPECT_EQ(enJson.Salida, json);
        EXPECT_EQ(enJson.Errores, "") << "no bar where nobody looks";
        EXPECT_EQ(Analiza(Con({"--hilos", hilos}, ficheros)).Salida, informes);
    }
    EXPECT_EQ(Analiza(Con({"--json", "--origen"}, ficheros)).Salida, json);
}

TEST(LoteAnaliza, LasRotasNoParanALasDemas) {
    const TCarpetaTemporal carpeta;
    auto ficheros = Escrituras(carpeta, 20);
    const auto buenos = Lineas(Analiza(Con({"--json"}, ficheros)).Salida);
    const std::string docx = Bytes(Ejemplo("compraventa"));
    TTextos errores;
    for (const std::size_t i : {0U, 7U, 8U, 19U}) {
        ficheros[i] = carpeta.Fichero("rota" + std::to_string(i) + ".docx", docx.substr(0, 100 * i));
        errores.push_back("analiza: " + ficheros[i] + ": ");
    }
    const auto ejecucion = Analiza(Con({"--json", "--hilos", "4"}, ficheros));
    EXPECT_EQ(ejecucion.Codigo, 1);
    EXPECT_EQ(Archivos(ejecucion.Salida), ficheros);
    const auto lineas = Lineas(ejecucion.Salida);
    ASSERT_EQ(lineas.size(), ficheros.size());
    const auto avisos = Lineas(ejecucion.Errores);
    ASSERT_EQ(avisos.size(), errores.size()) << ejecucion.Errores;
    for (std::size_t i = 0; i < errores.size(); ++i) EXPECT_THAT(avisos[i], StartsWith(errores[i]));
    std::size_t rotas = 0;
    for (std::size_t i = 0; i < lineas.size(); ++i)
        if (const auto json = nlohmann::json::parse(lineas[i]); json.contains("error"))
            EXPECT_EQ("analiza: " + json["error"].get<std::string>(), avisos.at(rotas++));
        else
            EXPECT_EQ(lineas[i], buenos[i]);
    EXPECT_EQ(rotas, errores.size());
}

TEST(LoteAnaliza, UnaCarpetaValePorSusEscriturasPorOrdenDeNombre) {
    const TCarpetaTemporal carpeta;
    for (const char* nombre :
         {"b.docx", "a 2.DOCX", "Z.docm", "ñ.dotx", "a.dotm", "~$b.docx", ".oculta.docx"})
        static_cast<void>(carpeta.Copia("testament", nombre));
    static_cast<void>(carpeta.Fichero("notas.txt", "x"));
    static_cast<void>(carpeta.Fichero(".~lock.b.docx#", "x"));
    fs::create_directories(carpeta.Ruta() / "otra.docx" / "dentro");
    static_cast<void>(carpeta.Copia("testament", "otra.docx/c.docx"));
    TTextos esperados;
    for (const char* nombre : {"Z.docm", "a 2.DOCX", "a.dotm", "b.docx", "ñ.dotx"})
        esperados.push_back(carpeta.Ruta() / nombre);
    const auto deLaCarpeta = Analiza({"--json", carpeta.Ruta()});
    EXPECT_EQ(deLaCarpeta.Codigo, 0) << deLaCarpeta.Errores;
    EXPECT_EQ(Archivos(deLaCarpeta.Salida), esperados);
    EXPECT_EQ(deLaCarpeta.Salida, Analiza(Con({"--json"}, esperados)).Salida);
    EXPECT_EQ(Analiza({carpeta.Ruta()}).Salida, Analiza(esperados).Salida);
    const std::string suelta = Ejemplo("compraventa");
    EXPECT_THAT(Archivos(Analiza({"--json", suelta, carpeta.Ruta() / "otra.docx", suelta}).Salida),
                ElementsAre(suelta, (carpeta.Ruta() / "otra.docx" / "c.docx").string(), suelta));
}

TEST(LoteAnaliza, UnaCarpetaConUnaSolaTambienLlevaTitulo) {
    const TCarpetaTemporal carpeta;
    const std::string unica = carpeta.Copia("testament", "unica.docx");
    EXPECT_EQ(Analiza({carpeta.Ruta()}).Salida, "==== " + unica + "\n" + Analiza({unica}).Salida + "\n");
}

TEST(LoteAnaliza, UnaCarpetaSinEscriturasEsUnFallo) {
    const TCarpetaTemporal carpeta;
    const auto ejecucion = Analiza({"--json", carpeta.Ruta()});
    EXPECT_EQ(ejecucion.Codigo, 1);
    EXPECT_THAT(ejecucion.Errores, HasSubstr(carpeta.Ruta().string() + ": es una carpeta"));
    EXPECT_THAT(Archivos(ejecucion.Salida), ElementsAre(carpeta.Ruta().string()));
}

TEST(LoteAnaliza, LosNombresPuedenLlegarPorLaEntrada) {
    const TCarpetaTemporal carpeta;
    TTextos nombres;
    for (const char* nombre :
         {"Escritura nº 7 de la señora Núñez.docx", "l'hipoteca \"a\" $(x).docx", "-guion.docx"})
        nombres.push_back(carpeta.Copia("testament", nombre));
    const std::string partida = carpeta.Copia("testament", "dos\nlineas.docx");
    struct TCaso {
        TTextos Argumentos;
        std::string Lista;
        TTextos Esperados;
    };
    const std::string suelta = Ejemplo("compraventa");
    const std::vector<TCaso> casos = {
        {{"-"}, nombres[0] + "\n" + nombres[1] + "\n" + nombres[2] + "\n", nombres},
        {{"-"}, "\r\n\n" + nombres[0] + "\r\n\r\n" + nombres[1] + "\n\n" + nombres[2], nombres},
        {{"-"}, nombres[0] + "\r", {nombres[0]}},
        {{"-"}, "", {}},
        {{"-", "-0"}, nombres[0] + '\0' + partida + '\0' + nombres[1], {nombres[0], partida, nombres[1]}},
        {{suelta, "-", suelta}, nombres[1] + "\n", {suelta, nombres[1], suelta}},
        {{"-", suelta, "-"}, nombres[1] + "\n", {nombres[1], suelta}},
    };
    const TCarpetaTemporal aparte;
    for (const auto& caso : casos) {
        SCOPED_TRACE(testing::PrintToString(caso.Lista));
        const auto ejecucion =
            Analiza(Con({"--json"}, caso.Argumentos), {}, aparte.Fichero("lista", caso.Lista));
        EXPECT_EQ(ejecucion.Codigo, 0) << ejecucion.Errores;
        EXPECT_EQ(Archivos(ejecucion.Salida), caso.Esperados);
    }
    const auto carpetas =
        Analiza({"--json", "-"}, {}, aparte.Fichero("lista", carpeta.Ruta().string() + "\n"));
    EXPECT_EQ(Archivos(carpetas.Salida), Archivos(Analiza({"--json", carpeta.Ruta()}).Salida));
    const auto falta = Analiza({"--json", "-"}, {}, aparte.Fichero("lista", "no hay.docx\n" + suelta + "\n"));
    EXPECT_EQ(falta.Codigo, 1);
    EXPECT_THAT(Archivos(falta.Salida), ElementsAre("no hay.docx", suelta));
}

// As a program at the other end of a pipe needs it: each answer comes without waiting for the next question.
TEST(LoteAnaliza, CadaResultadoSaleEnCuantoEsta) {
    const TCarpetaTemporal carpeta;
    const fs::path salida = carpeta.Ruta() / "salida";
    TTuberia lista;
    TProceso proceso({"--json", "-"}, salida, carpeta.Ruta() / "errores", lista.Lectura());
    TTextos nombres;
    for (const char* ejemplo : EJEMPLOS) {
        nombres.push_back(Ejemplo(ejemplo));
        lista.Escribe(nombres.back() + "\n");
        EsperaLineas(proceso, salida, nombres.size());
    }
    lista.Cierra();
    EXPECT_EQ(proceso.Espera(), 0);
    EXPECT_EQ(Archivos(Bytes(salida)), nombres);
}

TEST(LoteAnaliza, InterrumpidoEscribeLoHechoYLoDice) {
    for (const auto& [senal, codigo] : {std::pair{SIGINT, 130}, std::pair{SIGTERM, 143}}) {
        const TCarpetaTemporal carpeta;
        const fs::path salida = carpeta.Ruta() / "salida";
        const fs::path errores = carpeta.Ruta() / "errores";
        TTuberia lista;
        TProceso proceso({"--json", "-"}, salida, errores, lista.Lectura());
        lista.Escribe(Ejemplo("testament").string() + "\n" + Ejemplo("compraventa").string() + "\n");
        EsperaLineas(proceso, salida, 2);
        proceso.Senal(senal);
        EXPECT_EQ(proceso.Espera(), codigo);
        EXPECT_THAT(Archivos(Bytes(salida)),
                    ElementsAre(Ejemplo("testament").string(), Ejemplo("compraventa").string()));
        EXPECT_EQ(Bytes(errores), "analiza: interrumpido después de 2 escrituras\n");
    }
}

// A reader that goes away, as `head` does.
TEST(LoteAnaliza, SiNadieLeeLaSalidaAcaba) {
    const TCarpetaTemporal carpeta;
    const auto ficheros = Escrituras(carpeta, 60);
    const auto codigo = carpeta.Ruta() / "codigo";
    const auto ejecucion =
        Ejecuta("/bin/sh", {"-c", "{ '" PROGRAMA_ANALIZA "' --json '" + carpeta.Ruta().string() +
                                      "'; echo $? >'" + codigo.string() + "'; } | head -n 1"});
    EXPECT_THAT(Archivos(ejecucion.Salida), ElementsAre(ficheros.front()));
    EXPECT_EQ(Bytes(codigo), "1\n");
    EXPECT_EQ(ejecucion.Errores, "analiza: no se puede escribir la salida\n");
}

// The most memory that a batch of so many small deeds takes, in KiB.
long Memoria(const TCarpetaTemporal& carpeta, int cuantas) {
    std::string lista;
    for (int i = 0; i < cuantas; ++i) {
        const fs::path enlace = carpeta.Ruta() / ("m" + std::to_string(i) + ".docx");
        if (!fs::exists(enlace)) fs::create_hard_link(carpeta.Ruta() / "e1000.docx", enlace);
        lista += enlace.string() + "\n";
    }
    const auto fichero = carpeta.Fichero("lista" + std::to_string(cuantas), lista);
    const std::unique_ptr<std::FILE, int (*)(std::FILE*)> abierto(std::fopen(fichero.c_str(), "r"),
                                                                  std::fclose);
    TProceso proceso({"--json", "--hilos", "2", "-"}, "/dev/null", carpeta.Ruta() / "errores",
                     fileno(abierto.get()));
    EXPECT_EQ(proceso.Espera(), 0) << Bytes(carpeta.Ruta() / "errores");
    return proceso.Memoria();
}

TEST(LoteAnaliza, LaMemoriaNoCreceConElNumeroDeEscrituras) {
    if (SANEADO) GTEST_SKIP() << "the sanitizer keeps memory of its own";
    const TCarpetaTemporal carpeta;
    static_cast<void>(carpeta.Copia("testament", "e1000.docx"));
    const long pocas = Memoria(carpeta, 200);
    const long muchas = Memoria(carpeta, 2000);
    RecordProperty("KiB_200", static_cast<int>(pocas));
    RecordProperty("KiB_2000", static_cast<int>(muchas));
    EXPECT_LT(static_cast<double>(muchas), 1.1 * static_cast<double>(pocas))
        << pocas << " KiB with a tenth of them";
}

// The worked example of the guide.
TEST(LoteAnaliza, ConParallelSaleLoMismo) {
    const TCarpetaTemporal carpeta;
    const auto ficheros = Escrituras(carpeta, 20);
    const auto ejecucion =
        Ejecuta("/bin/sh", {"-c", "find '" + carpeta.Ruta().string() +
                                      "' -name '*.docx' | sort | parallel --pipe -N 6 --keep-order "
                                      "'" PROGRAMA_ANALIZA "' --json --hilos 1 -"});
    EXPECT_EQ(ejecucion.Codigo, 0) << ejecucion.Errores;
    EXPECT_EQ(ejecucion.Salida, Analiza(Con({"--json"}, ficheros)).Salida);
}

}  // namespace
}  // namespace analizador
