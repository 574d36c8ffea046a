#pragma once

// Offices whose vocabularies and tables are made at random, and what the fuzzers write in them.

#include <cstddef>
#include <filesystem>
#include <memory>
#include <string>
#include <string_view>
#include <vector>

#include "plataforma/Ruttb.h"
#include "pruebas/comun/TablasDePrueba.h"

namespace analizador {

// Office 0 has the first entries of each section of the shipped vocabulary; the others a few made of real
// words, pieces of them and signs, the same ones on every run. All have small tables made likewise.
class TOficinaAlAzar {
  public:
    // Makes the vocabulary's files in the process's private folder.
    explicit TOficinaAlAzar(unsigned numero);

    // Makes this the office of the process, and one of its token files that of this thread.
    void Elige(bool catalan) const;

    // The text of a fuzzer's input: a byte 0 and another one stand for a word of the vocabulary or of the
    // tables, so that a text that says something is never far.
    [[nodiscard]] std::string Texto(std::string_view bytes) const;

  private:
    void PonVocabulario(unsigned numero);
    void PonTablas(unsigned numero);

    std::filesystem::path carpeta_;
    TTablasDePrueba tablas_;
    std::vector<std::string> palabras_;
};

// The office that a byte chooses, made when it is first asked for; it is now the process's. `byte`: the lower
// five bits its number, the sixth the Catalan token file.
[[nodiscard]] const TOficinaAlAzar& EligeOficina(unsigned char byte);

}  // namespace analizador
