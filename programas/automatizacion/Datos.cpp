#include "programas/automatizacion/Datos.h"

#include <cstdlib>
#include <memory>
#include <utility>

#include "plataforma/Ansi.h"
#include "programas/automatizacion/Enumeracion.h"
#include "programas/automatizacion/ObjetoAutomatico.h"

namespace analizador {

namespace {

using TJson = nlohmann::ordered_json;

class TRegistro : public TObjetoAutomatico {
  public:
    explicit TRegistro(const TJson& registro) {
        for (const auto& [clave, valor] : registro.items())
            Anade(Utf16DeUtf8(clave), 0,
                  [clave = clave, valor = valor](const TArgumentos&) { return VarianteDe(clave, valor); });
    }
};

class TColeccion : public TObjetoAutomatico {
  public:
    explicit TColeccion(TJson lista) : FLista(std::move(lista)) {
        Anade(u"Count", 0, [this](const TArgumentos&) { return TVariante(static_cast<int>(FLista.size())); });
        Anade(DISPID_VALUE, u"Item", 1,
              [this](const TArgumentos& argumentos) { return Elemento(argumentos[0]); });
        Anade(DISPID_NEWENUM, u"_NewEnum", 0, [this](const TArgumentos&) { return Enumera(FLista); });
    }

  private:
    [[nodiscard]] TVariante Elemento(const TVariante& indice) const {
        const auto numero = indice.Entero();
        if (!numero) throw TLlamadaMala{DISP_E_TYPEMISMATCH};
        if (*numero < 1 || static_cast<std::size_t>(*numero) > FLista.size())
            throw TLlamadaMala{DISP_E_BADINDEX};
        return VarianteDe(FLista[static_cast<std::size_t>(*numero) - 1]);
    }

    TJson FLista;
};

template <class TObjeto>
TVariante Objeto(const TJson& valor) {
    const TPuntero<IDispatch> objeto(std::make_unique<TObjeto>(valor).release());
    return TVariante(objeto.get());
}

TVariante Real(double valor) {
    TVariante variante;
    variante.Recibe()->vt = VT_R8;
    variante.Recibe()->dblVal = valor;
    return variante;
}

// "2001-12-31"; empty when it is no day of the calendar.
TVariante Dia(const std::string& iso) {
    SYSTEMTIME dia{};
    char* resto = nullptr;
    dia.wYear = static_cast<WORD>(std::strtoul(iso.c_str(), &resto, 10));
    if (*resto == '-') dia.wMonth = static_cast<WORD>(std::strtoul(resto + 1, &resto, 10));
    if (*resto == '-') dia.wDay = static_cast<WORD>(std::strtoul(resto + 1, &resto, 10));
    TVariante variante;
    if (SystemTimeToVariantTime(&dia, &variante.Recibe()->date)) variante.Recibe()->vt = VT_DATE;
    return variante;
}

}  // namespace

TVariante VarianteDe(const TJson& valor) {
    switch (valor.type()) {
        case TJson::value_t::string:
            return TVariante(std::u16string_view(Utf16DeUtf8(valor.get<std::string>())));
        case TJson::value_t::boolean:
            return TVariante(valor.get<bool>());
        case TJson::value_t::number_integer:
        case TJson::value_t::number_unsigned:
            return TVariante(valor.get<int>());
        case TJson::value_t::number_float:
            return Real(valor.get<double>());
        case TJson::value_t::object:
            return Objeto<TRegistro>(valor);
        case TJson::value_t::array:
            return Objeto<TColeccion>(valor);
        default:
            return {};
    }
}

TVariante VarianteDe(const std::string& clave, const TJson& valor) {
    return clave == "FechaNacimiento" && valor.is_string() ? Dia(valor.get<std::string>())
                                                           : VarianteDe(valor);
}

}  // namespace analizador
