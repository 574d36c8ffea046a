#include "adaptadores/dbase/FicheroTabla.h"

#include <utility>

#include "adaptadores/dbase/OrdenDbf.h"
#include "adaptadores/dbase/TablaOrdenadaDbf.h"
#include "plataforma/Ansi.h"

namespace analizador {

namespace {

TLecturaFichero LeeTabla(const std::filesystem::path& ruta, const TTomaMarca& marca) {
    TLecturaFichero lectura = LeeFichero(ruta, marca);
    switch (lectura.Estado) {
        case TEstadoLectura::Entera:
            return lectura;
        case TEstadoLectura::SinPermiso:
        case TEstadoLectura::NoSeAbre:
            throw ErrorTabla("La tabla " + AnsiDeRuta(ruta) + " no se puede abrir");
        case TEstadoLectura::NoSeLee:
            throw ErrorTabla("La tabla " + AnsiDeRuta(ruta) + " no se puede leer");
        case TEstadoLectura::Cambia:
            break;
    }
    throw ErrorTabla("La tabla " + AnsiDeRuta(ruta) + std::string(" está cambiando mientras se lee"_ansi));
}

std::string NombreDeTabla(const std::filesystem::path& ruta) {
    return EnMayusculas(AnsiDeRuta(ruta.stem()));
}

}  // namespace

std::string AnsiDeRuta(const std::filesystem::path& ruta) {
    return AnsiDeUtf8(Utf8DeRuta(ruta));
}

std::string EnMayusculas(std::string_view texto) {
    std::string mayusculas(texto);
    for (char& c : mayusculas)
        if (c >= 'a' && c <= 'z') c = static_cast<char>(c - 'a' + 'A');
    return mayusculas;
}

TFicheroTabla::TFicheroTabla(std::filesystem::path ruta, TTomaMarca tomaMarca)
    : ruta_(std::move(ruta)), tomaMarca_(std::move(tomaMarca)) {}

// Forgets what was kept of another content, or may have been.
void TFicheroTabla::Renueva(const TMarcaFichero& marca) {
    if (!marca.Reciente && marca == marca_) return;
    marca_ = marca;
    notaMirada_ = false;
    enFichero_.reset();
    entera_.reset();
}

// A note that counted, or did not, goes on so as long as the table's mark says that nobody touched it.
void TFicheroTabla::MiraNota() try {
    if (std::exchange(notaMirada_, true)) return;
    TOrdenesDbf ordenes = OrdenAnotado(ruta_, marca_);
    if (ordenes.empty()) return;
    enFichero_ = std::make_shared<TTablaEnFichero>(ruta_, marca_, NombreDeTabla(ruta_), AnsiDeRuta(ruta_),
                                                   std::move(ordenes));
} catch (const ErrorTabla&) {
    // Whoever reads it whole tells what is wrong with it, if it stays so.
}

// None when the whole table is to be used.
std::shared_ptr<TTablaEnFichero> TFicheroTabla::EnOrden(const TMarcaFichero& marca, std::string_view indice) {
    const std::lock_guard guarda(cerrojo_);
    Renueva(marca);
    if (indice.empty() || entera_ != nullptr) return nullptr;
    MiraNota();
    const bool sirve =
        enFichero_ != nullptr && enFichero_->ConoceOrden(indice) && !enFichero_->CompensaEntera();
    return sirve ? enFichero_ : nullptr;
}

void TFicheroTabla::LeeEntera() {
    TLecturaFichero lectura = LeeTabla(ruta_, tomaMarca_);
    entera_ = std::make_shared<const TTablaEnMemoria>(NombreDeTabla(ruta_), std::move(lectura.Bytes),
                                                      AnsiDeRuta(ruta_));
    marca_ = lectura.Marca;
    enFichero_.reset();
}

std::unique_ptr<TTabla> TFicheroTabla::AbreEntera(const TMarcaFichero& marca, std::string_view indice) {
    std::unique_lock guarda(cerrojo_);
    Renueva(marca);
    if (entera_ == nullptr) LeeEntera();
    std::shared_ptr<const TTablaEnMemoria> entera = entera_;
    guarda.unlock();
    return std::make_unique<TTablaDbase>(std::move(entera), indice);
}

std::unique_ptr<TTabla> TFicheroTabla::Abre(const TMarcaFichero& marca, std::string_view indice) {
    const std::shared_ptr<TTablaEnFichero> enOrden = EnOrden(marca, indice);
    if (enOrden == nullptr) return AbreEntera(marca, indice);
    return std::make_unique<TTablaOrdenadaDbf>(
        enOrden, indice, [propio = shared_from_this(), indice = std::string(indice)] {
            return propio->AbreEntera(propio->tomaMarca_(propio->ruta_), indice);
        });
}

}  // namespace analizador
