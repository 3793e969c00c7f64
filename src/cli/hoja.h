// `zorta hoja`: draws a sheet, printable blank or a synthetic filled scan, as a BMP file.
#pragma once

#include <QStringList>

#include "reading/generador_hoja.h"

// Fills `diseno` from the options; false with the reason in `error` on a bad option.
bool Lee_Opciones_Hoja(const QStringList& args, DisenoHoja& diseno, QString& salida, int& bits,
                       QString& error);

// Runs the sub-command; `args` follow "hoja". 0 when the file was written.
int Cmd_Hoja(const QStringList& args);
