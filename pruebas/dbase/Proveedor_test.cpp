#include <gtest/gtest.h>

#include <atomic>
#include <thread>

#include "adaptadores/dbase/ProveedorDbase.h"
#include "plataforma/Ansi.h"
#include "pruebas/dbase/ConstructorDbf.h"

namespace analizador {
namespace {

std::string Nombres(const std::vector<std::string>& nombres) {
    TFichero fichero{.Campos = {{"NOMBRE", 'C', 20}}};
    for (const std::string& nombre : nombres) fichero.Filas.push_back({nombre});
    return fichero.Bytes();
}

bool Esta(TProveedorTablas& proveedor, std::string_view nombre) {
    return TBBusca(*proveedor.Abre("NORVEX", "PILA.DBF", "NOMBRE"), {{"NOMBRE", nombre}}, true);
}

std::string ErrorAlAbrir(TProveedorTablas& proveedor, std::string_view alias, std::string_view fichero) {
    try {
        static_cast<void>(proveedor.Abre(alias, fichero, ""));
    } catch (const ErrorTabla& error) {
        return error.what();
    }
    return "";
}

TEST(Proveedor, EncuentraElFicheroSinMirarMayusculas) {
    const TCarpetaPrueba carpeta;
    carpeta.Pon("Pila.dbf", Nombres({"ANA"}));
    TProveedorDbase proveedor(carpeta.Ruta());
    EXPECT_TRUE(Esta(proveedor, "ana"));
    EXPECT_EQ(ErrorAlAbrir(proveedor, "OTRO", "pila"), "");
}

TEST(Proveedor, CadaAliasTieneSuCarpeta) {
    const TCarpetaPrueba una;
    const TCarpetaPrueba otra;
    una.Pon("PILA.DBF", Nombres({"ANA"}));
    otra.Pon("PILA.DBF", Nombres({"EVA"}));
    TProveedorDbase proveedor(
        std::map<std::string, std::filesystem::path>{{"Norvex", una.Ruta()}, {"B", otra.Ruta()}});
    EXPECT_TRUE(Esta(proveedor, "ANA"));
    EXPECT_EQ(proveedor.Abre("b", "PILA.DBF", "")->Texto("NOMBRE"), "EVA");
    EXPECT_NE(ErrorAlAbrir(proveedor, "C", "PILA.DBF").find("alias C"), std::string::npos);
}

TEST(Proveedor, LosErroresNombranTablaYCarpeta) {
    const TCarpetaPrueba carpeta;
    carpeta.Pon("MAL.DBF", "nada");
    std::filesystem::create_directory(carpeta.Ruta() / "DIR.DBF");
    TProveedorDbase proveedor(carpeta.Ruta());
    for (const std::string_view tabla : {"FALTA.DBF", "MAL.DBF", "DIR.DBF"}) {
        const std::string error = ErrorAlAbrir(proveedor, "NORVEX", tabla);
        EXPECT_NE(error.find(tabla), std::string::npos) << error;
        EXPECT_NE(error.find(carpeta.Ruta().string()), std::string::npos) << error;
    }
    TProveedorDbase sinCarpeta(carpeta.Ruta() / "no_hay");
    EXPECT_NE(ErrorAlAbrir(sinCarpeta, "NORVEX", "PILA.DBF").find("no_hay"), std::string::npos);
}

TEST(Proveedor, VeElCambioDelMismoSegundoYDelMismoTamanno) {
    const TCarpetaPrueba carpeta;
    TProveedorDbase proveedor(carpeta.Ruta());
    for (int i = 0; i < 40; ++i) {
        const bool par = i % 2 == 0;
        carpeta.Pon("PILA.DBF", Nombres({par ? "ANA" : "EVA"}));
        ASSERT_EQ(Esta(proveedor, "ANA"), par) << i;
        ASSERT_EQ(Esta(proveedor, "EVA"), !par) << i;
    }
}

TEST(Proveedor, VeElCambioDeUnaTablaVieja) {
    const TCarpetaPrueba carpeta;
    const auto hace1hora = std::filesystem::file_time_type::clock::now() - std::chrono::hours(1);
    const auto ruta = carpeta.Pon("PILA.DBF", Nombres({"ANA"}));
    std::filesystem::last_write_time(ruta, hace1hora);
    TProveedorDbase proveedor(carpeta.Ruta());
    EXPECT_TRUE(Esta(proveedor, "ANA"));
    carpeta.Pon("PILA.DBF", Nombres({"EVA"}));
    std::filesystem::last_write_time(ruta, hace1hora);
    EXPECT_TRUE(Esta(proveedor, "EVA"));
    std::filesystem::remove(ruta);
    EXPECT_THROW(Esta(proveedor, "EVA"), ErrorTabla);
}

TEST(Proveedor, LaTablaAbiertaSigueViendoLoQueSeAbrio) {
    const TCarpetaPrueba carpeta;
    carpeta.Pon("PILA.DBF", Nombres({"ANA", "BEA"}));
    TProveedorDbase proveedor(carpeta.Ruta());
    const auto abierta = proveedor.Abre("NORVEX", "PILA.DBF", "NOMBRE");
    carpeta.Pon("PILA.DBF", Nombres({}));
    EXPECT_EQ(Columna(*abierta, "NOMBRE"), (std::vector<std::string>{"ANA", "BEA"}));
    EXPECT_FALSE(Esta(proveedor, "ANA"));
}

TEST(Tablas, ElContenidoEsElMismoParaLasMismasFilas) {
    const std::string bytes = TFichero{.Campos = {{"NOMBRE", 'C', 20}}, .Filas = {{"ANA"}}}.Bytes();
    const auto enMemoria = std::make_shared<const TTablaEnMemoria>("PILA", bytes, "PILA.DBF");
    const auto igual = std::make_shared<const TTablaEnMemoria>("PILA", bytes, "PILA.DBF");
    const TTablaDbase una(enMemoria, "");
    const TTablaDbase otra(enMemoria, "NOMBRE");
    ASSERT_NE(una.Contenido(), nullptr);
    EXPECT_EQ(una.Contenido(), otra.Contenido());
    EXPECT_NE(una.Contenido(), TTablaDbase(igual, "").Contenido());
}

TEST(Proveedor, NoDejaNingunFicheroAbierto) {
    const TCarpetaPrueba carpeta;
    carpeta.Pon("PILA.DBF", Nombres({"ANA"}));
    TProveedorDbase proveedor(carpeta.Ruta());
    const auto abierta = proveedor.Abre("NORVEX", "PILA.DBF", "NOMBRE");
    std::error_code error;
    for (const auto& fd : std::filesystem::directory_iterator("/proc/self/fd", error)) {
        const auto destino = std::filesystem::read_symlink(fd.path(), error);
        EXPECT_NE(destino, carpeta.Ruta() / "PILA.DBF");
    }
}

// While one thread replaces the table over and over, the others find the old or the new content, whole.
TEST(Proveedor, VariosHilosMientrasSeCambiaLaTabla) {
#ifdef _WIN32
    GTEST_SKIP() << "here a file that is being read is not replaced, nor one that is being replaced opened";
#endif
    const TCarpetaPrueba carpeta;
    const std::string vieja = Nombres(std::vector<std::string>(200, "ANA"));
    const std::string nueva = Nombres(std::vector<std::string>(300, "EVA"));
    carpeta.Pon("PILA.DBF", vieja);
    TProveedorDbase proveedor(carpeta.Ruta());
    std::atomic<bool> termina = false;
    std::atomic<int> malas = 0;
    const auto busca = [&] {
        while (!termina) {
            const auto tabla = proveedor.Abre("NORVEX", "PILA.DBF", "NOMBRE");
            const int filas = tabla->CuentaFilas();
            const bool hay = TBBusca(*tabla, {{"NOMBRE", filas == 200 ? "ANA" : "EVA"}}, true);
            if (!hay || (filas != 200 && filas != 300)) ++malas;
        }
    };
    std::thread uno(busca);
    std::thread otro(busca);
    for (int i = 0; i < 200; ++i) {
        const auto temporal = carpeta.Pon("nueva.tmp", i % 2 == 0 ? nueva : vieja);
        std::filesystem::rename(temporal, carpeta.Ruta() / "PILA.DBF");
    }
    termina = true;
    uno.join();
    otro.join();
    EXPECT_EQ(malas, 0);
}

TEST(Tablas, CreaTablaPasaAlProveedorInstalado) {
    EXPECT_THROW(static_cast<void>(CreaTabla("NORVEX", "PILA.DBF", "NOMBRE", false, true)), ErrorTabla);
    const TCarpetaPrueba carpeta;
    carpeta.Pon("PILA.DBF", Nombres({"ANA"}));
    TProveedorDbase proveedor(carpeta.Ruta());
    const InstalaTablas instala(proveedor);
    EXPECT_TRUE(TBBusca(*CreaTabla("NORVEX", "PILA.DBF", "NOMBRE", false, true), {{"NOMBRE", "ANA"}}, true));
}

}  // namespace
}  // namespace analizador
