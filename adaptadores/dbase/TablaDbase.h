#pragma once

// A cursor over a table held in memory.

#include <cstddef>
#include <cstdint>
#include <map>
#include <memory>
#include <mutex>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "adaptadores/dbase/DatosDbf.h"
#include "adaptadores/dbase/IndiceDbf.h"
#include "plataforma/Ruttb.h"

namespace analizador {

// A table's content with the indexes asked for so far, each built once. Shared between threads.
class TTablaEnMemoria {
  public:
    // `nombre`: the table's name without folder and extension, in capitals. The rest as TDatosDbf takes it.
    TTablaEnMemoria(std::string nombre, std::string contenido, std::string fichero);
    TTablaEnMemoria(std::string nombre, TDatosDbf datos);

    [[nodiscard]] const TDatosDbf& Datos() const { return datos_; }
    // Throws ErrorTabla when the table has no such index. The index lives as long as this.
    [[nodiscard]] const TIndiceDbf& Indice(std::string_view nombre) const;

  private:
    std::string nombre_;
    TDatosDbf datos_;
    mutable std::mutex cerrojo_;
    mutable std::map<std::string, std::unique_ptr<const TIndiceDbf>, std::less<>> indices_;
};

// An open table: one thread's cursor. Opening it copies no row.
class TTablaDbase : public TTabla {
  public:
    TTablaDbase(std::shared_ptr<const TTablaEnMemoria> tabla, std::string_view indice);

    void Primero() override;
    void Siguiente() override;
    [[nodiscard]] bool Fin() const override { return posicion_ >= hasta_; }
    [[nodiscard]] int CuentaFilas() override;
    [[nodiscard]] std::string Texto(std::string_view campo) const override;
    [[nodiscard]] int Entero(std::string_view campo) const override;
    [[nodiscard]] bool Logico(std::string_view campo) const override;
    void Indexa(std::string_view indice) override;
    bool Busca(TClave clave) override;
    bool Rango(TClave desde, TClave hasta) override;
    void CancelaRango() override;
    void Filtra(std::string_view condicion) override;
    [[nodiscard]] std::shared_ptr<const void> Contenido() const override { return tabla_; }

  private:
    struct TFiltro {
        const TCampoDbf* Campo = nullptr;
        int Valor = 0;
        bool Distinto = false;
    };

    [[nodiscard]] std::uint32_t Fila(std::size_t posicion) const;
    [[nodiscard]] std::string_view Registro(std::size_t posicion) const {
        return datos_.Registro(Fila(posicion));
    }
    [[nodiscard]] bool Pasa(std::size_t posicion) const;
    void SaltaLoFiltrado();
    [[nodiscard]] std::size_t PrimeroNoAntes(const TClaveDbf& clave) const;
    [[nodiscard]] std::size_t PrimeroDespues(const TClaveDbf& clave) const;
    [[nodiscard]] TFiltro LeeFiltro(std::string_view condicion) const;
    void ReuneRango(const TClaveDbf& desde, const TClaveDbf& hasta);

    std::shared_ptr<const TTablaEnMemoria> tabla_;
    const TDatosDbf& datos_;
    const TIndiceDbf* indice_ = nullptr;  // none: the stored order
    // The range's rows where they do not stand together in the index.
    std::optional<std::vector<std::uint32_t>> reunidas_;
    std::size_t desde_ = 0;
    std::size_t hasta_ = 0;
    std::size_t posicion_ = 0;
    std::optional<TFiltro> filtro_;
};

}  // namespace analizador
