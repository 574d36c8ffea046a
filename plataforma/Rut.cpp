#include "plataforma/Rut.h"

#include <array>
#include <cstddef>
#include <memory>

#include "plataforma/Ansi.h"
#include "plataforma/Confnvx.h"
#include "plataforma/Rnumcad.h"
#include "plataforma/Ruttb.h"

namespace analizador {

namespace {

constexpr std::string_view ACENTUADAS = "ÁÀÂÃÉÈÊÍÌÎÓÒÔÕÚÙÛÝáàâãéèêíìîóòôõúùûý\u00A0\v‘’"_ansi;
constexpr std::string_view LLANAS = "AAAAEEEIIIOOOOUUUYaaaaeeeiiioooouuuy  ''";
static_assert(ACENTUADAS.size() == LLANAS.size());

// The plain letter of each byte: every paragraph goes through here several times.
constexpr std::array<char, 256> SIN_ACENTO = [] {
    std::array<char, 256> tabla{};
    for (std::size_t c = 0; c < tabla.size(); ++c) tabla[c] = static_cast<char>(c);
    for (std::size_t i = 0; i < ACENTUADAS.size(); ++i)
        tabla[static_cast<unsigned char>(ACENTUADAS[i])] = LLANAS[i];
    return tabla;
}();

}  // namespace

std::string QuitaAcentoMayMin(std::string_view texto) {
    std::string llano(texto);
    for (char& c : llano) c = SIN_ACENTO[static_cast<unsigned char>(c)];
    return llano;
}

std::string Pliega(std::string_view texto) {
    // Of each byte, so that a long text is gone through once.
    static const std::string PLEGADAS = AnsiUpperCase(std::string_view(SIN_ACENTO.data(), SIN_ACENTO.size()));
    std::string plegado(texto);
    for (char& c : plegado) c = PLEGADAS[static_cast<unsigned char>(c)];
    return plegado;
}

std::string Actuacion_INTI(int codigo, TTabla* tabla) {
    std::unique_ptr<TTabla> propia;
    if (tabla == nullptr) {
        propia = CreaTabla(Config().GetAliasNorvex(), "TIPO_INT.DBF", "CODIGO", true, false);
        tabla = propia.get();
    }
    std::string descripcion;
    if (TBBusca(*tabla, {{"CODIGO", codigo}}, true)) descripcion = tabla->Texto("DESCRIPCIO");
    return descripcion.empty() ? Int_Cad(codigo) : descripcion;
}

}  // namespace analizador
