// Correcting a test's stored sheets.
#include "grading/correccion_alumnos.h"

#include <QMap>

#include "app/estado.h"
#include "grading/corrector.h"
#include "platform/base_datos.h"
#include "platform/error_ejecucion.h"
#include "platform/numeros.h"

namespace {

BaseDatos& Base() {
    return *estado().BaseDatos;
}
int16_t Id() {
    return estado().Id_Prueba_Actual;
}

struct Conteo {
    int buenas = 0, malas = 0, omitidas = 0, nulas = 0;
};

// Who writes a student's result: the run's full row, or the test list's grade repair.
using Grabador = void (*)(Corrector&, const QString&, const Conteo&, int total,
                          const QVariant& forma);

void Graba_Fila(Corrector& c, const QString& rut, const Conteo& n, int total,
                const QVariant& forma) {
    Grabar_Resultados_Alumnos(c, rut, n.buenas, n.malas, n.omitidas, n.nulas, total, forma);
}

void Graba_Nota_Proporcional(Corrector&, const QString&, const Conteo& n, int total,
                             const QVariant& forma) {
    if (total == 0) throw ErrorEjecucion(QStringLiteral("División por cero"));
    Base().Execute(QStringLiteral("update ResultadoAlumnos_rj set  nota = ? where idprueba = ? and "
                                  "forma = ? and rut = ?"),
                   {Round(n.buenas * 7.0 / total, 1), Id(), forma, estado().Rut_Actual});
}

void Carga_Pauta(Corrector& c, const QVariant& forma) {
    Recordset rs = Base().OpenRecordset(
        QStringLiteral(" select pregunta, alternativa  from Resp_preguntas_pautas where idprueba = "
                       "? and forma = ? "
                       "order by pregunta "),
        {Id(), forma});
    Llena_Tabla(c.SprRespuesta_Correctas, rs);
}

void Carga_Respuestas(Corrector& c, const QString& rut, const QVariant& forma, bool ordenadas) {
    QString sql = QStringLiteral(
        " select pregunta, alternativa from respuesta_alumnos_por_rut "
        "where idprueba = ? and forma = ? and Rut_Alumno = ?");
    if (ordenadas) sql += QStringLiteral(" order by pregunta");
    Recordset rs = Base().OpenRecordset(sql, {Id(), forma, rut});
    Llena_Tabla(c.Spr_Respuestas, rs);
}

// Row j of the key against row j of the answers, in as many passes as the answers hold whole
// keys; each pass writes its row and empties the answers.
void compare(Corrector& c, const QVariant& forma, Grabador grabar) {
    const int filas_pauta = c.SprRespuesta_Correctas.MaxRows();
    const double pasadas = double(c.Spr_Respuestas.MaxRows()) / filas_pauta;
    for (int i = 1; i <= pasadas; ++i) {
        Conteo n;
        for (int j = 1; j <= filas_pauta; ++j) {
            const int16_t k = CInt(Val(c.SprRespuesta_Correctas.Celda(j, 2)));
            const double a = Val(c.Spr_Respuestas.Celda(j, 2));
            if (a == k)
                ++n.buenas;
            else if (a == 6)
                ++n.omitidas;
            else if (a == 7)
                ++n.nulas;
            else
                ++n.malas;
        }
        grabar(c, estado().Rut_Actual, n, filas_pauta, forma);
        c.Spr_Respuestas.SetMaxRows(0);
    }
}

void Parcial(Corrector& c) {
    Carga_Pauta(c, c.TxtForma);
    for (const QString& rut : c.Lst_Recorreccion) {
        Carga_Respuestas(c, rut, c.TxtForma, false);
        c.TxtRut = rut;
        if (c.Spr_Respuestas.MaxRows() == 0 || c.SprRespuesta_Correctas.MaxRows() == 0) {
            Grabar_Resultados_Alumnos(c, c.TxtRut, 0, 0, 0, 0, c.SprRespuesta_Correctas.MaxRows(),
                                      99);
        } else {
            estado().Rut_Actual = c.TxtRut;
            compare(c, c.TxtForma, Graba_Fila);
        }
    }
    c.SprRespuesta_Correctas.SetMaxRows(0);
}

void Llena_List1(Corrector& c, const QVariant& forma) {
    c.List1.clear();
    Recordset rs = Base().OpenRecordset(
        QStringLiteral(" select distinct rut_alumno , forma from respuesta_alumnos_por_rut "
                       "where idprueba = ? and forma = ? order by  forma"),
        {Id(), forma});
    for (; !rs.Eof(); rs.MoveNext())
        c.List1 << rs[0].toString() + QStringLiteral(" @") + rs[1].toString();
}

// Without students of the form, the students of the last sheet's first form are taken: the way
// by which sheets of form 99 reach the results. When the last sheet stored nothing (its rut
// prompt deleted it) there is no one to take, and the run still ends with its message.
void Llena_List1_Con_Ultima_Hoja(Corrector& c) {
    if (!c.List1.isEmpty()) return;
    Recordset rs = Base().OpenRecordset(
        QStringLiteral(
            " select forma from respuesta_alumnos_por_rut where idprueba = ? and rut_alumno = ? "
            "order by  forma"),
        {Id(), c.TxtRut});
    if (!rs.Eof()) Llena_List1(c, rs[0]);
}

// The general mode: every form with a key, every student of that form. The repair stops at
// the first student without answers.
void General(Corrector& c, Grabador grabar, bool reparacion) {
    if (Id() == 0) return;
    for (int f = 1; f <= estado().Numero_Formas_Actual; ++f) {
        Carga_Pauta(c, f);
        if (c.SprRespuesta_Correctas.MaxRows() == 0) continue;
        Llena_List1(c, f);
        Llena_List1_Con_Ultima_Hoja(c);
        for (const QString& item : QStringList(c.List1)) {
            estado().Rut_Actual = item.section(QLatin1Char('@'), 0, 0).trimmed();
            Carga_Respuestas(c, estado().Rut_Actual, f, true);
            if (c.Spr_Respuestas.MaxRows() == 0) {
                if (reparacion) return;
                grabar(c, estado().Rut_Actual, {}, c.SprRespuesta_Correctas.MaxRows(), 99);
            } else {
                compare(c, f, grabar);
            }
        }
    }
    c.SprRespuesta_Correctas.SetMaxRows(0);
    c.SprRespuesta_Correctas.SetMaxRows(1);
}

}  // namespace

void Llena_Tabla(Grilla& tabla, Recordset& rs) {
    tabla.SetMaxRows(0);
    tabla.SetMaxRows(1);
    for (; !rs.Eof(); rs.MoveNext()) {
        const int fila = tabla.MaxRows();
        tabla.FijaCelda(fila, 1, rs[0].toString());
        tabla.FijaCelda(fila, 2, rs[1].toString());
        tabla.SetMaxRows(fila + 1);
    }
    tabla.SetMaxRows(tabla.MaxRows() - 1);
}

void Resultados_Alumnos_Pruebas(Corrector& c) {
    if (estado().Agrega_Actual) return Parcial(c);
    General(c, Graba_Fila, false);
}

int Completa_Correccion(Corrector& c) {
    // Only forms with a key: a sheet of form 99 waits for its form, as after any run.
    const QString sin_nota = QStringLiteral(
        " from respuesta_alumnos_por_rut r where idprueba = ? and not exists (select 1 from "
        "ResultadoAlumnos_rj n where n.idprueba = r.idprueba and n.rut = r.rut_alumno) and "
        "exists (select 1 from Resp_preguntas_pautas p where p.idprueba = r.idprueba and "
        "p.forma = r.forma)");
    QMap<int, QStringList> por_forma;
    Recordset rs = Base().OpenRecordset(
        QStringLiteral(" select distinct forma, rut_alumno") + sin_nota, {Id()});
    for (; !rs.Eof(); rs.MoveNext()) por_forma[rs[0].toInt()] << rs[1].toString();
    rs.Close();
    for (auto it = por_forma.cbegin(); it != por_forma.cend(); ++it) {
        c.TxtForma = QString::number(it.key());
        c.Lst_Recorreccion = it.value();
        Parcial(c);
    }
    c.Lst_Recorreccion.clear();
    const int quedan =
        Base()
            .OpenRecordset(QStringLiteral(" select count(distinct rut_alumno)") + sin_nota,
                           {Id()})[0]
            .toInt();
    int total = 0;
    for (const QStringList& ruts : por_forma) total += int(ruts.size());
    return total - quedan;
}

void Resultados_Alumnos_Pruebas_Reparacion(Corrector& c) {
    General(c, Graba_Nota_Proporcional, true);
}

void Grabar_Resultados_Alumnos(Corrector& c, const QString& rut, int buenas, int malas,
                               int omitidas, int nulas, int total, const QVariant& forma) {
    if (!Base()
             .OpenRecordset(
                 QStringLiteral(
                     " select * from ResultadoAlumnos_rj where rut = ? and idprueba = ?"),
                 {rut.trimmed(), Id()})
             .Eof())
        Base().Execute(
            QStringLiteral(
                "delete from ResultadoAlumnos_rj where idprueba = ? and rut = ? and forma  = ?"),
            {Id(), rut, forma});
    // Porcentaje is a whole-number column: the quotient is rounded as the column stores it.
    const double porcentaje = buenas == 0 ? 0.0 : buenas * 100.0 / total;
    Recordset tabla = Base().OpenTable(QStringLiteral("ResultadoAlumnos_rj"));
    tabla.AddNew();
    tabla.Fija(QStringLiteral("IdPrueba"), Id());
    tabla.Fija(QStringLiteral("Rut"), rut);
    tabla.Fija(QStringLiteral("Buenas"), buenas);
    tabla.Fija(QStringLiteral("Malas"), malas);
    tabla.Fija(QStringLiteral("Omitidas"), omitidas);
    tabla.Fija(QStringLiteral("Nulas"), nulas);
    tabla.Fija(QStringLiteral("Puntaje"), 0);
    tabla.Fija(QStringLiteral("Logro"), 0);
    tabla.Fija(QStringLiteral("Porcentaje"), CLng(porcentaje));
    tabla.Fija(QStringLiteral("Forma"), forma);
    if (const auto nota = Nota_De_Tabla(c.Notas, buenas)) tabla.Fija(QStringLiteral("Nota"), *nota);
    tabla.Update();
}
