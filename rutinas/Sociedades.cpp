#include "analizador/ConstAnalizador.h"
#include "plataforma/Ansi.h"
#include "plataforma/Rut.h"
#include "rutinas/Buscador.h"
#include "rutinas/Cif.h"
#include "rutinas/RutAnalizador.h"
#include "rutinas/Tratamiento.h"

namespace analizador {

namespace {

constexpr std::size_t NADA = std::string_view::npos;

class TLectorSociedades {
  public:
    explicit TLectorSociedades(std::string_view parrafo)
        : parrafo_(parrafo),
          plegado_(Pliega(parrafo)),
          tratamientos_(plegado_),
          representaciones_("REPRESENTACION", plegado_),
          comillas_(parrafo, '"'),
          cifs_(parrafo) {}
    TLectorSociedades(const TLectorSociedades&) = delete;
    TLectorSociedades& operator=(const TLectorSociedades&) = delete;

    [[nodiscard]] std::vector<TSociedadHallada> Lee() {
        auto palabra = representaciones_.MasALaIzquierda();
        if (!palabra) {
            if (const std::size_t comilla = comillas_.Desde(0); comilla != NADA) (void)LeeSociedad(comilla);
        }
        while (palabra) {
            const std::size_t sigue = LeeRepresentado(palabra->Fin());
            if (sigue == NADA) break;
            palabra = representaciones_.MasALaIzquierda(sigue);
        }
        return std::move(sociedades_);
    }

  private:
    // Whom the words before `desde` represent: a company when a quote comes first, a person, who is none of
    // this reader's, when a form of address does. Returns where the text goes on, NADA when it is used up.
    [[nodiscard]] std::size_t LeeRepresentado(std::size_t desde) {
        const TTratamiento t = tratamientos_.Desde(desde);
        const std::size_t comilla = comillas_.Desde(desde);
        const std::size_t persona = t.Posicion == 0 ? NADA : desde + static_cast<std::size_t>(t.Posicion) - 1;
        if (comilla != NADA && comilla <= persona) return LeeSociedad(comilla);
        return persona == NADA ? NADA : persona + t.Tratamiento.size();
    }

    // The company whose name opens with the quote at `comilla`; returns where its closing one ends, NADA when
    // there is none, which leaves a company without name.
    [[nodiscard]] std::size_t LeeSociedad(std::size_t comilla) {
        const std::size_t cierre = comillas_.Desde(comilla + 1);
        if (cierre == NADA) {
            sociedades_.emplace_back();
            return NADA;
        }
        TSociedadHallada sociedad;
        sociedad.Nombre = SinArticuloCatalan({comilla + 1, cierre - comilla - 1});
        sociedad.Sociedad.Apellidos = parrafo_.substr(sociedad.Nombre.Primera, sociedad.Nombre.Longitud);
        auto [cif, donde] = cifs_.Desde(cierre + 1);
        sociedad.Sociedad.NumDocumento = std::move(cif);
        sociedad.Documento = donde;
        sociedades_.push_back(std::move(sociedad));
        return cierre + 1;
    }

    [[nodiscard]] Tramo SinArticuloCatalan(Tramo nombre) const {
        constexpr std::string_view ARTICULO = "L'";
        const std::string_view principio = parrafo_.substr(nombre.Primera, nombre.Longitud);
        if (!EsCatalan() || AnsiUpperCase(principio.substr(0, ARTICULO.size())) != ARTICULO) return nombre;
        return {nombre.Primera + ARTICULO.size(), nombre.Longitud - ARTICULO.size()};
    }

    std::string_view parrafo_;
    std::string plegado_;
    TBuscadorTratamientos tratamientos_;
    TBuscadorEntradas representaciones_;
    TBuscadorCaracter comillas_;
    TBuscadorCif cifs_;
    std::vector<TSociedadHallada> sociedades_;
};

}  // namespace

std::vector<TSociedadHallada> BuscaSociedades(std::string_view parrafo) {
    return TLectorSociedades(parrafo).Lee();
}

}  // namespace analizador
