#include "adaptadores/dbase/TablaDbase.h"

#include <algorithm>
#include <cmath>
#include <limits>
#include <utility>

#include "adaptadores/dbase/ValoresDbf.h"
#include "plataforma/Ansi.h"

namespace analizador {

namespace {

// The position in [desde, hasta) of the first for which `antes` is false; all before it fulfil it.
template <class Antes>
std::size_t Particion(std::size_t desde, std::size_t hasta, Antes antes) {
    while (desde < hasta) {
        const std::size_t medio = desde + (hasta - desde) / 2;
        if (antes(medio))
            desde = medio + 1;
        else
            hasta = medio;
    }
    return desde;
}

int EnteroDe(std::optional<double> numero) {
    if (!numero || *numero != std::trunc(*numero)) return 0;
    if (*numero < std::numeric_limits<int>::min() || *numero > std::numeric_limits<int>::max()) return 0;
    return static_cast<int>(*numero);
}

}  // namespace

TTablaEnMemoria::TTablaEnMemoria(std::string nombre, std::string contenido, std::string fichero)
    : nombre_(std::move(nombre)), datos_(std::move(contenido), std::move(fichero)) {}

TTablaEnMemoria::TTablaEnMemoria(std::string nombre, TDatosDbf datos)
    : nombre_(std::move(nombre)), datos_(std::move(datos)) {}

const TIndiceDbf& TTablaEnMemoria::Indice(std::string_view nombre) const {
    const std::lock_guard guarda(cerrojo_);
    const auto hecho = indices_.find(nombre);
    if (hecho != indices_.end()) return *hecho->second;
    const std::vector<std::string> campos = CamposDeIndice(nombre_, nombre);
    if (campos.front() == nombre && !datos_.TieneCampo(nombre))
        throw ErrorTabla("La tabla " + datos_.Fichero() + std::string(" no tiene el índice "_ansi) +
                         std::string(nombre) + " ni un campo con ese nombre");
    auto indice = std::make_unique<const TIndiceDbf>(datos_, campos);
    return *indices_.emplace(nombre, std::move(indice)).first->second;
}

TTablaDbase::TTablaDbase(std::shared_ptr<const TTablaEnMemoria> tabla, std::string_view indice)
    : tabla_(std::move(tabla)), datos_(tabla_->Datos()) {
    Indexa(indice);
}

std::uint32_t TTablaDbase::Fila(std::size_t posicion) const {
    if (reunidas_) return (*reunidas_)[posicion];
    return indice_ == nullptr ? static_cast<std::uint32_t>(posicion) : indice_->Orden()[posicion];
}

bool TTablaDbase::Pasa(std::size_t posicion) const {
    if (!filtro_) return true;
    return (EnteroDe(datos_.Numero(Fila(posicion), *filtro_->Campo)) == filtro_->Valor) != filtro_->Distinto;
}

void TTablaDbase::SaltaLoFiltrado() {
    while (posicion_ < hasta_ && !Pasa(posicion_)) ++posicion_;
}

void TTablaDbase::Primero() {
    posicion_ = desde_;
    SaltaLoFiltrado();
}

void TTablaDbase::Siguiente() {
    if (posicion_ < hasta_) ++posicion_;
    SaltaLoFiltrado();
}

int TTablaDbase::CuentaFilas() {
    if (!filtro_) return static_cast<int>(hasta_ - desde_);
    int filas = 0;
    for (std::size_t p = desde_; p < hasta_; ++p) filas += Pasa(p) ? 1 : 0;
    return filas;
}

std::string TTablaDbase::Texto(std::string_view campo) const {
    const TCampoDbf& encontrado = datos_.Campo(campo);
    return Fin() ? std::string() : datos_.Texto(Fila(posicion_), encontrado);
}

int TTablaDbase::Entero(std::string_view campo) const {
    const TCampoDbf& encontrado = datos_.Campo(campo);
    return Fin() ? 0 : EnteroDe(datos_.Numero(Fila(posicion_), encontrado));
}

bool TTablaDbase::Logico(std::string_view campo) const {
    const TCampoDbf& encontrado = datos_.Campo(campo);
    return !Fin() && encontrado.Clase == TClaseCampo::Logico &&
           datos_.Texto(Fila(posicion_), encontrado) == "T";
}

void TTablaDbase::Indexa(std::string_view indice) {
    indice_ = indice.empty() ? nullptr : &tabla_->Indice(indice);
    CancelaRango();
}

void TTablaDbase::CancelaRango() {
    reunidas_.reset();
    desde_ = 0;
    hasta_ = datos_.Filas();
    Primero();
}

std::size_t TTablaDbase::PrimeroNoAntes(const TClaveDbf& clave) const {
    return Particion(desde_, hasta_, [&](std::size_t p) { return clave.Compara(Registro(p)) < 0; });
}

std::size_t TTablaDbase::PrimeroDespues(const TClaveDbf& clave) const {
    return Particion(desde_, hasta_, [&](std::size_t p) { return clave.Compara(Registro(p)) <= 0; });
}

bool TTablaDbase::Busca(TClave clave) {
    if (indice_ == nullptr) {
        posicion_ = hasta_;
        return false;
    }
    const TClaveDbf buscada(datos_.Fichero(), indice_->Campos(), clave);
    const bool seguidas = buscada.Ordenada() && !reunidas_;
    std::size_t fin = hasta_;
    posicion_ = desde_;
    if (seguidas) {
        posicion_ = PrimeroNoAntes(buscada);
        fin = PrimeroDespues(buscada);
    }
    while (posicion_ < fin && !(buscada.Compara(Registro(posicion_)) == 0 && Pasa(posicion_))) ++posicion_;
    if (posicion_ >= fin) posicion_ = hasta_;
    return posicion_ < hasta_;
}

bool TTablaDbase::Rango(TClave desde, TClave hasta) {
    if (indice_ == nullptr) return false;
    const TClaveDbf primera(datos_.Fichero(), indice_->Campos(), desde);
    const TClaveDbf ultima(datos_.Fichero(), indice_->Campos(), hasta);
    CancelaRango();
    if (!primera.Ordenada() || !ultima.Ordenada()) {
        ReuneRango(primera, ultima);
    } else {
        const std::size_t inicio = PrimeroNoAntes(primera);
        hasta_ = std::max(inicio, PrimeroDespues(ultima));
        desde_ = inicio;
    }
    Primero();
    return true;
}

void TTablaDbase::ReuneRango(const TClaveDbf& desde, const TClaveDbf& hasta) {
    std::vector<std::uint32_t> filas;
    for (std::size_t p = desde_; p < hasta_; ++p)
        if (desde.Compara(Registro(p)) >= 0 && hasta.Compara(Registro(p)) <= 0) filas.push_back(Fila(p));
    reunidas_ = std::move(filas);
    hasta_ = reunidas_->size();
}

void TTablaDbase::Filtra(std::string_view condicion) {
    filtro_.reset();
    if (!SinBlancos(condicion).empty()) filtro_ = LeeFiltro(condicion);
    Primero();
}

TTablaDbase::TFiltro TTablaDbase::LeeFiltro(std::string_view condicion) const {
    const std::size_t signo = std::min(condicion.find_first_of("<="), condicion.size());
    const bool distinto = condicion.substr(signo, 2) == "<>";
    const bool igual = condicion.substr(signo, 1) == "=";
    const std::optional<double> valor =
        distinto || igual ? EnteroDeDigitos(condicion.substr(signo + (distinto ? 2 : 1))) : std::nullopt;
    if (!valor || *valor != EnteroDe(valor))
        throw ErrorTabla("La tabla " + datos_.Fichero() + std::string(": no se entiende la condición "_ansi) +
                         std::string(condicion));
    return {&datos_.Campo(SinBlancos(condicion.substr(0, signo))), EnteroDe(valor), distinto};
}

}  // namespace analizador
