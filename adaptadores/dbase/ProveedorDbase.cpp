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

TLecturaFichero LeeTabla(const std::filesystem::path& ruta, const TTomaMarca& marca) {
    TLecturaFichero lectura = LeeFichero(ruta, marca);
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

TProveedorDbase::TProveedorDbase(std::filesystem::path carpeta, TTomaMarca marca)
    : marca_(std::move(marca)), comun_(std::move(carpeta)) {}

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

// The file of the folder with that name in whatever case; the exact name first.
TProveedorDbase::TFicheroTabla TProveedorDbase::BuscaFichero(const std::filesystem::path& carpeta,
                                                             const std::string& nombre) const {
    const std::filesystem::path exacta = carpeta / nombre;
    if (const TMarcaFichero marca = marca_(exacta); marca.Existe) return {exacta, marca};
    const std::string buscado = EnMayusculas(nombre);
    std::error_code error;
    std::filesystem::directory_iterator entrada(carpeta, error);
    for (; !error && entrada != std::filesystem::directory_iterator(); entrada.increment(error))
        if (EnMayusculas(Ansi(entrada->path().filename())) == buscado)
            return {entrada->path(), marca_(entrada->path())};
    throw ErrorTabla("La tabla " + nombre + std::string(" no está en la carpeta "_ansi) + Ansi(carpeta));
}

std::shared_ptr<TProveedorDbase::TEntrada> TProveedorDbase::Entrada(const std::filesystem::path& ruta) {
    const std::lock_guard guarda(cerrojo_);
    std::shared_ptr<TEntrada>& entrada = entradas_[ruta.native()];
    if (entrada == nullptr) entrada = std::make_shared<TEntrada>();
    return entrada;
}

// Forgets what was kept of another content, or may have been.
void TProveedorDbase::Renueva(TEntrada& entrada, const TMarcaFichero& marca) {
    if (!marca.Reciente && marca == entrada.Marca) return;
    entrada.Marca = marca;
    entrada.NotaMirada = false;
    entrada.EnFichero.reset();
    entrada.Tabla.reset();
}

// A note that counted, or did not, goes on so as long as the table's mark says that nobody touched it.
void TProveedorDbase::MiraNota(TEntrada& entrada, const std::filesystem::path& ruta) try {
    if (std::exchange(entrada.NotaMirada, true)) return;
    TOrdenesDbf ordenes = OrdenAnotado(ruta, entrada.Marca);
    if (ordenes.empty()) return;
    entrada.EnFichero = std::make_shared<TTablaEnFichero>(
        ruta, entrada.Marca, EnMayusculas(Ansi(ruta.stem())), Ansi(ruta), std::move(ordenes));
} catch (const ErrorTabla&) {
    // Whoever reads it whole tells what is wrong with it, if it stays so.
}

std::shared_ptr<const TTablaEnMemoria> TProveedorDbase::Entera(TEntrada& entrada,
                                                               const std::filesystem::path& ruta) const {
    if (entrada.Tabla != nullptr) return entrada.Tabla;
    TLecturaFichero lectura = LeeTabla(ruta, marca_);
    entrada.Tabla = std::make_shared<const TTablaEnMemoria>(EnMayusculas(Ansi(ruta.stem())),
                                                            std::move(lectura.Bytes), Ansi(ruta));
    entrada.Marca = lectura.Marca;
    entrada.EnFichero.reset();
    return entrada.Tabla;
}

std::unique_ptr<TTabla> TProveedorDbase::AbreEntera(const TFicheroTabla& fichero, std::string_view indice) {
    const std::shared_ptr<TEntrada> entrada = Entrada(fichero.Ruta);
    std::unique_lock guarda(entrada->Cerrojo);
    Renueva(*entrada, fichero.Marca);
    std::shared_ptr<const TTablaEnMemoria> tabla = Entera(*entrada, fichero.Ruta);
    guarda.unlock();
    return std::make_unique<TTablaDbase>(std::move(tabla), indice);
}

std::shared_ptr<TTablaEnFichero> TProveedorDbase::EnOrden(const TFicheroTabla& fichero,
                                                          std::string_view indice) {
    if (indice.empty()) return nullptr;
    const std::shared_ptr<TEntrada> entrada = Entrada(fichero.Ruta);
    const std::lock_guard guarda(entrada->Cerrojo);
    Renueva(*entrada, fichero.Marca);
    if (entrada->Tabla != nullptr) return nullptr;
    MiraNota(*entrada, fichero.Ruta);
    const std::shared_ptr<TTablaEnFichero>& tabla = entrada->EnFichero;
    return tabla != nullptr && tabla->ConoceOrden(indice) && !tabla->CompensaEntera() ? tabla : nullptr;
}

std::unique_ptr<TTabla> TProveedorDbase::Abre(std::string_view alias, std::string_view fichero,
                                              std::string_view indice) {
    const TFicheroTabla hallado = BuscaFichero(Carpeta(alias), ConExtension(fichero));
    const std::shared_ptr<TTablaEnFichero> enOrden = EnOrden(hallado, indice);
    if (enOrden == nullptr) return AbreEntera(hallado, indice);
    return std::make_unique<TTablaOrdenadaDbf>(enOrden, indice,
                                               [this, ruta = hallado.Ruta, indice = std::string(indice)] {
                                                   return AbreEntera({ruta, marca_(ruta)}, indice);
                                               });
}

}  // namespace analizador
