#include "pruebas/dbase/ConstructorDbf.h"

#include <algorithm>
#include <fstream>

#include "plataforma/Rficheros.h"

namespace analizador {

std::string Bajo(std::uint64_t valor, int bytes) {
    std::string texto;
    for (int i = 0; i < bytes; ++i, valor >>= 8U) texto += static_cast<char>(valor & 0xFFU);
    return texto;
}

std::string Alto(std::uint64_t valor, int bytes) {
    std::string texto = Bajo(valor, bytes);
    std::reverse(texto.begin(), texto.end());
    return texto;
}

std::string Con(std::string bytes, std::size_t posicion, std::string_view nuevos) {
    return bytes.replace(posicion, nuevos.size(), nuevos);
}

std::string TFichero::Bytes() const {
    std::string descriptores;
    std::size_t registro = 1;
    for (const TCampoPrueba& campo : Campos) {
        const int nombre = Largos ? 32 : 11;
        std::string d = campo.Nombre;
        d.resize(static_cast<std::size_t>(nombre), '\0');
        d += campo.Tipo;
        if (!Largos) d.resize(16, '\0');
        d += static_cast<char>(campo.Ancho & 0xFF);
        d += static_cast<char>(campo.Tipo == 'C' ? campo.Ancho >> 8 : campo.Decimales);
        d.resize(Largos ? 48 : 32, '\0');
        descriptores += d;
        registro += static_cast<std::size_t>(campo.Ancho);
    }
    descriptores += '\x0D';
    descriptores.append(static_cast<std::size_t>(BytesTrasCampos), '\0');
    const std::size_t inicio = Largos ? 68 : 32;
    std::string bytes;
    bytes += static_cast<char>(Version);
    bytes += std::string("\x7E\x01\x02", 3);
    bytes += Bajo(Filas.size(), 4) + Bajo(inicio + descriptores.size(), 2) + Bajo(registro, 2);
    bytes.resize(29, '\0');
    bytes += static_cast<char>(Controlador);
    bytes.resize(inicio, '\0');
    bytes += descriptores;
    for (const auto& fila : Filas) {
        bytes += !fila.empty() && fila.front() == "*borrada*" ? '*' : ' ';
        const std::size_t primero = fila.size() > Campos.size() ? 1 : 0;
        for (std::size_t i = 0; i < Campos.size(); ++i) {
            std::string valor = fila.at(primero + i);
            valor.resize(static_cast<std::size_t>(Campos[i].Ancho), ' ');
            bytes += valor;
        }
    }
    return bytes + '\x1A';
}

std::unique_ptr<TTablaDbase> TablaDe(const TFichero& fichero, std::string_view nombre,
                                     std::string_view indice) {
    auto tabla = std::make_shared<const TTablaEnMemoria>(std::string(nombre), fichero.Bytes(),
                                                         std::string(nombre) + ".DBF");
    return std::make_unique<TTablaDbase>(std::move(tabla), indice);
}

TCarpetaPrueba::TCarpetaPrueba() : ruta_(FicheroTemporal_({}, "pruebas_dbase", "d")) {
    std::filesystem::remove(ruta_);
    std::filesystem::create_directory(ruta_);
}

TCarpetaPrueba::~TCarpetaPrueba() {
    std::error_code error;
    std::filesystem::remove_all(ruta_, error);
}

std::filesystem::path TCarpetaPrueba::Pon(std::string_view nombre, std::string_view bytes) const {
    std::ofstream(ruta_ / nombre, std::ios::binary) << bytes;
    return ruta_ / nombre;
}

std::vector<std::string> Columna(TTabla& tabla, std::string_view campo) {
    std::vector<std::string> valores;
    for (tabla.Primero(); !tabla.Fin(); tabla.Siguiente()) valores.push_back(tabla.Texto(campo));
    return valores;
}

}  // namespace analizador
