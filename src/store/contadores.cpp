// Counters and highest-plus-one keys.
#include "store/contadores.h"

#include "app/estado.h"
#include "platform/base_datos.h"
#include "platform/dialogos.h"
#include "platform/numeros.h"

namespace {

// The counter's value plus one, or 0 without its row.
int16_t Lee_Indice(const QString& tipo_indice) {
    int16_t siguiente = 0;
    Recordset rs = estado().BaseDatos->OpenRecordset(
        QStringLiteral(" select valor_indice  from indice_general where tipo_indice = ?"), {tipo_indice});
    if (!rs.Eof()) siguiente = CInt(rs[0].toDouble() + 1);
    return siguiente;
}

}  // namespace

int16_t Siguiente_Indice(const QString& tipo_indice) {
    const int16_t siguiente = Lee_Indice(tipo_indice);
    estado().BaseDatos->Execute(
        QStringLiteral(" update indice_general set  valor_indice  = ? where tipo_indice = ?"),
        {siguiente, tipo_indice});
    return siguiente;
}

int32_t Maximo_Mas_Uno(const QString& tabla, const QString& columna) {
    // Names come from the program, never from the operator.
    Recordset rs = estado().BaseDatos->OpenRecordset(
        QStringLiteral(" select max(%1) as maximo from %2").arg(columna, tabla));
    return rs.Eof() || rs[0].isNull() ? 1 : CLng(rs[0].toDouble() + 1);
}

int16_t Func_Indice_Color() {
    int16_t color = 0;
    Recordset rs = estado().BaseDatos->OpenRecordset(
        QStringLiteral(" select valor_indice  from indice_general where tipo_indice = 'COLOR'"));
    if (rs.Eof())
        dialogos().MsgBox(QStringLiteral("No existe indice para color gris en tabla, verifique"), vbExclamation,
                          QStringLiteral("Indice Color"));
    else
        color = CInt(rs[0].toDouble());
    return color;
}
