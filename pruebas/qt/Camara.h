#pragma once

#include <QPalette>
#include <QWidget>
#include <filesystem>
#include <functional>
#include <string>

namespace analizador {

// Takes pictures of windows into a folder, which it makes.
class TCamara {
  public:
    explicit TCamara(std::filesystem::path carpeta);

    // `nombre`: of the file, without ".png".
    void Guarda(const std::string& nombre, QWidget& ventana);

    // Runs what shows a modal window, takes its picture once `prepara` has put it in its state, and closes
    // it.
    void GuardaModal(
        const std::string& nombre, const std::function<void()>& muestra,
        const std::function<void(QWidget&)>& prepara = [](QWidget&) {});

    // A picture held a single colour, could not be written, or its window never came.
    [[nodiscard]] bool Fallo() const { return fallo_; }

  private:
    void Falla(const std::string& nombre, const char* causa);

    std::filesystem::path carpeta_;
    bool fallo_ = false;
};

[[nodiscard]] QPalette PaletaOscura();

}  // namespace analizador
