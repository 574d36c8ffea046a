#include "adaptadores/dbase/BloquesDbf.h"

#include <algorithm>
#include <utility>

#include "adaptadores/dbase/ValoresDbf.h"
#include "plataforma/Ruttb.h"

namespace analizador {

namespace {

constexpr std::uint64_t BYTES_BLOQUE = 1024;  // about
constexpr std::size_t MAXIMO_BLOQUES = 4096;  // kept from one search to the next

}  // namespace

TBloquesDbf::TBloquesDbf(std::filesystem::path ruta, const TMarcaFichero& marca, const std::string& fichero)
    : ruta_(std::move(ruta)), marca_(marca), cabecera_(CABECERA_DBF, '\0') {
    entrada_.rdbuf()->pubsetbuf(nullptr, 0);  // what is asked for is read, not a buffer around it
    bool leida = Lee(0, cabecera_);
    if (leida) {
        cabecera_.resize(std::max<std::uint64_t>(LeeBajo(cabecera_, LONGITUD_CABECERA_EN, 2), CABECERA_DBF));
        leida = Lee(0, cabecera_);
    }
    entrada_.close();
    if (!leida) throw ErrorTabla("La tabla " + fichero + " no se puede leer");
    estructura_ = std::make_shared<const TEstructuraDbf>(cabecera_, marca_.Longitud, fichero);
    porBloque_ = std::max<std::uint64_t>(1, BYTES_BLOQUE / estructura_->LongitudRegistro());
}

// A search that broke off leaves the file open, and blocks that nobody confirmed.
void TBloquesDbf::Empieza() {
    if (entrada_.is_open() || marca_.Reciente || bloques_.size() > MAXIMO_BLOQUES) bloques_.clear();
    entrada_.close();
}

bool TBloquesDbf::AbreSiCerrado() {
    entrada_.clear();
    if (!entrada_.is_open()) entrada_.open(ruta_, std::ios::binary);
    return entrada_.is_open();
}

bool TBloquesDbf::Lee(std::uint64_t posicion, std::string& bytes) {
    if (!AbreSiCerrado()) return false;
    bytesLeidos_ += bytes.size();
    entrada_.seekg(static_cast<std::streamoff>(posicion));
    return !!entrada_.read(bytes.data(), static_cast<std::streamsize>(bytes.size()));
}

std::optional<std::string> TBloquesDbf::LeeBloque(std::uint64_t bloque) {
    const std::uint64_t primero = bloque * porBloque_;
    const std::uint64_t cuantos = std::min(porBloque_, estructura_->Registros() - primero);
    std::string bytes(cuantos * estructura_->LongitudRegistro(), '\0');
    if (!Lee(cabecera_.size() + primero * estructura_->LongitudRegistro(), bytes)) return std::nullopt;
    estructura_->TraduceTextos(bytes, 0);
    return bytes;
}

std::optional<std::string_view> TBloquesDbf::Registro(std::uint64_t numero) {
    const std::uint64_t cual = numero / porBloque_;
    auto bloque = bloques_.find(cual);
    if (bloque == bloques_.end()) {
        std::optional<std::string> leido = LeeBloque(cual);
        if (!leido) return std::nullopt;
        bloque = bloques_.emplace(cual, *std::move(leido)).first;
    }
    const std::size_t longitud = estructura_->LongitudRegistro();
    return std::string_view(bloque->second).substr(numero % porBloque_ * longitud, longitud);
}

bool TBloquesDbf::SiguenIguales() {
    std::string cabecera(cabecera_.size(), '\0');
    return Lee(0, cabecera) && cabecera == cabecera_ &&
           std::all_of(bloques_.begin(), bloques_.end(),
                       [&](const auto& bloque) { return LeeBloque(bloque.first) == bloque.second; });
}

bool TBloquesDbf::Confirma() {
    if (!entrada_.is_open()) return vale_;  // everything was confirmed before
    vale_ = vale_ && (!marca_.Reciente || SiguenIguales());
    entrada_.close();
    vale_ = vale_ && MismaMarca(marca_, MarcaDeFichero(ruta_));
    return vale_;
}

}  // namespace analizador
