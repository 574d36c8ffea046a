#pragma once

// The test server as the tests see it: the Word that is running.

#include <memory>
#include <string>
#include <string_view>

#include "adaptadores/word/ObjetoWord.h"
#include "plataforma/VrkWord.h"
#include "pruebas/word/servidor/ObjetoServidor.h"

namespace analizador::pruebas {

// What the tests register as Word's class.
inline constexpr CLSID CLASE_DE_PRUEBA = {
    0x5e7a11c0, 0x1111, 0x4222, {0x93, 0x33, 0x44, 0x44, 0x55, 0x55, 0x66, 0x66}};

// A running server; destroying it ends the process.
class TWordDePrueba {
  public:
    // Throws std::runtime_error when it does not start, or when another Word is installed here.
    TWordDePrueba();
    ~TWordDePrueba();
    TWordDePrueba(const TWordDePrueba&) = delete;
    TWordDePrueba& operator=(const TWordDePrueba&) = delete;

    // The one of this test program, started at the first call, and again when it died.
    [[nodiscard]] static TWordDePrueba& EnMarcha();

    // The order of a test, "Prueba_" left out: EnMarcha().Orden().Haz("Prueba_Cierra").
    [[nodiscard]] const TObjetoWord& Orden() const { return *FAplicacion; }
    [[nodiscard]] IDispatch* Aplicacion() const { return FAplicacion->Puntero(); }

    // Makes a document with this content the active one and forgets failures ordered before.
    void Abre(const TContenidoDocumento& contenido) const;
    void Mancha(int tinta, TIntervalo indices) const;
    // From its n-th call on (1-based, from now), so many calls fail.
    void Falla(TFallo fallo, int llamada, int veces = 1) const;
    // The calls of clients since the last Abre or Falla.
    [[nodiscard]] int Llamadas() const { return FAplicacion->Entero("Prueba_Llamadas"); }
    // The member that the n-th of them (1-based) asked for.
    [[nodiscard]] std::string Llamada(int n) const;
    // The objects that clients hold, the application not counted.
    [[nodiscard]] int Objetos() const { return FAplicacion->Entero("Prueba_Objetos"); }
    // How many references to the application this program holds.
    [[nodiscard]] int Referencias() const;
    [[nodiscard]] TIntervalo SeleccionDelUsuario() const;
    [[nodiscard]] bool Vive() const;

  private:
    TApartamento FApartamento;
    TConexionWord FConexion{};
    HANDLE FProceso = nullptr;
    std::unique_ptr<TObjetoWord> FAplicacion;
};

}  // namespace analizador::pruebas
