#pragma once

#include <QApplication>
#include <optional>

namespace analizador {

// The toolkit in a host that has none of it: a QApplication for as long as this object lives, on the thread
// that makes it. It leaves the host's settings (scaling, when to end) alone. Nothing when there is one
// already.
class TAplicacionPropia {
  public:
    TAplicacionPropia();

  private:
    int FCuantos = 1;
    char FNombre[11] = "analizador";
    char* FArgumentos[2] = {FNombre, nullptr};
    std::optional<QApplication> FAplicacion;
};

}  // namespace analizador
