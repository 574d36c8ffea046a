#pragma once

#include "adaptadores/qt/MensajesQt.h"
#include "adaptadores/qt/PantallaQt.h"
#include "adaptadores/qt/SeleccionaNotarioQt.h"
#include "adaptadores/qt/VisoresQt.h"
#include "adaptadores/qt/VistaInformacionQt.h"
#include "adaptadores/qt/VistaMunicipiosQt.h"
#include "adaptadores/qt/VistaPreseleccionQt.h"

namespace analizador {

// All the windows of the suite, installed for as long as this object lives. It needs the process's
// QApplication, and must be created after whatever installs other windows.
class TInstalaVentanasQt {
  private:
    TMensajesQt FMensajes;
    TPantallaQt FPantalla;
    TSeleccionaNotarioQt FNotario;
    TVisoresQt FVisores;
    TVistaMunicipiosQt FMunicipios;
    TVistaInformacionQt FInformacion;
    TVistaPreseleccionQt FPreseleccion;
    InstalaMensajes FInstalaMensajes{FMensajes};
    InstalaPantalla FInstalaPantalla{FPantalla};
    InstalaSeleccionaNotario FInstalaNotario{FNotario};
    InstalaVisores FInstalaVisores{FVisores};
    InstalaVistaMunicipios FInstalaMunicipios{FMunicipios};
    InstalaVistaInformacion FInstalaInformacion{FInformacion};
    InstalaVistaPreseleccion FInstalaPreseleccion{FPreseleccion};
};

}  // namespace analizador
