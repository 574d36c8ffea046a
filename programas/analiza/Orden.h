#pragma once

// What the orders of the command line have in common.

#include <CLI/CLI.hpp>
#include <functional>
#include <string>

namespace analizador {

// The worst of several files counts, in this order: a failure, a review that the user cancelled, all well.
enum TCodigoSalida { TODO_BIEN = 0, ALGUNO_FALLO = 1, MAL_USO = 2, REVISION_CANCELADA = 3 };

[[nodiscard]] TCodigoSalida PeorDe(TCodigoSalida uno, TCodigoSalida otro);

// The help in Castilian and the options that every order takes alike.
void PreparaOrden(CLI::App& orden);

// Reads the arguments and runs `ejecuta`, whose exit code is returned. A wrong call, a configuration that
// cannot be used and an output that cannot be written are told in one line. `falta`: what to say when what
// the order is about was not given.
[[nodiscard]] int EjecutaOrden(CLI::App& orden, int argc, char** argv, const std::string& falta,
                               const std::function<int()>& ejecuta);

// One line on the standard error. What was printed before comes first where both go to one place.
void Avisa(const std::string& texto);

// Says what is wrong with the call; returns MAL_USO.
[[nodiscard]] int MalUso(const std::string& causa);

// On the standard output.
void Escribe(const std::string& texto);

// analiza vocabulario, analiza medida: `argv[0]` is the order's own name.
[[nodiscard]] int OrdenVocabulario(int argc, char** argv);
[[nodiscard]] int OrdenMedida(int argc, char** argv);

}  // namespace analizador
