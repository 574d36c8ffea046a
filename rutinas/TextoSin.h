#pragma once

#include <algorithm>
#include <cstddef>
#include <string>
#include <string_view>
#include <vector>

#include "rutinas/Tramo.h"

namespace analizador {

// A text without some of its characters, which still knows where each one that stayed came from.
class TTextoSin {
  public:
    TTextoSin(std::string_view texto, std::string_view quitados) {
        texto_.reserve(texto.size());
        for (std::size_t i = 0; i < texto.size(); ++i) {
            if (quitados.find(texto[i]) == std::string_view::npos)
                texto_ += texto[i];
            else
                huecos_.push_back(texto_.size());
        }
    }

    [[nodiscard]] const std::string& Texto() const { return texto_; }

    // Where in Texto() a position of the original text has come to stand; that of a removed character is the
    // next one's.
    [[nodiscard]] std::size_t Posicion(std::size_t original) const {
        std::size_t desde = 0;
        std::size_t hasta = huecos_.size();  // how many were removed before it lies in [desde, hasta]
        while (desde < hasta) {
            const std::size_t medio = (desde + hasta) / 2;
            if (huecos_[medio] + medio < original)
                desde = medio + 1;
            else
                hasta = medio;
        }
        return original - desde;
    }

    // The stretch of the original text from which a stretch of this one came.
    [[nodiscard]] Tramo Original(Tramo tramo) const {
        if (tramo.Longitud == 0) return {};
        const std::size_t primera = PosicionOriginal(tramo.Primera);
        return {primera, PosicionOriginal(tramo.Primera + tramo.Longitud - 1) + 1 - primera};
    }

    // The same for a view into Texto().
    [[nodiscard]] Tramo Original(std::string_view parte) const {
        if (parte.empty()) return {};
        return Original(Tramo{static_cast<std::size_t>(parte.data() - texto_.data()), parte.size()});
    }

  private:
    [[nodiscard]] std::size_t PosicionOriginal(std::size_t posicion) const {
        const auto antes = std::upper_bound(huecos_.begin(), huecos_.end(), posicion) - huecos_.begin();
        return posicion + static_cast<std::size_t>(antes);
    }

    std::string texto_;
    std::vector<std::size_t> huecos_;  // for each removed character, where in texto_ it would stand
};

}  // namespace analizador
