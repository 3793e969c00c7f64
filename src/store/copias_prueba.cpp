// Copies of a test's rows and shared lookups.
#include "store/copias_prueba.h"

#include "app/estado.h"
#include "platform/base_datos.h"
#include "platform/grilla.h"
#include "store/contadores.h"

void Copia_Pauta_Prueba(int16_t forma) {
    BaseDatos& b = *estado().BaseDatos;
    Recordset rs = b.OpenRecordset(
        QStringLiteral(" select *  From resp_preguntas_pautas  Where idprueba = ?  and forma = ? "
                       "order by pregunta, alternativa"),
        {estado().Id_Prueba_Origen, forma});
    for (; !rs.Eof(); rs.MoveNext())
        b.Execute(QStringLiteral(" insert into Resp_preguntas_pautas values (?, ?, ?, ?)"),
                  {estado().Id_Prueba_Copia, rs[1], forma, rs[3]});
}

void Copia_Ejes_Prueba(int16_t forma) {
    BaseDatos& b = *estado().BaseDatos;
    int32_t correlativo = Maximo_Mas_Uno(QStringLiteral("NEW_EJE_TEMATICO"), QStringLiteral("correlativo"));
    Recordset rs = b.OpenRecordset(
        QStringLiteral("select correlativo,numero_pregunta,eje_tematico, eje_objetivo, forma, tipo_prueba "
                       " from NEW_EJE_TEMATICO  where idprueba = ? and forma = ? order by numero_pregunta"),
        {estado().Id_Prueba_Origen, forma});
    for (; !rs.Eof(); rs.MoveNext())
        b.Execute(QStringLiteral(" insert into NEW_EJE_TEMATICO values (?, ?, ?, ?, ?, ?, ?)"),
                  {correlativo++, estado().Id_Prueba_Copia, rs["numero_pregunta"], rs["eje_tematico"],
                   rs["eje_objetivo"], rs["forma"], rs["tipo_prueba"]});
}

void Carga_Formas_Pauta(QStringList& lista) {
    Recordset rs = estado().BaseDatos->OpenRecordset(
        QStringLiteral("  select distinct forma From resp_preguntas_pautas Where idprueba = ? order by forma"),
        {estado().Id_Prueba_Actual});
    for (; !rs.Eof(); rs.MoveNext()) lista << rs[0].toString();
}

QString Fnc_Nombre_Alumno(const QString& rut, Grilla& grilla) {
    QString nombre;
    Recordset rs = estado().BaseDatos->OpenRecordset(
        QStringLiteral("SELECT PRIMERAPELLIDO FROM ALUMNOS  WHERE RUT = ?"), {rut});
    const int fila = grilla.MaxRows();
    for (; !rs.Eof(); rs.MoveNext()) {
        nombre = rs[0].toString();
        grilla.FijaCelda(fila, 1, nombre);
        grilla.FijaCelda(fila, 9, nombre);
    }
    if (nombre.isEmpty()) {
        grilla.FijaCelda(fila, 1, QStringLiteral("Nombre no Existe"));
        grilla.FijaCelda(fila, 9, nombre);
    }
    return nombre;
}
