#pragma once

#include <QByteArray>

namespace analizador::pruebas {

// Before the QApplication: draws without a screen, unless the environment says where. On Windows, where Wine
// hands over none of these variables, with the letters that are used without a screen elsewhere.
inline void PintaSinPantalla() {
    if (qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM")) qputenv("QT_QPA_PLATFORM", "offscreen");
#ifdef _WIN32
    qputenv("QT_QPA_FONTDIR", "Z:/usr/share/fonts/truetype/dejavu");
#endif
}

}  // namespace analizador::pruebas
