// Copies of a test's rows and shared lookups.
#include "store/copias_prueba.h"

#include "app/estado.h"
#include "platform/base_datos.h"
#include "platform/grilla.h"
#include "platform/numeros.h"
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
    int32_t correlativo =
        Maximo_Mas_Uno(QStringLiteral("NEW_EJE_TEMATICO"), QStringLiteral("correlativo"));
    Recordset rs = b.OpenRecordset(
        QStringLiteral(
            "select correlativo,numero_pregunta,eje_tematico, eje_objetivo, forma, tipo_prueba "
            " from NEW_EJE_TEMATICO  where idprueba = ? and forma = ? order by numero_pregunta"),
        {estado().Id_Prueba_Origen, forma});
    for (; !rs.Eof(); rs.MoveNext())
        b.Execute(QStringLiteral(" insert into NEW_EJE_TEMATICO values (?, ?, ?, ?, ?, ?, ?)"),
                  {correlativo++, estado().Id_Prueba_Copia, rs["numero_pregunta"],
                   rs["eje_tematico"], rs["eje_objetivo"], rs["forma"], rs["tipo_prueba"]});
}

void Carga_Formas_Pauta(QStringList& lista) {
    Recordset rs = estado().BaseDatos->OpenRecordset(
        QStringLiteral(
            "  select distinct forma From resp_preguntas_pautas Where idprueba = ? order by forma"),
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

bool Fija_Prueba_Actual(int16_t id) {
    Estado& e = estado();
    Recordset rs = e.BaseDatos->OpenRecordset(
        QStringLiteral("select * from prueba_rj where idprueba = ?"), {id});
    if (rs.Eof()) return false;
    e.Id_Prueba_Actual = id;
    e.Nombre_Prueba_Actual = rs[1].toString();
    e.Tipo_Prueba_Actual = rs[2].toString();
    e.Profesor_Actual = rs[3].toString();
    e.Asignatura_Actual = rs[4].toString();
    e.Curso_Actual = rs[5].toString();
    e.Numero_Formas_Actual = CInt(Val(rs[6].toString()));
    e.Ptje_Max_Actual = e.Preguntas_Actual = CInt(Val(rs[8].toString()));
    e.Alternativas_Actual = CInt(Val(rs[10].toString()));
    return true;
}
