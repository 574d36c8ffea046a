#include "adaptadores/dbase/TablaOrdenadaDbf.h"

#include <algorithm>
#include <utility>

#include "adaptadores/dbase/FormatoDbf.h"

namespace analizador {

namespace {

constexpr std::size_t REGISTROS_EN = 4;
constexpr std::size_t LONGITUD_CABECERA_EN = 8;
constexpr std::size_t LONGITUD_REGISTRO_EN = 10;

std::uint64_t Leido(std::string_view bytes, std::size_t posicion, std::size_t cuantos) {
    std::uint64_t valor = 0;
    for (std::size_t i = cuantos; i > 0; --i)
        valor = valor << 8U | static_cast<unsigned char>(bytes[posicion + i - 1]);
    return valor;
}

}  // namespace

TTablaOrdenadaDbf::TTablaOrdenadaDbf(const std::filesystem::path& ruta, std::string nombre,
                                     std::string indice, std::string fichero, TAbreEntera abreEntera)
    : nombre_(std::move(nombre)),
      indice_(std::move(indice)),
      fichero_(std::move(fichero)),
      abreEntera_(std::move(abreEntera)),
      entrada_(ruta, std::ios::binary),
      cabecera_(CABECERA_DBF, '\0') {
    entrada_.read(cabecera_.data(), static_cast<std::streamsize>(cabecera_.size()));
    if (!entrada_) throw ErrorTabla("La tabla " + fichero_ + " no se puede leer");
    registros_ = Leido(cabecera_, REGISTROS_EN, 4);
    longitudRegistro_ = Leido(cabecera_, LONGITUD_REGISTRO_EN, 2);
    const std::uint64_t longitud =
        std::max<std::uint64_t>(Leido(cabecera_, LONGITUD_CABECERA_EN, 2), CABECERA_DBF);
    cabecera_.resize(longitud);
    entrada_.read(cabecera_.data() + CABECERA_DBF, static_cast<std::streamsize>(longitud - CABECERA_DBF));
    if (!entrada_) throw ErrorTabla("La tabla " + fichero_ + " no se puede leer");
    static_cast<void>(Campos(Datos(0, 0)));
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
    std::string bytes(cuantos * longitudRegistro_, '\0');
    entrada_.seekg(static_cast<std::streamoff>(cabecera_.size() + primero * longitudRegistro_));
    entrada_.read(bytes.data(), static_cast<std::streamsize>(bytes.size()));
    if (!entrada_) throw ErrorTabla("La tabla " + fichero_ + " no se puede leer: le faltan registros");
    return bytes;
}

// A table of those records alone.
TDatosDbf TTablaOrdenadaDbf::Datos(std::uint64_t primero, std::uint64_t cuantos) {
    std::string contenido = cabecera_;
    for (std::size_t i = 0; i < 4; ++i)
        contenido[REGISTROS_EN + i] = static_cast<char>(cuantos >> 8U * i & 0xFFU);
    if (cuantos > 0) contenido += Registros(primero, cuantos);
    return {std::move(contenido), fichero_};
}

std::vector<const TCampoDbf*> TTablaOrdenadaDbf::Campos(const TDatosDbf& datos) const {
    std::vector<const TCampoDbf*> campos;
    for (const std::string& campo : CamposDeIndice(nombre_, indice_)) campos.push_back(&datos.Campo(campo));
    return campos;
}

// The first record from `desde` on whose order to the key (below 0, 0, above) does not fulfil `antes`.
std::uint64_t TTablaOrdenadaDbf::PrimeroQueNo(const std::function<bool(int)>& antes, std::uint64_t desde,
                                              TClave clave) {
    std::uint64_t hasta = registros_;
    while (desde < hasta) {
        const std::uint64_t medio = desde + (hasta - desde) / 2;
        const TDatosDbf datos = Datos(medio, 1);
        const std::vector<const TCampoDbf*> campos = Campos(datos);
        if (antes(TClaveDbf(datos, campos, clave).Compara(0)))
            desde = medio + 1;
        else
            hasta = medio;
    }
    return desde;
}

bool TTablaOrdenadaDbf::Ordenada(TClave clave) {
    const TDatosDbf datos = Datos(0, 0);
    const std::vector<const TCampoDbf*> campos = Campos(datos);
    return TClaveDbf(datos, campos, clave).Ordenada();
}

bool TTablaOrdenadaDbf::Rango(TClave desde, TClave hasta) {
    if (entera_ != nullptr || !Ordenada(desde) || !Ordenada(hasta)) return Entera().Rango(desde, hasta);
    const std::uint64_t primero = PrimeroQueNo([](int orden) { return orden < 0; }, 0, desde);
    const std::uint64_t fin = PrimeroQueNo([](int orden) { return orden <= 0; }, primero, hasta);
    tramo_ = std::make_unique<TTablaDbase>(
        std::make_shared<const TTablaEnMemoria>(nombre_, Datos(primero, fin - primero)), indice_);
    tramo_->Filtra(filtro_);
    return true;
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
