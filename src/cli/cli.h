// The headless sub-commands: batch work and automation without the main window.
#pragma once

#include <QStringList>

// Runs `zorta SUBCOMANDO ...`; `args` starts at the sub-command. The exit status.
int Ejecuta_Cli(const QStringList& args);

// True, once `ayuda` is printed, when the arguments ask for help.
bool Pide_Ayuda(const QStringList& args, const char* ayuda);
