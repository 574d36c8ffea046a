#include "adaptadores/dbase/TablaEnFichero.h"

#include <algorithm>
#include <utility>

namespace analizador {

namespace {

// Records that are not where they should be, and send the search the wrong way, have it end beside them: so
// some more are read on both sides, to see that the order goes on beyond.
constexpr std::uint64_t VECINOS = 16;

// A search costs about as much as reading that many bytes of a whole table with its index.
constexpr std::uint64_t BYTES_POR_BUSQUEDA = 8192;
constexpr std::uint64_t MAYOR_EN_MEMORIA = 16 << 20;  // bytes

// A row of another table, or of none: nothing found is to be believed.
struct TNoFiable {};

// The rows met in one search.
class TFilasVistas {
  public:
    TFilasVistas(TBloquesDbf& bloques, const TOrdenDbf& orden, const std::vector<const TCampoDbf*>& campos)
        : bloques_(bloques), orden_(orden), campos_(campos), filas_(bloques.Estructura()->Registros()) {
        vistas_.reserve(HABITUALES);
    }

    // The row at that position of the order. Throws TNoFiable when there is none, or a deleted one.
    std::string_view Registro(std::uint64_t posicion) {
        const std::uint64_t numero = orden_.Registro(posicion);
        if (numero >= filas_) throw TNoFiable();
        const std::optional<std::string_view> registro = bloques_.Registro(numero);
        if (!registro || registro->front() == BORRADO_DBF) throw TNoFiable();
        vistas_.push_back({posicion, numero, *registro});
        return *registro;
    }

    // Where the rows begin and end whose keys lie between the two; without `hasta`, only the first that
    // equals `desde`.
    [[nodiscard]] std::pair<std::uint64_t, std::uint64_t> Halla(const TClaveDbf& desde,
                                                                const TClaveDbf* hasta) {
        const std::uint64_t primero =
            Particion(0, [&](std::string_view registro) { return desde.Compara(registro) < 0; });
        if (hasta != nullptr)
            return {primero, Particion(primero, [&](std::string_view registro) {
                        return hasta->Compara(registro) <= 0;
                    })};
        const bool hallado = primero < filas_ && desde.Compara(Registro(primero)) == 0;
        return {primero, primero + (hallado ? 1 : 0)};
    }

    // Whether all met, and those of the stretch and around it, lie in the index's order.
    [[nodiscard]] bool EnOrden(std::uint64_t primero, std::uint64_t fin) {
        const std::uint64_t ultimo = std::min(fin + VECINOS, filas_);
        for (std::uint64_t p = primero - std::min(primero, VECINOS); p < ultimo; ++p) Registro(p);
        std::ranges::sort(vistas_, {}, &TVista::Posicion);
        return std::ranges::adjacent_find(vistas_, [&](const TVista& una, const TVista& otra) {
                   return una.Posicion != otra.Posicion && !VaAntes(una, otra);
               }) == vistas_.end();
    }

  private:
    static constexpr std::size_t HABITUALES = 96;

    struct TVista {
        std::uint64_t Posicion = 0;
        std::uint64_t Numero = 0;  // in the file
        std::string_view Bytes;
    };

    // The first position from `desde` on whose row does not fulfil `antes`; any one when they are not in
    // order.
    template <class Antes>
    std::uint64_t Particion(std::uint64_t desde, Antes antes) {
        std::uint64_t hasta = filas_;
        while (desde < hasta) {
            const std::uint64_t medio = desde + (hasta - desde) / 2;
            if (antes(Registro(medio)))
                desde = medio + 1;
            else
                hasta = medio;
        }
        return desde;
    }

    [[nodiscard]] bool VaAntes(const TVista& una, const TVista& otra) const {
        const int orden = ComparaRegistros(campos_, una.Bytes, otra.Bytes);
        return orden != 0 ? orden < 0 : una.Numero < otra.Numero;
    }

    TBloquesDbf& bloques_;
    const TOrdenDbf& orden_;
    const std::vector<const TCampoDbf*>& campos_;
    std::uint64_t filas_;
    std::vector<TVista> vistas_;
};

}  // namespace

// An order by fields that the table lacks is of another table.
TTablaEnFichero::TTablaEnFichero(std::filesystem::path ruta, const TMarcaFichero& marca, std::string nombre,
                                 const std::string& fichero, TOrdenesDbf ordenes)
    : nombre_(std::move(nombre)), longitud_(marca.Longitud), bloques_(std::move(ruta), marca, fichero) {
    const TEstructuraDbf& estructura = *bloques_.Estructura();
    for (auto& [indice, orden] : ordenes) {
        const std::vector<std::string> campos = CamposDeIndice(nombre_, indice);
        if (!std::ranges::all_of(campos, [&](const auto& campo) { return estructura.TieneCampo(campo); }))
            continue;
        TIndice& propio = indices_[indice];
        propio.Orden = std::move(orden);
        for (const std::string& campo : campos) propio.Campos.push_back(&estructura.Campo(campo));
    }
}

std::optional<TDatosDbf> TTablaEnFichero::Busca(const TIndice& indice, const TClaveDbf& desde,
                                                const TClaveDbf* hasta) {
    const std::lock_guard guarda(cerrojo_);
    ++busquedas_;
    bloques_.Empieza();
    try {
        TFilasVistas vistas(bloques_, indice.Orden, indice.Campos);
        const auto [primero, fin] = vistas.Halla(desde, hasta);
        if (vistas.EnOrden(primero, fin) && bloques_.Confirma()) {
            std::string registros;
            for (std::uint64_t p = primero; p < fin; ++p) registros += vistas.Registro(p);
            return TDatosDbf(bloques_.Estructura(), std::move(registros));
        }
    } catch (const TNoFiable&) {
        // as when they are not in order
    }
    bloques_.Empieza();  // closes the file, forgets what is not confirmed
    return std::nullopt;
}

std::optional<TDatosDbf> TTablaEnFichero::Tramo(std::string_view indice, TClave desde, TClave hasta) {
    const TIndice& conocido = indices_.find(indice)->second;
    const std::string& fichero = bloques_.Estructura()->Fichero();
    const TClaveDbf primera(fichero, conocido.Campos, desde);
    const TClaveDbf ultima(fichero, conocido.Campos, hasta);
    if (!primera.Ordenada() || !ultima.Ordenada()) return std::nullopt;
    return Busca(conocido, primera, &ultima);
}

std::optional<TDatosDbf> TTablaEnFichero::Primera(std::string_view indice, TClave clave) {
    const TIndice& conocido = indices_.find(indice)->second;
    const TClaveDbf buscada(bloques_.Estructura()->Fichero(), conocido.Campos, clave);
    if (!buscada.Ordenada()) return std::nullopt;
    return Busca(conocido, buscada, nullptr);
}

bool TTablaEnFichero::CompensaEntera() const {
    const std::lock_guard guarda(cerrojo_);
    return longitud_ <= MAYOR_EN_MEMORIA && busquedas_ * BYTES_POR_BUSQUEDA >= longitud_;
}

std::uint64_t TTablaEnFichero::BytesLeidos() const {
    const std::lock_guard guarda(cerrojo_);
    return bloques_.BytesLeidos();
}

}  // namespace analizador
