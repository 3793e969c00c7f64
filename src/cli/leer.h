// `zorta leer`: reads sheets without any store and prints one JSON object a line.
#pragma once

#include <QString>
#include <QStringList>

#include "reading/lectura_hoja.h"

// The JSON line of one sheet file; `abierto` tells whether the file could be opened.
QString Linea_Leer(const QString& ruta, const OpcionesLectura& opciones, bool& abierto);

// Runs the sub-command; `args` follow "leer". 0 when every file was opened, 2 otherwise.
int Cmd_Leer(const QStringList& args);
