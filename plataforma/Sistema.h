#pragma once

// What the platform asks of the operating system and only Sistema_*.cpp answers; for this folder's own use.

#include <filesystem>
#include <memory>
#include <string_view>

namespace analizador {

// A new folder in `donde` that only this user can enter; its unguessable name begins with `prefijo`. Throws
// std::filesystem::filesystem_error.
[[nodiscard]] std::filesystem::path CreaCarpetaSecreta(const std::filesystem::path& donde,
                                                       std::string_view prefijo);

// A lock on a folder; destroying it, or the end of the process, lets go of it.
class TCerrojo {
  public:
    virtual ~TCerrojo() = default;
};

enum class TEspera { No, Si };

// Locks a folder of this user's against other processes. None when it is no such folder (a link to one is
// not), is not there any more, or without waiting when another holds the lock.
[[nodiscard]] std::unique_ptr<TCerrojo> BloqueaCarpeta(const std::filesystem::path& carpeta, TEspera espera);

}  // namespace analizador
