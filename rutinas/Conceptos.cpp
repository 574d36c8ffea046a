#include <algorithm>
#include <map>
#include <memory>
#include <utility>

#include "plataforma/Confnvx.h"
#include "plataforma/Rut.h"
#include "plataforma/Ruttb.h"
#include "rutinas/HechoDeTabla.h"
#include "rutinas/RutAnalizador.h"
#include "rutinas/TextoSin.h"

namespace analizador {

namespace {

constexpr std::size_t LETRAS_MINIMAS = 4;  // shorter words are articles and prepositions

// The deed types by the words of their names: a word selects the first type, in the table's stored order,
// that has it.
class TTiposPorPalabra {
  public:
    explicit TTiposPorPalabra(TTabla& tabla) {
        for (; !tabla.Fin(); tabla.Siguiente()) {
            const std::string nombre = tabla.Texto("NOMBRE");
            tipos_.push_back(
                {tabla.Entero("NUMEROTIPO"), nombre, tabla.Texto("COD_OFICIA"), tabla.Logico("PRESTAMO")});
            for (TPalabra p = PrimeraPalabra(nombre); !p.Palabra.empty(); p = PrimeraPalabra(p.Resto))
                primero_.emplace(Pliega(p.Palabra), tipos_.size() - 1);
        }
    }

    [[nodiscard]] const TRConcepto* Busca(std::string_view palabra) const {
        const auto donde = primero_.find(palabra);
        return donde == primero_.end() ? nullptr : &tipos_[donde->second];
    }

  private:
    std::vector<TRConcepto> tipos_;
    std::map<std::string, std::size_t, std::less<>> primero_;
};

// The deed types as the table has them now: every paragraph of a header asks for them.
std::shared_ptr<const TTiposPorPalabra> Tipos() {
    static THechoDeTabla<TTiposPorPalabra> tipos;
    const auto tabla = CreaTabla(Config().GetAliasNorvex(), "TIPOS.DBF", "", true, false);
    return tipos.De(*tabla, [](TTabla& filas) { return TTiposPorPalabra(filas); });
}

}  // namespace

std::vector<Tramo> BuscaConceptos(std::string_view parrafo, ListaTextos<TRConcepto>& lista) {
    const auto tipos = Tipos();
    const TTextoSin limpio(parrafo, ".\t\r");
    std::string preparado = Pliega(limpio.Texto());
    std::replace(preparado.begin(), preparado.end(), '-', ' ');
    std::vector<Tramo> tramos;
    for (TPalabra p = PrimeraPalabra(preparado); !p.Palabra.empty(); p = PrimeraPalabra(p.Resto)) {
        if (p.Palabra.size() < LETRAS_MINIMAS || p.Palabra == "ESCRITURA") continue;
        const TRConcepto* const tipo = tipos->Busca(p.Palabra);
        if (tipo == nullptr || lista.Contiene(tipo->Nombre)) continue;
        lista.Anade(tipo->Nombre, std::make_unique<TRConcepto>(*tipo));
        const auto primera = static_cast<std::size_t>(p.Palabra.data() - preparado.data());
        tramos.push_back(limpio.Original(Tramo{primera, p.Palabra.size()}));
    }
    return tramos;
}

}  // namespace analizador
