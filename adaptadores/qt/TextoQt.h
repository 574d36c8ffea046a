#pragma once

// Texts between the core (Windows-1252 bytes) and Qt.

#include <QString>
#include <string>
#include <string_view>

namespace analizador {

// Every byte is one character, the five without one in the code page the control code of the same value:
// AnsiDeQt gives the very bytes back.
[[nodiscard]] QString QtDeAnsi(std::string_view texto);

// What the code page lacks becomes its plain equivalent, else "?" (AnsiDeUtf16); a loose accent joins its
// letter, and what has no width is dropped, so the text may be shorter.
[[nodiscard]] std::string AnsiDeQt(const QString& texto);

}  // namespace analizador
