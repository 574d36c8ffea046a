#pragma once

// A cursor over a table that is left in its file: a row or a range is found by reading a few records, and
// only its rows are kept.

#include <functional>
#include <memory>
#include <string>
#include <string_view>

#include "adaptadores/dbase/TablaDbase.h"
#include "adaptadores/dbase/TablaEnFichero.h"
#include "plataforma/Ruttb.h"

namespace analizador {

// What does not begin with a search or a range needs the other rows: the table is then read whole, once. So
// it is too when TTablaEnFichero does not answer. No file stays open.
class TTablaOrdenadaDbf : public TTabla {
  public:
    using TAbreEntera = std::function<std::unique_ptr<TTabla>()>;

    // `indice`: one whose order the table knows; `abreEntera` opens the whole table on that index.
    TTablaOrdenadaDbf(std::shared_ptr<TTablaEnFichero> tabla, std::string_view indice,
                      TAbreEntera abreEntera);

    void Primero() override;
    // After a search of the whole table, throws ErrorTabla when the row found is no longer there.
    void Siguiente() override;
    [[nodiscard]] bool Fin() const override { return DondeEsta().Fin(); }
    [[nodiscard]] int CuentaFilas() override { return Actual().CuentaFilas(); }
    [[nodiscard]] std::string Texto(std::string_view campo) const override {
        return DondeEsta().Texto(campo);
    }
    [[nodiscard]] int Entero(std::string_view campo) const override { return DondeEsta().Entero(campo); }
    [[nodiscard]] bool Logico(std::string_view campo) const override { return DondeEsta().Logico(campo); }
    void Indexa(std::string_view indice) override;
    bool Busca(TClave clave) override;
    bool Rango(TClave desde, TClave hasta) override;
    void CancelaRango() override;
    void Filtra(std::string_view condicion) override;

  private:
    // The range's rows, or the whole table when there is no range.
    [[nodiscard]] TTabla& Actual() const { return tramo_ ? *tramo_ : Entera(); }
    // The same, but for the row of the last search.
    [[nodiscard]] TTabla& DondeEsta() const { return fila_ ? *fila_ : Actual(); }
    // From the first call on the only table used, but for that row.
    [[nodiscard]] TTabla& Entera() const;
    [[nodiscard]] std::unique_ptr<TTabla> CursorSobre(TDatosDbf datos, std::string_view indice) const;
    void VaALaFila();
    [[nodiscard]] bool HallaFila(TClave clave);
    [[nodiscard]] bool HallaTramo(TClave desde, TClave hasta);

    std::shared_ptr<TTablaEnFichero> tabla_;
    std::string indice_;
    TAbreEntera abreEntera_;
    std::string filtro_;
    mutable std::unique_ptr<TTabla> entera_;
    mutable std::unique_ptr<TTabla> tramo_;
    std::unique_ptr<TTabla> fila_;  // the one found in the whole table, or none
};

}  // namespace analizador
