#include "plataforma/Mensaje.h"

#include <string>

namespace analizador {

void Mensajes(std::string_view titulo, std::string_view texto) {
    if (auto* const mensajes = InstalaMensajes::Actual()) mensajes->Muestra(titulo, texto);
}

bool Mensaje_NoSi(std::string_view titulo, std::string_view texto, std::string_view pregunta) {
    auto* const mensajes = InstalaMensajes::Actual();
    return mensajes != nullptr &&
           mensajes->Pregunta(titulo, std::string(texto).append("\n").append(pregunta));
}

}  // namespace analizador
