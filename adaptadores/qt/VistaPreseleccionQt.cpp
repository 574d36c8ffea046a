#include "adaptadores/qt/VistaPreseleccionQt.h"

#include "adaptadores/qt/VentanaPreseleccion.h"
#include "adaptadores/qt/VentanasQt.h"

namespace analizador {

bool TVistaPreseleccionQt::MuestraModal(TFListaConceptosPreseleccionados& dialogo, TComponente* propietario) {
    TVentanaPreseleccion ventana(dialogo, VentanaPadre(propietario));
    return ventana.exec() == QDialog::Accepted;
}

}  // namespace analizador
