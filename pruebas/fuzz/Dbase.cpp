#include <algorithm>
#include <array>
#include <cmath>
#include <fstream>
#include <memory>
#include <optional>
#include <vector>

#include "adaptadores/dbase/TablaDbase.h"
#include "adaptadores/dbase/TablaOrdenadaDbf.h"
#include "plataforma/CarpetaPrivada.h"
#include "plataforma/Rut.h"
#include "pruebas/fuzz/Fuzzers.h"

namespace analizador {

namespace {

using TTablaLeida = std::shared_ptr<const TTablaEnMemoria>;

constexpr std::string_view FICHERO = "TABLA.DBF";
constexpr std::uint32_t CLAVES_PROBADAS = 6;  // rows whose keys are looked for

std::vector<std::string> Columna(TTabla& tabla, std::string_view campo) {
    std::vector<std::string> textos;
    for (; !tabla.Fin(); tabla.Siguiente()) textos.push_back(tabla.Texto(campo));
    return textos;
}

void CompruebaRecorrido(const TTablaLeida& tabla) {
    TTablaDbase cursor(tabla, "");
    int filas = 0;
    for (; !cursor.Fin(); cursor.Siguiente(), ++filas)
        for (const auto& campo : tabla->Datos().Campos()) {
            const std::string texto = cursor.Texto(campo.Nombre);
            Exige(!texto.ends_with(' '), "a text with blanks at its right");
            Exige(!cursor.Logico(campo.Nombre) || texto == "T", "true and not T");
            static_cast<void>(cursor.Entero(campo.Nombre));
        }
    Exige(filas == cursor.CuentaFilas(), "not as many rows as counted");
}

void CompruebaFiltro(const TTablaLeida& tabla, const std::string& campo) {
    if (campo.find_first_of("<=") != std::string::npos || campo.front() == ' ')
        return;  // no condition can name it
    TTablaDbase cursor(tabla, "");
    const int todas = cursor.CuentaFilas();
    cursor.Filtra(campo + "=1");
    const int iguales = cursor.CuentaFilas();
    cursor.Filtra(campo + "<>1");
    Exige(cursor.CuentaFilas() == todas - iguales, "a filter and its contrary are not all rows");
}

// The key of a text field for comparing it with others by its bytes.
std::string Clave(const TDatosDbf& datos, std::uint32_t fila, const TCampoDbf& campo) {
    std::string clave = Pliega(datos.Texto(fila, campo));
    clave.resize(campo.Longitud, ' ');
    return clave;
}

int CuentaEntre(const TDatosDbf& datos, const TCampoDbf& campo, const std::string& desde,
                const std::string& hasta) {
    int cuantas = 0;
    for (std::uint32_t fila = 0; fila < datos.Filas(); ++fila) {
        const std::string clave = Clave(datos, fila, campo);
        cuantas += desde <= clave && clave <= hasta ? 1 : 0;
    }
    return cuantas;
}

bool SeBusca(const TDatosDbf& datos, std::uint32_t fila, const TCampoDbf& campo) {
    if (campo.Clase == TClaseCampo::Texto) return true;
    const auto numero = datos.Numero(fila, campo);
    return numero && std::isfinite(*numero);
}

void CompruebaBusquedas(const TTablaLeida& tabla, std::string_view indice, const TCampoDbf& campo) {
    const TDatosDbf& datos = tabla->Datos();
    TTablaDbase cursor(tabla, indice);
    const std::string primera = Clave(datos, 0, campo);
    for (std::uint32_t fila = 0; fila < std::min(datos.Filas(), CLAVES_PROBADAS); ++fila) {
        if (!SeBusca(datos, fila, campo)) continue;
        const std::string texto = datos.Texto(fila, campo);
        Exige(cursor.Busca({{campo.Nombre, texto}}), "a row is not found by its key");
        if (campo.Clase != TClaseCampo::Texto) continue;
        const std::string clave = Clave(datos, fila, campo);
        Exige(cursor.Rango({{campo.Nombre, texto}}, {{campo.Nombre, texto}}), "no range on an index");
        Exige(cursor.CuentaFilas() == CuentaEntre(datos, campo, clave, clave), "not all rows of a key");
        static_cast<void>(cursor.Rango({{campo.Nombre, datos.Texto(0, campo)}}, {{campo.Nombre, texto}}));
        Exige(cursor.CuentaFilas() == CuentaEntre(datos, campo, primera, clave), "not all rows of a range");
        cursor.CancelaRango();
    }
    static_cast<void>(cursor.Busca({{campo.Nombre, 1}}));
    static_cast<void>(cursor.Rango({{campo.Nombre, -7}}, {{campo.Nombre, 40}}));
    static_cast<void>(cursor.Busca({{campo.Nombre, "7"}}));
}

// The same range read from the file by looking at a few records.
void CompruebaEnOrden(const TTablaLeida& tabla, std::string_view nombre, std::string_view indice,
                      const TCampoDbf& campo, std::string_view bytes) {
    static const auto ruta = CarpetaPrivada() / FICHERO;
    std::ofstream(ruta, std::ios::binary).write(bytes.data(), static_cast<std::streamsize>(bytes.size()));
    const TDatosDbf& datos = tabla->Datos();
    const auto abreEntera = [&] { return std::make_unique<TTablaDbase>(tabla, indice); };
    const auto enFichero = std::make_shared<TTablaEnFichero>(ruta, MarcaDeFichero(ruta), std::string(nombre),
                                                             std::string(FICHERO),
                                                             TOrdenesDbf{{std::string(indice), TOrdenDbf()}});
    if (!enFichero->ConoceOrden(indice)) return;
    TTablaOrdenadaDbf ordenada(enFichero, indice, abreEntera);
    TTablaDbase entera(tabla, indice);
    const std::string texto = datos.Texto(datos.Filas() / 2, campo);
    static_cast<void>(ordenada.Rango({{campo.Nombre, texto}}, {{campo.Nombre, texto}}));
    static_cast<void>(entera.Rango({{campo.Nombre, texto}}, {{campo.Nombre, texto}}));
    const auto leidas = Columna(ordenada, campo.Nombre);
    const auto& orden = tabla->Indice(indice).Orden();
    if (std::ranges::is_sorted(orden) && SeBusca(datos, datos.Filas() / 2, campo))
        Exige(leidas == Columna(entera, campo.Nombre), "a range differs between file and memory");
}

void CompruebaIndice(const TTablaLeida& tabla, std::string_view nombre, const std::string& indice,
                     bool enFichero, std::string_view bytes) {
    const TIndiceDbf& leido = tabla->Indice(indice);
    std::vector<std::uint32_t> filas = leido.Orden();
    std::ranges::sort(filas);
    for (std::uint32_t i = 0; i < filas.size(); ++i) Exige(filas[i] == i, "an index that lacks a row");
    Exige(filas.size() == tabla->Datos().Filas(), "an index without all rows");
    if (filas.empty()) return;
    const TCampoDbf& campo = *leido.Campos().front();
    CompruebaBusquedas(tabla, indice, campo);
    if (enFichero) CompruebaEnOrden(tabla, nombre, indice, campo, bytes);
}

}  // namespace

void FuzzDbase(std::string_view bytes) {
    if (bytes.empty()) return;
    // Three tables have indexes of other names than their fields; the rest are like the last.
    constexpr std::array<std::string_view, 4> TABLAS = {"TIPOS", "PROVIN", "POSTAL", "PILA"};
    constexpr std::array<std::string_view, 4> INDICES = {"NUMERO", "ALFABETICO", "NOMBREVIA", "NOMBRE"};
    const auto eleccion = static_cast<unsigned char>(bytes.front());
    const std::string_view nombre = TABLAS.at(eleccion % TABLAS.size());
    bytes.remove_prefix(1);
    try {
        const auto tabla = std::make_shared<const TTablaEnMemoria>(std::string(nombre), std::string(bytes),
                                                                   std::string(FICHERO));
        CompruebaRecorrido(tabla);
        CompruebaFiltro(tabla, tabla->Datos().Campos().front().Nombre);
        CompruebaIndice(tabla, nombre, tabla->Datos().Campos().front().Nombre, eleccion >= 128, bytes);
        CompruebaIndice(tabla, nombre, std::string(INDICES.at(eleccion % INDICES.size())), eleccion >= 192,
                        bytes);
    } catch (const ErrorTabla& error) {
        Exige(std::string_view(error.what()).find(FICHERO) != std::string_view::npos,
              "an error that does not name the file: " + std::string(error.what()));
    }
}

}  // namespace analizador
