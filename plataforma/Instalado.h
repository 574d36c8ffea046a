#pragma once

#include <utility>

namespace analizador {

// One part of the suite that is installed once at start-up and reached from everywhere: the configuration,
// the tables, the windows. `Instalado<Interfaz>::Actual()` is the installed one or nullptr; an object of this
// class installs another for as long as it lives and then puts the old one back. Nothing is owned. Install
// before any analysis begins: the pointer is not guarded against threads that are already analysing.
template <class Interfaz>
class Instalado {
  public:
    explicit Instalado(Interfaz& parte) : anterior_(std::exchange(actual_, &parte)) {}
    ~Instalado() { actual_ = anterior_; }
    Instalado(const Instalado&) = delete;
    Instalado& operator=(const Instalado&) = delete;

    [[nodiscard]] static Interfaz* Actual() { return actual_; }

  private:
    Interfaz* anterior_;
    inline static Interfaz* actual_ = nullptr;
};

}  // namespace analizador
