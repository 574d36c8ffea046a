#include "programas/automatizacion/Escritura.h"

#include <array>
#include <string>
#include <utility>

#include "plataforma/Ansi.h"
#include "programas/automatizacion/Datos.h"
#include "programas/biblioteca/ErrorInterfaz.h"

namespace analizador {

namespace {

// Each property and its place in the JSON of the results.
constexpr std::array<std::pair<const char16_t*, const char*>, 14> PROPIEDADES = {{
    {u"Pizarra", "/Pizarra"},
    {u"Idioma", "/idioma"},
    {u"NumeroProtocolo", "/Cabecera/NumeroProtocolo"},
    {u"Fecha", "/Cabecera/Fecha"},
    {u"Lugar", "/Cabecera/Lugar"},
    {u"Abreviatura", "/Cabecera/Abreviatura"},
    {u"Notario", "/Cabecera/Notario"},
    {u"NotarioSustituto", "/Cabecera/NotarioSustituto"},
    {u"Empleado", "/Empleado"},
    {u"Conceptos", "/Conceptos"},
    {u"Otorgantes", "/Otorgantes"},
    {u"Cuantias", "/Cuantias"},
    {u"Fincas", "/Fincas"},
    {u"Operacion", "/Operacion"},
}};

// Marks that an analysis goes on.
class TMarca {
  public:
    explicit TMarca(bool& marca) : FMarca(marca) { FMarca = true; }
    ~TMarca() { FMarca = false; }
    TMarca(const TMarca&) = delete;
    TMarca& operator=(const TMarca&) = delete;

  private:
    bool& FMarca;
};

// Nothing given stands for the Word that is running.
TPuntero<IDispatch> AplicacionDe(const TVariante& dada) {
    switch (dada.Valor().vt) {
        case VT_DISPATCH:
            return dada.Objeto();
        case VT_EMPTY:
        case VT_NULL:
        case VT_ERROR:
            return nullptr;
        default:
            throw TLlamadaMala{DISP_E_TYPEMISMATCH};
    }
}

}  // namespace

TEscritura::TEscritura() {
    constexpr std::size_t NINGUNO = 0;
    Anade(u"Analiza", 2, [this](const TArgumentos& dados) { return Analiza(dados[0], dados[1]); });
    Anade(u"Aceptado", NINGUNO, [this](const TArgumentos&) { return TVariante(Sesion().Aceptada()); });
    Anade(u"Json", NINGUNO, [this](const TArgumentos&) {
        return TVariante(std::u16string_view(Utf16DeUtf8(Sesion().Resultados().Texto(""))));
    });
    for (const auto& [nombre, donde] : PROPIEDADES)
        Anade(nombre, NINGUNO, [this, donde = std::string(donde)](const TArgumentos&) {
            return VarianteDe(Sesion().Resultados().Valor(donde));
        });
}

TSesionAnfitrion& TEscritura::Sesion() {
    // While Word answers, the macro's program may go on with its own.
    if (FAnalizando) throw ErrorInterfaz(ANALIZADOR_MAL_USO, "el análisis anterior no ha terminado");
    if (!FSesion) FSesion = std::make_unique<TSesionAnfitrion>(TCarpetas{});
    return *FSesion;
}

TVariante TEscritura::Analiza(const TVariante& aplicacion, const TVariante& sinRevision) {
    const auto word = AplicacionDe(aplicacion);
    const auto sin = sinRevision.Verdad();
    if (!sin) throw TLlamadaMala{DISP_E_TYPEMISMATCH};
    auto& sesion = Sesion();
    const TMarca marca(FAnalizando);
    sesion.Empieza();
    sesion.AnalizaWord(word.get(), *sin ? 0U : static_cast<unsigned>(ANALIZADOR_CON_REVISION));
    return TVariante(sesion.Aceptada());
}

}  // namespace analizador
