#include "adaptadores/dbase/DatosDbf.h"

#include <utility>

#include "adaptadores/dbase/ValoresDbf.h"

namespace analizador {

TDatosDbf::TDatosDbf(std::string contenido, std::string fichero)
    : estructura_(std::make_shared<const TEstructuraDbf>(contenido, contenido.size(), std::move(fichero))),
      contenido_(std::move(contenido)),
      primero_(estructura_->LongitudCabecera()),
      longitudRegistro_(estructura_->LongitudRegistro()) {
    AnotaRegistros(estructura_->Registros());
    contenido_.resize(primero_ + estructura_->Registros() * longitudRegistro_);
    estructura_->TraduceTextos(contenido_, primero_);
}

TDatosDbf::TDatosDbf(std::shared_ptr<const TEstructuraDbf> estructura, std::string registros)
    : estructura_(std::move(estructura)),
      contenido_(std::move(registros)),
      longitudRegistro_(estructura_->LongitudRegistro()) {
    AnotaRegistros(contenido_.size() / longitudRegistro_);
}

void TDatosDbf::AnotaRegistros(std::size_t cuantos) {
    registros_.reserve(cuantos);
    for (std::size_t i = 0; i < cuantos; ++i)
        if (contenido_[primero_ + i * longitudRegistro_] != BORRADO_DBF)
            registros_.push_back(static_cast<std::uint32_t>(i));
}

std::string TDatosDbf::Texto(std::uint32_t fila, const TCampoDbf& campo) const {
    return TextoDeBytes(Bytes(fila, campo), campo.Clase);
}

std::optional<double> TDatosDbf::Numero(std::uint32_t fila, const TCampoDbf& campo) const {
    return NumeroDeBytes(Bytes(fila, campo), campo.Clase);
}

}  // namespace analizador
