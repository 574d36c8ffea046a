#include "adaptadores/qt/AplicacionPropia.h"
#include "adaptadores/qt/InstalaVentanasQt.h"
#include "adaptadores/qt/VentanaAjena.h"
#include "plataforma/CarpetaPrivada.h"
#include "programas/biblioteca/ErrorInterfaz.h"
#include "programas/biblioteca/Modulo_windows.h"
#include "programas/biblioteca/Ventanas.h"
#include "programas/biblioteca/analizador.h"

namespace analizador {

namespace {

class TVentanasQt : public TVentanasRevision {
  public:
    explicit TVentanasQt(std::intptr_t sobre) : FSobre(sobre) {
        LimpiaCarpetasAbandonadas();
        if (!FSobre.SePuedenAbrir())
            throw ErrorInterfaz(ANALIZADOR_SIN_VENTANAS,
                                "no se pueden abrir las ventanas de la revisión: no hay pantalla");
    }

  private:
    TAplicacionPropia FAplicacion;
    TVentanaAjena FSobre;
    TInstalaVentanasQt FVentanas;
};

}  // namespace

std::unique_ptr<TVentanasRevision> AbreVentanas(std::intptr_t sobre) {
    FijaModulo();
    return std::make_unique<TVentanasQt>(sobre);
}

}  // namespace analizador
