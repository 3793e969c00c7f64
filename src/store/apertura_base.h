// Opening and closing the one store file. A new store is built aside under a temporary name and
// moved into place whole, so that a kill never leaves a half-made store; a file that is not a
// store of ours is refused without one byte of it written.
#pragma once

#include <QString>
#include <memory>

class BaseDatos;

// Opens the store at `ruta`, creating it when missing and bringing an older one up to the
// present tables (a failed step is reported in a warning box and the start goes on).
// ErrorEjecucion, with Spanish words, when the file can't be the store.
std::shared_ptr<BaseDatos> Abre_Base(const QString& ruta);

// Closes the shared handle and query, settling every change into the store file. Every way out
// of the program calls it while the store engine is still loaded.
void Cierra_Base();

// Closes the store at the end of the scope that holds it.
struct CierreBase {
    CierreBase() = default;
    CierreBase(const CierreBase&) = delete;
    CierreBase& operator=(const CierreBase&) = delete;
    ~CierreBase() { Cierra_Base(); }
};
