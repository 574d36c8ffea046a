// What a bad disk, a broken transfer or a hostile hand does to a file's bytes.

#include <algorithm>
#include <array>

#include "pruebas/ataques/Mutaciones.h"

namespace analizador::pruebas {

namespace {

using namespace std::string_literals;
using namespace std::string_view_literals;

struct TTrozo {
    std::size_t Inicio;
    std::size_t Longitud;
};

TTrozo TrozoDe(const std::string& bytes, TAzar& azar) {
    const auto inicio = azar.Hasta(bytes.size());
    return {inicio, std::min(azar.Magnitud(bytes.size()), bytes.size() - inicio)};
}

std::string Cortado(TPartes partes, TAzar& azar) {
    const auto bytes = Comprime(partes);
    return bytes.substr(0, azar.Hasta(bytes.size()));
}

std::string SinPrincipio(TPartes partes, TAzar& azar) {
    const auto bytes = Comprime(partes);
    return bytes.substr(azar.Hasta(bytes.size()));
}

std::string BytesCambiados(TPartes partes, TAzar& azar) {
    auto bytes = Comprime(partes);
    for (auto i = azar.Magnitud(64); i > 0; --i) bytes[azar.Hasta(bytes.size())] = azar.Byte();
    return bytes;
}

std::string BitsCambiados(TPartes partes, TAzar& azar) {
    auto bytes = Comprime(partes);
    for (auto i = azar.Magnitud(16); i > 0; --i) {
        char& byte = bytes[azar.Hasta(bytes.size())];
        byte = static_cast<char>(static_cast<unsigned char>(byte) ^ 1U << azar.Hasta(8));
    }
    return bytes;
}

std::string TrozoBorrado(TPartes partes, TAzar& azar) {
    auto bytes = Comprime(partes);
    const auto trozo = TrozoDe(bytes, azar);
    return bytes.erase(trozo.Inicio, trozo.Longitud);
}

std::string TrozoRepetido(TPartes partes, TAzar& azar) {
    auto bytes = Comprime(partes);
    const auto trozo = TrozoDe(bytes, azar);
    return bytes.insert(azar.Hasta(bytes.size()), bytes.substr(trozo.Inicio, trozo.Longitud));
}

std::string TrozoACeros(TPartes partes, TAzar& azar) {
    auto bytes = Comprime(partes);
    const auto trozo = TrozoDe(bytes, azar);
    return bytes.replace(trozo.Inicio, trozo.Longitud, trozo.Longitud, '\0');
}

std::string BytesMetidos(TPartes partes, TAzar& azar) {
    auto bytes = Comprime(partes);
    return bytes.insert(azar.Hasta(bytes.size()), azar.Bytes(azar.Magnitud(4096)));
}

// The places of the archive's headers: of each part's beginning, in its directory, of the directory's end.
std::vector<std::size_t> Cabeceras(const std::string& bytes) {
    std::vector<std::size_t> cabeceras;
    for (const auto firma : {"PK\x03\x04"sv, "PK\x01\x02"sv, "PK\x05\x06"sv})
        for (auto en = bytes.find(firma); en != std::string::npos; en = bytes.find(firma, en + 1))
            cabeceras.push_back(en);
    return cabeceras;
}

// Sizes, offsets, flags, ways of compression and lengths of names that lie.
std::string CampoDeCabecera(TPartes partes, TAzar& azar) {
    constexpr std::size_t LONGITUD_CABECERA = 46;
    auto bytes = Comprime(partes);
    const auto cabeceras = Cabeceras(bytes);
    for (auto i = azar.Magnitud(4); i > 0; --i) {
        const std::size_t en = azar.Uno(cabeceras) + 4 + 2 * azar.Hasta(LONGITUD_CABECERA / 2 - 2);
        const std::array<std::string, 8> valores = {
            "\0\0"s,       "\1\0"s,      "\xFF\xFF"s, "\0\0\0\0"s, "\xFF\xFF\xFF\xFF"s, "\xFF\xFF\xFF\x7F"s,
            "\0\0\0\x80"s, azar.Bytes(4)};
        const auto& valor = azar.Uno(valores);
        for (std::size_t j = 0; j < valor.size() && en + j < bytes.size(); ++j) bytes[en + j] = valor[j];
    }
    return bytes;
}

std::string BasuraAlrededor(TPartes partes, TAzar& azar) {
    const auto bytes = Comprime(partes);
    const auto basura = azar.Bytes(azar.Magnitud(100'000));
    return azar.Hasta(2) == 0 ? basura + bytes : bytes + basura;
}

std::string DosArchivosSeguidos(TPartes partes, TAzar& azar) {
    const auto bytes = Comprime(partes);
    partes.erase(partes.begin() + static_cast<std::ptrdiff_t>(azar.Hasta(partes.size())));
    return azar.Hasta(2) == 0 ? bytes + Comprime(partes) : Comprime(partes) + bytes;
}

// Every directory entry leads to the content of the same part.
std::string TodasLaMisma(TPartes partes, TAzar& azar) {
    auto bytes = Comprime(partes);
    constexpr std::size_t DESPLAZAMIENTO_EN = 42;
    const auto cual = bytes.find("PK\x03\x04", azar.Hasta(bytes.size() / 2));
    for (auto en = bytes.find("PK\x01\x02"); en != std::string::npos; en = bytes.find("PK\x01\x02", en + 1))
        for (std::size_t i = 0; i < 4 && en + DESPLAZAMIENTO_EN + i < bytes.size(); ++i)
            bytes[en + DESPLAZAMIENTO_EN + i] = static_cast<char>(cual >> 8 * i & 0xFF);
    return bytes;
}

// The old binary documents, the encrypted ones, and what only begins as they do.
std::string OtroContenedor(TPartes partes, TAzar& azar) {
    const auto utf16 = [](std::string_view texto) {
        std::string unidades;
        for (const char c : texto) unidades += {c, '\0'};
        return unidades;
    };
    const std::array<std::string, 5> flujos = {"", utf16("EncryptedPackage"), utf16("WordDocument"),
                                               utf16("Workbook"), Comprime(partes)};
    const std::array<std::string, 6> principios = {"\xD0\xCF\x11\xE0\xA1\xB1\x1A\xE1"s,
                                                   "%PDF-1.7\n",
                                                   "{\\rtf1\\ansi",
                                                   "<html xmlns:w=\"urn:schemas-microsoft-com:office:word\">",
                                                   "\x1F\x8B\x08"s,
                                                   "PK\x03\x04"s};
    return azar.Uno(principios) + azar.Bytes(azar.Magnitud(2000)) + azar.Uno(flujos) +
           azar.Bytes(azar.Magnitud(2000));
}

std::string PartesCifradas(TPartes partes, TAzar& azar) {
    auto bytes = Comprime(partes);
    for (const auto en : Cabeceras(bytes)) {
        const bool esLocal = bytes[en + 2] == '\x03';
        if (azar.Hasta(3) != 0) bytes[en + (esLocal ? 6 : 8)] |= '\1';
    }
    return bytes;
}

}  // namespace

const std::vector<TClaseMutacion>& MutacionesDeBytes() {
    static const std::vector<TClaseMutacion> CLASES = {
        {"cortado", Cortado},
        {"sin principio", SinPrincipio},
        {"bytes cambiados", BytesCambiados},
        {"bits cambiados", BitsCambiados},
        {"trozo borrado", TrozoBorrado},
        {"trozo repetido", TrozoRepetido},
        {"trozo a ceros", TrozoACeros},
        {"bytes metidos", BytesMetidos},
        {"campo de cabecera", CampoDeCabecera},
        {"basura alrededor", BasuraAlrededor},
        {"dos archivos seguidos", DosArchivosSeguidos},
        {"todas la misma parte", TodasLaMisma},
        {"otro contenedor", OtroContenedor},
        {"partes cifradas", PartesCifradas},
    };
    return CLASES;
}

}  // namespace analizador::pruebas
