// The hand-over to the scanning program: scaner.ini beside the store names the folder where
// the program leaves one bitmap a sheet (line 1) and the program's command line (line 2).
#pragma once

#include <QString>
#include <QStringList>

// The path of scaner.ini: the data folder, beside the store.
QString Ruta_Scaner_Ini();
// Line `linea` (1 or 2) of scaner.ini, as it stands. A missing file or line throws
// ErrorEjecucion.
QString Linea_Scaner_Ini(int linea);

// File1: the names of the folder's files, in name order. A missing folder throws
// ErrorEjecucion, as setting the file list to it does.
QStringList Archivos_Carpeta(const QString& carpeta);
// A sheet is a file whose text holds ".bmp", compared case-blind anywhere.
bool Es_Bitmap(const QString& texto);
// Deletes every file of the folder whose full path holds ".bmp".
void Elimina_Bitmaps(const QString& carpeta);
// Starts the scanning program of the command line as it stands (a path with spaces needs no
// quotes), detached, without waiting; a program that can't be started throws ErrorEjecucion.
void Inicia_Escaner(const QString& linea_comando);
