#include "programas/biblioteca/Resultados.h"

#include "programas/biblioteca/ErrorInterfaz.h"
#include "programas/biblioteca/Textos.h"

namespace analizador {

namespace {

using TJson = nlohmann::ordered_json;

std::string TextoDeValor(const TJson& valor) {
    if (valor.is_string()) return valor.get<std::string>();
    if (valor.is_null()) return "";
    return valor.dump();
}

}  // namespace

const TJson& TResultados::Valor(const std::string& donde) const {
    try {
        return FJson.at(TJson::json_pointer(donde));
    } catch (const TJson::exception&) {
        throw ErrorInterfaz(ANALIZADOR_NO_HAY, "no hay ningún dato en \"" + donde + "\"");
    }
}

const char* TResultados::Texto(const std::string& donde) {
    const auto hecho = FTextos.find(donde);
    if (hecho != FTextos.end()) return hecho->second.c_str();
    return FTextos.emplace(donde, TextoDeValor(Valor(donde))).first->second.c_str();
}

const analizador_utf16* TResultados::Texto16(const std::string& donde) {
    const auto hecho = FTextos16.find(donde);
    if (hecho != FTextos16.end()) return hecho->second.data();
    return FTextos16.emplace(donde, UnidadesDe(TextoDeValor(Valor(donde)))).first->second.data();
}

int TResultados::Cuenta(const std::string& donde) const {
    const TJson& lista = Valor(donde);
    if (!lista.is_array())
        throw ErrorInterfaz(ANALIZADOR_NO_HAY, "no hay ninguna lista en \"" + donde + "\"");
    return static_cast<int>(lista.size());
}

}  // namespace analizador
