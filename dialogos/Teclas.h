#pragma once

namespace analizador {

// The keys that a dialog answers to; a view hands over no others.
enum class TTecla { Intro, Escape, Arriba, Abajo, RePag, AvPag, Insertar, Suprimir };

}  // namespace analizador
