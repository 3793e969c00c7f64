// Shared set-up of the master-data tests: a started store, the committed list files, and the
// rows of a table as text.
#pragma once

#include <QStringList>

#include "support/base_temporal.h"

class Maestros : public BaseArrancada {
  protected:
    void SetUp() override;

    // A committed list file of tests/data/masters.
    static QString Lista(const QString& nombre);
    // A text file written into the test's folder; its path.
    QString Escribe(const QString& nombre, const QByteArray& contenido);
    // Every row of a query, its fields joined by "|".
    QStringList Filas(const QString& sql, const QVariantList& parametros = {});
    // Runs `comando` inside the command boundary, as a button does.
    static bool Comando(const std::function<void()>& comando);
};

// Writes an .xlsx workbook of one sheet: `celdas` is the inside of <sheetData>; `compartidos`,
// when not null, the whole shared-strings part.
void Escribe_Xlsx(const QString& ruta, const QByteArray& celdas,
                  const QByteArray& compartidos = QByteArray());

class QWidget;
// Types `texto` into a control one key press at a time, as the operator does.
void Teclea(QWidget* control, const QString& texto);
