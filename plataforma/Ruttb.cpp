#include "plataforma/Ruttb.h"

#include "plataforma/Ansi.h"

namespace analizador {

std::unique_ptr<TTabla> CreaTabla(std::string_view alias, std::string_view fichero, std::string_view indice,
                                  bool /*compartida*/, bool /*soloLectura*/) {
    TProveedorTablas* proveedor = InstalaTablas::Actual();
    if (proveedor == nullptr)
        throw ErrorTabla("La tabla " + std::string(fichero) +
                         std::string(" no se puede abrir: no hay base de datos instalada"_ansi));
    return proveedor->Abre(alias, fichero, indice);
}

bool TBBusca(TTabla& tabla, TClave clave, bool /*exacta*/) {
    return tabla.Busca(clave);
}

bool TBRango(TTabla& tabla, TClave desde, TClave hasta) {
    return tabla.Rango(desde, hasta);
}

void TBFiltra(TTabla& tabla, std::string_view condicion) {
    tabla.Filtra(condicion);
}

void TBIndexa(TTabla& tabla, std::string_view indice) {
    tabla.Indexa(indice);
}

}  // namespace analizador
