// The minimum grade setting.
#include "store/nota_minima.h"

#include "app/estado.h"
#include "platform/base_datos.h"
#include "platform/dialogos.h"
#include "platform/numeros.h"

int16_t Fnc_Lee_Nota_Minima() {
    int16_t nota = 0;
    Recordset rs = estado().BaseDatos->OpenRecordset(
        QStringLiteral("select desde from NivelesCalificacion where concepto = 'NM'"));
    for (; !rs.Eof(); rs.MoveNext()) nota = CInt(rs[0].toDouble());
    if (nota == 0)
        dialogos().MsgBox(
            QStringLiteral("No existe valor minimo de notas , verifique en Utilidades, Nivel de Evaluación."),
            vbExclamation, QStringLiteral("Indocar Minimo de Notas"));
    return nota;
}
