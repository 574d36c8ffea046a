#include "adaptadores/qt/AplicacionPropia.h"

namespace analizador {

TAplicacionPropia::TAplicacionPropia() {
    if (QCoreApplication::instance() != nullptr) return;
    QCoreApplication::setAttribute(Qt::AA_PluginApplication);
    QApplication::setQuitOnLastWindowClosed(false);
    FAplicacion.emplace(FCuantos, static_cast<char**>(FArgumentos));
}

}  // namespace analizador
