// How a screen shows, brings forward or unloads another screen by name without knowing the
// main window. The main window installs the real moves; tests install their own to watch.
#pragma once

#include <QString>
#include <functional>

class QWidget;

struct Navegacion {
    // Shows a screen inside the main window (created when missing, else brought to the front).
    std::function<QWidget*(const QString&)> muestra;
    // Shows a screen modally and waits for it to close.
    std::function<void(const QString&)> modal;
    // Unloads a screen if it is open.
    std::function<void(const QString&)> descarga;
    // The screen open under that name, or null.
    std::function<QWidget*(const QString&)> abierta;
};

Navegacion& navegacion();

// Shortcuts that do nothing while no main window is installed.
QWidget* Muestra_Pantalla(const QString& nombre);
void Muestra_Modal(const QString& nombre);
void Descarga_Pantalla(const QString& nombre);
QWidget* Pantalla_Abierta(const QString& nombre);
