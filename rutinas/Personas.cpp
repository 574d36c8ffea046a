#include <algorithm>

#include "analizador/ConstAnalizador.h"
#include "plataforma/Confnvx.h"
#include "plataforma/Rnumcad.h"
#include "plataforma/Rut.h"
#include "plataforma/Ruttb.h"
#include "rutinas/Buscador.h"
#include "rutinas/RutAnalizador.h"
#include "rutinas/Tratamiento.h"

namespace analizador {

namespace {

constexpr std::size_t NADA = std::string_view::npos;
constexpr std::size_t LONGITUD_CAMPO = 254;  // no text field of a table holds more

// The longest leading run of words that the table of first names holds; empty when it holds none. Blanks at
// the right of a key do not matter, so runs that differ in them alone are looked up once.
std::string_view NombreDePila(std::string_view nombre) {
    const auto tabla = CreaTabla(Config().GetAliasNorvex(), "PILA.DBF", "NOMBRE", false, true);
    for (std::string_view candidato = nombre;;) {
        const std::string_view clave = candidato.substr(0, candidato.find_last_not_of(' ') + 1);
        if (clave.size() <= LONGITUD_CAMPO && TBBusca(*tabla, {{"NOMBRE", clave}}, true)) return candidato;
        const std::size_t blanco = clave.rfind(' ');
        if (blanco == NADA) return {};
        candidato = clave.substr(0, blanco);
    }
}

}  // namespace

TNombreSeparado SeparaNombreApellidos(std::string_view nombre) {
    const std::string plegado = Pliega(nombre);
    const std::string_view completo = Recorta(plegado);
    if (completo.find(' ') == NADA) return {"", std::string(completo)};
    std::string_view pila = NombreDePila(completo);
    if (pila.empty()) pila = completo.substr(0, completo.find(' '));
    const std::size_t apellidos = std::min(pila.size() + 1, completo.size());
    return {std::string(pila), std::string(completo.substr(apellidos))};
}

namespace {

// Walks through the folded paragraph from one form of address to the next.
class TLectorPersonas {
  public:
    explicit TLectorPersonas(std::string_view plegado)
        : texto_(plegado), tratamientos_(plegado), notarios_("NOTARIO DE", plegado), comas_(plegado, ',') {}

    [[nodiscard]] std::vector<THallazgo<TRPersona>> Lee() {
        std::vector<THallazgo<TRPersona>> personas;
        std::size_t desde = 0;
        for (TTratamiento t = tratamientos_.Desde(0); t.Posicion != 0; t = tratamientos_.Desde(desde)) {
            const std::size_t tratamiento = desde + static_cast<std::size_t>(t.Posicion) - 1;
            const bool notario = notarios_.HayEntre(desde, tratamiento);
            desde = std::min(tratamiento + t.Tratamiento.size() + 1, texto_.size());
            const std::string_view nombre = NombreDesde(desde);
            if (!notario) personas.push_back(Persona(nombre, t.Sexo));
            desde += nombre.size();
        }
        return personas;
    }

  private:
    // Up to the next comma or form of address. Where neither follows, the paragraph's last character, its end
    // mark, is no part of the name.
    [[nodiscard]] std::string_view NombreDesde(std::size_t desde) {
        const std::size_t coma = comas_.Desde(desde);
        const int siguiente = tratamientos_.Desde(desde).Posicion;
        std::size_t fin = coma;
        if (siguiente != 0) fin = std::min(fin, desde + static_cast<std::size_t>(siguiente) - 1);
        if (fin == NADA) fin = std::max(desde + 1, texto_.size()) - 1;
        std::string_view nombre = texto_.substr(desde, fin - desde);
        if (nombre.ends_with(EsCastellano() ? " Y " : " I ")) nombre.remove_suffix(3);
        return nombre;
    }

    [[nodiscard]] THallazgo<TRPersona> Persona(std::string_view nombre, char sexo) const {
        auto [pila, apellidos] = SeparaNombreApellidos(nombre);
        const std::string_view leido = Recorta(nombre);
        const auto primera = static_cast<std::size_t>(leido.data() - texto_.data());
        const Tramo donde = leido.empty() ? Tramo{} : Tramo{primera, leido.size()};
        return {{std::string(1, sexo), std::move(pila), std::move(apellidos)}, donde};
    }

    std::string_view texto_;
    TBuscadorTratamientos tratamientos_;
    TBuscadorEntradas notarios_;
    TBuscadorCaracter comas_;
};

}  // namespace

std::vector<THallazgo<TRPersona>> BuscaPersonas(std::string_view parrafo) {
    const std::string plegado = Pliega(parrafo);
    return TLectorPersonas(plegado).Lee();
}

}  // namespace analizador
