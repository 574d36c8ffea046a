#include "medidas/MemoriaContada.h"

#include <malloc.h>

#include <atomic>
#include <cstdlib>
#include <new>

namespace {

std::atomic<std::size_t> enUso{0};
std::atomic<std::size_t> maximo{0};

void* Pide(std::size_t bytes) {
    void* const bloque = std::malloc(bytes == 0 ? 1 : bytes);
    if (bloque == nullptr) throw std::bad_alloc();
    const std::size_t ahora = enUso += malloc_usable_size(bloque);
    std::size_t antes = maximo;
    while (ahora > antes && !maximo.compare_exchange_weak(antes, ahora)) {
    }
    return bloque;
}

void Devuelve(void* bloque) {
    if (bloque == nullptr) return;
    enUso -= malloc_usable_size(bloque);
    std::free(bloque);
}

}  // namespace

void* operator new(std::size_t bytes) {
    return Pide(bytes);
}
void* operator new[](std::size_t bytes) {
    return Pide(bytes);
}
void operator delete(void* bloque) noexcept {
    Devuelve(bloque);
}
void operator delete[](void* bloque) noexcept {
    Devuelve(bloque);
}
void operator delete(void* bloque, std::size_t) noexcept {
    Devuelve(bloque);
}
void operator delete[](void* bloque, std::size_t) noexcept {
    Devuelve(bloque);
}

namespace analizador {

std::size_t MemoriaEnUso() {
    return enUso;
}

std::size_t MemoriaMaxima() {
    return maximo;
}

void EmpiezaMaximo() {
    maximo = enUso.load();
}

}  // namespace analizador
