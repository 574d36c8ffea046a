#include "plataforma/Rut.h"

#include <algorithm>
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

char SinAcento(char c) {
    const auto sitio = ACENTUADAS.find(c);
    return sitio == std::string_view::npos ? c : LLANAS[sitio];
}

}  // namespace

std::string QuitaAcentoMayMin(std::string_view texto) {
    std::string llano(texto);
    std::transform(llano.begin(), llano.end(), llano.begin(), SinAcento);
    return llano;
}

std::string Pliega(std::string_view texto) {
    return AnsiUpperCase(QuitaAcentoMayMin(texto));
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
