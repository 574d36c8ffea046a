#pragma once

// A cursor over a table whose rows lie in the file in the order of an index: a range is found by reading a
// few records, and only its rows are kept. For tables too big to be read for one search.

#include <cstdint>
#include <filesystem>
#include <fstream>
#include <functional>
#include <map>
#include <memory>
#include <string>
#include <string_view>
#include <vector>

#include "adaptadores/dbase/TablaDbase.h"
#include "plataforma/Rficheros.h"
#include "plataforma/Ruttb.h"

namespace analizador {

// What does not begin with a range needs the other rows: the table is then read whole, once. So it is too
// when a search meets rows that are not in the order promised, or finds another table there by now. The file
// stays open as long as the table is.
class TTablaOrdenadaDbf : public TTabla {
  public:
    using TAbreEntera = std::function<std::unique_ptr<TTabla>()>;

    // `nombre` as TTablaEnMemoria takes it, `indice` the one in whose order the rows lie, `fichero` the
    // table's name for messages (Windows-1252), `abreEntera` opens the whole table on that index. Throws
    // ErrorTabla when the file cannot be read or is no dBASE table.
    TTablaOrdenadaDbf(const std::filesystem::path& ruta, std::string nombre, std::string indice,
                      std::string fichero, TAbreEntera abreEntera);

    void Primero() override { Actual().Primero(); }
    void Siguiente() override { Actual().Siguiente(); }
    [[nodiscard]] bool Fin() const override { return Actual().Fin(); }
    [[nodiscard]] int CuentaFilas() override { return Actual().CuentaFilas(); }
    [[nodiscard]] std::string Texto(std::string_view campo) const override { return Actual().Texto(campo); }
    [[nodiscard]] int Entero(std::string_view campo) const override { return Actual().Entero(campo); }
    [[nodiscard]] bool Logico(std::string_view campo) const override { return Actual().Logico(campo); }
    void Indexa(std::string_view indice) override { Entera().Indexa(indice); }
    bool Busca(TClave clave) override { return Actual().Busca(clave); }
    bool Rango(TClave desde, TClave hasta) override;
    void CancelaRango() override;
    void Filtra(std::string_view condicion) override;

  private:
    // The range's rows, or the whole table when there is no range.
    [[nodiscard]] TTabla& Actual() const { return tramo_ ? *tramo_ : Entera(); }
    // From the first call on the only table used.
    [[nodiscard]] TTabla& Entera() const;
    [[nodiscard]] std::string Registros(std::uint64_t primero, std::uint64_t cuantos);
    [[nodiscard]] TDatosDbf Datos(std::string_view registros) const;
    [[nodiscard]] std::vector<const TCampoDbf*> Campos(const TDatosDbf& datos) const;
    [[nodiscard]] std::uint64_t PrimeroQueNo(const std::function<bool(int)>& antes, std::uint64_t desde,
                                             TClave clave);
    [[nodiscard]] bool Ordenada(TClave clave) const;
    [[nodiscard]] bool LeidosEnOrden(std::uint64_t primero, std::uint64_t fin, std::string_view tramo) const;
    [[nodiscard]] bool EsElMismo(std::uint64_t primero, const std::string& leidos);
    [[nodiscard]] bool HallaTramo(TClave desde, TClave hasta);

    std::string nombre_, indice_, fichero_;
    TAbreEntera abreEntera_;
    std::filesystem::path ruta_;
    TMarcaFichero marca_;  // of before it was opened
    std::ifstream entrada_;
    std::string cabecera_;
    std::uint64_t registros_ = 0;
    std::uint64_t longitudRegistro_ = 0;
    std::map<std::uint64_t, std::string> leidos_;  // records, by their place, looked at in a search
    std::string filtro_;
    mutable std::unique_ptr<TTabla> entera_;
    mutable std::unique_ptr<TTabla> tramo_;
};

}  // namespace analizador
