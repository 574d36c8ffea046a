#pragma once

#include <memory>

#include "programas/automatizacion/ObjetoAutomatico.h"
#include "programas/biblioteca/Sesion.h"

namespace analizador {

// "Analizador.Escritura": what a macro makes to analyse the deed that is open in Word and read its facts.
// Every property fails until an analysis has gone well.
class TEscritura : public TObjetoAutomatico {
  public:
    TEscritura();

  private:
    // Of the Application object, or of the Word that is running; whether the user accepted in the review.
    [[nodiscard]] TVariante Analiza(const TVariante& aplicacion, const TVariante& sinRevision);
    [[nodiscard]] TSesionAnfitrion& Sesion();

    std::unique_ptr<TSesionAnfitrion> FSesion;  // none until it is first needed, so that its failure is told
    bool FAnalizando = false;
};

}  // namespace analizador
