#include "adaptadores/dbase/OrdenDbf.h"

#include <cstdint>
#include <fstream>
#include <optional>

#include "adaptadores/dbase/FormatoDbf.h"
#include "adaptadores/dbase/ValoresDbf.h"

namespace analizador {

namespace {

std::filesystem::path Nota(std::filesystem::path tabla) {
    return tabla.replace_extension(".ORD");
}

constexpr std::uint64_t MUESTRAS = 65;  // stretches between the records of the sum

class TSumaFnv {
  public:
    void Suma(std::string_view bytes) {
        for (const char c : bytes) valor_ = (valor_ ^ static_cast<unsigned char>(c)) * 0x100000001B3U;
    }
    [[nodiscard]] std::uint64_t Valor() const { return valor_; }

  private:
    std::uint64_t valor_ = 0xCBF29CE484222325U;
};

bool LeeEn(std::ifstream& entrada, std::uint64_t posicion, std::string& bytes) {
    entrada.seekg(static_cast<std::streamoff>(posicion));
    return !!entrada.read(bytes.data(), static_cast<std::streamsize>(bytes.size()));
}

// Nothing when the file is too short for what its header says, or cannot be read.
std::optional<std::uint64_t> SumaDeTabla(const std::filesystem::path& tabla) {
    std::ifstream entrada;
    entrada.rdbuf()->pubsetbuf(nullptr, 0);  // each record alone is read, not a block around it
    entrada.open(tabla, std::ios::binary);
    std::string cabecera(CABECERA_DBF, '\0');
    if (!LeeEn(entrada, 0, cabecera)) return std::nullopt;
    const std::uint64_t registros = LeeBajo(cabecera, REGISTROS_EN, 4);
    std::string registro(LeeBajo(cabecera, LONGITUD_REGISTRO_EN, 2), '\0');
    cabecera.resize(LeeBajo(cabecera, LONGITUD_CABECERA_EN, 2));
    if (!LeeEn(entrada, 0, cabecera)) return std::nullopt;
    TSumaFnv suma;
    suma.Suma(cabecera);
    for (std::uint64_t i = 0; registros > 0 && i <= MUESTRAS; ++i) {
        const std::uint64_t cual = (registros - 1) * i / MUESTRAS;
        if (!LeeEn(entrada, cabecera.size() + cual * registro.size(), registro)) return std::nullopt;
        suma.Suma(registro);
    }
    return suma.Valor();
}

}  // namespace

void AnotaOrden(const std::filesystem::path& tabla, std::string_view indice) {
    const TMarcaFichero marca = MarcaDeFichero(tabla);
    const std::optional<std::uint64_t> suma = SumaDeTabla(tabla);
    std::ofstream nota(Nota(tabla), std::ios::trunc);
    if (marca.Existe && suma && nota)
        nota << indice << ' ' << marca.Longitud << ' ' << marca.Modificado << ' ' << *suma << '\n';
}

void OlvidaOrden(const std::filesystem::path& tabla) {
    std::error_code error;
    std::filesystem::remove(Nota(tabla), error);
}

std::string OrdenAnotado(const std::filesystem::path& tabla, const TMarcaFichero& marca) {
    std::ifstream nota(Nota(tabla));
    std::string indice;
    std::uint64_t longitud = 0;
    std::int64_t modificado = 0;
    std::uint64_t suma = 0;
    if (!(nota >> indice >> longitud >> modificado >> suma)) return {};
    const bool mismaMarca = marca.Existe && longitud == marca.Longitud && modificado == marca.Modificado;
    return mismaMarca && SumaDeTabla(tabla) == suma ? indice : std::string();
}

}  // namespace analizador
