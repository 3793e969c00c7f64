// `zorta informe`: every report an analysis screen exports, written from the command line.
#pragma once

#include <QStringList>

int Cmd_Informe(const QStringList& args);
