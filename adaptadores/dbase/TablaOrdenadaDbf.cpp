#include "adaptadores/dbase/TablaOrdenadaDbf.h"

#include <algorithm>
#include <utility>

#include "adaptadores/dbase/FormatoDbf.h"
#include "adaptadores/dbase/ValoresDbf.h"

namespace analizador {

TTablaOrdenadaDbf::TTablaOrdenadaDbf(const std::filesystem::path& ruta, std::string nombre,
                                     std::string indice, std::string fichero, TAbreEntera abreEntera)
    : nombre_(std::move(nombre)),
      indice_(std::move(indice)),
      fichero_(std::move(fichero)),
      abreEntera_(std::move(abreEntera)),
      ruta_(ruta),
      marca_(MarcaDeFichero(ruta)),
      entrada_(ruta, std::ios::binary),
      cabecera_(CABECERA_DBF, '\0') {
    entrada_.read(cabecera_.data(), static_cast<std::streamsize>(cabecera_.size()));
    if (!entrada_) throw ErrorTabla("La tabla " + fichero_ + " no se puede leer");
    registros_ = LeeBajo(cabecera_, REGISTROS_EN, 4);
    longitudRegistro_ = LeeBajo(cabecera_, LONGITUD_REGISTRO_EN, 2);
    const std::uint64_t longitud =
        std::max<std::uint64_t>(LeeBajo(cabecera_, LONGITUD_CABECERA_EN, 2), CABECERA_DBF);
    cabecera_.resize(longitud);
    entrada_.read(cabecera_.data() + CABECERA_DBF, static_cast<std::streamsize>(longitud - CABECERA_DBF));
    if (!entrada_) throw ErrorTabla("La tabla " + fichero_ + " no se puede leer");
    static_cast<void>(Campos(Datos({})));
}

TTabla& TTablaOrdenadaDbf::Entera() const {
    tramo_.reset();
    if (entera_ == nullptr) {
        entera_ = abreEntera_();
        entera_->Filtra(filtro_);
    }
    return *entera_;
}

std::string TTablaOrdenadaDbf::Registros(std::uint64_t primero, std::uint64_t cuantos) {
    if (cuantos == 0) return {};
    std::string bytes(cuantos * longitudRegistro_, '\0');
    entrada_.seekg(static_cast<std::streamoff>(cabecera_.size() + primero * longitudRegistro_));
    entrada_.read(bytes.data(), static_cast<std::streamsize>(bytes.size()));
    if (!entrada_) throw ErrorTabla("La tabla " + fichero_ + " no se puede leer: le faltan registros");
    return bytes;
}

// A table of those records alone.
TDatosDbf TTablaOrdenadaDbf::Datos(std::string_view registros) const {
    const std::size_t cuantos = registros.empty() ? 0 : registros.size() / longitudRegistro_;
    std::string contenido = cabecera_;
    for (std::size_t i = 0; i < 4; ++i)
        contenido[REGISTROS_EN + i] = static_cast<char>(cuantos >> 8U * i & 0xFFU);
    contenido += registros;
    return {std::move(contenido), fichero_};
}

std::vector<const TCampoDbf*> TTablaOrdenadaDbf::Campos(const TDatosDbf& datos) const {
    std::vector<const TCampoDbf*> campos;
    for (const std::string& campo : CamposDeIndice(nombre_, indice_)) campos.push_back(&datos.Campo(campo));
    return campos;
}

// The first record from `desde` on whose order to the key (below 0, 0, above) does not fulfil `antes`; any
// one when the records are not in order.
std::uint64_t TTablaOrdenadaDbf::PrimeroQueNo(const std::function<bool(int)>& antes, std::uint64_t desde,
                                              TClave clave) {
    std::uint64_t hasta = registros_;
    while (desde < hasta) {
        const std::uint64_t medio = desde + (hasta - desde) / 2;
        const TDatosDbf datos = Datos(leidos_[medio] = Registros(medio, 1));
        const std::vector<const TCampoDbf*> campos = Campos(datos);
        if (datos.Filas() == 1 && antes(TClaveDbf(datos, campos, clave).Compara(0)))
            desde = medio + 1;
        else
            hasta = medio;
    }
    return desde;
}

bool TTablaOrdenadaDbf::Ordenada(TClave clave) const {
    const TDatosDbf datos = Datos({});
    const std::vector<const TCampoDbf*> campos = Campos(datos);
    return TClaveDbf(datos, campos, clave).Ordenada();
}

// Whether the records of a stretch and all those looked at before it and after lie in the index's order, none
// of them deleted.
bool TTablaOrdenadaDbf::LeidosEnOrden(std::uint64_t primero, std::uint64_t fin,
                                      std::string_view tramo) const {
    std::string registros;
    for (auto leido = leidos_.begin(); leido != leidos_.lower_bound(primero); ++leido)
        registros += leido->second;
    registros += tramo;
    for (auto leido = leidos_.lower_bound(fin); leido != leidos_.end(); ++leido) registros += leido->second;
    const TDatosDbf datos = Datos(registros);
    const TIndiceDbf indice(datos, CamposDeIndice(nombre_, indice_));
    return datos.Filas() == registros.size() / longitudRegistro_ &&
           std::is_sorted(indice.Orden().begin(), indice.Orden().end());
}

// Whether the file is still the one whose header was read, and these records still its own: under a recent
// mark they are read again, as they may have changed unseen.
bool TTablaOrdenadaDbf::EsElMismo(std::uint64_t primero, const std::string& leidos) {
    if (!MismaMarca(marca_, MarcaDeFichero(ruta_))) return false;
    return !marca_.Reciente || Registros(primero, leidos.size() / longitudRegistro_) == leidos;
}

// Records that are not where they should be, and send the search the wrong way, have it end beside them: so
// some more are read on both sides, to see that the order goes on beyond.
bool TTablaOrdenadaDbf::HallaTramo(TClave desde, TClave hasta) {
    constexpr std::uint64_t VECINOS = 16;
    if (!Ordenada(desde) || !Ordenada(hasta)) return false;
    leidos_.clear();
    const std::uint64_t primero = PrimeroQueNo([](int orden) { return orden < 0; }, 0, desde);
    const std::uint64_t fin = PrimeroQueNo([](int orden) { return orden <= 0; }, primero, hasta);
    const std::uint64_t antes = primero - std::min(primero, VECINOS);
    const std::uint64_t despues = std::min(fin + VECINOS, registros_);
    const std::string leidos = Registros(antes, despues - antes);
    if (!EsElMismo(antes, leidos) || !LeidosEnOrden(antes, despues, leidos)) return false;
    const std::string_view tramo = std::string_view(leidos).substr((primero - antes) * longitudRegistro_,
                                                                   (fin - primero) * longitudRegistro_);
    tramo_ = std::make_unique<TTablaDbase>(std::make_shared<const TTablaEnMemoria>(nombre_, Datos(tramo)),
                                           indice_);
    tramo_->Filtra(filtro_);
    return true;
}

bool TTablaOrdenadaDbf::Rango(TClave desde, TClave hasta) {
    return (entera_ == nullptr && HallaTramo(desde, hasta)) || Entera().Rango(desde, hasta);
}

void TTablaOrdenadaDbf::CancelaRango() {
    tramo_.reset();
    if (entera_ != nullptr) entera_->CancelaRango();
}

void TTablaOrdenadaDbf::Filtra(std::string_view condicion) {
    Actual().Filtra(condicion);
    filtro_ = condicion;
}

}  // namespace analizador
