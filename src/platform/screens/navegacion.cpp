// Moves between screens.
#include "platform/screens/navegacion.h"

Navegacion& navegacion() {
    static Navegacion n;
    return n;
}

QWidget* Muestra_Pantalla(const QString& nombre) {
    return navegacion().muestra ? navegacion().muestra(nombre) : nullptr;
}

void Muestra_Modal(const QString& nombre) {
    if (navegacion().modal) navegacion().modal(nombre);
}

QWidget* Pantalla_Abierta(const QString& nombre) {
    return navegacion().abierta ? navegacion().abierta(nombre) : nullptr;
}

void Descarga_Pantalla(const QString& nombre) {
    if (navegacion().descarga) navegacion().descarga(nombre);
}
