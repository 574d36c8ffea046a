#include "programas/analiza/SalidaOrigen.h"

#include <string>
#include <vector>

#include "plataforma/Ansi.h"
#include "plataforma/Rnumcad.h"

namespace analizador {

namespace {

using TJson = nlohmann::ordered_json;

// Turns origins into JSON, with the words that stand there.
class TEscritorDeOrigenes {
  public:
    explicit TEscritorDeOrigenes(const TWordDocumentoCustom& documento) {
        const std::string texto = TraduceCaracteresExtranosDeWord(documento.GetTexto());
        for (std::size_t inicio = 0; inicio < texto.size();) {
            const std::size_t fin = std::min(texto.find('\r', inicio), texto.size());
            FParrafos.push_back(texto.substr(inicio, fin - inicio));
            inicio = fin + 1;
        }
    }

    [[nodiscard]] TJson Uno(const TOrigen& origen) const {
        if (origen.Donde.Longitud == 0) return nullptr;
        const std::string& parrafo = FParrafos.at(static_cast<std::size_t>(origen.Parrafo) - 1);
        return {{"parrafo", origen.Parrafo},
                {"primera", origen.Donde.Primera},
                {"longitud", origen.Donde.Longitud},
                {"texto",
                 Utf8DeAnsi(std::string_view(parrafo).substr(origen.Donde.Primera, origen.Donde.Longitud))}};
    }

    [[nodiscard]] TJson Varios(const std::vector<TOrigen>& origenes) const {
        TJson json = TJson::array();
        for (const TOrigen& origen : origenes) json.push_back(Uno(origen));
        return json;
    }

    void Pon(TJson& json, const char* clave, const std::optional<TOrigen>& origen) const {
        if (origen && origen->Donde.Longitud != 0) json[clave] = Uno(*origen);
    }

    [[nodiscard]] TJson Campos(const TOrigenes& origenes) const {
        TJson json = TJson::object();
        for (const auto& [campo, origen] : origenes) Pon(json, campo.c_str(), origen);
        return json;
    }

  private:
    std::vector<std::string> FParrafos;  // plain, without their line ends
};

}  // namespace

TJson JsonOrigen(const TAnalisisEscritura& analisis) {
    const TClassAnalizadorAbierto& sesion = analisis.Sesion();
    const TEscritorDeOrigenes escritor(analisis.Documento());
    const TOrigenCabecera& origen = sesion.Cabecera.Origen;

    TJson cabecera = TJson::object();
    escritor.Pon(cabecera, "NumeroProtocolo", origen.NumeroProtocolo);
    escritor.Pon(cabecera, "Lugar", origen.Lugar);
    escritor.Pon(cabecera, "Fecha", origen.Fecha);
    escritor.Pon(cabecera, "Notario", origen.Notario);
    escritor.Pon(cabecera, "NotarioSustituto", origen.NotarioSustituto);

    TJson otorgantes = TJson::array();
    for (const TOrigenes& campos : sesion.Otorgantes.Origenes) otorgantes.push_back(escritor.Campos(campos));

    TJson operacion = {{"Plazos", escritor.Varios(sesion.OrigenOperacion.Plazos)},
                       {"TAEs", escritor.Varios(sesion.OrigenOperacion.TAEs)}};
    escritor.Pon(operacion, "TipoInteres", sesion.OrigenOperacion.TipoInteres);

    return {{"Cabecera", cabecera},
            {"Conceptos", escritor.Varios(origen.Conceptos)},
            {"Cuantias", escritor.Varios(sesion.OrigenCuantias)},
            {"Otorgantes", otorgantes},
            {"Operacion", operacion}};
}

}  // namespace analizador
