// The order of names as a Spanish reader expects: case-blind, each accented letter beside its
// plain letter ("Álgebra" among the A's), "ñ" after "n". Every store connection knows it as the
// collation ESPANOL; statements that order or compare names say "collate ESPANOL".
#pragma once

#include <QString>

// Negative, zero or positive as `a` sorts before, with or after `b`. Letters are compared
// first without accents or case, then accents (plain first), then case (small first), then
// code by code: only equal texts compare equal.
int Compara_Espanol(const QString& a, const QString& b);
