#pragma once

// A big table that is left in its file: of some of its indexes the order is known, so that a search reads a
// few records.

#include <cstdint>
#include <filesystem>
#include <map>
#include <memory>
#include <mutex>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "adaptadores/dbase/BloquesDbf.h"
#include "adaptadores/dbase/DatosDbf.h"
#include "adaptadores/dbase/IndiceDbf.h"
#include "adaptadores/dbase/OrdenDbf.h"

namespace analizador {

// All that is given is of the content that the file had under its mark. Shared between threads.
class TTablaEnFichero {
  public:
    // `marca`: the file's, taken before the orders were; `nombre` as TTablaEnMemoria takes it; `fichero`: the
    // file's name for messages, Windows-1252. Throws ErrorTabla when its header cannot be read or is no dBASE
    // table's.
    TTablaEnFichero(std::filesystem::path ruta, const TMarcaFichero& marca, std::string nombre,
                    const std::string& fichero, TOrdenesDbf ordenes);

    [[nodiscard]] const std::string& Nombre() const { return nombre_; }
    [[nodiscard]] const TEstructuraDbf& Estructura() const { return *bloques_.Estructura(); }
    [[nodiscard]] bool ConoceOrden(std::string_view indice) const { return indices_.contains(indice); }

    // The rows whose keys lie between the two, or the first whose key equals the one, in the index's order,
    // which must be known. nullopt when only the whole table tells: the keys do not stand together, the rows
    // met are not in the order promised, or the file is another by now. Throws ErrorTabla when a key has more
    // parts than the index.
    [[nodiscard]] std::optional<TDatosDbf> Tramo(std::string_view indice, TClave desde, TClave hasta);
    [[nodiscard]] std::optional<TDatosDbf> Primera(std::string_view indice, TClave clave);

    // Whether it has been searched so often that the whole table in memory would have cost less.
    [[nodiscard]] bool CompensaEntera() const;
    [[nodiscard]] std::uint64_t BytesLeidos() const;

  private:
    struct TIndice {
        TOrdenDbf Orden;
        std::vector<const TCampoDbf*> Campos;
    };

    [[nodiscard]] std::optional<TDatosDbf> Busca(const TIndice& indice, const TClaveDbf& desde,
                                                 const TClaveDbf* hasta);

    std::string nombre_;
    std::uint64_t longitud_;
    std::map<std::string, TIndice, std::less<>> indices_;
    mutable std::mutex cerrojo_;
    TBloquesDbf bloques_;
    std::uint64_t busquedas_ = 0;
};

}  // namespace analizador
