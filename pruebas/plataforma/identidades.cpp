// Reads one number a line and prints what each check says of it: three signs, 1 or 0, for EsNif, EsUnNie and
// EsUnCif.

#include <iostream>
#include <string>

#include "plataforma/Rvarias.h"

int main() {
    std::ios::sync_with_stdio(false);
    std::string numero;
    while (std::getline(std::cin, numero))
        std::cout << analizador::EsNif(numero, false) << analizador::EsUnNie(numero, false)
                  << analizador::EsUnCif(numero, true) << '\n';
    return std::cout.flush() ? 0 : 1;
}
