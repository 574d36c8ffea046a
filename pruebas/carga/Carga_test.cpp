// The library is loaded by its name, several times over: the settings are those of the process, set once,
// until all have done with it.

#include <gtest/gtest.h>

#include <filesystem>
#include <string>
#include <thread>

#include "programas/biblioteca/analizador.h"
#ifdef CON_VENTANAS
#include "pruebas/automatizacion/Teclado.h"
#endif
#ifdef _WIN32
#include <windows.h>
#else
#include <dlfcn.h>
#endif

namespace analizador {
namespace {

namespace fs = std::filesystem;

// One loading of the library, given back in the end.
class TBiblioteca {
  public:
    TBiblioteca() : FModulo(Carga()) { EXPECT_NE(FModulo, nullptr); }
    ~TBiblioteca() { Descarga(FModulo); }
    TBiblioteca(const TBiblioteca&) = delete;
    TBiblioteca& operator=(const TBiblioteca&) = delete;

    // The function of that name, with the type that the header gives it.
    template <class TFuncion>
    [[nodiscard]] TFuncion* Funcion(const char* nombre) const {
        return reinterpret_cast<TFuncion*>(Direccion(FModulo, nombre));
    }

  private:
#ifdef _WIN32
    using TModulo = HMODULE;
    static TModulo Carga() {
        return LoadLibraryW(fs::path(BIBLIOTECA).make_preferred().c_str());
    }
    static void Descarga(TModulo modulo) {
        FreeLibrary(modulo);
    }
    static void* Direccion(TModulo modulo, const char* nombre) {
        return reinterpret_cast<void*>(GetProcAddress(modulo, nombre));
    }
#else
    using TModulo = void*;
    static TModulo Carga() {
        return dlopen(BIBLIOTECA, RTLD_NOW | RTLD_LOCAL);
    }
    static void Descarga(TModulo modulo) {
        dlclose(modulo);
    }
    static void* Direccion(TModulo modulo, const char* nombre) {
        return dlsym(modulo, nombre);
    }
#endif
    TModulo FModulo;
};

// A session opened through one loading; closed in the end through the same.
class TSesion {
  public:
    TSesion(const TBiblioteca& biblioteca, const fs::path& vocabularios) : FBiblioteca(biblioteca) {
        const auto tablas = (fs::path(CARPETA_BIN) / "TABLAS").string();
        Resultado = Pide<decltype(analizador_abre)>("analizador_abre")(
            ANALIZADOR_VERSION_INTERFAZ, vocabularios.empty() ? nullptr : vocabularios.string().c_str(),
            vocabularios.empty() ? nullptr : tablas.c_str(), &FSesion);
    }
    ~TSesion() { Pide<decltype(analizador_cierra)>("analizador_cierra")(FSesion); }
    TSesion(const TSesion&) = delete;
    TSesion& operator=(const TSesion&) = delete;

    // The notary that it reads in a text.
    [[nodiscard]] std::string Notario() const {
        if (Analiza(0) != ANALIZADOR_BIEN) return "(failed)";
        return Pide<decltype(analizador_texto)>("analizador_texto")(FSesion, "/Cabecera/Notario");
    }
    [[nodiscard]] int Revisa() const { return Analiza(ANALIZADOR_CON_REVISION); }
    int Resultado = ANALIZADOR_FALLO;

  private:
    [[nodiscard]] int Analiza(unsigned opciones) const {
        return Pide<decltype(analizador_analiza_texto)>("analizador_analiza_texto")(
            FSesion, "ESCRITURA DE COMPRAVENTA.\rAnte mi, ALFONSO REQUEJO, Notario de Madrid,\r", opciones);
    }
    template <class TFuncion>
    [[nodiscard]] TFuncion* Pide(const char* nombre) const {
        return FBiblioteca.Funcion<TFuncion>(nombre);
    }

    const TBiblioteca& FBiblioteca;
    analizador_sesion* FSesion = nullptr;
};

const fs::path LA_DE_SERIE = fs::path(CARPETA_BIN) / "CONFIG";
const fs::path OTRA = CARPETA_VOCABULARIO;

TEST(CargaBiblioteca, LosAjustesSonLosDelProceso) {
    const TBiblioteca una;
    const TSesion primera(una, LA_DE_SERIE);
    ASSERT_EQ(primera.Resultado, ANALIZADOR_BIEN);
    {
        const TBiblioteca otra;
        EXPECT_EQ(TSesion(otra, {}).Resultado, ANALIZADOR_BIEN);
        EXPECT_EQ(TSesion(otra, OTRA).Resultado, ANALIZADOR_CONFIGURACION);
    }
    EXPECT_EQ(primera.Notario(), "ALFONSO REQUEJO");
}

TEST(CargaBiblioteca, DescargadaSeVuelveACargar) {
    for (const auto& vocabularios : {LA_DE_SERIE, OTRA, LA_DE_SERIE}) {
        const TBiblioteca biblioteca;
        const TSesion sesion(biblioteca, vocabularios);
        ASSERT_EQ(sesion.Resultado, ANALIZADOR_BIEN) << vocabularios;
        EXPECT_EQ(sesion.Notario(), "ALFONSO REQUEJO");
    }
}

// What a thread keeps of the library must not be freed by code that is gone.
TEST(CargaBiblioteca, UnHiloQueLaUsoAcabaDespuesDeDescargarla) {
    for (int i = 0; i < 20; ++i)
        std::thread([] {
            const TBiblioteca biblioteca;
            EXPECT_EQ(TSesion(biblioteca, OTRA / "no").Resultado, ANALIZADOR_CONFIGURACION);
            const TSesion sesion(biblioteca, OTRA);
            EXPECT_EQ(sesion.Notario(), "ALFONSO REQUEJO");
        }).join();
}

#ifdef CON_VENTANAS
// The windows leave in the process what is code of the library.
TEST(CargaBiblioteca, LaQueMostroVentanasSeQueda) {
    std::thread([] {
        const TBiblioteca biblioteca;
        const TSesion sesion(biblioteca, OTRA);
        const pruebas::TTeclado teclado(L"Lista de Conceptos de la Escritura", {VK_ESCAPE});
        EXPECT_EQ(sesion.Revisa(), ANALIZADOR_BIEN);
    }).join();
    EXPECT_NE(GetModuleHandleW(L"analizador.dll"), nullptr);
}
#endif

}  // namespace
}  // namespace analizador
