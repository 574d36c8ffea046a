#pragma once

// Many deeds at once, their results in order.

#include <filesystem>
#include <functional>
#include <optional>
#include <string>

#include "programas/analiza/Orden.h"

namespace analizador {

// What came of a deed. All texts are UTF-8.
struct TResultado {
    TCodigoSalida Codigo = TODO_BIEN;
    std::string Salida{};     // for the standard output or the file of results, with its line ends
    std::string Aviso{};      // one line for the standard error; empty: nothing to say
    bool Conservado = false;  // not analysed: the result of an earlier run stands
};

// The three parts of a batch.
struct TLote {
    // The next deed; none: that was all. Called from the thread that runs the batch, which may wait in it.
    std::function<std::optional<std::filesystem::path>()> Siguiente;
    // Called from several threads at once.
    std::function<TResultado(const std::filesystem::path&)> Analiza;
    // Called for one deed at a time, in the order in which they came, as soon as it and all before it are
    // done; from any of the threads.
    std::function<void(const std::filesystem::path&, TResultado)> Entrega;
};

// Runs it with `hilos` threads (1 or more) and returns when every deed that was taken has been delivered. No
// more than four deeds a thread are on their way at any time, so that one slow deed does not fill the memory
// with what waits behind it. What any part throws ends the batch, without delivering more, and is thrown
// here.
void EjecutaLote(const TLote& lote, unsigned hilos);

}  // namespace analizador
