// The stored XML and the report as the preselection dialog shows them, by way of temporary files.

#include <system_error>

#include "dialogos/CodificacionXml.h"
#include "dialogos/FicherosParaVer.h"
#include "dialogos/ListaConceptosPreseleccionados.h"
#include "plataforma/Ansi.h"
#include "plataforma/Confnvx.h"
#include "plataforma/Mensaje.h"
#include "plataforma/Rficheros.h"
#include "plataforma/Visor.h"

namespace analizador {

namespace {

std::string_view Causa(const std::error_code& error) {
    if (error == std::errc::no_space_on_device || error == std::errc::file_too_large)
        return "no hay sitio en el disco";
    if (error == std::errc::permission_denied || error == std::errc::read_only_file_system)
        return "no hay permiso";
    if (error == std::errc::no_such_file_or_directory) return "no existe la carpeta";
    return "el sistema no lo permite";
}

void AvisaFichero(std::string_view que, const std::filesystem::filesystem_error& error) {
    std::string texto(que);
    texto.append(": no se puede escribir ").append(AnsiDeUtf8(Utf8DeRuta(error.path1())));
    texto.append(": ").append(Causa(error.code()));
    Mensajes(TITULO_ATENCION, texto);
}

// The file of a report that is shown stays: the viewer may read it at any time.
bool AbreInforme(std::string_view informe) {
    auto* const visores = InstalaVisores::Actual();
    if (visores == nullptr) return false;
    const auto fichero = EscribeFicheroTemporal("PIZ", "TXT", BytesDeTexto(informe));
    if (visores->AbreTexto(fichero)) return true;
    std::error_code nada;
    std::filesystem::remove(fichero, nada);
    return false;
}

}  // namespace

void TFListaConceptosPreseleccionados::FormActivate() {
    if (!primeraActivacion_) return;
    primeraActivacion_ = false;
    pagina_ = TPaginaPreseleccion::XML;
    xmlVisible_ = !xml_.empty() && !Config().GetbAnalWordSoloAnalizadorSinXML();
    if (xmlVisible_) (void)EscribeXML();
    pagina_ = TPaginaPreseleccion::Informacion;
}

void TFListaConceptosPreseleccionados::PonPagina(TPaginaPreseleccion pagina) {
    if (pagina == TPaginaPreseleccion::Informacion || xmlVisible_) pagina_ = pagina;
}

bool TFListaConceptosPreseleccionados::EscribeXML() {
    try {
        if (ficheroXml_.empty()) ficheroXml_ = EscribeFicheroTemporal("NUM", "xml", BytesDeXml(xml_));
        return true;
    } catch (const std::filesystem::filesystem_error& error) {
        AvisaFichero("No se pueden mostrar los datos actuales del documento", error);
        return false;
    }
}

// The file may be missing because it could not be written before.
void TFListaConceptosPreseleccionados::MuestraXML() {
    auto* const visores = InstalaVisores::Actual();
    if (visores == nullptr || !EscribeXML()) return;
    visores->CreateVisorEmbeddedWB(propietario_, ficheroXml_, "Datos actuales del documento");
}

void TFListaConceptosPreseleccionados::MuestraPizarra() {
    if (informe_.empty()) return;
    try {
        if (!AbreInforme(informe_))
            Mensajes(TITULO_ATENCION, "No se puede mostrar el informe: no hay programa que abra textos");
    } catch (const std::filesystem::filesystem_error& error) {
        AvisaFichero("No se puede mostrar el informe", error);
    }
}

}  // namespace analizador
