#include "adaptadores/dbase/ProveedorDbase.h"

#include <utility>

#include "adaptadores/dbase/OrdenDbf.h"
#include "adaptadores/dbase/TablaOrdenadaDbf.h"
#include "plataforma/Ansi.h"

namespace analizador {

namespace {

constexpr std::string_view EXTENSION = ".DBF";

std::string EnMayusculas(std::string_view texto) {
    std::string mayusculas(texto);
    for (char& c : mayusculas)
        if (c >= 'a' && c <= 'z') c = static_cast<char>(c - 'a' + 'A');
    return mayusculas;
}

std::string Ansi(const std::filesystem::path& ruta) {
    const std::u8string utf8 = ruta.u8string();
    return AnsiDeUtf8(std::string(utf8.begin(), utf8.end()));
}

std::string ConExtension(std::string_view fichero) {
    std::string nombre(fichero);
    if (!EnMayusculas(nombre).ends_with(EXTENSION)) nombre += EXTENSION;
    return nombre;
}

// The file of the folder with that name in whatever case; the exact name first.
std::filesystem::path BuscaFichero(const std::filesystem::path& carpeta, const std::string& nombre) {
    std::error_code error;
    if (std::filesystem::is_regular_file(carpeta / nombre, error)) return carpeta / nombre;
    const std::string buscado = EnMayusculas(nombre);
    std::filesystem::directory_iterator entrada(carpeta, error);
    for (; !error && entrada != std::filesystem::directory_iterator(); entrada.increment(error))
        if (EnMayusculas(Ansi(entrada->path().filename())) == buscado) return entrada->path();
    throw ErrorTabla("La tabla " + nombre + std::string(" no está en la carpeta "_ansi) + Ansi(carpeta));
}

TLecturaFichero LeeTabla(const std::filesystem::path& ruta) {
    TLecturaFichero lectura = LeeFichero(ruta);
    switch (lectura.Estado) {
        case TEstadoLectura::Entera:
            return lectura;
        case TEstadoLectura::SinPermiso:
        case TEstadoLectura::NoSeAbre:
            throw ErrorTabla("La tabla " + Ansi(ruta) + " no se puede abrir");
        case TEstadoLectura::NoSeLee:
            throw ErrorTabla("La tabla " + Ansi(ruta) + " no se puede leer");
        case TEstadoLectura::Cambia:
            break;
    }
    throw ErrorTabla("La tabla " + Ansi(ruta) + std::string(" está cambiando mientras se lee"_ansi));
}

}  // namespace

TProveedorDbase::TProveedorDbase(std::filesystem::path carpeta) : comun_(std::move(carpeta)) {}

TProveedorDbase::TProveedorDbase(const std::map<std::string, std::filesystem::path>& carpetas) {
    for (const auto& [alias, carpeta] : carpetas) carpetas_[EnMayusculas(alias)] = carpeta;
}

std::filesystem::path TProveedorDbase::Carpeta(std::string_view alias) const {
    if (!comun_.empty()) return comun_;
    const auto carpeta = carpetas_.find(EnMayusculas(alias));
    if (carpeta == carpetas_.end())
        throw ErrorTabla(std::string("No se conoce la carpeta de las tablas del alias "_ansi) +
                         std::string(alias));
    return carpeta->second;
}

std::shared_ptr<TProveedorDbase::TEntrada> TProveedorDbase::Entrada(const std::filesystem::path& ruta) {
    const std::lock_guard guarda(cerrojo_);
    std::shared_ptr<TEntrada>& entrada = entradas_[ruta];
    if (entrada == nullptr) entrada = std::make_shared<TEntrada>();
    return entrada;
}

std::shared_ptr<const TTablaEnMemoria> TProveedorDbase::Tabla(const std::filesystem::path& ruta) {
    const std::shared_ptr<TEntrada> entrada = Entrada(ruta);
    const std::lock_guard guarda(entrada->Cerrojo);
    const TMarcaFichero marca = MarcaDeFichero(ruta);
    if (entrada->Tabla != nullptr && !marca.Reciente && marca == entrada->Marca) return entrada->Tabla;
    TLecturaFichero lectura = LeeTabla(ruta);
    entrada->Tabla = std::make_shared<const TTablaEnMemoria>(EnMayusculas(Ansi(ruta.stem())),
                                                             std::move(lectura.Bytes), Ansi(ruta));
    entrada->Marca = lectura.Marca;
    return entrada->Tabla;
}

// A note that counted goes on counting as long as the table's mark says that nobody touched it.
bool TProveedorDbase::EstaEnOrden(const std::filesystem::path& ruta, const TMarcaFichero& marca,
                                  std::string_view indice) {
    const std::shared_ptr<TEntrada> entrada = Entrada(ruta);
    const std::lock_guard guarda(entrada->Cerrojo);
    if (entrada->Orden.empty() || marca.Reciente || marca != entrada->MarcaOrden) {
        entrada->Orden = OrdenAnotado(ruta, marca);
        entrada->MarcaOrden = marca;
    }
    return entrada->Orden == indice;
}

std::unique_ptr<TTabla> TProveedorDbase::Abre(std::string_view alias, std::string_view fichero,
                                              std::string_view indice) {
    const std::filesystem::path ruta = BuscaFichero(Carpeta(alias), ConExtension(fichero));
    const auto abreEntera = [this, ruta, indice = std::string(indice)]() -> std::unique_ptr<TTabla> {
        return std::make_unique<TTablaDbase>(Tabla(ruta), indice);
    };
    const TMarcaFichero marca = MarcaDeFichero(ruta);
    if (indice.empty() || !EstaEnOrden(ruta, marca, indice)) return abreEntera();
    auto ordenada = std::make_unique<TTablaOrdenadaDbf>(ruta, EnMayusculas(Ansi(ruta.stem())),
                                                        std::string(indice), Ansi(ruta), abreEntera);
    if (!MismaMarca(marca, MarcaDeFichero(ruta))) return abreEntera();  // another one by now
    return ordenada;
}

}  // namespace analizador
