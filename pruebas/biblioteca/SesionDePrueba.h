#pragma once

// What the tests of the shared library have in common. They see of it what a host sees: its header.

#include <analizador.h>
#include <gtest/gtest.h>

#include <filesystem>
#include <fstream>
#include <iterator>
#include <memory>
#include <string>
#include <string_view>
#include <vector>

namespace analizador {

struct TCierra {
    void operator()(analizador_sesion* sesion) const { analizador_cierra(sesion); }
};
using TSesion = std::unique_ptr<analizador_sesion, TCierra>;

// A session with the project's vocabularies and tables; null when it cannot be opened.
inline TSesion Abierta(const char* vocabularios = CARPETA_VOCABULARIO, const char* tablas = CARPETA_TABLAS) {
    analizador_sesion* sesion = nullptr;
    analizador_abre(ANALIZADOR_VERSION_INTERFAZ, vocabularios, tablas, &sesion);
    return TSesion(sesion);
}

inline std::string Ejemplo(const std::string& nombre) {
    return std::string(CARPETA_EJEMPLOS) + "/" + nombre;
}

inline std::string Bytes(const std::filesystem::path& fichero) {
    std::ifstream entrada(fichero, std::ios::binary);
    return {std::istreambuf_iterator<char>(entrada), {}};
}

// A fact, or "(none)".
inline std::string Texto(const TSesion& sesion, const char* donde) {
    const char* texto = analizador_texto(sesion.get(), donde);
    return texto == nullptr ? "(none)" : texto;
}

inline std::string Error(const TSesion& sesion) {
    return analizador_error(sesion.get());
}

// The units of a literal, and a zero after them.
inline std::vector<analizador_utf16> Unidades(std::u16string_view texto) {
    std::vector<analizador_utf16> unidades(texto.begin(), texto.end());
    unidades.push_back(0);
    return unidades;
}

inline std::u16string Texto16(const analizador_utf16* texto) {
    std::u16string copia;
    for (; texto != nullptr && *texto != 0; ++texto) copia += static_cast<char16_t>(*texto);
    return copia;
}

// A folder of its own for each test; gone with the object.
class TCarpetaTemporal {
  public:
    TCarpetaTemporal() {
        const auto* prueba = testing::UnitTest::GetInstance()->current_test_info();
        FRuta = std::filesystem::absolute(CARPETA_TEMPORAL) /
                (std::string(prueba->test_suite_name()) + " " + prueba->name());
        std::filesystem::remove_all(FRuta);
        std::filesystem::create_directories(FRuta);
    }
    ~TCarpetaTemporal() {
        std::error_code error;
        std::filesystem::remove_all(FRuta, error);
    }
    TCarpetaTemporal(const TCarpetaTemporal&) = delete;
    TCarpetaTemporal& operator=(const TCarpetaTemporal&) = delete;

    [[nodiscard]] std::filesystem::path operator/(const std::filesystem::path& nombre) const {
        return FRuta / nombre;
    }

  private:
    std::filesystem::path FRuta;
};

}  // namespace analizador
