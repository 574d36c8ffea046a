#include "adaptadores/dbase/ProveedorDbase.h"

#include "plataforma/Ansi.h"

namespace analizador {

namespace {

constexpr std::string_view EXTENSION = ".DBF";

std::string ConExtension(std::string_view fichero) {
    std::string nombre(fichero);
    if (!EnMayusculas(nombre).ends_with(EXTENSION)) nombre += EXTENSION;
    return nombre;
}

}  // namespace

TProveedorDbase::TProveedorDbase(std::filesystem::path carpeta, TTomaMarca tomaMarca)
    : tomaMarca_(std::move(tomaMarca)), comun_(std::move(carpeta)) {}

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

// The file of the folder with that name in whatever case, the exact name first; and its mark.
std::pair<std::filesystem::path, TMarcaFichero> TProveedorDbase::BuscaFichero(
    const std::filesystem::path& carpeta, const std::string& nombre) const {
    std::filesystem::path ruta = carpeta / nombre;
    if (const TMarcaFichero marca = tomaMarca_(ruta); marca.Existe) return {std::move(ruta), marca};
    const std::string buscado = EnMayusculas(nombre);
    std::error_code error;
    std::filesystem::directory_iterator entrada(carpeta, error);
    for (; !error && entrada != std::filesystem::directory_iterator(); entrada.increment(error))
        if (EnMayusculas(AnsiDeRuta(entrada->path().filename())) == buscado)
            return {entrada->path(), tomaMarca_(entrada->path())};
    throw ErrorTabla("La tabla " + nombre + std::string(" no está en la carpeta "_ansi) +
                     AnsiDeRuta(carpeta));
}

std::shared_ptr<TFicheroTabla> TProveedorDbase::Fichero(const std::filesystem::path& ruta) {
    const std::lock_guard guarda(cerrojo_);
    std::shared_ptr<TFicheroTabla>& fichero = ficheros_[ruta.native()];
    if (fichero == nullptr) fichero = std::make_shared<TFicheroTabla>(ruta, tomaMarca_);
    return fichero;
}

std::unique_ptr<TTabla> TProveedorDbase::Abre(std::string_view alias, std::string_view fichero,
                                              std::string_view indice) {
    const auto [ruta, marca] = BuscaFichero(Carpeta(alias), ConExtension(fichero));
    return Fichero(ruta)->Abre(marca, indice);
}

}  // namespace analizador
