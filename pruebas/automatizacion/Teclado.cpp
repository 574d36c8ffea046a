#include "pruebas/automatizacion/Teclado.h"

#include <gtest/gtest.h>

#include <chrono>
#include <utility>

namespace analizador::pruebas {

namespace {

using namespace std::chrono_literals;

// Of this process: others of the same title may be left from another test.
HWND Abierta(const std::wstring& titulo) {
    HWND ventana = nullptr;
    while ((ventana = FindWindowExW(nullptr, ventana, nullptr, titulo.c_str())) != nullptr) {
        DWORD proceso = 0;
        GetWindowThreadProcessId(ventana, &proceso);
        if (proceso == GetCurrentProcessId() && IsWindowVisible(ventana)) return ventana;
    }
    return nullptr;
}

template <class TCondicion>
bool Espera(std::chrono::milliseconds plazo, TCondicion condicion) {
    for (auto queda = plazo; queda > 0ms; queda -= 50ms) {
        if (condicion()) return true;
        std::this_thread::sleep_for(50ms);
    }
    return false;
}

void Pulsa(HWND ventana, WORD tecla) {
    const auto exploracion = static_cast<LPARAM>(MapVirtualKeyW(tecla, MAPVK_VK_TO_VSC)) << 16;
    PostMessageW(ventana, WM_KEYDOWN, tecla, exploracion | 1);
    PostMessageW(ventana, WM_KEYUP, tecla, exploracion | static_cast<LPARAM>(0xC0000001));
}

}  // namespace

TTeclado::TTeclado(std::wstring titulo, std::vector<WORD> teclas)
    : FHilo([this, titulo = std::move(titulo), teclas = std::move(teclas)] { Escribe(titulo, teclas); }) {}

TTeclado::~TTeclado() {
    FHilo.join();
    EXPECT_EQ(FFallo, "");
}

void TTeclado::Escribe(const std::wstring& titulo, const std::vector<WORD>& teclas) {
    if (!Espera(120s, [&] { return Abierta(titulo) != nullptr; })) {
        FFallo = "the window did not open";
        return;
    }
    for (const WORD tecla : teclas) Pulsa(Abierta(titulo), tecla);
    if (Espera(30s, [&] { return Abierta(titulo) == nullptr; })) return;
    FFallo = "the window stayed open";
    PostMessageW(Abierta(titulo), WM_CLOSE, 0, 0);
}

}  // namespace analizador::pruebas
