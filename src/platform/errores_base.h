// The words an operator reads when the store refuses a statement: a Spanish explanation first,
// the engine's own words only as a detail line.
#pragma once

#include <QString>
#include <QStringList>
#include <QVariantList>

class QSqlError;

// The message for a failed statement; for a duplicate key it names the value that already
// exists when the statement tells which one it was. `columnas_tabla`: the columns of the
// table in their stored order, for a positional insert.
QString Explica_Error_Base(const QSqlError& error, const QString& sql,
                           const QVariantList& parametros, const QStringList& columnas_tabla);

// For a failed "UNIQUE" check: the table named by the engine's words, "" otherwise.
QString Tabla_Duplicada(const QSqlError& error);
