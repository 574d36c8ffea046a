#pragma once

// analiza FICHERO...: the analysis itself.

#include <functional>
#include <memory>

namespace analizador {

// The windows of the review, installed for as long as it lives.
class TVentanas {
  public:
    virtual ~TVentanas() = default;
};

// Opens them; none, after saying why, when they cannot be.
using TCreaVentanas = std::function<std::unique_ptr<TVentanas>()>;

// Runs the order with its arguments and returns the exit code. `creaVentanas` is called when the user asks
// for the review.
[[nodiscard]] int OrdenAnaliza(int argc, char** argv, const TCreaVentanas& creaVentanas);

}  // namespace analizador
