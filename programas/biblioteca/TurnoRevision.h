#pragma once

namespace analizador {

// The turn of an analysis, which lasts as long as the object. Analyses go side by side; but the windows of a
// review are the process's, so while they are open those of other threads wait.
class TTurnoDeRevision {
  public:
    // Throws ErrorInterfaz (ANALIZADOR_MAL_USO) within another analysis of this thread, whose windows or Word
    // let the host's own code run, when one of both is reviewed.
    explicit TTurnoDeRevision(bool conRevision);
    ~TTurnoDeRevision();
    TTurnoDeRevision(const TTurnoDeRevision&) = delete;
    TTurnoDeRevision& operator=(const TTurnoDeRevision&) = delete;
};

}  // namespace analizador
