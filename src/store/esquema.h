// The tables of the store and the contents of a first store.
#pragma once

#include <QString>

class BaseDatos;

// Creates every present table and the rows a first store must hold, all or nothing. The three
// tables the start-up brings in by itself (NEW_EJE_TEMATICO, Puntajes_PSU_NEW,
// Puntajes_PSU_DINAMICO) are left to it.
void Crea_Base_Nueva(BaseDatos& base);

// Column order of each table, as positional inserts and `select *` rely on it.
QString Definicion_Tabla(const QString& tabla);
