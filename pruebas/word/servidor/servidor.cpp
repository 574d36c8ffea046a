// A program that stands for Word: found by who looks for the running one, with the part of Word's objects
// that the adapter uses over a document in memory. Members that begin with "Prueba_" are the tests' own
// orders.

#include <cstdint>
#include <memory>
#include <string>
#include <utility>

#include "adaptadores/word/Com.h"
#include "plataforma/Ansi.h"
#include "pruebas/word/WordDePrueba.h"
#include "pruebas/word/servidor/DocumentoServidor.h"

namespace analizador::pruebas {
namespace {

struct TEstado {
    std::shared_ptr<TLibros> Libros = std::make_shared<TLibros>();
    std::shared_ptr<TDocumentoServidor> Activo;

    [[nodiscard]] TDocumentoServidor& ConDocumento() const {
        if (!Activo) throw TErrorDeWord{4248, u"This command is not available because no document is open."};
        return *Activo;
    }
};
using TEstadoComun = std::shared_ptr<TEstado>;

std::string Ansi(const TArgumentos& argumentos, std::size_t i) {
    return AnsiDeUtf16(argumentos.Texto(i));
}

TIntervalo Intervalo(const TArgumentos& argumentos, std::size_t i) {
    return {argumentos.Entero(i), argumentos.Entero(i + 1)};
}

void AnadeOrdenesDelDocumento(TObjetoServidor& aplicacion, const TEstadoComun& estado) {
    // A new content has an empty selection at its start and takes the place of the active document.
    const auto cambia = [estado](TContenidoDocumento contenido) {
        estado->Activo = std::make_shared<TDocumentoServidor>(std::move(contenido));
        return TVariante();
    };
    aplicacion.Anade(L"Prueba_Abre", [=](const TArgumentos& argumentos) {
        return cambia({Ansi(argumentos, 0), {}, {}});
    });
    aplicacion.Anade(L"Prueba_Marcador", [=](const TArgumentos& argumentos) {
        auto contenido = estado->ConDocumento().Contenido();
        contenido.Marcadores.push_back({Ansi(argumentos, 0), Intervalo(argumentos, 1)});
        return cambia(std::move(contenido));
    });
    aplicacion.Anade(L"Prueba_Variable", [=](const TArgumentos& argumentos) {
        auto contenido = estado->ConDocumento().Contenido();
        contenido.Variables.push_back({Ansi(argumentos, 0), Ansi(argumentos, 1)});
        return cambia(std::move(contenido));
    });
    aplicacion.Anade(L"Prueba_Mancha", [=](const TArgumentos& argumentos) {
        estado->ConDocumento().Manchas.push_back(
            {static_cast<TTinta>(argumentos.Entero(0)), Intervalo(argumentos, 1)});
        return TVariante();
    });
    aplicacion.Anade(L"Prueba_Cierra", [=](const TArgumentos&) {
        estado->ConDocumento().Abierto = false;
        estado->Activo.reset();
        return TVariante();
    });
    // The user types at the end of the document: its objects stay.
    aplicacion.Anade(L"Prueba_Escribe", [=](const TArgumentos& argumentos) {
        auto& documento = estado->ConDocumento();
        auto contenido = documento.Contenido();
        contenido.Texto.append(Ansi(argumentos, 0));
        documento.Cambia(std::move(contenido));
        return TVariante();
    });
    aplicacion.Anade(L"Prueba_Selecciona", [=](const TArgumentos& argumentos) {
        estado->ConDocumento().Seleccion = Intervalo(argumentos, 0);
        estado->ConDocumento().Historia = argumentos.Entero(2);
        return TVariante();
    });
    aplicacion.Anade(L"Prueba_SeleccionInicio",
                     [=](const TArgumentos&) { return TVariante(estado->ConDocumento().Seleccion.Inicio); });
    aplicacion.Anade(L"Prueba_SeleccionFin",
                     [=](const TArgumentos&) { return TVariante(estado->ConDocumento().Seleccion.Fin); });
}

// A window on the screen, as big as Word's.
void AnadeOrdenesDeVentana(TObjetoServidor& aplicacion, const TEstadoComun& estado) {
    aplicacion.Anade(L"Prueba_Ventana", [=](const TArgumentos&) {
        const HWND ventana =
            CreateWindowExW(0, L"STATIC", L"Word de prueba", WS_OVERLAPPEDWINDOW | WS_VISIBLE, 40, 40, 900,
                            600, nullptr, nullptr, nullptr, nullptr);
        estado->Libros->Ventana = static_cast<int>(reinterpret_cast<std::intptr_t>(ventana));
        return TVariante(estado->Libros->Ventana);
    });
    aplicacion.Anade(L"Prueba_SinVentana", [=](const TArgumentos&) {
        DestroyWindow(
            reinterpret_cast<HWND>(static_cast<std::intptr_t>(std::exchange(estado->Libros->Ventana, 0))));
        return TVariante();
    });
}

void AnadeOrdenesDeFallo(TObjetoServidor& aplicacion, const TEstadoComun& estado) {
    aplicacion.Anade(L"Prueba_Falla", [=](const TArgumentos& argumentos) {
        TLibros& libros = *estado->Libros;
        libros.Llamadas.clear();
        libros.Fallo = static_cast<TFallo>(argumentos.Entero(0));
        libros.EnLaLlamada = argumentos.Entero(1);
        libros.Veces = argumentos.Entero(2);
        return TVariante();
    });
    aplicacion.Anade(L"Prueba_Llamadas", [=](const TArgumentos&) {
        return TVariante(static_cast<int>(estado->Libros->Llamadas.size()));
    });
    aplicacion.Anade(L"Prueba_Llamada", [=](const TArgumentos& argumentos) {
        const auto cual = static_cast<std::size_t>(argumentos.Entero(0) - 1);
        const std::wstring& miembro = estado->Libros->Llamadas.at(cual);
        return TVariante(std::u16string_view(std::u16string(miembro.begin(), miembro.end())));
    });
    aplicacion.Anade(L"Prueba_Objetos",
                     [=](const TArgumentos&) { return TVariante(estado->Libros->Objetos); });
    aplicacion.Anade(L"Prueba_Acaba", [](const TArgumentos&) {
        PostQuitMessage(0);
        return TVariante();
    });
}

TPuntero<TObjetoServidor> Aplicacion() {
    const auto estado = std::make_shared<TEstado>();
    TPuntero<TObjetoServidor> aplicacion(new TObjetoServidor(estado->Libros, false));
    aplicacion->Anade(L"ActiveDocument", [=](const TArgumentos&) {
        (void)estado->ConDocumento();
        return EntregaDocumento(estado->Libros, estado->Activo);
    });
    aplicacion->Anade(L"ActiveWindow", [=](const TArgumentos&) {
        (void)estado->ConDocumento();
        return EntregaVentana(estado->Libros, estado->Activo);
    });
    AnadeOrdenesDelDocumento(*aplicacion, estado);
    AnadeOrdenesDeVentana(*aplicacion, estado);
    AnadeOrdenesDeFallo(*aplicacion, estado);
    return aplicacion;
}

int Sirve() {
    const TApartamento apartamento;
    const auto aplicacion = Aplicacion();
    DWORD registro = 0;
    if (FAILED(RegisterActiveObject(aplicacion.get(), CLASE_DE_PRUEBA, ACTIVEOBJECT_STRONG, &registro)))
        return 1;
    MSG mensaje;
    while (GetMessageW(&mensaje, nullptr, 0, 0) > 0) DispatchMessageW(&mensaje);
    RevokeActiveObject(registro, nullptr);
    CoDisconnectObject(aplicacion.get(), 0);
    return 0;
}

}  // namespace
}  // namespace analizador::pruebas

int main() {
    return analizador::pruebas::Sirve();
}
