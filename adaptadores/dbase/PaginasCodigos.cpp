#include "adaptadores/dbase/PaginasCodigos.h"

#include <algorithm>
#include <cstddef>
#include <string_view>

#include "plataforma/Ansi.h"

namespace analizador {

namespace {

// The characters of the bytes 80..FF.
constexpr std::u16string_view PAGINA_437 =
    u"ÇüéâäàåçêëèïîìÄÅÉæÆôöòûùÿÖÜ¢£¥₧ƒáíóúñÑªº¿⌐¬½¼¡«»░▒▓│┤╡╢╖╕╣║╗╝╜╛┐"
    u"└┴┬├─┼╞╟╚╔╩╦╠═╬╧╨╤╥╙╘╒╓╫╪┘┌█▄▌▐▀αßΓπΣσµτΦΘΩδ∞φε∩≡±≥≤⌠⌡÷≈°∙·√ⁿ²■\u00A0";
constexpr std::u16string_view PAGINA_850 =
    u"ÇüéâäàåçêëèïîìÄÅÉæÆôöòûùÿÖÜø£Ø×ƒáíóúñÑªº¿®¬½¼¡«»░▒▓│┤ÁÂÀ©╣║╗╝¢¥┐"
    u"└┴┬├─┼ãÃ╚╔╩╦╠═╬¤ðÐÊËÈıÍÎÏ┘┌█▄¦Ì▀ÓßÔÒõÕµþÞÚÛÙýÝ¯´\u00AD±‗¾¶§÷¸°¨·¹³²■\u00A0";
static_assert(PAGINA_437.size() == 128 && PAGINA_850.size() == 128);

constexpr std::array<unsigned char, 5> CONTROLADORES_1252 = {0x00, 0x03, 0x57, 0x58, 0x59};
constexpr std::array<unsigned char, 11> CONTROLADORES_850 = {0x02, 0x0A, 0x0E, 0x10, 0x12, 0x14,
                                                             0x16, 0x1A, 0x1D, 0x25, 0x37};
constexpr std::array<unsigned char, 10> CONTROLADORES_437 = {0x01, 0x09, 0x0B, 0x0D, 0x0F,
                                                             0x11, 0x15, 0x18, 0x19, 0x1B};

TTraduccion TraduccionDePagina(std::u16string_view altos) {
    TTraduccion traduccion = TraduccionIdentica();
    for (std::size_t i = 0; i < altos.size(); ++i) {
        const int byte = interno::ByteDePunto(altos[i]);
        traduccion[0x80 + i] = byte < 0 ? '?' : static_cast<char>(byte);
    }
    return traduccion;
}

template <std::size_t N>
bool Esta(const std::array<unsigned char, N>& lista, unsigned char controlador) {
    return std::find(lista.begin(), lista.end(), controlador) != lista.end();
}

}  // namespace

TTraduccion TraduccionIdentica() {
    TTraduccion traduccion{};
    for (std::size_t i = 0; i < traduccion.size(); ++i) traduccion[i] = static_cast<char>(i);
    traduccion[0] = ' ';
    return traduccion;
}

std::optional<TTraduccion> TraduccionDe(unsigned char controlador) {
    if (Esta(CONTROLADORES_1252, controlador)) return TraduccionIdentica();
    if (Esta(CONTROLADORES_850, controlador)) return TraduccionDePagina(PAGINA_850);
    if (Esta(CONTROLADORES_437, controlador)) return TraduccionDePagina(PAGINA_437);
    return std::nullopt;
}

}  // namespace analizador
