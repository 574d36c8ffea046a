#include "programas/biblioteca/TurnoRevision.h"

#include <shared_mutex>

#include "programas/biblioteca/ErrorInterfaz.h"
#include "programas/biblioteca/analizador.h"

namespace analizador {

namespace {

std::shared_mutex& Paso() {
    static std::shared_mutex paso;
    return paso;
}

// Of this thread: only the outermost of its analyses waits.
thread_local int enCurso = 0;
thread_local bool revisando = false;

}  // namespace

TTurnoDeRevision::TTurnoDeRevision(bool conRevision) {
    if (enCurso > 0 && (conRevision || revisando))
        throw ErrorInterfaz(ANALIZADOR_MAL_USO, "el análisis anterior no ha terminado");
    if (enCurso == 0) {
        conRevision ? Paso().lock() : Paso().lock_shared();
        revisando = conRevision;
    }
    ++enCurso;
}

TTurnoDeRevision::~TTurnoDeRevision() {
    if (--enCurso > 0) return;
    revisando ? Paso().unlock() : Paso().unlock_shared();
    revisando = false;
}

}  // namespace analizador
