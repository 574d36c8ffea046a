#include "dialogos/RejillaTipos.h"

#include <algorithm>
#include <utility>

#include "plataforma/Confnvx.h"
#include "plataforma/Rnumcad.h"
#include "plataforma/Rut.h"
#include "plataforma/Ruttb.h"

namespace analizador {

namespace {

std::string_view IndiceDe(TColumnaTipos columna) {
    switch (columna) {
        case TColumnaTipos::NUMEROTIPO:
            return "NUMERO";
        case TColumnaTipos::CLAVE_INTI:
            return "CLAVE_INTI";
        default:
            return "TIPO";
    }
}

std::vector<TFilaTipo> LeeTipos(TColumnaTipos orden) {
    std::vector<TFilaTipo> filas;
    const auto tabla = CreaTabla(Config().GetAliasNorvex(), "TIPOS.DBF", IndiceDe(orden), true, true);
    for (; !tabla->Fin(); tabla->Siguiente())
        filas.push_back({tabla->Entero("NUMEROTIPO"), tabla->Texto("NOMBRE"), tabla->Texto("CLAVE_INTI"),
                         tabla->Texto("TIPO"), tabla->Texto("COD_OFICIA"), tabla->Logico("PRESTAMO")});
    return filas;
}

std::string PlegadoSinBlancosFinales(std::string_view texto) {
    return Pliega(texto.substr(0, texto.find_last_not_of(' ') + 1));
}

}  // namespace

TRejillaTipos::TRejillaTipos() {
    Muestra(LeeTipos(TColumnaTipos::TIPO), TColumnaTipos::TIPO);
}

void TRejillaTipos::Ordena(TColumnaTipos columna) {
    if (columna != TColumnaTipos::NOMBRE) Muestra(LeeTipos(columna), columna);
}

void TRejillaTipos::Muestra(std::vector<TFilaTipo> filas, TColumnaTipos orden) {
    filas_ = std::move(filas);
    orden_ = orden;
    SeleccionaNada();
    actual_.reset();
    if (!filas_.empty()) actual_ = 0;
    ++revision_;
}

template <class TCondicion>
bool TRejillaTipos::BuscaPrimera(TCondicion condicion) {
    const auto fila = std::find_if(filas_.begin(), filas_.end(), condicion);
    if (fila == filas_.end()) return false;
    SeleccionaNada();
    actual_ = static_cast<std::size_t>(fila - filas_.begin());
    return true;
}

bool TRejillaTipos::BuscaTipo(std::string_view tipo) {
    const std::string buscado = PlegadoSinBlancosFinales(tipo);
    return BuscaPrimera(
        [&](const TFilaTipo& fila) { return PlegadoSinBlancosFinales(fila.Tipo) == buscado; });
}

bool TRejillaTipos::BuscaNumero(int numero) {
    return BuscaPrimera([&](const TFilaTipo& fila) { return fila.NumeroTipo == numero; });
}

bool TRejillaTipos::BuscaComienzo(std::string_view texto) {
    const std::string buscado = Pliega(texto);
    return BuscaPrimera([&](const TFilaTipo& fila) { return Pliega(fila.Tipo).starts_with(buscado); });
}

bool TRejillaTipos::BuscaFila(const TFilaTipo& fila) {
    return BuscaPrimera([&](const TFilaTipo& otra) { return otra == fila; });
}

void TRejillaTipos::Anterior() {
    if (!actual_) return;
    SeleccionaNada();
    if (*actual_ > 0) --*actual_;
}

void TRejillaTipos::Siguiente() {
    if (!actual_) return;
    SeleccionaNada();
    if (*actual_ + 1 < filas_.size()) ++*actual_;
}

void TRejillaTipos::Selecciona(const std::vector<std::size_t>& posiciones) {
    SeleccionaNada();
    for (const std::size_t donde : posiciones)
        if (donde < filas_.size()) seleccionadas_[donde] = true;
}

void TRejillaTipos::SeleccionaNada() {
    seleccionadas_.assign(filas_.size(), false);
}

std::vector<std::size_t> TRejillaTipos::Seleccionadas() const {
    std::vector<std::size_t> posiciones;
    for (std::size_t i = 0; i < filas_.size(); ++i)
        if (seleccionadas_[i]) posiciones.push_back(i);
    if (posiciones.empty() && actual_) posiciones.push_back(*actual_);
    return posiciones;
}

void TRejillaTipos::PonActual(std::optional<std::size_t> donde) {
    if (!donde || *donde < filas_.size()) actual_ = donde;
}

}  // namespace analizador
