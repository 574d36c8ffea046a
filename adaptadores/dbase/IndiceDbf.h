#pragma once

// An index of a table held in memory: its rows in the order of a key expression.

#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>
#include <utility>
#include <variant>
#include <vector>

#include "adaptadores/dbase/DatosDbf.h"
#include "plataforma/Ruttb.h"

namespace analizador {

// The fields of an index's key expression, by the table's name (capitals, no extension) and the index's: the
// built-in list, else the field of that name.
[[nodiscard]] std::vector<std::string> CamposDeIndice(std::string_view tabla, std::string_view indice);

// The order of two records in an index of those fields: below 0 the first comes before, above 0 after; 0 when
// only their places in the file tell.
[[nodiscard]] int ComparaRegistros(const std::vector<const TCampoDbf*>& campos, std::string_view uno,
                                   std::string_view otro);

// A key made ready for many comparisons. Texts compare folded, blanks on the right never matter, an empty
// text equals only an empty field; a number field compares as a number. A number against a text field equals
// those texts that write that whole number: they do not stand together in the index's order.
class TClaveDbf {
  public:
    // `fichero`: the table's name for messages. Throws ErrorTabla when the key has more parts than the index.
    // Keeps a reference to `campos`.
    TClaveDbf(std::string_view fichero, const std::vector<const TCampoDbf*>& campos, TClave clave);

    // True when the rows that equal the key, and those between two such keys, stand together in the index.
    [[nodiscard]] bool Ordenada() const { return ordenada_; }
    // Below 0, 0, above 0: the record's key comes before this key, equals it, comes after. A text that is no
    // number, against a number, comes before all.
    [[nodiscard]] int Compara(std::string_view registro) const;

  private:
    struct TTextoPlegado {
        std::string Texto;
    };
    struct TNumero {
        double Valor = 0;
    };
    struct TVacio {};
    using TParte = std::variant<TTextoPlegado, TNumero, TVacio>;

    [[nodiscard]] TParte Prepara(const TCampoDbf& campo, const TValorClave& valor);
    [[nodiscard]] static int ComparaParte(std::string_view bytes, const TCampoDbf& campo,
                                          const TParte& parte);

    const std::vector<const TCampoDbf*>& campos_;
    std::vector<TParte> partes_;
    bool ordenada_ = true;
};

class TIndiceDbf {
  public:
    // Keeps a reference to `datos`. Throws ErrorTabla when a field is missing.
    TIndiceDbf(const TDatosDbf& datos, const std::vector<std::string>& campos);

    [[nodiscard]] const std::vector<std::uint32_t>& Orden() const { return orden_; }
    [[nodiscard]] const std::vector<const TCampoDbf*>& Campos() const { return campos_; }

  private:
    std::vector<const TCampoDbf*> campos_;
    std::vector<std::uint32_t> orden_;
};

}  // namespace analizador
