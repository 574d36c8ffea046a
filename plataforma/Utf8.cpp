#include "plataforma/Utf8.h"

namespace analizador {

void AnadeUtf8(std::string& texto, char32_t punto) {
    const auto anade = [&](char32_t byte) { texto += static_cast<char>(static_cast<unsigned char>(byte)); };
    if (punto < 0x80) return anade(punto);
    if (punto < 0x800) {
        anade(0xC0 | punto >> 6);
    } else if (punto < 0x10000) {
        anade(0xE0 | punto >> 12);
        anade(0x80 | (punto >> 6 & 0x3F));
    } else {
        anade(0xF0 | punto >> 18);
        anade(0x80 | (punto >> 12 & 0x3F));
        anade(0x80 | (punto >> 6 & 0x3F));
    }
    anade(0x80 | (punto & 0x3F));
}

}  // namespace analizador
