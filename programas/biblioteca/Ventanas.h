#pragma once

// The windows of a review in a host that has none of their toolkit.

#include <cstdint>
#include <memory>

namespace analizador {

class TVentanasRevision {
  public:
    virtual ~TVentanasRevision() = default;
};

// Installs them for as long as the result lives, which ends on the thread that called this. `sobre`: the
// number of the HWND that they show over; 0 none. Throws ErrorInterfaz (ANALIZADOR_SIN_VENTANAS) when they
// were not built in or nobody would see them.
[[nodiscard]] std::unique_ptr<TVentanasRevision> AbreVentanas(std::intptr_t sobre);

}  // namespace analizador
