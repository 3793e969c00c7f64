// `zorta corregir`: the reading run without windows, on the store of the data folder.
#pragma once

#include <QStringList>

// Runs the sub-command; `args` follow "corregir". 0 when the run went through the whole
// folder, 1 when it stopped before, 2 on bad arguments.
int Cmd_Corregir(const QStringList& args);
