// The tables of the store, the contents of a first store, and the bringing of an older store
// up to the present tables. The schema's version lives in the store (PRAGMA user_version).
#pragma once

#include <QString>
#include <QStringList>

class BaseDatos;

// The version of the tables this program builds and expects.
inline constexpr int kVersionEsquema = 1;

// Creates every table and the rows a first store must hold, all or nothing, and marks the
// store with the present version.
void Crea_Base_Nueva(BaseDatos& base);

// The tables every store of ours holds that this one lacks: a file lacking any is not ours.
QStringList Tablas_Que_Faltan(BaseDatos& base);

// The version the store is marked with (0 for a store older than the mark).
int Version_Esquema(BaseDatos& base);

// Creates the tables an older store lacks and copies its old axes; gives the words of each
// statement that failed (none when the store is now at the present version).
QStringList Migra_Esquema(BaseDatos& base);

// Column order of each table, as positional inserts and `select *` rely on it.
QString Definicion_Tabla(const QString& tabla);
