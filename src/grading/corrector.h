// The fields of the reading screen that storing and correcting a sheet work on: the sheet's
// rut and form, its letters, the key and answers in work, the grade table and the run's flags.
// The reading run owns one; the screen shows it.
#pragma once

#include <QString>
#include <QStringList>
#include <cstdint>

#include "grading/escala_notas.h"
#include "platform/grilla.h"

struct Corrector {
    // The boxes start with their design-time texts: no sheet has been read into them yet.
    QString TxtRut = QStringLiteral("TxtRut");
    QString TxtForma = QStringLiteral("TxtForma");
    // Row i is question i: column 1 the number, column 2 the letter (or, while correcting,
    // the key's code).
    Grilla SprRespuesta_Correctas{0, 2};
    // One student's stored answers while correcting.
    Grilla Spr_Respuestas{0, 2};
    // The operator's log of a sheet; at the end of a run the work list "rut @forma".
    QStringList List1;
    // The ruts read in a run that adds sheets to the present correction.
    QStringList Lst_Recorreccion;
    TablaNotas Notas;

    bool Rut_No_Reemplazado = false;
    int16_t Cant_No_Reemplazados = 0;
    bool Pauta_Rechazada = false;
    QString Preguntas_Omitidas;
    QString Preguntas_Nulas;
    int16_t Total_Omitidas = 0;
    int16_t Total_Nulas = 0;
};
