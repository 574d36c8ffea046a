#include "plataforma/Mensaje.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

namespace analizador {
namespace {

struct TMensajesGrabados : TMensajes {
    void Muestra(std::string_view titulo, std::string_view texto) override {
        Vistos.push_back(std::string(titulo).append("|").append(texto));
    }
    [[nodiscard]] bool Pregunta(std::string_view titulo, std::string_view texto) override {
        Muestra(titulo, texto);
        return Respuesta;
    }
    std::vector<std::string> Vistos;
    bool Respuesta = false;
};

TEST(Mensajes, MuestraElTexto) {
    TMensajesGrabados mensajes;
    const InstalaMensajes guarda(mensajes);
    Mensajes(TITULO_ATENCION, "No vale");
    EXPECT_EQ(mensajes.Vistos, (std::vector<std::string>{std::string(" ATENCIÓN:|No vale"_ansi)}));
}

TEST(Mensajes, LaPreguntaVaEnSuLinea) {
    TMensajesGrabados mensajes;
    const InstalaMensajes guarda(mensajes);
    for (const bool respuesta : {true, false}) {
        mensajes.Respuesta = respuesta;
        EXPECT_EQ(Mensaje_NoSi("T", "Ya está."_ansi, "¿Otra vez?"_ansi), respuesta);
        EXPECT_EQ(mensajes.Vistos.back(), "T|Ya está.\n¿Otra vez?"_ansi);
    }
}

TEST(Mensajes, SinCajasNoHayNadaYLaRespuestaEsNo) {
    Mensajes("T", "x");
    EXPECT_FALSE(Mensaje_NoSi("T", "x", "y"));
}

}  // namespace
}  // namespace analizador
