// analiza-ventanas: analiza with the windows of the review.

#include <unistd.h>

#include <QApplication>
#include <clocale>
#include <cstdio>
#include <cstdlib>

#include "adaptadores/qt/InstalaVentanasQt.h"
#include "plataforma/CarpetaPrivada.h"
#include "programas/analiza/Orden.h"
#include "programas/analiza/OrdenAnaliza.h"

namespace {

using namespace analizador;

// The toolkit ends the program where it finds no screen: then in one line of the user's language.
void AlMensaje(QtMsgType tipo, const QMessageLogContext& /*donde*/, const QString& texto) {
    if (tipo != QtFatalMsg) return;
    Avisa("no se pueden abrir las ventanas de la revisión: " + texto.simplified().toStdString());
    std::fflush(nullptr);
    _exit(ALGUNO_FALLO);
}

class TVentanasPrograma : public TVentanas {
  public:
    explicit TVentanasPrograma(char** argumentos) : FAplicacion(FCuantos, argumentos) {
        // Numbers are read and written as always.
        std::setlocale(LC_NUMERIC, "C");
    }

  private:
    int FCuantos = 1;  // the program's name alone: the arguments are its own
    QApplication FAplicacion;
    TInstalaVentanasQt FVentanas;
};

}  // namespace

int main(int argc, char** argv) {
    LimpiaCarpetasAbandonadas();
    qInstallMessageHandler(AlMensaje);
    return OrdenAnaliza(argc, argv, [&] { return std::make_unique<TVentanasPrograma>(argv); });
}
