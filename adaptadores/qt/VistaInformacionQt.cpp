#include "adaptadores/qt/VistaInformacionQt.h"

#include "adaptadores/qt/DialogoDatos.h"
#include "adaptadores/qt/VentanasQt.h"

namespace analizador {

void TVistaInformacionQt::MuestraModal(TFInformacionOtorgante& dialogo, TComponente* propietario) {
    DialogoDatos ventana(dialogo, VentanaPadre(propietario));
    ventana.exec();
}

}  // namespace analizador
