// The desktop application from start to end: start-up, the main window with the test list, the
// event loop, and the store closed in order on every way out.
#pragma once

#include <functional>

class MdiMain;

// Runs the application; its exit status. `al_abrir` runs once the main window is up (a test
// uses it to drive the window through the real event loop).
int Ejecuta_Aplicacion(int argc, char** argv, const std::function<void(MdiMain&)>& al_abrir = {});
