#pragma once

// Someone at the keyboard while a call of the test keeps its thread.

#include <windows.h>

#include <string>
#include <thread>
#include <vector>

namespace analizador::pruebas {

// Waits for a window of this process with that title and types the keys into it. One that does not go away
// afterwards is closed; that fails the test, and so does one that never opens.
class TTeclado {
  public:
    TTeclado(std::wstring titulo, std::vector<WORD> teclas);
    ~TTeclado();
    TTeclado(const TTeclado&) = delete;
    TTeclado& operator=(const TTeclado&) = delete;

  private:
    void Escribe(const std::wstring& titulo, const std::vector<WORD>& teclas);

    std::string FFallo;
    std::thread FHilo;
};

}  // namespace analizador::pruebas
